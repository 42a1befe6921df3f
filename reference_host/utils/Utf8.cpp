#include "host/utils/Utf8.h"

#include "reference_host/utils/Utf8Coding.h"

namespace OvxUtils
{

std::string ToUtf8(OvxStringViewT text)
{
    return ReferenceHost::EncodeUtf8(std::wstring_view(text));
}

OvxStringT FromUtf8(std::string_view utf8)
{
    return OvxStringT(ReferenceHost::DecodeUtf8<wchar_t>(utf8));
}

} // namespace OvxUtils
