#include "reference_host/preset_store/PresetFile.h"

#include "host/colour/CLR_COLORSPEC.h"
#include "host/style_model/CategoryNames.h"
#include "reference_host/document/DocumentError.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{

using OvxUtils::Any;
using Styles::Style;

Styles::PropertyKey Key(const wchar_t* text)
{
    return Styles::PropertyKey(Styles::PooledString<Styles::StringPool>(text));
}

/// What is read of what was written of a whole style whose fill holds one value.
Any Through(const Any& value)
{
    Style whole(nullptr, Styles::StyleCategoryName);
    whole.SetPathProperty({Styles::FillStyleCategoryName, Key(L"value")}, Any(value));
    const ReferenceHost::Preset preset =
        ReferenceHost::ParsePreset(ReferenceHost::FormatPreset(L"a", whole), "a");
    return preset.style->GetPathProperty({Styles::FillStyleCategoryName, Key(L"value")});
}

std::string ErrorOf(const std::string& text)
{
    try
    {
        static_cast<void>(ReferenceHost::ParsePreset(text, "glow.preset"));
    }
    catch (const ReferenceHost::DocumentError& error)
    {
        return error.what();
    }
    return {};
}

TEST(PresetFile, KeepsValuesOfEveryType)
{
    for (const Any& value : {Any(-2147483647 - 1), Any(0), Any(CLR_COLORSPEC::FromRgb({1, 2, 255})),
                             Any(Key(L"solid")), Any(OvxStringT(L"DejaVu Sans")), Any(OvxStringT())})
        EXPECT_EQ(Through(value), value);
}

TEST(PresetFile, KeepsTextsWithAnyCharacter)
{
    const std::wstring unusual{L'\x01', L'\0', L'\xFFFF'};
    const OvxStringT text(L"<a> & \"b\" 'c' 100% %00000A\n\t\r" + unusual + L" end ");

    EXPECT_EQ(Through(Any(text)), Any(text));
}

TEST(PresetFile, KeepsItsName)
{
    const OvxStringT name = L"A & B\n%";

    EXPECT_EQ(ReferenceHost::ParsePreset(ReferenceHost::FormatPreset(name, Style()), "a").name, name);
}

TEST(PresetFile, HoldsWhatTheStyleShowsAndNotOnlyWhatItSets)
{
    Style parent(nullptr, Styles::FillStyleCategoryName);
    parent.SetProperty(Key(L"width"), Any(7));
    const Style child(&parent, Styles::FillStyleCategoryName);

    const auto preset = ReferenceHost::ParsePreset(ReferenceHost::FormatPreset(L"a", child), "a");

    EXPECT_EQ(preset.style->GetParent(), nullptr);
    EXPECT_EQ(preset.style->GetProperty(Key(L"width")), Any(7));
}

TEST(PresetFile, KeepsTheLookOfALinkedColourWithoutTheLink)
{
    const Any linked(CLR_COLORSPEC::FromResource(L"Accent", {10, 20, 30}));

    EXPECT_EQ(Through(linked), Any(CLR_COLORSPEC::FromRgb({10, 20, 30})));
}

TEST(PresetFile, PassesOverPropertiesOfATypeItDoesNotKnow)
{
    const std::string text = R"(<preset xmlns="urn:styleproperties:preset:1.0" name="a" category="fill">)"
                             R"(<property key="x" type="spline" value="1"/></preset>)";

    EXPECT_EQ(ReferenceHost::ParsePreset(text, "a").style->GetOwnPropertyCount(), 0U);
}

TEST(PresetFile, SaysWhatIsWrongWithAValue)
{
    EXPECT_EQ(ErrorOf(R"(<preset xmlns="urn:styleproperties:preset:1.0" name="a" category="fill">)"
                      R"(<property key="x" type="number" value="7mm"/></preset>)"),
              "glow.preset, <property>: \"7mm\" is no number; expected a value of the type that the property "
              "names");
}

TEST(PresetFile, RefusesWhatIsNoPreset)
{
    EXPECT_THAT(ErrorOf("<drawing/>"), testing::HasSubstr("this is no preset"));
    EXPECT_THAT(ErrorOf(""), testing::HasSubstr("glow.preset"));
    EXPECT_THAT(ErrorOf("<preset"), testing::HasSubstr("glow.preset"));
}

} // namespace
