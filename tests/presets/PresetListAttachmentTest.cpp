// List properties that are added to the dialog's data source by name, and the dynamic data source below it.

#include "host/data_binding/IDataContext.h"
#include "host/data_binding/IDataSourceFactory.h"
#include "host/data_binding/IDataSourceRegistrar.h"
#include "presets/StylePresets.h"
#include "presets/WDynamicProperty.h"
#include "tests/host_pieces/HostPieces.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{

/// A context that knows one data source, by any name, and ends it.
class ContextOfOne final : public IDataContext
{
public:
    explicit ContextOfOne(const wchar_t* typeKey)
        : only(IDataSourceRegistrar::GetInstance().FindFactory(typeKey)->Create(this))
    {
    }

    ContextOfOne(const ContextOfOne&) = delete;
    ContextOfOne& operator=(const ContextOfOne&) = delete;

    ~ContextOfOne() { only->Destroy(); }

    IHostObject* GetHostObject() override { return nullptr; }

    IDataSource* GetDataSource(const OvxStringT& /*name*/) override { return only; }

    IDialogService* GetDialogService() override { return nullptr; }

private:
    IDataSource* only;
};

/// The dialog's data source in the host's current context.
class AttachedPresetList : public testing::Test
{
protected:
    AttachedPresetList() { userInterface.SetObjectPropertiesContext(&context); }

    ~AttachedPresetList() override { userInterface.SetObjectPropertiesContext(nullptr); }

    HostPieces::UserInterface userInterface;
    ContextOfOne context{L"StylePresets"};
    StylePresets* presets = dynamic_cast<StylePresets*>(context.GetDataSource(L"StylePresets"));
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
    userInterface.SetObjectPropertiesContext(nullptr);
    AttachPresetList(L"FillPresets");

    userInterface.SetObjectPropertiesContext(&context);

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
