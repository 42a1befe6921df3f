#pragma once

#include "reference_host/document/CascadeStyles.h"
#include "reference_host/document/Drawing.h"
#include "reference_host/document/DrawingFile.h"
#include "reference_host/document/DrawingSettling.h"
#include "reference_host/document/ExternalSheets.h"
#include "reference_host/document/KnownFiles.h"
#include "reference_host/document/NamedStyles.h"
#include "reference_host/document/PropertyCodecs.h"
#include "reference_host/document/PropertyMappings.h"
#include "reference_host/document/StyleRecord.h"
#include "reference_host/document/StyleSheetLink.h"
#include "reference_host/history/History.h"
#include "reference_host/style_model/NamedStyleSheet.h"

#include <deque>
#include <filesystem>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace ReferenceHost
{

/// The insides of a drawing. Later fields use earlier ones and go before them.
struct DrawingData
{
    DrawingData(std::filesystem::path drawing, const std::vector<PropertyMapping>& furtherProperties)
        : path(std::move(drawing)),
          extensions(furtherProperties),
          table(extensions),
          defaultStyle(MakeWholeStyle(nullptr, table)),
          cascades(table, *defaultStyle),
          settling(table, cascades, objects),
          history(&settling)
    {
    }

    std::filesystem::path path;
    DrawingFile file;                        ///< The bytes as they were read: edits are spliced into them.
    KnownFiles saved;                        ///< Where the drawing was saved, and as what.
    std::vector<PropertyMapping> extensions; ///< Properties beyond the built-in ones.
    PropertyMappings table;
    std::vector<PaletteEntry> palette;
    std::vector<StyleSheetLink> sheetLinks; ///< All that stand in the file, in its order.
    ExternalSheets sheets;                  ///< Those of the links that can be used.
    StyleCatalogue catalogue;
    DeclaredNames namedDeclared;                 ///< What the named styles refer to.
    DeclaredNames declared;                      ///< What the automatic styles refer to.
    std::optional<StyleRecord> defaultRecord;    ///< The default style as it stands in the file.
    std::unique_ptr<Styles::Style> defaultStyle; ///< Never null.
    NamedStyleSheet sheet;
    StyleAppearances appearances;
    CascadeStyles cascades;
    DrawingSettling settling;
    History history; ///< Hears of changes from the time when the file has been read.
    std::vector<DrawingPage> pages;
    std::deque<DrawingObject> objects;
};

} // namespace ReferenceHost
