// The descriptions beside the modules: they promise what the modules bind.

#include "host/resources/Resources.h"
#include "host/utils/Utf8.h"
#include "host/xml/WXPath.h"
#include "host/xml/WXmlDoc.h"
#include "tests/panels/PanelFixture.h"
#include "tests/panels/PanelModuleCases.h"

#include <fstream>
#include <iterator>
#include <string>

using testing::Each;
using testing::Not;

namespace PanelTests
{

namespace
{

OvxStringT AttributeOf(const WXmlNode& element, const OvxStringT& address)
{
    return element.Attribute(address).GetString();
}

/// Tells whether a text of a description is that of the catalogue: numbers stand for themselves.
bool HasText(const OvxStringT& key)
{
    const bool isNumber = key.Wide().find_first_not_of(L"0123456789") == std::wstring::npos;
    return isNumber || !(Framework::Resources::GetString(key) == key);
}

class PanelDescription : public PanelFixture, public testing::WithParamInterface<PanelModuleCase>
{
protected:
    PanelDescription()
    {
        std::filesystem::path file = FileOf(GetParam().module);
        std::ifstream stream(file.replace_extension(".panel.xml"), std::ios::binary);
        const std::string utf8(std::istreambuf_iterator<char>(stream), {});
        description.Load(OvxUtils::FromUtf8(utf8));
    }

    [[nodiscard]] WXmlNode GetPanel() const { return description.GetRoot(); }

    WXmlDoc description;
};

INSTANTIATE_TEST_SUITE_P(Of, PanelDescription, testing::ValuesIn(AllModules()),
                         [](const auto& module) { return OvxUtils::ToUtf8(module.param.module); });

TEST_P(PanelDescription, NamesTheModuleAndTheClassOfThePanel)
{
    EXPECT_EQ(AttributeOf(GetPanel(), L"@name"), GetParam().module);
    EXPECT_EQ(AttributeOf(GetPanel(), L"@module"), GetParam().module);
    EXPECT_EQ(AttributeOf(GetPanel(), L"@class"), GetParam().className);
    EXPECT_EQ(AttributeOf(GetPanel(), L"@category"), GetParam().module);
}

TEST_P(PanelDescription, ListsTheRowsOfThePanelInOrder)
{
    std::vector<PanelModuleCase::Row> rows;
    for (const WXmlNode& row : GetPanel().GetChildren())
        rows.push_back({AttributeOf(row, L"@identifier"), AttributeOf(row, L"@property")});

    EXPECT_EQ(rows, GetParam().rows);
}

TEST_P(PanelDescription, NumbersTheRowsUpwards)
{
    int last = 0;
    for (const WXmlNode& row : GetPanel().GetChildren())
    {
        const int order = row.Attribute(L"@order").GetInt();
        EXPECT_GT(order, last);
        last = order;
    }
}

TEST_P(PanelDescription, UsesOnlyTextsThatTheCatalogueHas)
{
    std::vector<OvxStringT> withoutText;
    const auto check = [&](const OvxStringT& key)
    {
        if (!HasText(key))
            withoutText.push_back(key);
    };
    check(AttributeOf(GetPanel(), L"@title"));
    for (const WXmlNode& row : GetPanel().GetChildren())
    {
        check(AttributeOf(row, L"@label"));
        for (const WXmlNode& choice : row.GetChildren())
            check(AttributeOf(choice, L"@label"));
    }

    EXPECT_THAT(withoutText, testing::IsEmpty());
}

} // namespace

} // namespace PanelTests
