#pragma once

#include "host/utils/OvxStringT.h"

#include <compare>
#include <functional>

namespace Styles
{

/// A text kept once in `Pool`: one pointer wide, compared and ordered by identity and not by letters.
///
/// Two are equal exactly when they were made from equal texts. The order is the same throughout one run of
/// the process only.
template <class Pool>
class PooledString
{
public:
    /// What the pool keeps for a text.
    using Text = typename Pool::Text;

    constexpr PooledString() = default;

    /// Stands for a text that the pool already keeps, so that constants need no initialiser that runs; null
    /// is empty.
    constexpr explicit PooledString(const Text* kept) noexcept : pooled(kept) {}

    /// Stands for the text, which is added to the pool when it is not there.
    explicit PooledString(OvxStringViewT text) : pooled(Pool::Intern(text)) {}

    /// Stands for the text, as for a view of it.
    explicit PooledString(const OvxStringT& text) : pooled(Pool::Intern(text)) {}

    /// Stands for the text, as for a view of it.
    explicit PooledString(const wchar_t* text) : pooled(Pool::Intern(text)) {}

    /// Tells whether this stands for the empty text.
    [[nodiscard]] bool IsEmpty() const noexcept { return pooled == nullptr; }

    /// A copy of the text.
    [[nodiscard]] OvxStringT GetString() const { return OvxStringT(GetView()); }

    /// The text without a copy of it; valid for as long as the process runs.
    [[nodiscard]] OvxStringViewT GetView() const noexcept
    {
        return pooled == nullptr ? OvxStringViewT() : pooled->characters;
    }

    /// The address that stands for the text; null for the empty one.
    [[nodiscard]] const Text* GetIdentity() const noexcept { return pooled; }

    /// Equal when they stand for equal texts.
    friend bool operator==(const PooledString&, const PooledString&) = default;

    /// By the addresses in the pool, not by letters.
    friend std::strong_ordering operator<=>(const PooledString& left, const PooledString& right) noexcept
    {
        return std::compare_three_way()(left.pooled, right.pooled);
    }

private:
    const Text* pooled = nullptr;
};

} // namespace Styles
