#include "host/services/MessageMgr.h"

#include "reference_host/services/IConfirmation.h"

#include <gtest/gtest.h>

using ReferenceHost::IConfirmation;
using ReferenceHost::SetConfirmation;

namespace
{

class AlwaysYes final : public IConfirmation
{
public:
    int Confirm(const OvxStringT& text, int flags) override
    {
        askedText = text;
        askedFlags = flags;
        return ReferenceHost::kAnswerYes;
    }

    OvxStringT askedText;
    int askedFlags = 0;
};

} // namespace

TEST(Confirmation, IsRefusedWithoutAFrontEnd)
{
    EXPECT_EQ(MessageMgr::ShowConfirmation(L"Replace it?", 36), 7);
}

TEST(Confirmation, IsAskedOfTheFrontEnd)
{
    AlwaysYes frontEnd;
    SetConfirmation(&frontEnd);

    const int answer = MessageMgr::ShowConfirmation(L"Replace it?", 36);
    SetConfirmation(nullptr);

    EXPECT_EQ(answer, 6);
    EXPECT_EQ(frontEnd.askedText, OvxStringT(L"Replace it?"));
    EXPECT_EQ(frontEnd.askedFlags, 36);
}

TEST(Confirmation, GivesBackTheFrontEndThatWasInPlace)
{
    AlwaysYes first;

    IConfirmation* none = SetConfirmation(&first);
    IConfirmation* before = SetConfirmation(nullptr);

    EXPECT_EQ(none, nullptr);
    EXPECT_EQ(before, &first);
}
