#pragma once

#include "reference_host/document/OwnValues.h"
#include "reference_host/document/PropertyMappings.h"
#include "reference_host/document/StyleRecord.h"
#include "reference_host/document/UserJournal.h"

#include "host/style_model/Style.h"
#include "host/utils/OvxStringT.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <set>
#include <span>
#include <unordered_map>
#include <vector>

namespace ReferenceHost
{

class DrawingObject;
class TextUnit;

/// Whose a whole style is. Borrowed from the drawing.
struct StyleUser
{
    DrawingObject* object = nullptr; ///< Never null for a style that has a user.
    TextUnit* unit = nullptr;        ///< The unit of the object's text; null for the object itself.
};

/// Makes the styles of shapes and text units out of the styles of the file that apply to them, when they are
/// first asked for.
///
/// A cascade is such a combination of styles. There are far fewer of them than shapes and runs, so each is
/// kept once, and its values are gathered once.
class CascadeStyles
{
public:
    /// Borrows both.
    CascadeStyles(const PropertyMappings& properties, Styles::Style& defaultStyle);
    CascadeStyles(const CascadeStyles&) = delete;
    CascadeStyles& operator=(const CascadeStyles&) = delete;

    /// The number of a cascade: what `levels` set, nearest first, over `parent`, which may be null. Borrows
    /// them.
    [[nodiscard]] std::size_t Intern(OwnValues::Scope scope, Styles::Style* parent,
                                     std::span<const StyleRecord* const> levels);

    /// A new whole style of a cascade, by the number that Intern() gave, with all its substyles, that
    /// inherits from the cascade's parent and falls back to the default style.
    [[nodiscard]] std::unique_ptr<Styles::Style> Make(std::size_t number);

    /// The style that further uses of a cascade are copied from, for reading alone. Owned by this.
    [[nodiscard]] const Styles::Style& GetPrototype(std::size_t number);

    /// A new style as by Make(), for somebody: the style is one of the document, whose journal hears of its
    /// changes, and its user is found by it from now on. User and style live as long as this.
    [[nodiscard]] std::unique_ptr<Styles::Style> MakeFor(const StyleUser& user, std::size_t number);

    /// The journal of styles that are made for somebody from now on; borrowed, null for none.
    void SetJournal(IStyleJournal* newJournal) noexcept { journal.SetNext(newJournal); }

    /// Whose a whole style is; no object for one that was not made for anybody.
    [[nodiscard]] StyleUser FindUser(const Styles::StyleData& wholeStyle) const;

    /// All whose styles were made, in no order.
    [[nodiscard]] std::vector<StyleUser> GetUsers() const;

    /// Works out the values that are given as a part of an inherited one, so that styles made later do not
    /// depend on what becomes of those that they inherit from.
    void FixRelativeValues();

    /// Tells for each cascade by its number whether a value that is given as a part of an inherited one is at
    /// one of these rows.
    [[nodiscard]] std::vector<bool> FindRelative(const std::set<std::size_t>& rows) const;

    /// Tells whether a cascade has a value that is given as a part of an inherited one.
    [[nodiscard]] bool HasRelativeValues(std::size_t number) const;

    /// Tells whether a style of the file that belongs to a cascade has substyles that inherit from named
    /// ones.
    [[nodiscard]] bool HasSubstyleParents(std::size_t number) const;

    /// Tells whether a style of the file that belongs to a cascade gives a colour by this palette entry.
    [[nodiscard]] bool RefersToPalette(std::size_t number, const OvxStringT& entry) const;

private:
    struct Cascade
    {
        OwnValues::Scope scope;
        Styles::Style* parent;
        std::vector<const StyleRecord*> levels;
        std::size_t hash;                         ///< Of all before.
        std::size_t uses = 0;                     ///< How often it was asked for by Intern().
        std::unique_ptr<Styles::Style> prototype; ///< What further uses are copied from; null until needed.
    };

    [[nodiscard]] std::unique_ptr<Styles::Style> Build(const Cascade& cascade) const;

    /// The slot that holds the number of a cascade for which `isSame` holds, or the free one where it
    /// belongs.
    template <class Predicate>
    [[nodiscard]] std::size_t FindSlot(std::size_t hash, const Predicate& isSame) const;

    void GrowSlots();

    const PropertyMappings& table;
    Styles::Style& defaults;
    std::vector<Cascade> cascades;
    std::vector<std::uint32_t>
        slots; ///< By hashes: one more than the number of a cascade, or 0. Half are free.
    UserJournal journal{*this};
    std::unordered_map<const Styles::StyleData*, StyleUser> users;
};

/// Tells whether a value is a colour that refers to a palette entry.
[[nodiscard]] bool RefersToPaletteEntry(const OvxUtils::Any& value, const OvxStringT& entry);

/// A new whole style with an empty substyle for each category.
[[nodiscard]] std::unique_ptr<Styles::Style> MakeWholeStyle(Styles::Style* parent,
                                                            const PropertyMappings& table);

} // namespace ReferenceHost
