#include "conformance/HostQueries.h"
#include "conformance/HostTest.h"
#include "conformance/PrintedValues.h"
#include "conformance/Subjects.h"

#include "host/services/ConfigurationFolders.h"
#include "host/services/OvxComponent.h"
#include "host/style_model/CategoryNames.h"

#include <gtest/gtest.h>

#include <cstdint>

HOST_TESTS_SUBJECT(RunningApplicationTest);

// The way from the application to everything else, and back out.
namespace HostTests
{

namespace
{

/// Takes down which data sources it is told of.
class Applicator : public IStyleApplicator
{
public:
    virtual ~Applicator() = default;

    void AttachDataSource(int /*id*/, BaseStylePropertiesDatasource* /*dataSource*/) override {}

    void ModifyStyles(int /*id*/, const Styles::PropertyPaths& /*paths*/, Styles::Style* /*changeStyle*/,
                      const Styles::PropertyPaths* /*overridePaths*/, bool /*toDefaultStyles*/) override
    {
    }

    Styles::PropertyPath GetTargetPath(int /*id*/) override { return {}; }
};

class RunningApplication : public HostTest
{
protected:
    IOrvexCmn_App& application = host->GetApplication();
    void* const untouched = this;
};

} // namespace

TEST_F(RunningApplication, OffersItsServicesForStyles)
{
    void* answer = nullptr;

    application.QueryInterface(kStylesSourceAppId, &answer);

    EXPECT_NE(answer, nullptr);
    EXPECT_EQ(&GetStylesApp(), answer);
}

TEST_F(RunningApplication, LeavesTheAnswerAloneForWhatItDoesNotKnow)
{
    void* answer = untouched;

    application.QueryInterface(kUnknownId, &answer);
    ASSERT_NE(application.GetActiveStyleSourceProvider(), nullptr);
    application.GetActiveStyleSourceProvider()->QueryInterface(kUnknownId, &answer);

    EXPECT_EQ(answer, untouched);
}

TEST_F(RunningApplication, GivesTheSameStyleSourceEachTime)
{
    EXPECT_EQ(&GetSource(), &GetSource());
}

TEST_F(RunningApplication, HasNoStyleSourceWithoutADocument)
{
    host->CloseDocument();

    void* answer = nullptr;
    if (IStyleSourceProvider* const provider = application.GetActiveStyleSourceProvider())
        provider->QueryInterface(kStylesSourceId, &answer);
    EXPECT_EQ(answer, nullptr);
}

TEST_F(RunningApplication, AnswersAboutStyleNamesWithAndWithoutADocument)
{
    host->AddNamedStyle(Styles::StyleCategoryName, L"Heading");
    EXPECT_FALSE(GetStylesApp().IsExcludedStyleName(L"Heading"));
    EXPECT_EQ(GetStylesApp().GetDisplayStyleName(L"no such style"), L"no such style");

    host->CloseDocument();

    EXPECT_FALSE(GetStylesApp().IsExcludedStyleName(L"Heading"));
    EXPECT_EQ(GetStylesApp().GetDisplayStyleName(L"Heading"), L"Heading");
}

TEST_F(RunningApplication, ShowsAStyleUnderSomeName)
{
    host->AddNamedStyle(Styles::StyleCategoryName, L"Heading");

    EXPECT_FALSE(GetStylesApp().GetDisplayStyleName(L"Heading").empty());
    EXPECT_EQ(GetStylesApp().GetDisplayStyleName(L""), L"");
}

TEST_F(RunningApplication, HasOneObjectPropertiesContext)
{
    EXPECT_EQ(&GetContext(), &GetContext());
}

TEST_F(RunningApplication, IsOutOfReachWhenItIsGone)
{
    host.reset();

    EXPECT_EQ(OvxComponent::GetAppInterface(), nullptr);
}

TEST_F(RunningApplication, MayBeFollowedByAnother)
{
    host->AddNamedStyle(Styles::StyleCategoryName, L"Heading");
    host.reset();

    host = MakeHost();

    ASSERT_NE(GetSource().GetStyleSheet(), nullptr);
    EXPECT_EQ(GetSource().GetStyleSheet()->GetStyle(L"Heading"), nullptr);
}

TEST_F(RunningApplication, LeavesNoStyleBehind)
{
    host.reset();
    host = MakeHost();
    const auto atFirst = host->CountLiveStyles();
    if (!atFirst)
        GTEST_SKIP() << "the host does not count styles";
    host->AddNamedStyle(Styles::StyleCategoryName, L"Heading");

    host.reset();
    host = MakeHost();

    EXPECT_EQ(host->CountLiveStyles(), atFirst);
}

TEST_F(RunningApplication, KnowsItsFoldersWhetherTheyExistOrNot)
{
    EXPECT_EQ(INIGetCustomDir(), INIGetCustomDir());
    EXPECT_EQ(GetUserDocumentsOrvexSuiteDir(), GetUserDocumentsOrvexSuiteDir());
}

TEST_F(RunningApplication, AnswersAnUnknownQueryToItsHostObjectWithNull)
{
    IHostObject* const hostObject = GetContext().GetHostObject();
    if (hostObject == nullptr)
        GTEST_SKIP() << "the object-properties context belongs to no host object";

    EXPECT_EQ(hostObject->Query(kUnknownId), nullptr);
    EXPECT_EQ(hostObject->Query(kStyleApplicatorId), nullptr);
}

TEST_F(RunningApplication, OffersAnApplicatorAsItselfAndItsNumberAsANumber)
{
    Applicator applicator;
    IDataContext* const context = host->AddContext(applicator, 7);
    if (context == nullptr)
        GTEST_SKIP() << "the host has no applicators";
    IHostObject* const hostObject = context->GetHostObject();

    ASSERT_NE(hostObject, nullptr);
    EXPECT_EQ(static_cast<IStyleApplicator*>(hostObject->Query(kStyleApplicatorId)), &applicator);
    EXPECT_EQ(static_cast<std::uint32_t>(
                  reinterpret_cast<std::uintptr_t>(hostObject->Query(kStyleApplicatorNumberId))),
              7U);
    EXPECT_EQ(hostObject->Query(kUnknownId), nullptr);
    host.reset();
}

} // namespace HostTests
