// A list property that cannot be added for want of memory.

#include "presets/StylePresets.h"
#include "presets/WDynamicProperty.h"
#include "tests/faults/FailEach.h"

#include <memory>

namespace
{

constexpr const wchar_t* kCategory = L"PresetsOfAPanel";

std::unique_ptr<WDynamicPropertyBase> ListProperty(StylePresets& presets)
{
    return std::make_unique<WDynamicProperty<WCmnUI_List>>(presets, &StylePresets::CopyPresetList, kCategory);
}

TEST(ADynamicPropertyThatFailed, IsNotThere)
{
    StylePresets presets;

    FailEach([&] { presets.AddDynamicProperty(ListProperty(presets)); },
             [&] { EXPECT_EQ(presets.FindDynamicProperty(kCategory), nullptr); });

    EXPECT_EQ(presets.ReadAny(kCategory).Get<WCmnUI_List>().GetCount(), 0U);
}

TEST(ADynamicPropertyThatFailed, LeavesTheOneInItsPlace)
{
    StylePresets presets;
    presets.AddDynamicProperty(ListProperty(presets));
    const WDynamicPropertyBase* const first = presets.FindDynamicProperty(kCategory);

    FailEach([&] { presets.AddDynamicProperty(ListProperty(presets)); },
             [&] { EXPECT_EQ(presets.FindDynamicProperty(kCategory), first); });

    EXPECT_NE(presets.FindDynamicProperty(kCategory), nullptr);
}

TEST(ADynamicPropertyThatIsRead, GivesItsListWhenThereIsMemoryAgain)
{
    StylePresets presets;
    presets.AddDynamicProperty(ListProperty(presets));

    FailEach([&] { static_cast<void>(presets.ReadAny(kCategory)); },
             [&] { EXPECT_EQ(presets.ReadAny(kCategory).Get<WCmnUI_List>().GetCount(), 0U); });

    EXPECT_EQ(presets.GetTypeOf(kCategory), RuntimeType(runtime_type<const WCmnUI_List>()));
}

} // namespace
