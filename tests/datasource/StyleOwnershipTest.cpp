// Who ends the styles that travel with a write: whatever is written, and whichever call fails on the way, as
// many styles live afterwards as before.

#include "host/colour/CLR_COLORSPEC.h"
#include "tests/datasource/support/SiblingWritingTest.h"
#include "tests/host_pieces/HostPieces.h"

namespace
{

using namespace Styles;
using HostPieces::CountLiveStyles;
using OvxUtils::Any;

class StyleOwnership;

struct Operation
{
    const char* name;
    void (StyleOwnership::*run)();
};

/// Runs one operation that makes styles, on targets and default styles that miss nothing.
class StyleOwnership : public SiblingWritingTest, public testing::WithParamInterface<Operation>
{
public:
    StyleOwnership()
    {
        source.defaultStyles = {&styles.WithColor("defaults", 1)};
        source.clearedPaths = Paths({L"color"});
        FillOf(whole).SetProperty(Key(L"color"), Any(CLR_COLORSPEC::FromResource(L"Brand", {1, 2, 3})));
    }

    void WriteToSiblings()
    {
        Target(panel, {&FillOf(own)});
        WriteTwoValues();
    }

    void WriteWholeStyles()
    {
        Target(first, {&a});
        Target(panel, {&whole, nullptr});
        WriteTwoValues();
    }

    void WriteDefaults()
    {
        Target(panel, {&own}, /*isDefault=*/true);
        WriteTwoValues();
    }

    void WriteThroughTheApplicator()
    {
        InstallApplicator();
        Target(panel, {&whole});
        WriteTwoValues();
        WriteDefaults();
    }

    void WriteWithoutASource()
    {
        app.source = nullptr;
        Target(panel, {&whole});
        WriteTwoValues();
        app.source = &source;
    }

    void WriteNothing()
    {
        Target(panel, {&whole});
        panel.ModifyStyles(Paths({L"color"}), nullptr, nullptr);
        panel.ModifyStyles(nullptr, nullptr);
        panel.ModifyDefaultStyles(Paths({L"color"}), nullptr);
    }

    void WriteASubstyle()
    {
        Target(panel, {&whole});
        panel.ModifySubstyles(Paths({L"start"}), &FillOf(a), Key(L"gradient"), nullptr);
        panel.ModifyStyles(Change(3), nullptr);
        panel.ClearProperties(Paths({L"color"}));
    }

    void CommitAGroup()
    {
        Target(panel, {&own}, /*isDefault=*/true);
        panel.StartGroupModify();
        WriteTwoValues();
        panel.StartGroupModify();
        WriteTwoValues();
        panel.EndGroupModify(true);
    }

    void CancelAGroup()
    {
        Target(panel, {&own}, /*isDefault=*/true);
        panel.StartGroupModify();
        WriteTwoValues();
        panel.EndGroupModify(false);
    }

    void RevertAndApplyToParent()
    {
        Target(panel, {&whole});
        for (const wchar_t* identifier : {L"style", L"color"})
        {
            panel.SetActiveIdentifier(identifier);
            panel.OnRevertToParent();
            panel.OnApplyToParent();
        }
    }

    void ApplyToAParentThatIsMissing()
    {
        panel.state = ActivePropertyState::Overridden;
        panel.SetActiveIdentifier(L"style");
        Target(panel, {&base});
        panel.OnApplyToParent();
        app.source = nullptr;
        Target(panel, {&whole});
        panel.OnApplyToParent();
        app.source = &source;
    }

    void BreakALink()
    {
        panel.UnregisterSiblingDS(&first);
        panel.UnregisterSiblingDS(&second);
        Target(panel, {&whole});
        panel.SetActiveIdentifier(L"color");
        panel.OnBreakColorResource();
    }

    void RefuseToBreakALink()
    {
        panel.UnregisterSiblingDS(&first);
        panel.UnregisterSiblingDS(&second);
        Target(panel, {&whole});
        panel.SetActiveIdentifier(L"color,missing");
        EXPECT_THROW(panel.OnBreakColorResource(), std::exception);
    }

    void DropAParent()
    {
        panel.SetNoParent(&source, &whole);
        panel.SetNoParent(nullptr, &whole);
    }

    void CreateAndEditAStyle()
    {
        Target(panel, {&whole});
        panel.OnCreateStyleFrom();
        panel.OnEditStyle();
    }

protected:
    void WriteTwoValues()
    {
        const PropertyKey type = Key(L"type");
        const Any solid(1);
        panel.WriteTarget(Key(L"color"), Any(3), &type, &solid);
    }

    void Run() { (this->*GetParam().run)(); }

    /// Runs the operation until its call number `failing` fails; false when it has no such call.
    bool RunToFailure(std::size_t failing)
    {
        std::size_t calls = 0;
        log.onLine = [&calls, failing](const std::string& line)
        {
            if (calls++ == failing)
                throw InjectedFailure(line);
        };
        try
        {
            Run();
        }
        catch (const InjectedFailure&)
        {
        }
        log.onLine = nullptr;
        app.source = &source;
        return calls > failing;
    }

    Style& base = styles.WithColor("base", 1);
    Style& whole = styles.WithFill("whole", &base);
};

TEST_P(StyleOwnership, LeavesAsManyStylesAsThereWere)
{
    const std::size_t before = CountLiveStyles();

    Run();

    EXPECT_EQ(CountLiveStyles(), before);
}

TEST_P(StyleOwnership, LeavesAsManyStylesAsThereWereWhicheverCallFails)
{
    const std::size_t before = CountLiveStyles();

    for (std::size_t failing = 0; RunToFailure(failing); ++failing)
    {
        panel.EndGroupModify(false);
        EXPECT_EQ(CountLiveStyles(), before) << "after the failure of call " << failing;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Operations, StyleOwnership,
    testing::Values(Operation{"WriteToSiblings", &StyleOwnership::WriteToSiblings},
                    Operation{"WriteWholeStyles", &StyleOwnership::WriteWholeStyles},
                    Operation{"WriteDefaults", &StyleOwnership::WriteDefaults},
                    Operation{"WriteThroughTheApplicator", &StyleOwnership::WriteThroughTheApplicator},
                    Operation{"WriteWithoutASource", &StyleOwnership::WriteWithoutASource},
                    Operation{"WriteNothing", &StyleOwnership::WriteNothing},
                    Operation{"WriteASubstyle", &StyleOwnership::WriteASubstyle},
                    Operation{"CommitAGroup", &StyleOwnership::CommitAGroup},
                    Operation{"CancelAGroup", &StyleOwnership::CancelAGroup},
                    Operation{"RevertAndApplyToParent", &StyleOwnership::RevertAndApplyToParent},
                    Operation{"ApplyToAParentThatIsMissing", &StyleOwnership::ApplyToAParentThatIsMissing},
                    Operation{"BreakALink", &StyleOwnership::BreakALink},
                    Operation{"RefuseToBreakALink", &StyleOwnership::RefuseToBreakALink},
                    Operation{"DropAParent", &StyleOwnership::DropAParent},
                    Operation{"CreateAndEditAStyle", &StyleOwnership::CreateAndEditAStyle}),
    [](const auto& operation) { return std::string(operation.param.name); });

/// A group that nobody closes.
class OpenGroup : public WritingTest
{
};

TEST_F(OpenGroup, EndsWithItsDataSource)
{
    const std::size_t before = CountLiveStyles();
    {
        RecordingPanel dropped(log, "dropped");
        Target(dropped, {}, /*isDefault=*/true);
        dropped.StartGroupModify();
        ASSERT_EQ(CountLiveStyles(), before + 1);
    }

    EXPECT_EQ(CountLiveStyles(), before);
}

TEST_F(OpenGroup, GivesWayToTheNext)
{
    Target(panel, {}, /*isDefault=*/true);
    const std::size_t before = CountLiveStyles();

    panel.StartGroupModify();
    panel.StartGroupModify();

    EXPECT_EQ(CountLiveStyles(), before + 1);
}

TEST_F(OpenGroup, KeepsNoneOfTheChangesThatItGathers)
{
    Target(panel, {}, /*isDefault=*/true);
    panel.StartGroupModify();
    const std::size_t before = CountLiveStyles();

    WriteColor(3);
    WriteColor(4);

    EXPECT_EQ(CountLiveStyles(), before);
}

} // namespace
