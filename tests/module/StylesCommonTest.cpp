#include "module/StylesCommon.h"

#include "host/style_model/IStylesSource.h"
#include "host/style_model/IStylesSourceApp.h"
#include "host/utils/Singleton.h"
#include "tests/module/RecordingApplication.h"
#include "tests/module/VirtualSlot.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <type_traits>

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::array<std::uint8_t, 16> kStylesSourceAppBytes{0xa7, 0x99, 0xbe, 0x04, 0x10, 0x4f, 0xa8, 0x37,
                                                             0x40, 0x97, 0x9c, 0x8c, 0xdc, 0xa8, 0x2a, 0xac};

constexpr std::array<std::uint8_t, 16> kStylesSourceBytes{0xe3, 0x44, 0x8c, 0x95, 0x96, 0x12, 0xb6, 0x51,
                                                          0x4f, 0x4e, 0xa4, 0x25, 0x5b, 0xaa, 0x76, 0xfa};

using ModuleSingleton = OvxUtils::Singleton<StylesCommon>;

/// Services of an application that can be told from the module's own by address only.
class ApplicationServices final : public IStylesSourceApp
{
public:
    bool IsExcludedStyleName(const OvxStringT& /*name*/) override { return true; }

    OvxStringT GetDisplayStyleName(const OvxStringT& /*name*/) override { return L"shown"; }

    Styles::StylePresetManager& GetStylePresetManager() override { return *presetManager; }

private:
    Styles::StylePresetManager* presetManager = nullptr; ///< Never asked for.
};

/// Every test starts and ends without an instance.
class WithoutInstance : public testing::Test
{
protected:
    WithoutInstance() { StylesCommon::ReleaseInstance(false); }

    ~WithoutInstance() override { StylesCommon::ReleaseInstance(false); }

    RecordingApplication application;
    RecordingProvider provider;
};

using SharedInstance = WithoutInstance;
using Initialize = WithoutInstance;
using GetApp = WithoutInstance;
using StylesApp = WithoutInstance;
using ActiveStyleSource = WithoutInstance;

TEST_F(SharedInstance, IsNotMadeByAskingWhetherItIsThere)
{
    const bool before = StylesCommon::HasInstance();

    EXPECT_FALSE(before);
    EXPECT_FALSE(StylesCommon::HasInstance());
    EXPECT_FALSE(ModuleSingleton::HasInstance());
}

TEST_F(SharedInstance, IsNotMadeByReleasingIt)
{
    StylesCommon::ReleaseInstance(true);

    EXPECT_FALSE(StylesCommon::HasInstance());
}

TEST_F(SharedInstance, IsTheSameEachTime)
{
    StylesCommon& first = StylesCommon::GetInstance();

    EXPECT_EQ(&StylesCommon::GetInstance(), &first);
    EXPECT_EQ(&ModuleSingleton::GetInstance(), &first);
    EXPECT_TRUE(StylesCommon::HasInstance());
    EXPECT_TRUE(ModuleSingleton::HasInstance());
}

TEST_F(SharedInstance, IsFreshAfterItWasReleased)
{
    StylesCommon::GetInstance().Initialize(&application);

    StylesCommon::ReleaseInstance(false);

    EXPECT_FALSE(StylesCommon::HasInstance());
    EXPECT_EQ(StylesCommon::GetApp(), nullptr);
    EXPECT_TRUE(StylesCommon::HasInstance());
}

TEST_F(SharedInstance, ComesBackAlsoAfterItWasReleasedForGood)
{
    StylesCommon::GetInstance().Initialize(&application);

    ModuleSingleton::ReleaseInstance(true);

    EXPECT_FALSE(StylesCommon::HasInstance());
    EXPECT_EQ(StylesCommon::GetApp(), nullptr);
    EXPECT_TRUE(StylesCommon::GetInstance().Initialize(&application));
}

TEST_F(SharedInstance, IsNotReplacedByOneThatWasMadeByHand)
{
    StylesCommon& shared = StylesCommon::GetInstance();

    StylesCommon* made = ModuleSingleton::CreateInstance();

    EXPECT_NE(made, &shared);
    EXPECT_EQ(&StylesCommon::GetInstance(), &shared);
    ModuleSingleton::DeleteInstance(made);
}

TEST(StylesCommonClass, HasInitializeAsItsOneVirtualOperation)
{
    EXPECT_TRUE(std::is_polymorphic_v<StylesCommon>);
    EXPECT_FALSE(std::has_virtual_destructor_v<StylesCommon>);
    EXPECT_EQ(VirtualSlot(&StylesCommon::Initialize), 0U);
}

TEST_F(Initialize, SucceedsWithAnApplication)
{
    EXPECT_TRUE(StylesCommon::GetInstance().Initialize(&application));
}

TEST_F(Initialize, SucceedsWithoutAnApplication)
{
    EXPECT_TRUE(StylesCommon::GetInstance().Initialize(nullptr));
}

TEST_F(Initialize, AsksTheApplicationNothing)
{
    StylesCommon::GetInstance().Initialize(&application);

    EXPECT_THAT(application.recorder.queries, IsEmpty());
    EXPECT_EQ(application.providerRequests, 0);
}

TEST_F(Initialize, ReplacesAnEarlierApplication)
{
    RecordingApplication later;
    StylesCommon::GetInstance().Initialize(&application);

    EXPECT_TRUE(StylesCommon::GetInstance().Initialize(&later));

    EXPECT_EQ(StylesCommon::GetApp(), &later);
}

TEST_F(Initialize, TakesTheApplicationAwayWithNull)
{
    StylesCommon::GetInstance().Initialize(&application);

    StylesCommon::GetInstance().Initialize(nullptr);

    EXPECT_EQ(StylesCommon::GetApp(), nullptr);
}

TEST_F(GetApp, IsNullBeforeInitialize)
{
    EXPECT_EQ(StylesCommon::GetApp(), nullptr);
}

TEST_F(GetApp, MakesTheInstance)
{
    static_cast<void>(StylesCommon::GetApp());

    EXPECT_TRUE(StylesCommon::HasInstance());
}

TEST_F(GetApp, IsTheApplicationOfInitialize)
{
    StylesCommon::GetInstance().Initialize(&application);

    EXPECT_EQ(StylesCommon::GetApp(), &application);
}

TEST_F(StylesApp, MakesTheInstance)
{
    static_cast<void>(StylesCommon::StylesApp());

    EXPECT_TRUE(StylesCommon::HasInstance());
}

TEST_F(StylesApp, IsTheModulesOwnWithoutAnApplication)
{
    IStylesSourceApp& services = StylesCommon::StylesApp();

    EXPECT_EQ(&StylesCommon::StylesApp(), &services);
    EXPECT_FALSE(services.IsExcludedStyleName(L"Accent"));
    EXPECT_EQ(services.GetDisplayStyleName(L"Mid One & Two"), L"Mid One & Two");
    EXPECT_EQ(&services.GetStylePresetManager(), &services.GetStylePresetManager());
}

TEST_F(StylesApp, IsTheModulesOwnWhenTheApplicationDoesNotAnswer)
{
    IStylesSourceApp& withoutApplication = StylesCommon::StylesApp();
    Styles::StylePresetManager& presetManager = withoutApplication.GetStylePresetManager();
    StylesCommon::GetInstance().Initialize(&application);

    IStylesSourceApp& unanswered = StylesCommon::StylesApp();

    EXPECT_EQ(&unanswered, &withoutApplication);
    EXPECT_EQ(&StylesCommon::StylesApp(), &withoutApplication);
    EXPECT_EQ(&unanswered.GetStylePresetManager(), &presetManager);
}

TEST_F(StylesApp, IsTheModulesOwnAlsoInAFreshInstance)
{
    IStylesSourceApp& before = StylesCommon::StylesApp();

    StylesCommon::ReleaseInstance(false);

    EXPECT_EQ(&StylesCommon::StylesApp(), &before);
}

TEST_F(StylesApp, AsksTheApplicationForTheStylesServicesWithANullOutPointer)
{
    StylesCommon::GetInstance().Initialize(&application);

    static_cast<void>(StylesCommon::StylesApp());

    EXPECT_THAT(application.recorder.queries, ElementsAre(RecordedQuery{kStylesSourceAppBytes, nullptr}));
    EXPECT_EQ(application.providerRequests, 0);
}

TEST_F(StylesApp, IsWhatTheApplicationAnswers)
{
    ApplicationServices services;
    application.recorder.answer = static_cast<IStylesSourceApp*>(&services);
    StylesCommon::GetInstance().Initialize(&application);

    EXPECT_EQ(&StylesCommon::StylesApp(), &services);
}

TEST_F(ActiveStyleSource, IsNullWithoutAnApplication)
{
    EXPECT_EQ(StylesCommon::GetActiveStyleSource(), nullptr);
    EXPECT_TRUE(StylesCommon::HasInstance());
}

TEST_F(ActiveStyleSource, IsNullWithoutAProvider)
{
    StylesCommon::GetInstance().Initialize(&application);

    EXPECT_EQ(StylesCommon::GetActiveStyleSource(), nullptr);
    EXPECT_EQ(application.providerRequests, 1);
    EXPECT_THAT(application.recorder.queries, IsEmpty());
}

TEST_F(ActiveStyleSource, IsNullWhenTheProviderDoesNotAnswer)
{
    application.provider = &provider;
    StylesCommon::GetInstance().Initialize(&application);

    EXPECT_EQ(StylesCommon::GetActiveStyleSource(), nullptr);
}

TEST_F(ActiveStyleSource, IsAskedOfTheProviderAloneWithANullOutPointer)
{
    application.provider = &provider;
    StylesCommon::GetInstance().Initialize(&application);

    static_cast<void>(StylesCommon::GetActiveStyleSource());

    EXPECT_EQ(application.providerRequests, 1);
    EXPECT_THAT(application.recorder.queries, IsEmpty());
    EXPECT_THAT(provider.recorder.queries, ElementsAre(RecordedQuery{kStylesSourceBytes, nullptr}));
}

TEST_F(ActiveStyleSource, IsWhatTheProviderAnswers)
{
    alignas(void*) std::byte source[sizeof(void*)]{};
    application.provider = &provider;
    provider.recorder.answer = source;
    StylesCommon::GetInstance().Initialize(&application);

    EXPECT_EQ(static_cast<void*>(StylesCommon::GetActiveStyleSource()), static_cast<void*>(source));
}

TEST_F(ActiveStyleSource, FollowsTheProviderFromCallToCall)
{
    alignas(void*) std::byte source[sizeof(void*)]{};
    provider.recorder.answer = source;
    StylesCommon::GetInstance().Initialize(&application);
    const IStylesSource* withoutDocument = StylesCommon::GetActiveStyleSource();

    application.provider = &provider;

    EXPECT_EQ(withoutDocument, nullptr);
    EXPECT_NE(StylesCommon::GetActiveStyleSource(), nullptr);
}

} // namespace
