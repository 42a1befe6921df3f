#pragma once

#include "tests/reference_host/document/FlatDrawing.h"

#include "host/utils/Any.h"

#include <string>

/// The bytes that an opened drawing would be saved as; its warnings go to those of the drawing.
[[nodiscard]] std::string Saved(OpenedDrawing& opened);

/// The drawing, saved and opened again.
[[nodiscard]] OpenedDrawing Reopened(OpenedDrawing& opened);

/// What an edit did to the bytes: what stood there, and what stands there instead, without what is the same
/// before and behind: "old -> new".
[[nodiscard]] std::string Difference(const std::string& before, const std::string& after);

/// Sets "category.key" of a style, or of one of its substyles. An empty value clears it.
void Set(Styles::Style* style, const std::string& path, const OvxUtils::Any& value);

[[nodiscard]] OvxUtils::Any ColourValue(std::uint8_t red, std::uint8_t green, std::uint8_t blue);
[[nodiscard]] OvxUtils::Any ChoiceValue(const std::wstring& text);
[[nodiscard]] OvxUtils::Any TextValue(const std::wstring& text);

/// A drawing with one rectangle on its page that refers to "gr1" with these properties, and no named style.
[[nodiscard]] FlatDrawing OneRectangle(const std::string& properties);
