#include "presets/StylePresets.h"

#include "host/data_binding/IDataContext.h"
#include "host/data_binding/IDataSourceFactory.h"
#include "host/data_binding/IDataSourceRegistrar.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

/// A context that takes down which data sources it is asked for.
class RecordingContext final : public IDataContext
{
public:
    IHostObject* GetHostObject() override
    {
        ++otherRequests;
        return nullptr;
    }

    IDataSource* GetDataSource(const OvxStringT& name) override
    {
        asked.push_back(name);
        return held;
    }

    IDialogService* GetDialogService() override
    {
        ++otherRequests;
        return nullptr;
    }

    std::vector<OvxStringT> asked;
    IDataSource* held = nullptr;
    int otherRequests = 0;
};

struct Destroy
{
    void operator()(IDataSource* dataSource) const { dataSource->Destroy(); }
};

using OwnedDataSource = std::unique_ptr<IDataSource, Destroy>;

/// The factory as a host finds it.
class StylePresetsFactory : public testing::Test
{
protected:
    void SetUp() override { ASSERT_NE(factory, nullptr); }

    RecordingContext context;
    IDataSourceFactory* factory = IDataSourceRegistrar::GetInstance().FindFactory(L"StylePresets");
};

TEST_F(StylePresetsFactory, IsTheOneFactoryThatTheLibraryRegisters)
{
    EXPECT_THAT(IDataSourceRegistrar::GetInstance().GetFactories(), ElementsAre(factory));
}

TEST_F(StylePresetsFactory, HasTheClassNameAsItsTypeKey)
{
    EXPECT_EQ(factory->GetTypeKey(), L"StylePresets");
    EXPECT_EQ(factory->GetTypeKey(), L"StylePresets");
}

TEST_F(StylePresetsFactory, IsOfKindTwo)
{
    EXPECT_EQ(factory->GetKind(), 2);
}

TEST_F(StylePresetsFactory, HasTheScopeOfAFrame)
{
    EXPECT_EQ(factory->GetScopeName(), L"frame");
}

TEST_F(StylePresetsFactory, MakesAStylePresetsInTheContext)
{
    const OwnedDataSource made(factory->Create(&context));

    ASSERT_NE(made, nullptr);
    EXPECT_NE(dynamic_cast<StylePresets*>(made.get()), nullptr);
    EXPECT_EQ(made->GetDataContext(), &context);
}

TEST_F(StylePresetsFactory, MakesACompleteDataSource)
{
    const OwnedDataSource made(factory->Create(&context));
    auto* presets = dynamic_cast<StylePresets*>(made.get());
    ASSERT_NE(presets, nullptr);
    bool ranLater = false;

    presets->CallOnPostConstruct([&ranLater] { ranLater = true; });
    presets->FinishConstruction();

    EXPECT_FALSE(ranLater) << "its construction was finished before";
}

TEST_F(StylePresetsFactory, AsksTheContextNothingWhenItMakes)
{
    const OwnedDataSource made(factory->Create(&context));

    EXPECT_THAT(context.asked, IsEmpty());
    EXPECT_EQ(context.otherRequests, 0);
}

TEST_F(StylePresetsFactory, MakesAnotherOneEachTime)
{
    const OwnedDataSource first(factory->Create(&context));
    const OwnedDataSource second(factory->Create(&context));

    EXPECT_NE(first, second);
}

TEST_F(StylePresetsFactory, MakesOneWithoutAContext)
{
    const OwnedDataSource made(factory->Create(nullptr));

    ASSERT_NE(made, nullptr);
    EXPECT_EQ(made->GetDataContext(), nullptr);
}

TEST_F(StylePresetsFactory, FindsWhatTheContextHoldsUnderTheTypeKey)
{
    const OwnedDataSource held(factory->Create(&context));
    context.held = held.get();

    IDataSource* found = factory->Find(&context);

    EXPECT_EQ(found, held.get());
    EXPECT_THAT(context.asked, ElementsAre(L"StylePresets"));
}

TEST_F(StylePresetsFactory, FindsNothingInAContextThatHoldsNone)
{
    EXPECT_EQ(factory->Find(&context), nullptr);
    EXPECT_THAT(context.asked, ElementsAre(L"StylePresets"));
}

TEST_F(StylePresetsFactory, FindsNothingWithoutAContext)
{
    EXPECT_EQ(factory->Find(nullptr), nullptr);
}

} // namespace
