// Which document object owns a target, and what new objects do to the chosen preset.

#include "tests/datasource/support/HostedTest.h"
#include "tests/datasource/support/ShownTexts.h"

#include <algorithm>

namespace
{

using namespace Styles;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// Two styles, `low` at the smaller address, and a panel with presets.
class ObjectStyles : public HostedTest
{
protected:
    ObjectStyles() { panel.presetCategory = L"FillPresets"; }

    /// Tells whether handing in `objects` deselects the preset.
    bool DeselectsWhenHandedIn(const std::map<Style*, std::size_t>& objects)
    {
        log.Clear();
        panel.SetObjectStyles(objects);
        return !log.LinesOf({"panel.PresetCategoryName"}).empty();
    }

    Style& first = styles.WithFill("first");
    Style& second = styles.WithFill("second");
    Style* low = std::min(&first, &second, std::less<>());
    Style* high = std::max(&first, &second, std::less<>());
};

TEST_F(ObjectStyles, TellTheObjectOfAStyle)
{
    int object = 0;
    const auto handle = reinterpret_cast<std::size_t>(&object);

    panel.SetObjectStyles({{low, handle}});

    EXPECT_EQ(static_cast<void*>(panel.GetObjectFromStyle(low)), &object);
    EXPECT_EQ(panel.GetObjectFromStyle(high), nullptr);
    EXPECT_EQ(panel.GetObjectFromStyle(nullptr), nullptr);
}

TEST_F(ObjectStyles, AreReplacedAsAWhole)
{
    panel.SetObjectStyles({{low, 1}});

    panel.SetObjectStyles({{high, 2}});

    EXPECT_EQ(panel.GetObjectFromStyle(low), nullptr);
    EXPECT_NE(panel.GetObjectFromStyle(high), nullptr);
}

TEST_F(ObjectStyles, AreClearedThroughTheVirtualOperation)
{
    panel.SetObjectStyles({{low, 1}});
    log.Clear();

    panel.ClearObjectStyles();

    EXPECT_EQ(panel.GetObjectFromStyle(low), nullptr);
    EXPECT_THAT(log.LinesOf({"panel.SetObjectStyles"}), ElementsAre("panel.SetObjectStyles(0 entries)"));
}

TEST_F(ObjectStyles, OutliveNewTargets)
{
    panel.SetObjectStyles({{low, 1}});

    Target(panel, {high});

    EXPECT_NE(panel.GetObjectFromStyle(low), nullptr);
}

TEST_F(ObjectStyles, DeselectThePresetWhenTheirNumberGrows)
{
    panel.SetObjectStyles({{low, 1}});

    EXPECT_TRUE(DeselectsWhenHandedIn({{low, 1}, {high, 2}}));
}

TEST_F(ObjectStyles, DeselectThePresetWhenTheyAreCleared)
{
    panel.SetObjectStyles({{low, 1}});

    EXPECT_TRUE(DeselectsWhenHandedIn({}));
}

TEST_F(ObjectStyles, DeselectThePresetWhenTheFirstObjectIsAnother)
{
    panel.SetObjectStyles({{low, 1}, {high, 2}});

    EXPECT_TRUE(DeselectsWhenHandedIn({{low, 3}, {high, 2}}));
}

TEST_F(ObjectStyles, KeepThePresetWhenTheyAreTheSame)
{
    panel.SetObjectStyles({{low, 1}, {high, 2}});

    EXPECT_FALSE(DeselectsWhenHandedIn({{low, 1}, {high, 2}}));
}

TEST_F(ObjectStyles, KeepThePresetWhenOnlyALaterObjectIsAnother)
{
    panel.SetObjectStyles({{low, 1}, {high, 2}});

    EXPECT_FALSE(DeselectsWhenHandedIn({{low, 1}, {high, 3}}));
}

TEST_F(ObjectStyles, KeepThePresetWhenTheFirstObjectHasAnotherStyle)
{
    panel.SetObjectStyles({{low, 1}});

    EXPECT_FALSE(DeselectsWhenHandedIn({{high, 1}}));
    EXPECT_NE(panel.GetObjectFromStyle(high), nullptr) << "the styles are new all the same";
}

TEST_F(ObjectStyles, KeepThePresetWhenThereWereNoneAndAreNone)
{
    EXPECT_FALSE(DeselectsWhenHandedIn({}));
}

TEST_F(ObjectStyles, AreStillTheOldOnesWhileThePresetIsDeselected)
{
    panel.SetObjectStyles({{low, 1}});
    int looks = 0;
    log.onLine = [&](const std::string& line)
    {
        if (line != "panel.PresetCategoryName()")
            return;
        ++looks;
        EXPECT_NE(panel.GetObjectFromStyle(low), nullptr);
        EXPECT_EQ(panel.GetObjectFromStyle(high), nullptr);
    };

    panel.SetObjectStyles({{high, 2}});

    EXPECT_EQ(looks, 1);
}

TEST_F(ObjectStyles, LeaveTheNoPresetTextInAPanelWithPresets)
{
    panel.SetObjectStyles({{low, 1}});

    EXPECT_EQ(panel.GetCurrentPreset().GetText(), ShownTexts::Of(ShownTexts::kNoPreset));
    EXPECT_EQ(panel.GetCurrentPreset().GetIndex(), -1);
}

TEST_F(ObjectStyles, LeaveNoTextInAPanelWithoutPresets)
{
    panel.presetCategory = L"";

    panel.SetObjectStyles({{low, 1}});

    EXPECT_EQ(panel.GetCurrentPreset().GetText(), L"");
    EXPECT_EQ(panel.GetCurrentPreset().GetIndex(), -1);
}

TEST_F(ObjectStyles, LeaveThePresetToBeDeselectedByAnyone)
{
    panel.SelectNoPreset();

    EXPECT_EQ(panel.GetCurrentPreset().GetText(), ShownTexts::Of(ShownTexts::kNoPreset));
    EXPECT_EQ(panel.GetCurrentPreset().GetIndex(), -1);
}

} // namespace
