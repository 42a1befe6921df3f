#include "apps/workbench/LibraryIntroduction.h"

#include "module/StylesCommon.h"

namespace Workbench
{

LibraryIntroduction::LibraryIntroduction(IOrvexCmn_App& application)
{
    StylesCommon::GetInstance().Initialize(&application);
}

LibraryIntroduction::~LibraryIntroduction()
{
    StylesCommon::GetInstance().Initialize(nullptr);
}

} // namespace Workbench
