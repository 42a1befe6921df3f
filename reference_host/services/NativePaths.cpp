#include "reference_host/services/NativePaths.h"

#include "host/utils/Utf8.h"

namespace ReferenceHost
{

std::string PathToUtf8(const std::filesystem::path& path)
{
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

OvxStringT PathToText(const std::filesystem::path& path)
{
    return OvxUtils::FromUtf8(PathToUtf8(path));
}

std::filesystem::path PathFromText(const OvxStringT& text)
{
    const std::string utf8 = OvxUtils::ToUtf8(text);
    return std::u8string(utf8.begin(), utf8.end());
}

} // namespace ReferenceHost
