#pragma once

#include "reference_host/document/SavedPart.h"
#include "reference_host/document/SavingContext.h"
#include "reference_host/document/StyleElementEdits.h"
#include "reference_host/document/StyleRecord.h"

#include "host/style_model/Style.h"
#include "host/utils/OvxStringT.h"

#include <string>
#include <unordered_map>
#include <vector>

namespace ReferenceHost
{

/// Brings the named styles and the default style of a file in line with those of the model.
class NamedStyleEdits
{
public:
    /// Borrows everything.
    NamedStyleEdits(const SavingContext& savingContext, SavedPart& namedPart);

    /// The encoded name by which the file will mean a named style: one of the sheet, or of a sheet outside
    /// the drawing unless another has the name as well and goes before it. Empty for null and for any other
    /// style.
    [[nodiscard]] std::string NameInFile(const Styles::Style* style) const;

    /// The encoded names that styles had, with those that they get, where they differ.
    [[nodiscard]] const std::unordered_map<std::string, std::string>& GetRenamed() const noexcept
    {
        return renamed;
    }

    /// Makes the edits.
    void Write();

private:
    void NameStyles();
    void NameExternalStyles();
    void WriteDefault();
    void WriteKnown(const StyleRecord& record);
    void WriteNew(const OvxStringT& name, Styles::Style& style);

    /// Programs repeat styles. The first counts, and would lose its place to another if that kept the name.
    void RenameRepetitions(pugi::xml_node style, const std::vector<AttributeEdit>& naming);
    void AddNaming(const StyleRecord& record, std::vector<AttributeEdit>& attributes) const;
    void AddParent(const Styles::Style& style, std::vector<AttributeEdit>& attributes) const;
    [[nodiscard]] std::string DisplayNameOf(const OvxStringT& name) const;
    void Append(std::string xml, pugi::xml_node container);

    const SavingContext& context;
    SavedPart& part;
    StyleElementEdits writer;
    std::unordered_map<const Styles::Style*, std::string> namesInFile;
    std::unordered_map<std::string, std::string> renamed;
    std::string withoutContainer; ///< New styles of a text that has no place for them yet.
};

} // namespace ReferenceHost
