#include "reference_host/preset_store/PresetText.h"

#include "host/utils/Utf8.h"
#include "reference_host/document/XmlText.h"

#include <charconv>
#include <cstdint>
#include <cwchar>
#include <optional>

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

/// The character of an escape sequence at the front of `text`; none when there is no such sequence.
std::optional<wchar_t> Unescape(std::string_view text)
{
    unsigned value = 0;
    if (text.size() <= kDigits || text.front() != '%')
        return std::nullopt;
    const char* const end = text.data() + 1 + kDigits;
    const auto result = std::from_chars(text.data() + 1, end, value, 16);
    return result.ptr == end ? std::optional(static_cast<wchar_t>(value)) : std::nullopt;
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
        const std::optional<wchar_t> character = Unescape(text);
        restored += character.value_or(L'%');
        text.remove_prefix(character ? 1 + kDigits : 1);
    }
    return restored;
}

} // namespace ReferenceHost
