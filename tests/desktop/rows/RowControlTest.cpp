#include "apps/desktop/rows/RowControl.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QSignalSpy>
#include <QSlider>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

using Desktop::RowControl;
using Workbench::ControlKind;
using Workbench::RowDescription;
using Workbench::RowReport;
using Workbench::ValueKind;

namespace
{

Desktop::RowOffers OfferNothing()
{
    return {[] { return std::vector<ReferenceHost::PaletteEntry>(); },
            [] { return std::optional<std::vector<OvxStringT>>(); }};
}

RowDescription NumberRow(ValueKind kind, Workbench::NumberUnit unit, int maximum)
{
    RowDescription row;
    row.control = ControlKind::Number;
    row.kind = kind;
    row.range = Workbench::NumberRange{unit, 0, maximum};
    return row;
}

RowDescription SwitchRow()
{
    RowDescription row;
    row.control = ControlKind::Switch;
    row.kind = ValueKind::Choice;
    row.choices = {{L"hidden", L"Hidden"}, {L"visible", L"Visible"}};
    return row;
}

RowReport Showing(const RowDescription& description, Workbench::ReportValue value)
{
    RowReport report;
    report.description = &description;
    report.value = std::move(value);
    return report;
}

RowReport Ambiguous(const RowDescription& description)
{
    RowReport report;
    report.description = &description;
    report.isAmbiguous = true;
    return report;
}

std::unique_ptr<RowControl> Make(const RowDescription& row)
{
    return std::unique_ptr<RowControl>(Desktop::MakeRowControl(row, OfferNothing(), nullptr));
}

} // namespace

TEST(RowControl, ShowsALengthInItsUnit)
{
    const RowDescription row = NumberRow(ValueKind::Length, Workbench::NumberUnit::Millimetre, 50000);
    const auto control = Make(row);

    control->ShowRow(Showing(row, 350));

    EXPECT_EQ(control->findChild<QDoubleSpinBox*>()->text(), QStringLiteral("3.50 mm"));
}

TEST(RowControl, ShowsANumberBeyondTheLimits)
{
    const RowDescription row = NumberRow(ValueKind::Length, Workbench::NumberUnit::Millimetre, 100);
    const auto control = Make(row);

    control->ShowRow(Showing(row, 350));

    EXPECT_EQ(control->findChild<QDoubleSpinBox*>()->text(), QStringLiteral("3.50 mm"));
}

TEST(RowControl, ShowsTheSameNumberAgainAfterItWasAmbiguous)
{
    const RowDescription row = NumberRow(ValueKind::FontSize, Workbench::NumberUnit::Point, 9999);
    const auto control = Make(row);
    control->ShowRow(Showing(row, 0));
    control->ShowRow(Ambiguous(row));

    control->ShowRow(Showing(row, 0));

    EXPECT_EQ(control->findChild<QDoubleSpinBox*>()->text(), QStringLiteral("0.0 pt"));
}

TEST(RowControl, TellsATypedNumberOnce)
{
    const RowDescription row = NumberRow(ValueKind::Length, Workbench::NumberUnit::Millimetre, 50000);
    const auto control = Make(row);
    control->ShowRow(Ambiguous(row));
    const QSignalSpy committed(control.get(), &RowControl::committed);
    auto* const field = control->findChild<QDoubleSpinBox*>();

    QTest::keyClicks(field, QStringLiteral("12"));
    QTest::keyClick(field, Qt::Key_Return);

    ASSERT_EQ(committed.count(), 1);
    EXPECT_EQ(committed.front().front().toString(), QStringLiteral("12.00mm"));
}

TEST(RowControl, TellsAMovedSliderAsADrag)
{
    const RowDescription row = NumberRow(ValueKind::Percent, Workbench::NumberUnit::Percent, 100);
    const auto control = Make(row);
    control->ShowRow(Showing(row, 20));
    const QSignalSpy began(control.get(), &RowControl::dragBegan);
    const QSignalSpy dragged(control.get(), &RowControl::dragged);
    const QSignalSpy ended(control.get(), &RowControl::dragEnded);
    auto* const slider = control->findChild<QSlider*>();

    slider->setSliderDown(true);
    slider->setSliderPosition(35);
    slider->setSliderDown(false);

    EXPECT_EQ(began.count(), 1);
    EXPECT_EQ(dragged.back().front().toString(), QStringLiteral("35%"));
    EXPECT_EQ(ended.count(), 1);
}

TEST(RowControl, HalfChecksASwitchThatIsAmbiguous)
{
    const RowDescription row = SwitchRow();
    const auto control = Make(row);

    control->ShowRow(Ambiguous(row));

    EXPECT_EQ(control->findChild<QCheckBox*>()->checkState(), Qt::PartiallyChecked);
}

TEST(RowControl, TellsTheValueThatASwitchIsTurnedTo)
{
    const RowDescription row = SwitchRow();
    const auto control = Make(row);
    control->ShowRow(Showing(row, OvxStringT(L"hidden")));
    const QSignalSpy committed(control.get(), &RowControl::committed);

    control->findChild<QCheckBox*>()->click();

    ASSERT_EQ(committed.count(), 1);
    EXPECT_EQ(committed.front().front().toString(), QStringLiteral("visible"));
}

TEST(RowControl, ShowsAChoiceThatTheRowDoesNotOffer)
{
    RowDescription row = SwitchRow();
    row.control = ControlKind::Choice;
    const auto control = Make(row);

    control->ShowRow(Showing(row, OvxStringT(L"blurred")));

    EXPECT_EQ(control->findChild<QComboBox*>()->currentIndex(), -1);
    EXPECT_EQ(control->findChild<QComboBox*>()->placeholderText(), QStringLiteral("blurred"));
}

TEST(RowControl, TellsATextOnlyWhenItWasTyped)
{
    RowDescription row;
    const auto control = Make(row);
    control->ShowRow(Ambiguous(row));
    const QSignalSpy committed(control.get(), &RowControl::committed);
    auto* const field = control->findChild<QLineEdit*>();

    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(committed.count(), 0);

    QTest::keyClicks(field, QStringLiteral("Serif"));
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(committed.count(), 1);
}

TEST(RowControl, TellsATextThatWasTypedAsItWas)
{
    RowDescription row;
    const auto control = Make(row);
    control->ShowRow(Showing(row, OvxStringT(L"Serif")));
    const QSignalSpy committed(control.get(), &RowControl::committed);
    auto* const field = control->findChild<QLineEdit*>();

    field->selectAll();
    QTest::keyClicks(field, QStringLiteral("Serif"));
    QTest::keyClick(field, Qt::Key_Return);

    EXPECT_EQ(committed.count(), 1) << "what is inherited becomes local when it is written";
}

TEST(RowControl, TellsNothingOfATextThatWasTypedAndTakenBack)
{
    RowDescription row;
    const auto control = Make(row);
    control->ShowRow(Ambiguous(row));
    const QSignalSpy committed(control.get(), &RowControl::committed);
    auto* const field = control->findChild<QLineEdit*>();

    QTest::keyClicks(field, QStringLiteral("S"));
    QTest::keyClick(field, Qt::Key_Backspace);
    QTest::keyClick(field, Qt::Key_Return);

    EXPECT_EQ(committed.count(), 0);
}
