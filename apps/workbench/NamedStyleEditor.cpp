#include "apps/workbench/NamedStyleEditor.h"

namespace Workbench
{

void NamedStyleEditor::EditStyle(const OvxStringT& name, bool /*select*/, bool /*show*/)
{
    if (listener && !name.empty())
        listener(name);
}

} // namespace Workbench
