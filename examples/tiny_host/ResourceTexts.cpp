// The texts of the user interface, in one language. The library asks for them by these keys; a host with
// languages looks them up in the one in force.

#include "host/resources/Resources.h"
#include "tiny_host/broken/Promises.h"

#include <array>
#include <string_view>
#include <utility>

namespace
{

/// In the order in which they are met: panels' titles, states of rows, menu entries, style lists, presets,
/// categories. "%1" and "%2" are filled in by whoever shows the text.
constexpr std::array<std::pair<std::wstring_view, std::wstring_view>, 20> kTexts{{
    {L"e14efa70-e60c-4529-b1d8-e5e8cc8d6c4a", L"%1: %2"},
    {L"881fe267-e7e0-4e0e-879a-1771032cbd0e", L"Nothing to inherit from"},
    {L"e00592b9-072e-4ce1-9cb1-92085fbc0591", L"Set here"},
    {L"d342e6ca-41ea-42a4-8f92-6e5579ad3715", L"Inherited"},
    {L"7df734c4-2fb0-41fb-b368-5fadc8758275", L"Different"},
    {L"f6dd6f91-646d-4758-ba17-db358538fa3e", L"Revert to %1"},
    {L"6d36d862-aac1-4e48-a9eb-2ac57f1862b1", L"Apply to %1"},
    {L"a17f1a53-850c-459c-81df-297c75d6e567", L"Edit %1"},
    {L"1afd0b33-8a69-4ebe-bfcd-a0c00531518a", L"Parent"},
    {L"f28ee68b-9815-4dc6-8faa-529bd81fcb44", L"No style"},
    {L"d067aa9e-2e7b-48e4-b8f7-d1269f936601", L"No parent"},
    {L"21f1822a-aa97-4a53-bd73-31d27c53fc3b", L"More..."},
    {L"f5cefe53-8452-41c0-888b-b882ff5a4ba0", L"No preset"},
    {L"d7f0b1e3-1872-49eb-8b70-e6060b1c789d", L"Preset"},
    {L"cd4094d1-a5e1-4fb0-89e6-0c33c6f2b99f", L"Replace the preset of this name?"},
    {L"category.style", L"Style"},
    {L"category.fill", L"Fill"},
    {L"category.outline", L"Outline"},
    {L"category.paragraph", L"Paragraph"},
    {L"category.character", L"Character"},
}};

} // namespace

OvxStringT Framework::Resources::GetString(const OvxStringT& key)
{
    for (const auto& [known, text] : kTexts)
    {
        if (key == known)
            return text;
    }
    return TinyHost::Keeps(TinyHost::Promise::MissingTextsGiveTheirKey) ? key : OvxStringT();
}
