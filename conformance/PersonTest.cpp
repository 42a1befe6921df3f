#include "conformance/HostTest.h"
#include "conformance/PrintedValues.h"
#include "conformance/Subjects.h"

#include "host/resources/Resources.h"
#include "host/services/MessageMgr.h"
#include "host/utils/Utf8.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

HOST_TESTS_SUBJECT(PersonTest);

// What a person reads and is asked: texts, dialogs and questions.
namespace HostTests
{

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace
{

/// The dialog that names a new preset.
constexpr const wchar_t* kAddPresetDialogKey = L"0f6cfc84-8a1f-9182-4a02-21556f4ad8f8";

/// The texts that are shown as they are.
constexpr std::array kPlainTextKeys{
    L"d7f0b1e3-1872-49eb-8b70-e6060b1c789d", // the name proposed for a preset
    L"f5cefe53-8452-41c0-888b-b882ff5a4ba0", // no preset
    L"cd4094d1-a5e1-4fb0-89e6-0c33c6f2b99f", // replace the preset?
    L"f28ee68b-9815-4dc6-8faa-529bd81fcb44", // no style
    L"d067aa9e-2e7b-48e4-b8f7-d1269f936601", // no parent
    L"21f1822a-aa97-4a53-bd73-31d27c53fc3b", // more styles
    L"1afd0b33-8a69-4ebe-bfcd-a0c00531518a", // a parent without a name
    L"881fe267-e7e0-4e0e-879a-1771032cbd0e", // set nowhere
    L"e00592b9-072e-4ce1-9cb1-92085fbc0591", // overridden
    L"d342e6ca-41ea-42a4-8f92-6e5579ad3715", // inherited
    L"7df734c4-2fb0-41fb-b368-5fadc8758275", // ambiguous
};

/// The texts that take the name of a style: revert to, apply to, edit.
constexpr std::array kMenuTextKeys{
    L"f6dd6f91-646d-4758-ba17-db358538fa3e",
    L"6d36d862-aac1-4e48-a9eb-2ac57f1862b1",
    L"a17f1a53-850c-459c-81df-297c75d6e567",
};

/// The text that takes the names of a category and a style.
constexpr const wchar_t* kTitleTextKey = L"e14efa70-e60c-4529-b1d8-e5e8cc8d6c4a";

/// Yes and no with a question mark.
constexpr int kYesNoQuestion = 36;

class Dialog : public HostTest
{
protected:
    void SetUp() override
    {
        if (!host->GetOpenDialogs())
            GTEST_SKIP() << "the host has no dialogs";
        ASSERT_NE(GetContext().GetDialogService(), nullptr);
    }
};

using Person = HostTest;

} // namespace

TEST_F(Dialog, IsShownOnTheDataOfItsContextAndClosed)
{
    IDialogService& dialogs = *GetContext().GetDialogService();

    dialogs.ShowDialog(kAddPresetDialogKey, &GetContext());
    EXPECT_THAT(*host->GetOpenDialogs(), ElementsAre(OpenDialog{kAddPresetDialogKey, &GetContext()}));

    dialogs.CloseDialog(kAddPresetDialogKey, 2, 0);
    EXPECT_THAT(*host->GetOpenDialogs(), IsEmpty());
}

TEST_F(Dialog, ThatIsNotOpenIsClosedWithoutEffect)
{
    IDialogService& dialogs = *GetContext().GetDialogService();
    dialogs.ShowDialog(kAddPresetDialogKey, &GetContext());

    dialogs.CloseDialog(L"494d1725-676f-484b-9453-fe7fb1958759", 2, 0);

    EXPECT_EQ(host->GetOpenDialogs()->size(), 1U);
}

TEST_F(Person, IsAskedAndAnswers)
{
    host->AnswerQuestions(6);
    EXPECT_EQ(MessageMgr::ShowConfirmation(L"Replace it?", kYesNoQuestion), 6);

    host->AnswerQuestions(7);
    EXPECT_EQ(MessageMgr::ShowConfirmation(L"Really?", kYesNoQuestion), 7);

    EXPECT_THAT(host->GetQuestions(),
                ElementsAre(Question{L"Replace it?", kYesNoQuestion}, Question{L"Really?", kYesNoQuestion}));
}

TEST_F(Person, WhoSaysNothingDoesNotConsent)
{
    EXPECT_EQ(MessageMgr::ShowConfirmation(L"Replace it?", kYesNoQuestion), 7);
}

TEST_F(Person, ReadsTheKeyWhereThereIsNoText)
{
    EXPECT_EQ(Framework::Resources::GetString(L"no such key"), L"no such key");
    EXPECT_EQ(Framework::Resources::GetString(L""), L"");
}

TEST_F(Person, ReadsATextForEveryKeyThatIsAskedFor)
{
    for (const wchar_t* const key : kPlainTextKeys)
    {
        const OvxStringT text = Framework::Resources::GetString(key);
        EXPECT_FALSE(text.empty()) << OvxUtils::ToUtf8(OvxStringT(key));
        EXPECT_FALSE(text == key) << OvxUtils::ToUtf8(text);
    }
}

TEST_F(Person, ReadsTheInsertedNameInEveryMenuEntry)
{
    for (const wchar_t* const key : kMenuTextKeys)
    {
        const OvxStringT text =
            OvxStringT::FormatMessageInserts(Framework::Resources::GetString(key), {L"Heading"});
        EXPECT_THAT(text.Wide(), HasSubstr(L"Heading")) << OvxUtils::ToUtf8(OvxStringT(key));
    }
}

TEST_F(Person, ReadsTheCategoryAndTheStyleInTheTitleOfASection)
{
    const OvxStringT text = OvxStringT::FormatMessageInserts(Framework::Resources::GetString(kTitleTextKey),
                                                             {L"Fill", L"Heading"});

    EXPECT_THAT(text.Wide(), AllOf(HasSubstr(L"Fill"), HasSubstr(L"Heading")));
}

} // namespace HostTests
