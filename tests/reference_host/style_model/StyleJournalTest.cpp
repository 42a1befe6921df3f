#include "reference_host/style_model/IStyleJournal.h"

#include "reference_host/style_model/StyleHosting.h"
#include "tests/reference_host/style_model/StyleMaking.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

using Styles::Style;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

/// Writes down what it is told, and what stood there at that time.
class RecordingJournal final : public ReferenceHost::IStyleJournal
{
public:
    void BeforeStoring(Styles::StyleData& /*data*/, const Styles::PropertyKey& key) override
    {
        Add("store " + Narrow(key));
    }

    void BeforeChange(Styles::StyleData& /*data*/) override { Add("change"); }

    void BeforePlacing(Style& /*owner*/, const Styles::PropertyKey& key) override
    {
        Add("place " + Narrow(key));
    }

    void TakeRemoved(Style& /*owner*/, const Styles::PropertyKey& key,
                     std::unique_ptr<Style>& removed) override
    {
        Add("remove " + Narrow(key));
        kept.push_back(std::move(removed));
    }

    std::vector<std::string> told;
    std::vector<std::unique_ptr<Style>> kept;
    const Style* watched = nullptr;

private:
    static std::string Narrow(const Styles::PropertyKey& key)
    {
        std::string text;
        for (const wchar_t letter : key.GetPooled().GetView())
            text += static_cast<char>(letter);
        return text;
    }

    void Add(const std::string& what)
    {
        const int* const value =
            watched == nullptr ? nullptr : watched->GetPathProperty(Path({L"fill", L"color"})).TryGet<int>();
        told.push_back(what + (value == nullptr ? "" : " at " + std::to_string(*value)));
    }
};

class StyleJournal : public testing::Test
{
protected:
    StyleJournal() { ReferenceHost::SetJournal(*style, &journal); }

    RecordingJournal journal;
    std::unique_ptr<Style> parent = MakeWhole();
    std::unique_ptr<Style> style = MakeWhole();
};

} // namespace

TEST_F(StyleJournal, HearsOfWritesBeforeTheyHappen)
{
    journal.watched = style.get();

    Sub(*style, L"fill").SetProperty(Key(L"color"), Number(1));
    style->SetPathProperty(Path({L"fill", L"color"}), Number(2));

    EXPECT_THAT(journal.told, ElementsAre("store color", "store color at 1"));
}

TEST_F(StyleJournal, HearsOfParentsAndDefaultStyles)
{
    style->SetParent(parent.get());
    Sub(*style, L"fill").SetParent(&Sub(*parent, L"fill"));
    ReferenceHost::SetDefaultStyle(*style, parent.get());

    EXPECT_THAT(journal.told, ElementsAre("change", "change", "change"));
}

TEST_F(StyleJournal, HearsOfSubstylesAtAnyDepth)
{
    style->SetPathProperty(Path({L"shadow", L"blur", L"radius"}), Number(1));

    EXPECT_THAT(journal.told, ElementsAre("place shadow", "place blur", "store radius"));
}

TEST_F(StyleJournal, TakesOverWhatIsRemoved)
{
    Style* const fill = &Sub(*style, L"fill");

    style->SetSubstyle(Key(L"fill"), nullptr);

    EXPECT_THAT(journal.told, ElementsAre("remove fill"));
    EXPECT_EQ(journal.kept.front().get(), fill);
    EXPECT_EQ(style->GetSubstyle(Key(L"fill"), false), nullptr);
}

TEST_F(StyleJournal, HearsNothingWhereNothingChanges)
{
    style->SetProperty(Key(L"color"), {});
    style->SetParent(nullptr);
    style->SetSubstyle(Key(L"shadow"), nullptr);
    style->SetPathProperty(Path({L"shadow", L"color"}), {});

    EXPECT_THAT(journal.told, IsEmpty());
}

TEST_F(StyleJournal, HearsNothingOfCopies)
{
    Style copy(*style);

    copy.SetPathProperty(Path({L"fill", L"color"}), Number(1));

    EXPECT_THAT(journal.told, IsEmpty());
}

TEST_F(StyleJournal, HearsNothingAfterItWasTakenAway)
{
    ReferenceHost::SetJournal(*style, nullptr);

    style->SetPathProperty(Path({L"fill", L"color"}), Number(1));

    EXPECT_THAT(journal.told, IsEmpty());
}
