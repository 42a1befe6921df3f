#pragma once

#include "host/Export.h"

#include <string>
#include <string_view>

/// A borrowed piece of wide text: valid as long as the text it was made from.
///
/// A view and not a text of its own, so that names in tables and literals cost nothing to pass on. Two views
/// are joined into a new text with `+`.
class OvxStringViewT : public std::wstring_view
{
public:
    using std::wstring_view::wstring_view;

    constexpr OvxStringViewT() = default;

    /// Views what the other views.
    constexpr OvxStringViewT(std::wstring_view view) : std::wstring_view(view) {}

    /// Views the text; valid until it changes.
    OvxStringViewT(const std::wstring& text) : std::wstring_view(text) {}
};
