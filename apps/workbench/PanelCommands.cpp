#include "apps/workbench/PanelCommands.h"

#include "host/data_binding/ID_CString.h"
#include "host/utils/Any.h"
#include "host/utils/Utf8.h"

#include <typeinfo>

namespace Workbench
{

bool IsEnabled(IReflectable& panel, const OvxStringT& identifier, OvxStringViewT enable)
{
    if (!panel.HasProperty(enable))
        return false;
    panel.Write<OvxStringT>(L"ActiveIdentifier", identifier);
    try
    {
        return panel.Read<int>(enable) != 0;
    }
    catch (const std::bad_cast&)
    {
        return false;
    }
}

void RunCommand(IReflectable& panel, const OvxStringT& identifier, OvxStringViewT command)
{
    panel.Write<OvxStringT>(L"ActiveIdentifier", identifier);
    panel.Invoke(command);
}

std::string AskState(IReflectable& panel, const OvxStringT& identifier)
{
    constexpr std::string_view kImageSuffix = "Image";
    // The answer comes back in the value that is written.
    const OvxUtils::Any question(ID_CString{identifier, {}});
    panel.WriteAny(L"PropertyIcon", question);
    std::string image = OvxUtils::ToUtf8(question.Get<ID_CString>().result);
    if (image.ends_with(kImageSuffix))
        image.resize(image.size() - kImageSuffix.size());
    return image;
}

} // namespace Workbench
