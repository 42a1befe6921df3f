#pragma once

#include "host/utils/OvxStringT.h"

/// @file
/// The texts that the library shows are the host's; these are the keys under which it asks for them.

namespace ShownTexts
{

inline constexpr const wchar_t* kNothingToInheritFrom = L"881fe267-e7e0-4e0e-879a-1771032cbd0e";
inline constexpr const wchar_t* kOverridden = L"e00592b9-072e-4ce1-9cb1-92085fbc0591";
inline constexpr const wchar_t* kInherited = L"d342e6ca-41ea-42a4-8f92-6e5579ad3715";
inline constexpr const wchar_t* kAmbiguous = L"7df734c4-2fb0-41fb-b368-5fadc8758275";
inline constexpr const wchar_t* kUnnamedParent = L"1afd0b33-8a69-4ebe-bfcd-a0c00531518a";
inline constexpr const wchar_t* kNoStyle = L"f28ee68b-9815-4dc6-8faa-529bd81fcb44";
inline constexpr const wchar_t* kNoParent = L"d067aa9e-2e7b-48e4-b8f7-d1269f936601";
inline constexpr const wchar_t* kMoreStyles = L"21f1822a-aa97-4a53-bd73-31d27c53fc3b";
inline constexpr const wchar_t* kNoPreset = L"f5cefe53-8452-41c0-888b-b882ff5a4ba0";
inline constexpr const wchar_t* kNewPreset = L"d7f0b1e3-1872-49eb-8b70-e6060b1c789d";
inline constexpr const wchar_t* kReplacePreset = L"cd4094d1-a5e1-4fb0-89e6-0c33c6f2b99f";

/// The host's text of a key.
[[nodiscard]] OvxStringT Of(const wchar_t* key);

} // namespace ShownTexts
