#include "reference_host/services/Application.h"

#include "host/services/OvxComponent.h"
#include "host/style_model/IStylesSourceApp.h"
#include "reference_host/services/DataContext.h"
#include "reference_host/services/DocumentStylesSource.h"
#include "tests/reference_host/services/FakeDocumentStyles.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>

using ReferenceHost::Application;
using ReferenceHost::DataContext;
using ReferenceHost::DocumentStylesSource;

namespace
{

constexpr InterfaceId kApplicationServices{
    {0xa7, 0x99, 0xbe, 0x04, 0x10, 0x4f, 0xa8, 0x37, 0x40, 0x97, 0x9c, 0x8c, 0xdc, 0xa8, 0x2a, 0xac}};
constexpr InterfaceId kStyleSource{
    {0xe3, 0x44, 0x8c, 0x95, 0x96, 0x12, 0xb6, 0x51, 0x4f, 0x4e, 0xa4, 0x25, 0x5b, 0xaa, 0x76, 0xfa}};

class RunningApplication : public ::testing::Test
{
protected:
    IStylesSourceApp& Services()
    {
        void* answer = nullptr;
        application->QueryInterface(kApplicationServices, &answer);
        return *static_cast<IStylesSourceApp*>(answer);
    }

    FakeDocumentStyles document;
    DocumentStylesSource source{document};
    std::unique_ptr<Application> application = std::make_unique<Application>();
};

} // namespace

TEST_F(RunningApplication, AnswersTheQueryForItsStyleServices)
{
    void* answer = nullptr;

    application->QueryInterface(kApplicationServices, &answer);

    EXPECT_NE(answer, nullptr);
}

TEST_F(RunningApplication, LeavesTheAnswerToAnyOtherQueryAsItIs)
{
    int mark = 0;
    void* answer = &mark;

    application->QueryInterface(kStyleSource, &answer);

    EXPECT_EQ(answer, &mark);
}

TEST_F(RunningApplication, HasNoStyleSourceWithoutADocument)
{
    EXPECT_EQ(application->GetActiveStyleSourceProvider(), nullptr);
}

TEST_F(RunningApplication, ProvidesTheStyleSourceOfTheOpenDocument)
{
    application->OpenDocument(&source, &document);
    void* answer = nullptr;

    application->GetActiveStyleSourceProvider()->QueryInterface(kStyleSource, &answer);

    EXPECT_EQ(static_cast<IStylesSource*>(answer), &source);
}

TEST_F(RunningApplication, ProvidesNothingElseThroughTheProvider)
{
    application->OpenDocument(&source, &document);
    void* answer = nullptr;

    application->GetActiveStyleSourceProvider()->QueryInterface(kApplicationServices, &answer);

    EXPECT_EQ(answer, nullptr);
}

TEST_F(RunningApplication, ForgetsADocumentThatIsClosed)
{
    application->OpenDocument(&source, &document);

    application->CloseDocument();

    EXPECT_EQ(application->GetActiveStyleSourceProvider(), nullptr);
    EXPECT_FALSE(Services().IsExcludedStyleName(L"Secret"));
}

TEST_F(RunningApplication, ExcludesTheStyleNamesThatTheDocumentHides)
{
    document.hiddenName = L"Secret";
    application->OpenDocument(&source, &document);

    EXPECT_TRUE(Services().IsExcludedStyleName(L"Secret"));
    EXPECT_FALSE(Services().IsExcludedStyleName(L"Accent"));
}

TEST_F(RunningApplication, ShowsStyleNamesAsTheDocumentDoes)
{
    application->OpenDocument(&source, &document);

    EXPECT_EQ(Services().GetDisplayStyleName(L"Accent"), OvxStringT(L"<Accent>"));
}

TEST_F(RunningApplication, ShowsStyleNamesAsTheyAreWithoutADocument)
{
    EXPECT_EQ(Services().GetDisplayStyleName(L"Accent"), OvxStringT(L"Accent"));
}

TEST_F(RunningApplication, HasOneKeeperOfPresets)
{
    EXPECT_EQ(&Services().GetStylePresetManager(), &Services().GetStylePresetManager());
}

TEST_F(RunningApplication, IsReachedByComponents)
{
    DataContext context(nullptr, nullptr);
    application->SetObjectPropertiesContext(&context);

    IDataContext* reached = OvxComponent::GetAppInterface()->GetPanelHost()->GetObjectPropertiesContext();

    EXPECT_EQ(reached, &context);
}

TEST_F(RunningApplication, HasNoContextAtFirst)
{
    EXPECT_EQ(OvxComponent::GetAppInterface()->GetPanelHost()->GetObjectPropertiesContext(), nullptr);
}

TEST_F(RunningApplication, IsNoLongerReachedOnceItIsGone)
{
    application.reset();

    EXPECT_EQ(OvxComponent::GetAppInterface(), nullptr);
    EXPECT_EQ(Application::GetCurrent(), nullptr);
}

TEST_F(RunningApplication, StaysReachedWhenAnEarlierOneGoes)
{
    const auto later = std::make_unique<Application>();

    application.reset();

    EXPECT_EQ(Application::GetCurrent(), later.get());
    EXPECT_EQ(OvxComponent::GetAppInterface(), &later->GetUserInterface());
}
