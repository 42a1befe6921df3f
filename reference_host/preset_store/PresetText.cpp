#include "reference_host/preset_store/PresetText.h"

#include "host/utils/Utf8.h"
#include "reference_host/document/XmlText.h"

#include <charconv>
#include <cstdint>
#include <cwchar>

namespace ReferenceHost
{

namespace
{

constexpr std::size_t kDigits = 6;

/// Blanks other than the space are left to nobody: readers of XML turn them into spaces.
bool IsSafe(std::uint32_t character)
{
    return character >= 0x20 && character != '%' && character != 0x7F && IsXmlCharacter(character);
}

std::wstring Escape(std::uint32_t character)
{
    wchar_t digits[kDigits + 2];
    const int length = std::swprintf(digits, kDigits + 2, L"%%%06X", character);
    return {digits, static_cast<std::size_t>(length)};
}

/// The character of an escape sequence at the front of `text`; 0 when there is none.
wchar_t Unescape(std::string_view text)
{
    unsigned value = 0;
    if (text.size() <= kDigits || text.front() != '%')
        return 0;
    const char* const end = text.data() + 1 + kDigits;
    const auto result = std::from_chars(text.data() + 1, end, value, 16);
    return result.ptr == end ? static_cast<wchar_t>(value) : 0;
}

} // namespace

std::string ToPresetText(const OvxStringT& text)
{
    std::wstring safe;
    for (const wchar_t character : text.Wide())
    {
        const auto code = static_cast<std::uint32_t>(character);
        safe += IsSafe(code) ? std::wstring(1, character) : Escape(code);
    }
    return OvxUtils::ToUtf8(safe);
}

OvxStringT FromPresetText(std::string_view text)
{
    std::wstring restored;
    while (!text.empty())
    {
        const std::string_view plain = text.substr(0, text.find('%'));
        restored += OvxUtils::FromUtf8(plain).Wide();
        text.remove_prefix(plain.size());
        if (text.empty())
            break;
        const wchar_t character = Unescape(text);
        restored += character == 0 ? L'%' : character;
        text.remove_prefix(character == 0 ? 1 : 1 + kDigits);
    }
    return restored;
}

} // namespace ReferenceHost
