#include "reference_host/style_model/NamedStyleSheet.h"

#include "host/style_model/CategoryNames.h"
#include "reference_host/style_model/StyleHosting.h"
#include "tests/reference_host/style_model/StyleMaking.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace
{

using ReferenceHost::NamedStyleSheet;
using Styles::Style;
using testing::ElementsAre;
using testing::IsEmpty;

std::unique_ptr<Style> Of(const Styles::PropertyKey& category)
{
    return std::make_unique<Style>(nullptr, category);
}

TEST(NamedStyleSheet, FindsStylesByNameAndNamesByStyle)
{
    NamedStyleSheet sheet;
    Style* const accent = sheet.Add(L"Accent", MakeWhole());
    Style* const base = sheet.Add(L"Base", MakeWhole());

    ASSERT_NE(accent, nullptr);
    EXPECT_EQ(sheet.GetStyle(L"Accent"), accent);
    EXPECT_EQ(sheet.GetStyle(L"Base"), base);
    EXPECT_EQ(sheet.GetStyleName(accent), L"Accent");
    EXPECT_EQ(sheet.GetStyleName(base), L"Base");
}

TEST(NamedStyleSheet, KnowsNoOtherStyles)
{
    NamedStyleSheet sheet;
    Style* const accent = sheet.Add(L"Accent", MakeWhole());
    const Style stranger;

    EXPECT_EQ(sheet.GetStyle(L"accent"), nullptr);
    EXPECT_EQ(sheet.GetStyle(L""), nullptr);
    EXPECT_EQ(sheet.GetStyleName(nullptr), L"");
    EXPECT_EQ(sheet.GetStyleName(&stranger), L"");
    EXPECT_EQ(sheet.GetStyleName(&Sub(*accent, L"fill")), L"");
}

TEST(NamedStyleSheet, ListsNamesOfACategoryInItsOrder)
{
    NamedStyleSheet sheet;
    sheet.Add(L"Zebra", Of(Styles::StyleCategoryName));
    sheet.Add(L"Dots", Of(Styles::FillStyleCategoryName));
    sheet.Add(L"Apple", Of(Styles::StyleCategoryName));

    EXPECT_THAT(sheet.GetStyleNames(Styles::StyleCategoryName), ElementsAre(L"Zebra", L"Apple"));
    EXPECT_THAT(sheet.GetStyleNames(Styles::FillStyleCategoryName), ElementsAre(L"Dots"));
    EXPECT_THAT(sheet.GetStyleNames(Styles::OutlineStyleCategoryName), IsEmpty());
    EXPECT_THAT(sheet.GetNames(), ElementsAre(L"Zebra", L"Dots", L"Apple"));
}

TEST(NamedStyleSheet, FindsStylesInWhateverOrderTheyAreAskedFor)
{
    NamedStyleSheet sheet;
    const std::vector<OvxStringT> names{L"A", L"B", L"C", L"D", L"E", L"F"};
    std::vector<Style*> styles;
    for (const OvxStringT& name : names)
        styles.push_back(sheet.Add(name, MakeWhole()));

    const std::vector<std::size_t> asked{0, 1, 3, 0, 5, 5, 4, 2, 3};
    std::vector<Style*> found;
    for (const std::size_t each : asked)
        found.push_back(sheet.GetStyle(names[each]));

    EXPECT_THAT(found, ElementsAre(styles[0], styles[1], styles[3], styles[0], styles[5], styles[5],
                                   styles[4], styles[2], styles[3]));
}

TEST(NamedStyleSheet, FindsTheStyleThatTookThePlaceOfTheOneAskedForLast)
{
    NamedStyleSheet sheet;
    sheet.Add(L"A", MakeWhole());
    sheet.Add(L"B", MakeWhole());
    Style* const last = sheet.Add(L"C", MakeWhole());
    ASSERT_EQ(sheet.GetStyle(L"C"), last);

    sheet.TakeOut(L"A");
    sheet.TakeOut(L"B");
    Style* const added = sheet.InsertAt(0, L"B", MakeWhole());

    EXPECT_EQ(sheet.GetStyle(L"C"), last);
    EXPECT_EQ(sheet.GetStyle(L"B"), added);
    EXPECT_EQ(sheet.GetStyle(L"A"), nullptr);
}

TEST(NamedStyleSheet, TakesNoStyleUnderANameThatIsTakenOrEmpty)
{
    NamedStyleSheet sheet;
    Style* const accent = sheet.Add(L"Accent", MakeWhole());
    const std::size_t before = ReferenceHost::LiveStyleCount();

    EXPECT_EQ(sheet.Add(L"Accent", MakeWhole()), nullptr);
    EXPECT_EQ(sheet.Add(L"", MakeWhole()), nullptr);
    EXPECT_EQ(sheet.Add(L"Nothing", nullptr), nullptr);

    EXPECT_EQ(sheet.GetStyle(L"Accent"), accent);
    EXPECT_THAT(sheet.GetNames(), ElementsAre(L"Accent"));
    EXPECT_EQ(ReferenceHost::LiveStyleCount(), before);
}

TEST(NamedStyleSheet, KeepsAFreeNameAsItIs)
{
    const NamedStyleSheet sheet;

    EXPECT_EQ(sheet.GetUnusedStyleName(L"Accent"), L"Accent");
    EXPECT_EQ(sheet.GetUnusedStyleName(L""), L"");
}

TEST(NamedStyleSheet, NumbersANameThatIsTaken)
{
    NamedStyleSheet sheet;
    sheet.Add(L"Accent", MakeWhole());
    EXPECT_EQ(sheet.GetUnusedStyleName(L"Accent"), L"Accent 2");

    sheet.Add(L"Accent 2", MakeWhole());
    sheet.Add(L"Accent 4", MakeWhole());

    EXPECT_EQ(sheet.GetUnusedStyleName(L"Accent"), L"Accent 3");
    EXPECT_EQ(sheet.GetUnusedStyleName(L"Accent"), L"Accent 3");
    EXPECT_EQ(sheet.GetUnusedStyleName(L"Accent 2"), L"Accent 2 2");
}

TEST(NamedStyleSheet, SkipsNumbersThatAreTaken)
{
    NamedStyleSheet sheet;
    sheet.Add(L"Accent", MakeWhole());
    sheet.Add(L"Accent 3", MakeWhole());
    sheet.Add(sheet.GetUnusedStyleName(L"Accent"), MakeWhole());

    EXPECT_EQ(sheet.GetUnusedStyleName(L"Accent"), L"Accent 4");
}

TEST(NamedStyleSheet, OffersNoNameThatIsReserved)
{
    NamedStyleSheet sheet;
    sheet.Reserve(L"Accent");
    sheet.Reserve(L"Accent 2");

    EXPECT_EQ(sheet.GetUnusedStyleName(L"Accent"), L"Accent 3");
    EXPECT_NE(sheet.Add(L"Accent", MakeWhole()), nullptr);
}

TEST(NamedStyleSheet, NamesTenThousandStylesFromOneBase)
{
    NamedStyleSheet sheet;

    for (int i = 0; i < 10000; ++i)
        sheet.Add(sheet.GetUnusedStyleName(L"Box"), std::make_unique<Style>());

    EXPECT_EQ(sheet.GetNames().size(), 10000u);
    EXPECT_EQ(sheet.GetNames().back(), L"Box 10000");
}

TEST(NamedStyleSheet, TakesStylesInAtAPlace)
{
    NamedStyleSheet sheet;
    sheet.Add(L"First", MakeWhole());
    Style* const last = sheet.Add(L"Last", MakeWhole());

    Style* const middle = sheet.InsertAt(1, L"Middle", MakeWhole());
    Style* const behind = sheet.InsertAt(99, L"Behind", MakeWhole());

    EXPECT_THAT(sheet.GetNames(), ElementsAre(L"First", L"Middle", L"Last", L"Behind"));
    EXPECT_EQ(sheet.GetStyle(L"Middle"), middle);
    EXPECT_EQ(sheet.GetStyle(L"Behind"), behind);
    EXPECT_EQ(sheet.GetStyleName(last), L"Last");
    EXPECT_EQ(sheet.GetPlace(L"Last"), 2U);
    EXPECT_EQ(sheet.InsertAt(0, L"First", MakeWhole()), nullptr);
}

TEST(NamedStyleSheet, GivesStylesUp)
{
    NamedStyleSheet sheet;
    Style* const first = sheet.Add(L"First", MakeWhole());
    Style* const last = sheet.Add(L"Last", MakeWhole(first));

    const std::unique_ptr<Style> taken = sheet.TakeOut(L"First");

    EXPECT_EQ(taken.get(), first);
    EXPECT_EQ(sheet.GetStyle(L"First"), nullptr);
    EXPECT_EQ(sheet.GetStyleName(first), L"");
    EXPECT_EQ(sheet.GetStyleName(last), L"Last");
    EXPECT_EQ(last->GetParent(), first);
    EXPECT_EQ(sheet.TakeOut(L"First"), nullptr);
}

TEST(NamedStyleSheet, RenamesStylesInTheirPlace)
{
    NamedStyleSheet sheet;
    Style* const first = sheet.Add(L"First", MakeWhole());
    sheet.Add(L"Last", MakeWhole());

    EXPECT_TRUE(sheet.Rename(L"First", L"Front"));

    EXPECT_THAT(sheet.GetNames(), ElementsAre(L"Front", L"Last"));
    EXPECT_EQ(sheet.GetStyle(L"Front"), first);
    EXPECT_EQ(sheet.GetStyle(L"First"), nullptr);
    EXPECT_EQ(sheet.GetStyleName(first), L"Front");
}

TEST(NamedStyleSheet, RefusesNewNamesThatAreTakenOrEmpty)
{
    NamedStyleSheet sheet;
    sheet.Add(L"First", MakeWhole());
    sheet.Add(L"Last", MakeWhole());

    EXPECT_FALSE(sheet.Rename(L"First", L"Last"));
    EXPECT_FALSE(sheet.Rename(L"First", L""));
    EXPECT_FALSE(sheet.Rename(L"Unknown", L"New"));
    EXPECT_THAT(sheet.GetNames(), ElementsAre(L"First", L"Last"));
}

TEST(NamedStyleSheet, OffersNamesAgainThatBecameFree)
{
    NamedStyleSheet sheet;
    for (int i = 0; i < 3; ++i)
        sheet.Add(sheet.GetUnusedStyleName(L"Box"), MakeWhole());
    ASSERT_EQ(sheet.GetUnusedStyleName(L"Box"), L"Box 4");

    sheet.TakeOut(L"Box 2");
    const OvxStringT afterTaking = sheet.GetUnusedStyleName(L"Box");
    sheet.Add(L"Box 2", MakeWhole());
    sheet.Rename(L"Box 3", L"Crate");

    EXPECT_EQ(afterTaking, L"Box 2");
    EXPECT_EQ(sheet.GetUnusedStyleName(L"Box"), L"Box 3");
}

TEST(NamedStyleSheet, ClearsParentsWhenItGoes)
{
    auto sheet = std::make_unique<NamedStyleSheet>();
    Style* const base = sheet->Add(L"Base", MakeWhole());
    Style* const accent = sheet->Add(L"Accent", MakeWhole(base));
    const auto object = MakeWhole(accent);
    const std::size_t before = ReferenceHost::LiveStyleCount();

    sheet.reset();

    EXPECT_EQ(object->GetParent(), nullptr);
    EXPECT_EQ(ReferenceHost::LiveStyleCount(), before - 6);
}

} // namespace
