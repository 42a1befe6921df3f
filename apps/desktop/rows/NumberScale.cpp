#include "apps/desktop/rows/NumberScale.h"

namespace Desktop
{
namespace
{

constexpr double kHundredthMmPerPoint = 2540.0 / 72;
constexpr double kTenthPointsPerMm = 720 / 25.4;

} // namespace

NumberScale ScaleOf(const Workbench::RowDescription& row)
{
    const bool isFontSize = row.kind == Workbench::ValueKind::FontSize;
    const Workbench::NumberUnit unit = row.range ? row.range->unit : Workbench::NumberUnit::Percent;
    switch (unit)
    {
    case Workbench::NumberUnit::Millimetre:
        return {isFontSize ? kTenthPointsPerMm : 100, 2, 0.1, QStringLiteral("mm")};
    case Workbench::NumberUnit::Centimetre:
        return {isFontSize ? 10 * kTenthPointsPerMm : 1000, 3, 0.1, QStringLiteral("cm")};
    case Workbench::NumberUnit::Point:
        return {isFontSize ? 10 : kHundredthMmPerPoint, isFontSize ? 1 : 2, 1, QStringLiteral("pt")};
    case Workbench::NumberUnit::Percent:
        break;
    }
    return {1, 0, 1, QStringLiteral("%")};
}

} // namespace Desktop
