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
    constexpr PooledString() = default;

    explicit PooledString(OvxStringViewT text) : pooled(Pool::Intern(text)) {}

    explicit PooledString(const OvxStringT& text) : pooled(Pool::Intern(text)) {}

    explicit PooledString(const wchar_t* text) : pooled(Pool::Intern(text)) {}

    [[nodiscard]] bool IsEmpty() const noexcept { return pooled == nullptr; }

    [[nodiscard]] OvxStringT GetString() const { return pooled == nullptr ? OvxStringT() : *pooled; }

    /// The address that stands for the text; null for the empty one.
    [[nodiscard]] const OvxStringT* GetIdentity() const noexcept { return pooled; }

    friend bool operator==(const PooledString&, const PooledString&) = default;

    friend std::strong_ordering operator<=>(const PooledString& left, const PooledString& right) noexcept
    {
        return std::compare_three_way()(left.pooled, right.pooled);
    }

private:
    const OvxStringT* pooled = nullptr;
};

} // namespace Styles
