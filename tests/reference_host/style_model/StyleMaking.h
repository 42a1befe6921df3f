#pragma once

#include "host/style_model/PropertyKey.h"
#include "host/style_model/PropertyPath.h"
#include "host/style_model/Style.h"
#include "host/utils/Any.h"

#include <initializer_list>
#include <memory>

/// @file
/// Short forms for styles in tests.

/// The key of that name.
Styles::PropertyKey Key(const wchar_t* name);

/// The path of those names.
Styles::PropertyPath Path(std::initializer_list<const wchar_t*> names);

/// An int in an Any.
OvxUtils::Any Number(int value);

/// A whole style: of the category "style", with the substyles "fill" and "outline".
std::unique_ptr<Styles::Style> MakeWhole(Styles::Style* parent = nullptr);

/// The substyle of that name, made when it is missing.
Styles::Style& Sub(Styles::Style& style, const wchar_t* name);
