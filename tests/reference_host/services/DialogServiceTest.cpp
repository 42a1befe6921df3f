#include "reference_host/services/DialogService.h"

#include "host/services/MessageMgr.h"
#include "reference_host/services/Application.h"
#include "reference_host/services/DataContext.h"

#include <gtest/gtest.h>

#include <optional>

using ReferenceHost::Application;
using ReferenceHost::DialogService;
using ReferenceHost::IDialogFrontEnd;

namespace
{

class TakingDown final : public IDialogFrontEnd
{
public:
    void ShowDialog(const OvxStringT& key, IDataContext* context) override
    {
        shownKey = key;
        shownContext = context;
    }

    void CloseDialog(const OvxStringT& key, bool isAccepted) override
    {
        closedKey = key;
        wasAccepted = isAccepted;
    }

    int Confirm(const OvxStringT& text, int flags) override
    {
        askedText = text;
        askedFlags = flags;
        return ReferenceHost::kAnswerYes;
    }

    OvxStringT shownKey;
    IDataContext* shownContext = nullptr;
    OvxStringT closedKey;
    std::optional<bool> wasAccepted;
    OvxStringT askedText;
    int askedFlags = 0;
};

} // namespace

TEST(DialogService, ShowsDialogsOnTheContextThatAsks)
{
    TakingDown frontEnd;
    DialogService dialogs;
    dialogs.SetFrontEnd(&frontEnd);
    ReferenceHost::DataContext context(nullptr, &dialogs);

    context.GetDialogService()->ShowDialog(L"some-key", &context);

    EXPECT_EQ(frontEnd.shownKey, OvxStringT(L"some-key"));
    EXPECT_EQ(frontEnd.shownContext, &context);
}

TEST(DialogService, ClosesAsAcceptedWithTheResultTwo)
{
    TakingDown frontEnd;
    DialogService dialogs;
    dialogs.SetFrontEnd(&frontEnd);

    dialogs.CloseDialog(L"some-key", 2, 0);

    EXPECT_EQ(frontEnd.closedKey, OvxStringT(L"some-key"));
    EXPECT_EQ(frontEnd.wasAccepted, true);
}

TEST(DialogService, ClosesAsGivenUpWithAnyOtherResult)
{
    TakingDown frontEnd;
    DialogService dialogs;
    dialogs.SetFrontEnd(&frontEnd);

    dialogs.CloseDialog(L"some-key", 1, 0);

    EXPECT_EQ(frontEnd.wasAccepted, false);
}

TEST(DialogService, ShowsNothingWithoutAFrontEnd)
{
    DialogService dialogs;

    dialogs.ShowDialog(L"some-key", nullptr);
    dialogs.CloseDialog(L"some-key", 2, 0);

    EXPECT_EQ(dialogs.Confirm(L"Sure?", 36), ReferenceHost::kAnswerNo);
}

TEST(DialogService, GivesBackTheFrontEndThatWasInPlace)
{
    TakingDown first;
    DialogService dialogs;

    IDialogFrontEnd* none = dialogs.SetFrontEnd(&first);
    IDialogFrontEnd* before = dialogs.SetFrontEnd(nullptr);

    EXPECT_EQ(none, nullptr);
    EXPECT_EQ(before, &first);
}

TEST(Confirmation, IsRefusedWithoutAnApplication)
{
    EXPECT_EQ(MessageMgr::ShowConfirmation(L"Replace it?", 36), ReferenceHost::kAnswerNo);
}

TEST(Confirmation, IsRefusedWithoutAFrontEnd)
{
    Application application;

    EXPECT_EQ(MessageMgr::ShowConfirmation(L"Replace it?", 36), ReferenceHost::kAnswerNo);
}

TEST(Confirmation, IsAskedOfTheFrontEndOfTheApplication)
{
    TakingDown frontEnd;
    Application application;
    application.GetDialogs().SetFrontEnd(&frontEnd);

    const int answer = MessageMgr::ShowConfirmation(L"Replace it?", 36);

    EXPECT_EQ(answer, ReferenceHost::kAnswerYes);
    EXPECT_EQ(frontEnd.askedText, OvxStringT(L"Replace it?"));
    EXPECT_EQ(frontEnd.askedFlags, 36);
}
