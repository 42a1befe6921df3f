#pragma once

#include "reference_host/document/ProgressMeter.h"
#include "reference_host/document/SavedPart.h"
#include "reference_host/document/SavingContext.h"
#include "reference_host/document/StyleElementEdits.h"
#include "reference_host/document/StyleRecord.h"

#include <pugixml.hpp>

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace ReferenceHost
{

/// The attribute of an element in the text that says which style the element has.
struct StyleReference
{
    pugi::xml_node element;
    std::string_view uri; ///< Of the attribute.
    std::string_view local;
    StyleFamily family = StyleFamily::Graphic;
    const StyleRecord* record = nullptr; ///< What it names now; null without one.
};

/// Gathers what automatic styles shall say for the places that refer to them, and edits, splits and adds
/// styles so that each place gets its own and no other place notices.
class AutomaticStyleEdits
{
public:
    /// Borrows everything. `newNames` are those of named styles that get others, by the old ones. New styles
    /// are called like none in either part; a flat drawing has one.
    AutomaticStyleEdits(const SavingContext& savingContext, SavedPart& contentPart,
                        const SavedPart& namedPart,
                        const std::unordered_map<std::string, std::string>& newNames);

    /// A place shall have another style than it names now. Once for each place.
    void Change(const StyleReference& reference, StyleWish wish);

    /// The name of a new automatic style; equal ones are made once. What the wish wants gone it does not get.
    [[nodiscard]] std::string AddStyle(StyleFamily family, StyleWish wish);

    /// The changes of a shape that its automatic text style repeats, see StyleElementEdits::EditRepeated().
    [[nodiscard]] PropertyValues FindRepeated(const StyleRecord& record, const PropertyValues& changes) const;

    /// Makes the edits. Once, after all else.
    void Finish(ProgressSpan progress);

private:
    /// Places that refer to one automatic style and shall have the same instead.
    struct Group
    {
        StyleWish wish;
        std::vector<StyleReference> references;
    };

    struct Added
    {
        StyleFamily family;
        StyleWish wish;
        std::string name;
    };

    void FinishStyle(const StyleRecord& record, const std::vector<Group>& groups);
    void AddUnderNamed(const StyleReference& reference, const StyleWish& wish);
    void EditStyle(pugi::xml_node element, const StyleRecord& record, const StyleWish& wish, XmlEdits& edits);
    void Refer(const StyleReference& reference, const std::string& name);
    void WriteAdded();
    [[nodiscard]] std::string UnusedName(StyleFamily family);

    SavedPart& content;
    const SavedPart& named;
    const std::unordered_map<std::string, std::string>& renamed;
    StyleElementEdits writer;
    std::vector<std::pair<const StyleRecord*, std::vector<Group>>> changed; ///< In the order of the calls.
    std::unordered_map<const StyleRecord*, std::size_t> placesOfChanged;
    std::vector<Added> added;
    std::size_t lastNumbers[3] = {}; ///< By family.
};

/// The attributes that tell a style's parent, for a shape's automatic style: an empty name says that there is
/// none.
void SetShapeParent(std::vector<AttributeEdit>& attributes, const std::string& parent);

} // namespace ReferenceHost
