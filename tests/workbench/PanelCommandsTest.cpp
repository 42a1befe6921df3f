#include "apps/workbench/PanelCommands.h"

#include "host/data_binding/ID_CString.h"
#include "host/utils/Any.h"
#include "tests/reference_host/data_binding/BoundNames.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <typeinfo>
#include <vector>

using testing::ElementsAre;

namespace
{

/// A panel that tells what it was asked about.
class AskedPanel : public IReflectable
{
public:
    AskedPanel()
    {
        BoundNames::AddWritable<OvxStringT>(
            *this, L"ActiveIdentifier", [this] { return active; },
            [this](const OvxStringT& identifier) { active = identifier; });
        BoundNames::AddReadOnly<int>(*this, L"PaintEnable", [this] { return active == L"paint" ? 1 : 0; });
        BoundNames::AddReadOnly<int>(*this, L"BreakEnable", []() -> int { throw std::bad_cast(); });
        BoundNames::AddCommand(*this, L"OnPaint", [this] { ran.push_back(active); });
        BoundNames::AddWritable<OvxUtils::Any>(
            *this, L"PropertyIcon", [] { return OvxUtils::Any(); },
            [this](const OvxUtils::Any& question)
            { const_cast<ID_CString&>(question.Get<ID_CString>()).result = icon; });
    }

    OvxStringT active;
    OvxStringT icon;
    std::vector<OvxStringT> ran;
};

} // namespace

TEST(PanelCommand, IsEnabledAsThePanelSaysOfTheIdentifier)
{
    AskedPanel panel;

    EXPECT_TRUE(Workbench::IsEnabled(panel, L"paint", L"PaintEnable"));
    EXPECT_FALSE(Workbench::IsEnabled(panel, L"ink", L"PaintEnable"));
}

TEST(PanelCommand, IsNotEnabledWhenTheEnableFailsForWantOfAColour)
{
    AskedPanel panel;

    EXPECT_FALSE(Workbench::IsEnabled(panel, L"paint", L"BreakEnable"));
}

TEST(PanelCommand, IsNotEnabledInAPanelThatDoesNotHaveIt)
{
    AskedPanel panel;

    EXPECT_FALSE(Workbench::IsEnabled(panel, L"paint", L"MissingEnable"));
}

TEST(PanelCommand, RunsWithTheIdentifierInForce)
{
    AskedPanel panel;

    Workbench::RunCommand(panel, L"paint", L"OnPaint");

    EXPECT_THAT(panel.ran, ElementsAre(OvxStringT(L"paint")));
}

TEST(StateOfAPanel, IsToldByItsIcon)
{
    AskedPanel panel;
    panel.icon = L"InheritedImage";

    EXPECT_EQ(Workbench::AskState(panel, L"style"), "Inherited");
}
