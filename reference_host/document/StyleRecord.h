#pragma once

#include "host/style_model/Style.h"
#include "host/utils/Any.h"
#include "host/utils/OvxStringT.h"

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace ReferenceHost
{

/// The families of styles that concern a drawing.
enum class StyleFamily
{
    Graphic,
    Paragraph,
    Text
};

/// Whether a style has a name that people know, or was made up for one place.
enum class StyleOrigin
{
    Named,
    Automatic
};

/// One property as a style of the file sets it.
struct StyleValue
{
    std::size_t row = 0;           ///< The property's first row in the PropertyMappings.
    OvxUtils::Any value;           ///< Empty when the value depends on the inherited one.
    double percentOfInherited = 0; ///< What is taken of the inherited value, when not 0.

    /// Tells whether text gets the colour of the window, whatever was inherited.
    [[nodiscard]] bool IsWindowColour() const noexcept { return value.IsEmpty() && percentOfInherited == 0; }

    friend bool operator==(const StyleValue&, const StyleValue&) = default;
};

/// The named style of one category that a substyle inherits from, as the file says it.
struct SubstyleParent
{
    std::string category;
    std::string name;               ///< As in the file: encoded.
    Styles::Style* style = nullptr; ///< What it became; null where it does not exist.
};

/// A style as it stands in the file.
struct StyleRecord
{
    std::string name; ///< As in the file: encoded.
    StyleFamily family = StyleFamily::Graphic;
    StyleOrigin origin = StyleOrigin::Automatic;
    std::string parentName;         ///< As in the file; empty without a parent.
    std::string displayName;        ///< Empty without one.
    std::string ownCategory;        ///< The category of a named style that is not a whole style; else empty.
    std::string ownParentName;      ///< Its parent of the same category, as in the file; empty without one.
    bool isHidden = false;          ///< Hidden from people.
    bool hasNoParent = false;       ///< Says of itself that shapes with it have no parent at all.
    bool isExternal = false;        ///< Stands in a style sheet outside the drawing, and is complete.
    std::size_t place = 0;          ///< Where its start tag stands in its XML text.
    std::vector<StyleValue> values; ///< In the order of the table, each property once.
    std::vector<SubstyleParent> substyleParents;
    std::vector<StyleValue> inheritedValues; ///< Values that stand there for other programs alone: what the
                                             ///< parents of the substyles give.

    StyleRecord* parent = nullptr;  ///< The named style of the same family that parentName means.
    Styles::Style* style = nullptr; ///< What a named graphic style became; owned by the sheet. It may be
                                    ///< gone: while saving, the sheet tells whether it still has it.
    OvxStringT sheetName;           ///< The name under which the sheet took it in.
};

/// All styles of a drawing as they stand in its file. Records keep their addresses.
///
/// Where it has no style of a name, the named ones of other catalogues answer.
class StyleCatalogue
{
public:
    /// Adds a style, unless there is one of the same name, family and origin.
    ///
    /// @returns the one that was there, and `record` is as it was; null when it was added, and `record` is
    /// empty.
    const StyleRecord* AddUnlessThere(StyleRecord& record);

    /// Makes room for so many more styles of an origin, as far as they are of the graphic family.
    void Reserve(StyleOrigin origin, std::size_t count);

    /// Lets the named styles of a catalogue be found where neither this one nor those added before have one
    /// of the name. Borrowed.
    void AddFallback(StyleCatalogue& catalogue) { fallbacks.push_back(&catalogue); }

    /// A style of that name, automatic ones first; null when there is none.
    [[nodiscard]] const StyleRecord* Find(StyleFamily family, std::string_view name) const;

    /// A named style of that name; null when there is none.
    [[nodiscard]] StyleRecord* FindNamed(StyleFamily family, std::string_view name) const;

    /// The same without the other catalogues.
    [[nodiscard]] StyleRecord* FindOwnNamed(StyleFamily family, std::string_view name) const;

    /// All styles in the order of the file.
    [[nodiscard]] std::deque<StyleRecord>& GetRecords() noexcept { return records; }

private:
    [[nodiscard]] StyleRecord* Find(StyleOrigin origin, StyleFamily family, std::string_view name) const;

    std::deque<StyleRecord> records;
    using RecordsByName = std::unordered_map<std::string_view, StyleRecord*>; ///< Keys lie in the records.

    [[nodiscard]] RecordsByName& NamesOf(StyleOrigin origin, StyleFamily family)
    {
        return byName[static_cast<std::size_t>(origin)][static_cast<std::size_t>(family)];
    }

    RecordsByName byName[2][3]; ///< By origin and family.
    std::vector<StyleCatalogue*> fallbacks;
};

} // namespace ReferenceHost
