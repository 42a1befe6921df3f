#include "apps/desktop/rows/RowControl.h"

#include "apps/desktop/WindowText.h"
#include "apps/desktop/rows/ChoiceControl.h"
#include "apps/desktop/rows/ColourControl.h"
#include "apps/desktop/rows/NumberControl.h"
#include "apps/desktop/rows/SwitchControl.h"
#include "apps/desktop/rows/TextControl.h"

namespace Desktop
{

RowControl* MakeRowControl(const Workbench::RowDescription& row, const RowOffers& offers, QWidget* parent)
{
    switch (row.control)
    {
    case Workbench::ControlKind::Colour:
        return new ColourControl(offers, parent);
    case Workbench::ControlKind::Number:
        return new NumberControl(row, parent);
    case Workbench::ControlKind::Choice:
        return new ChoiceControl(row, parent);
    case Workbench::ControlKind::Switch:
        return new SwitchControl(row, parent);
    case Workbench::ControlKind::Text:
        break;
    }
    return new TextControl(offers, parent);
}

QString PlaceholderOf(const Workbench::RowReport& row)
{
    if (row.isAmbiguous)
        return TextOf(L"value.ambiguous");
    return std::holds_alternative<std::monostate>(row.value) ? TextOf(L"value.unset") : QString();
}

} // namespace Desktop
