#include "module/DefaultStylesApp.h"

#include "module/DefaultStylePresetManager.h"
#include "module/StylesCommon.h"

#include <gtest/gtest.h>

#include <typeinfo>

namespace
{

TEST(DefaultStylesApplication, IsOneObject)
{
    IStylesSourceApp& first = DefaultStylesApp::GetInstance();

    EXPECT_EQ(&DefaultStylesApp::GetInstance(), &first);
    EXPECT_EQ(typeid(first), typeid(DefaultStylesApp));
}

TEST(DefaultStylesApplication, StandsInWhereThereIsNoApplication)
{
    StylesCommon::GetInstance().Initialize(nullptr);

    EXPECT_EQ(&StylesCommon::StylesApp(), &DefaultStylesApp::GetInstance());
}

TEST(DefaultStylesApplication, ExcludesNoName)
{
    EXPECT_FALSE(DefaultStylesApp::GetInstance().IsExcludedStyleName(L""));
    EXPECT_FALSE(DefaultStylesApp::GetInstance().IsExcludedStyleName(L"Hidden"));
}

TEST(DefaultStylesApplication, DisplaysNamesAsTheyAre)
{
    const OvxStringT name = L"Fill & line";

    const OvxStringT displayed = DefaultStylesApp::GetInstance().GetDisplayStyleName(name);

    EXPECT_EQ(displayed, L"Fill & line");
    EXPECT_NE(displayed.c_str(), name.c_str()) << "a copy";
}

TEST(DefaultStylesApplication, GivesOnePresetManager)
{
    Styles::StylePresetManager& first = DefaultStylesApp::GetInstance().GetStylePresetManager();

    EXPECT_EQ(&DefaultStylesApp::GetInstance().GetStylePresetManager(), &first);
    EXPECT_EQ(typeid(first), typeid(DefaultStylePresetManager));
}

} // namespace
