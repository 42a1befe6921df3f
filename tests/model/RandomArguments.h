#pragma once

#include "host/style_model/Style.h"
#include "host/utils/Any.h"
#include "tests/model/Dice.h"
#include "tests/model/PlainStyle.h"
#include "tests/model/StylePool.h"

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

/// @file
/// Random arguments of operations, and what they are on the library's side.

namespace LibraryModel
{

/// 0 to 2.
[[nodiscard]] std::size_t AnyPanel(Dice& dice);

/// A style of the pool or a substyle, whether or not it is there; rarely null.
[[nodiscard]] StyleRef AnyStyle(Dice& dice);
[[nodiscard]] StyleRefs AnyStyles(Dice& dice);

/// A style of the pool itself, of the sort that lies in sheets.
[[nodiscard]] StyleRef AnyPooledStyle(Dice& dice);

[[nodiscard]] Key AnyCategory(Dice& dice);
[[nodiscard]] Key AnyPropertyKey(Dice& dice);
[[nodiscard]] PlainValue AnyValue(Dice& dice);

/// Of up to three keys; sometimes none.
[[nodiscard]] Path AnyPath(Dice& dice);
[[nodiscard]] Paths AnyPaths(Dice& dice);

/// Null now and then.
[[nodiscard]] std::optional<Paths> MaybePaths(Dice& dice);

/// As panels have them: one property, several, with a wildcard, the whole style, none.
[[nodiscard]] std::string AnyIdentifier(Dice& dice);

/// Values by path, in a style of a category: what a change is made of.
struct ChangeRecipe
{
    bool isNull = false;
    Key category;
    std::vector<std::pair<Path, PlainValue>> values;

    [[nodiscard]] std::unique_ptr<Styles::Style> ForLibrary() const; ///< Null for a null change.
    [[nodiscard]] std::unique_ptr<PlainStyle> ForModel() const;
    [[nodiscard]] std::string Text() const;
};

[[nodiscard]] ChangeRecipe AnyChange(Dice& dice);

[[nodiscard]] OvxUtils::Any ToHost(const PlainValue& value);
[[nodiscard]] OvxStringT ToHost(const std::string& text);

/// "{S1, S2.fill}"
[[nodiscard]] std::string TextOf(const StyleRefs& refs);

/// "panels[1]."
[[nodiscard]] std::string PanelText(std::size_t panel);

/// "\"text\""
[[nodiscard]] std::string Quoted(const std::string& text);

/// A pointer to the paths, or null.
[[nodiscard]] inline const Paths* Pointer(const std::optional<Paths>& paths)
{
    return paths.has_value() ? &*paths : nullptr;
}

} // namespace LibraryModel
