#pragma once

#include <string>
#include <string_view>

namespace ReferenceHost
{

/// The bytes that a base64 text stands for, up to the first character that is neither of its alphabet nor a
/// blank.
[[nodiscard]] std::string DecodeBase64(std::string_view text);

} // namespace ReferenceHost
