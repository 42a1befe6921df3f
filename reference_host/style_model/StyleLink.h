#pragma once

#include "host/style_model/Style.h"

#include <cstdint>

namespace ReferenceHost
{

/// Counts the changes to who inherits what, among all styles of the process: what was found where styles
/// inherit from stays right for as long as the count stays. Always odd, so that it is no address.
class InheritanceVersion
{
public:
    [[nodiscard]] static std::uint64_t Get() noexcept { return version; }

    static void Change() noexcept { version += 2; }

private:
    static constinit std::uint64_t version;
};

/// A borrowed pointer from one style to another that empties itself when the other goes.
///
/// The links to a style form a list through the links themselves, so that pointing and letting go cost the
/// same however many there are.
class StyleLink
{
public:
    StyleLink() = default;
    StyleLink(const StyleLink&) = delete;
    StyleLink& operator=(const StyleLink&) = delete;

    ~StyleLink() { Point(nullptr); }

    /// The style pointed to; null when there is none.
    [[nodiscard]] Styles::Style* Get() const noexcept { return target; }

    /// Points to another style, or to none with null.
    void Point(Styles::Style* newTarget) noexcept;

    /// Empties every link of a list. For a style that goes.
    static void ReleaseAll(StyleLink* first) noexcept;

private:
    Styles::Style* target = nullptr;
    StyleLink* previous = nullptr; ///< In the list of the links to `target`, whose head lies in the target.
    StyleLink* next = nullptr;
};

} // namespace ReferenceHost
