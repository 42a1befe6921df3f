// Both lists of styles as they are written, whole: every entry, every attribute and the order of all.

#include "tests/datasource/support/ShownTexts.h"
#include "tests/datasource/support/StyleListTest.h"
#include "tests/host_pieces/HostPieces.h"

#include <optional>

namespace
{

using namespace Styles;

const std::string kRoot = "<placeholderData>";

/// The entry for no style, as objects have it.
std::string NoneEntry(const char* check)
{
    return "<itemData type='statusText' styleName='' text='" +
           Describe(ShownTexts::Of(ShownTexts::kNoStyle)) + "' check='" + check +
           "' enable='true' guid='' placeholderCommandID='0'>";
}

/// The entries S1 to S9 with the ids 1 to 9, none of them checked.
const std::string kFirstNine = "<itemData type='statusText' text='S1' styleName='S1' check='false' "
                               "enable='true' guid='' placeholderCommandID='1'>"
                               "<itemData type='statusText' text='S2' styleName='S2' check='false' "
                               "enable='true' guid='' placeholderCommandID='2'>"
                               "<itemData type='statusText' text='S3' styleName='S3' check='false' "
                               "enable='true' guid='' placeholderCommandID='3'>"
                               "<itemData type='statusText' text='S4' styleName='S4' check='false' "
                               "enable='true' guid='' placeholderCommandID='4'>"
                               "<itemData type='statusText' text='S5' styleName='S5' check='false' "
                               "enable='true' guid='' placeholderCommandID='5'>"
                               "<itemData type='statusText' text='S6' styleName='S6' check='false' "
                               "enable='true' guid='' placeholderCommandID='6'>"
                               "<itemData type='statusText' text='S7' styleName='S7' check='false' "
                               "enable='true' guid='' placeholderCommandID='7'>"
                               "<itemData type='statusText' text='S8' styleName='S8' check='false' "
                               "enable='true' guid='' placeholderCommandID='8'>"
                               "<itemData type='statusText' text='S9' styleName='S9' check='false' "
                               "enable='true' guid='' placeholderCommandID='9'>";

/// The entries S10 to S17 with the ids 10 to 17, none of them checked.
const std::string kNextEight = "<itemData type='statusText' text='S10' styleName='S10' check='false' "
                               "enable='true' guid='' placeholderCommandID='10'>"
                               "<itemData type='statusText' text='S11' styleName='S11' check='false' "
                               "enable='true' guid='' placeholderCommandID='11'>"
                               "<itemData type='statusText' text='S12' styleName='S12' check='false' "
                               "enable='true' guid='' placeholderCommandID='12'>"
                               "<itemData type='statusText' text='S13' styleName='S13' check='false' "
                               "enable='true' guid='' placeholderCommandID='13'>"
                               "<itemData type='statusText' text='S14' styleName='S14' check='false' "
                               "enable='true' guid='' placeholderCommandID='14'>"
                               "<itemData type='statusText' text='S15' styleName='S15' check='false' "
                               "enable='true' guid='' placeholderCommandID='15'>"
                               "<itemData type='statusText' text='S16' styleName='S16' check='false' "
                               "enable='true' guid='' placeholderCommandID='16'>"
                               "<itemData type='statusText' text='S17' styleName='S17' check='false' "
                               "enable='true' guid='' placeholderCommandID='17'>";

std::string MoreWithId(const std::string& id)
{
    const std::string more = Describe(ShownTexts::Of(ShownTexts::kMoreStyles));
    return "<itemData type='statusText' text='" + more + "' styleName='" + more +
           "' "
           "placeholderCommandID='" +
           id + "'>";
}

class StyleListFormat : public StyleListTest
{
protected:
    /// The main list for an object whose fill inherits from `parent`.
    std::string MainList(Style* parent = nullptr)
    {
        Target(panel, {&ObjectWithFill(parent)});
        return ToText(panel.GetStyleResourceList());
    }
};

TEST_F(StyleListFormat, HasOneEntryForNoNames)
{
    EXPECT_EQ(MainList(), kRoot + NoneEntry("true"));
}

TEST_F(StyleListFormat, HasAnEntryForOneName)
{
    NameFills(1);

    EXPECT_EQ(MainList(fills[0]), kRoot + NoneEntry("false") +
                                      "<itemData type='statusText' text='S1' styleName='S1' check='true' "
                                      "enable='true' guid='' placeholderCommandID='1'>");
}

TEST_F(StyleListFormat, HasAnEntryForEachOfEighteenNames)
{
    NameFills(18);

    EXPECT_EQ(MainList(fills[17]), kRoot + NoneEntry("false") + kFirstNine + kNextEight +
                                       "<itemData type='statusText' text='S18' styleName='S18' check='true' "
                                       "enable='true' guid='' placeholderCommandID='18'>");
}

TEST_F(StyleListFormat, HasNineEntriesAndAnotherForNineteenNames)
{
    NameFills(19);

    EXPECT_EQ(MainList(), kRoot + NoneEntry("true") + kFirstNine + MoreWithId("10"));
}

TEST_F(StyleListFormat, HasTheCurrentStyleBehindNineOfFortyNames)
{
    NameFills(40);

    EXPECT_EQ(MainList(fills[39]), kRoot + NoneEntry("false") + kFirstNine +
                                       "<itemData type='statusText' text='S40' styleName='S40' check='true' "
                                       "enable='true' guid='' placeholderCommandID='10'>" +
                                       MoreWithId("11"));
}

TEST_F(StyleListFormat, HasNoFurtherEntryForACurrentStyleAmongTheFirstNine)
{
    NameFills(40);
    std::string nine = kFirstNine;
    const std::string third = "styleName='S3' check='false'";
    nine.replace(nine.find(third), third.size(), "styleName='S3' check='true'");

    EXPECT_EQ(MainList(fills[2]), kRoot + NoneEntry("false") + nine + MoreWithId("10"));
}

TEST_F(StyleListFormat, LeavesOutDescendantsWithoutAGapInTheIds)
{
    NameFills(1);
    NameInSheet(L"Child", styles.OfCategory("child", FillStyleCategoryName, fills[0]));
    NameFills(1);
    Target(panel, {fills[0]});

    EXPECT_EQ(ToText(panel.GetStyleResourceList()),
              kRoot + "<itemData type='statusText' styleName='' text='" +
                  Describe(ShownTexts::Of(ShownTexts::kNoParent)) +
                  "' check='true' enable='true' "
                  "guid='' placeholderCommandID='0'>"
                  "<itemData type='statusText' text='S2' styleName='S2' check='false' enable='true' guid='' "
                  "placeholderCommandID='1'>");
}

TEST_F(StyleListFormat, DoublesEveryAmpersandOfAName)
{
    NameInSheet(L"A&B &C", styles.OfCategory("ab", FillStyleCategoryName));

    EXPECT_EQ(MainList(),
              kRoot + NoneEntry("true") +
                  "<itemData type='statusText' text='A&&B &&C' styleName='A&&B &&C' check='false' "
                  "enable='true' guid='' placeholderCommandID='1'>");
}

TEST_F(StyleListFormat, ChecksNoEntryWhenTheCurrentStyleHasAnAmpersandBeyondTheLimit)
{
    NameFills(19);
    Style& both = styles.OfCategory("ab", FillStyleCategoryName);
    NameInSheet(L"A&B", both);

    EXPECT_EQ(MainList(&both), kRoot + NoneEntry("false") + kFirstNine + MoreWithId("10"));
}

TEST_F(StyleListFormat, OfFurtherStylesHasTheNamesAsTheyAreAndNoChecks)
{
    NameFills(19);
    NameInSheet(L"A&B", styles.OfCategory("ab", FillStyleCategoryName));
    static_cast<void>(MainList(fills[11]));

    std::string further = kRoot;
    const std::vector<std::string> names = {"S10", "S11", "S13", "S14", "S15",
                                            "S16", "S17", "S18", "S19", "A&B"};
    const std::vector<std::string> ids = {"9", "10", "11", "12", "13", "14", "15", "16", "17", "18"};
    for (std::size_t place = 0; place < names.size(); ++place)
        further += "<itemData type='statusText' text='" + names[place] + "' styleName='" + names[place] +
                   "' enable='true' guid='' placeholderCommandID='" + ids[place] + "'>";
    EXPECT_EQ(ToText(panel.GetNewStyleList()), further);
}

TEST_F(StyleListFormat, OfFurtherStylesHasNothingForNoNamesAndForEighteen)
{
    static_cast<void>(MainList());
    EXPECT_EQ(ToText(panel.GetNewStyleList()), kRoot);

    NameFills(18);
    static_cast<void>(MainList());
    EXPECT_EQ(ToText(panel.GetNewStyleList()), kRoot);
}

TEST_F(StyleListFormat, CostsACallForEachNameHoweverManyThereAre)
{
    NameFills(400);
    Target(panel, {&ObjectWithFill(fills[300])});
    log.Clear();

    static_cast<void>(panel.GetStyleResourceList());
    EXPECT_EQ(log.LinesOf({"sheet."}).size(), 400U + 2U);

    log.Clear();
    static_cast<void>(panel.GetNewStyleList());
    EXPECT_EQ(log.LinesOf({"sheet."}).size(), 2U);
}

TEST_F(StyleListFormat, HoldsNoMoreMemoryThanTheListBuiltLast)
{
    NameFills(40);
    Target(panel, {&ObjectWithFill()});
    static_cast<void>(panel.GetStyleResourceList());
    const std::optional<std::size_t> treesBefore = HostPieces::CountLiveXmlTrees();
    if (!treesBefore)
        GTEST_SKIP() << "This host does not count its trees.";

    for (int opened = 0; opened < 10'000; ++opened)
    {
        log.Clear();
        static_cast<void>(panel.GetStyleResourceList());
        static_cast<void>(panel.GetNewStyleList());
    }

    EXPECT_EQ(HostPieces::CountLiveXmlTrees(), treesBefore);
}

TEST_F(StyleListFormat, GivesItsMemoryBackWithTheLastHandle)
{
    NameFills(40);
    Target(panel, {&ObjectWithFill()});
    const std::optional<std::size_t> treesBefore = HostPieces::CountLiveXmlTrees();
    if (!treesBefore)
        GTEST_SKIP() << "This host does not count its trees.";
    {
        const WXmlNode held = panel.GetStyleResourceList();
        static_cast<void>(panel.GetNewStyleList());
        EXPECT_EQ(HostPieces::CountLiveXmlTrees(), *treesBefore + 2);
    }

    EXPECT_EQ(HostPieces::CountLiveXmlTrees(), *treesBefore + 1);
}

} // namespace
