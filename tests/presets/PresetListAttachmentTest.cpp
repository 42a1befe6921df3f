// List properties that are added to the dialog's data source by name, and the dynamic data source below it.

#include "host/data_binding/IDataContext.h"
#include "presets/StylePresets.h"
#include "presets/WDynamicProperty.h"
#include "reference_host/services/Application.h"
#include "reference_host/services/DataContext.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{

/// The dialog's data source in the host's current context.
class AttachedPresetList : public testing::Test
{
protected:
    AttachedPresetList() { application.SetObjectPropertiesContext(&context); }

    ~AttachedPresetList() override { application.SetObjectPropertiesContext(nullptr); }

    ReferenceHost::Application application;
    ReferenceHost::DataContext context{nullptr, nullptr};
    StylePresets* presets = dynamic_cast<StylePresets*>(context.CreateDataSource(L"StylePresets"));
};

TEST_F(AttachedPresetList, ReadsTheCachedListOfItsCategory)
{
    presets->GetPresetList(L"FillPresets").AddItem()->SetText(L"a");

    AttachPresetList(L"FillPresets");

    EXPECT_EQ(presets->Read<WCmnUI_List>(L"FillPresets").GetItem(0)->GetText(), L"a");
    EXPECT_TRUE(presets->HasProperty(L"FillPresets"));
}

TEST_F(AttachedPresetList, IsReadOnlyAndOfItsType)
{
    AttachPresetList(L"FillPresets");

    EXPECT_FALSE(presets->IsWritableProperty(L"FillPresets"));
    EXPECT_EQ(presets->GetDynamicType(L"FillPresets"), runtime_type<const WCmnUI_List>());
}

TEST_F(AttachedPresetList, MakesTheListOfAnUnknownCategory)
{
    AttachPresetList(L"FillPresets");

    EXPECT_EQ(presets->Read<WCmnUI_List>(L"FillPresets").GetCount(), 0U);
}

TEST_F(AttachedPresetList, IsAddedOnce)
{
    AttachPresetList(L"FillPresets");
    const WDynamicPropertyBase* const first = presets->FindDynamicProperty(L"FillPresets");

    AttachPresetList(L"FillPresets");

    EXPECT_EQ(presets->FindDynamicProperty(L"FillPresets"), first);
}

TEST_F(AttachedPresetList, IsNotAddedWithoutACategory)
{
    AttachPresetList({});

    EXPECT_EQ(presets->FindDynamicProperty({}), nullptr);
}

TEST_F(AttachedPresetList, NeedsTheDialogsDataSource)
{
    application.SetObjectPropertiesContext(nullptr);
    AttachPresetList(L"FillPresets");

    application.SetObjectPropertiesContext(&context);

    EXPECT_EQ(presets->FindDynamicProperty(L"FillPresets"), nullptr);
}

TEST_F(AttachedPresetList, StandsBehindARegisteredName)
{
    AttachPresetList(L"AddPresetName");

    EXPECT_EQ(presets->Read<OvxStringT>(L"AddPresetName"), L"");
}

TEST_F(AttachedPresetList, TakesThePlaceOfAnEarlierPropertyOfItsName)
{
    AttachPresetList(L"FillPresets");
    presets->GetPresetList(L"FillPresets").AddItem();

    presets->AddDynamicProperty(std::make_unique<WDynamicProperty<WCmnUI_List>>(
        *presets, &StylePresets::CopyPresetList, L"FillPresets"));

    EXPECT_EQ(presets->Read<WCmnUI_List>(L"FillPresets").GetCount(), 1U);
}

TEST_F(AttachedPresetList, IsUnknownUnderOtherNames)
{
    AttachPresetList(L"FillPresets");

    EXPECT_EQ(presets->GetDynamicDelegate(L"FillPresets"), nullptr);
    EXPECT_EQ(presets->GetDynamicDelegate(L"put_FillPresets"), nullptr);
    EXPECT_TRUE(presets->GetDynamicType(L"OutlinePresets").IsEmpty());
}

} // namespace
