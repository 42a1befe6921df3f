#pragma once

#include "reference_host/document/AutomaticStyleEdits.h"
#include "reference_host/document/DrawingObject.h"
#include "reference_host/document/NamedStyleEdits.h"
#include "reference_host/document/SavedPart.h"
#include "reference_host/document/SavingContext.h"
#include "reference_host/document/TextLevels.h"

#include <pugixml.hpp>

#include <optional>
#include <string>
#include <string_view>

namespace ReferenceHost
{

/// Brings the automatic styles of the shapes of a file, and of their text, in line with the model.
class ShapeEdits
{
public:
    /// Borrows everything.
    ShapeEdits(const SavingContext& savingContext, SavedPart& contentPart, const NamedStyleEdits& namedStyles,
               AutomaticStyleEdits& automaticStyles);

    /// Looks at one shape. One of which no style was ever changed is as the file says.
    void Write(DrawingObject& object);

private:
    [[nodiscard]] StyleReference ReferTo(pugi::xml_node element, std::string_view uri, std::string_view local,
                                         StyleFamily family);
    void WriteShape(DrawingObject& object, pugi::xml_node element, const StyleReference& reference);
    [[nodiscard]] std::optional<std::string> FindOtherParent(const DrawingObject& object,
                                                             const StyleReference& reference);
    void WriteLevels(TextLevels& levels, const StyleWish& ofShape);
    void Wrap(const TextLeaf& leaf, const std::vector<pugi::xml_node>& contents);

    const SavingContext& context;
    SavedPart& content;
    const NamedStyleEdits& named;
    AutomaticStyleEdits& automatic;
};

} // namespace ReferenceHost
