#pragma once

#include "host/utils/OvxStringViewT.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace Panels
{

/// What is wrong with a row that ends the build: the compiler's message names one of these, none of which
/// can be called while a program is compiled.
namespace RowMistake
{
void TheBoundNameOfARowIsEmpty();
void TheBoundNameOfARowHoldsMoreThanLettersAndDigits();
void TheIdentifierOfARowIsEmpty();
void TheIdentifierOfARowHasAnEmptyKey();
void TheIdentifierOfARowHoldsABlankOrAComma();
void TwoRowsHaveTheSameBoundName();
} // namespace RowMistake

/// One row of a panel, as its module writes it down: a constant.
struct PanelRow
{
    /// @param itsProperty   the bound name of the row's value: "FillColor".
    /// @param itsIdentifier the path of its property within the category, keys joined by ".": "color".
    consteval PanelRow(OvxStringViewT itsProperty, OvxStringViewT itsIdentifier)
        : property(itsProperty), identifier(itsIdentifier)
    {
        if (property.empty())
            RowMistake::TheBoundNameOfARowIsEmpty();
        for (const wchar_t character : property)
        {
            if (!IsLetterOrDigit(character))
                RowMistake::TheBoundNameOfARowHoldsMoreThanLettersAndDigits();
        }
        if (identifier.empty())
            RowMistake::TheIdentifierOfARowIsEmpty();
        if (identifier.front() == L'.' || identifier.back() == L'.' ||
            identifier.find(L"..") != OvxStringViewT::npos)
            RowMistake::TheIdentifierOfARowHasAnEmptyKey();
        if (identifier.find_first_of(L" ,") != OvxStringViewT::npos)
            RowMistake::TheIdentifierOfARowHoldsABlankOrAComma();
    }

    OvxStringViewT property;   ///< A constant of the panel's module, as is the next.
    OvxStringViewT identifier; ///< Never empty, nor is the other.

private:
    static consteval bool IsLetterOrDigit(wchar_t character)
    {
        return (character >= L'A' && character <= L'Z') || (character >= L'a' && character <= L'z') ||
               (character >= L'0' && character <= L'9');
    }
};

/// The rows of a panel, in order, a line for each:
///
///     constexpr auto kRows = Panels::Rows({
///         {L"FillType", L"type"},
///         {L"FillColor", L"color"},
///     });
template <std::size_t Count>
[[nodiscard]] consteval std::array<PanelRow, Count> Rows(const PanelRow (&rows)[Count])
{
    for (std::size_t later = 0; later < Count; ++later)
    {
        for (std::size_t earlier = 0; earlier < later; ++earlier)
        {
            if (rows[earlier].property == rows[later].property)
                RowMistake::TwoRowsHaveTheSameBoundName();
        }
    }
    return std::to_array(rows);
}

} // namespace Panels
