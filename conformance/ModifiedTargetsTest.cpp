#include "conformance/HostTest.h"
#include "conformance/PrintedValues.h"
#include "conformance/Subjects.h"

#include "host/style_model/CategoryNames.h"
#include "host/style_model/IMultipleStyleModifier.h"

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <utility>
#include <vector>

HOST_TESTS_SUBJECT(ModifiedTargetsTest);

// The modifier, called as the library calls it.
namespace HostTests
{

using Styles::FillStyleCategoryName;
using Styles::PropertyPaths;
using Styles::Style;
using Styles::StyleCategoryName;

namespace
{

/// Two objects of one named style.
class Modifier : public HostTest
{
protected:
    Modifier()
    {
        first.style->SetParent(&named);
        second.style->SetParent(&named);
    }

    void SetUp() override { ASSERT_NE(GetSource().GetMultipleStyleModifier(), nullptr); }

    /// A change of fills inside a whole style, as it is sent where targets are whole styles.
    [[nodiscard]] static std::unique_ptr<Style> Wrapped(std::unique_ptr<Style> change)
    {
        auto wrapper = std::make_unique<Style>(nullptr, StyleCategoryName);
        wrapper->SetSubstyle(change->GetCategoryName(), change.get());
        return wrapper;
    }

    void Modify(const std::vector<Style*>& targets, const PropertyPaths& paths, std::unique_ptr<Style> change,
                const std::map<Style*, std::size_t>& objects = {}, const PropertyPaths& overridePaths = {})
    {
        IMultipleStyleModifier& modifier = *GetSource().GetMultipleStyleModifier();
        modifier.Begin();
        modifier.Modify(targets, objects, paths, std::move(change), overridePaths, false, true,
                        GetSource().GetTransactionOverrides());
        modifier.End();
    }

    [[nodiscard]] static OvxUtils::Any OwnColor(const Style& whole)
    {
        return OwnValue(whole, Path({L"fill", L"color"}));
    }

    Style& named = *host->AddNamedStyle(StyleCategoryName, L"Named");
    Style& fillOnly = *host->AddNamedStyle(FillStyleCategoryName, L"Fill only");
    DocumentObject first = host->AddObject();
    DocumentObject second = host->AddObject();
};

} // namespace

TEST_F(Modifier, WritesToEachTarget)
{
    Modify({first.style, second.style}, {Path({L"fill", L"color"})},
           Wrapped(Change(FillStyleCategoryName, L"color", 1)));

    EXPECT_EQ(OwnColor(*first.style), Number(1));
    EXPECT_EQ(OwnColor(*second.style), Number(1));
    EXPECT_EQ(OwnColor(named), Nothing());
}

TEST_F(Modifier, WritesWhatIsListedAndNothingElse)
{
    auto change = Change(FillStyleCategoryName, L"color", 1);
    change->SetProperty(Key(L"type"), Number(2));
    Part(*first.style, FillStyleCategoryName).SetProperty(Key(L"width"), Number(3));

    Modify({first.style}, {Path({L"fill", L"color"})}, Wrapped(std::move(change)));

    EXPECT_EQ(OwnColor(*first.style), Number(1));
    EXPECT_EQ(OwnValue(*first.style, Path({L"fill", L"type"})), Nothing());
    EXPECT_EQ(OwnValue(*first.style, Path({L"fill", L"width"})), Number(3));
}

TEST_F(Modifier, ClearsWhatIsListedAndNotInTheChange)
{
    Part(named, FillStyleCategoryName).SetProperty(Key(L"color"), Number(9));
    Part(*first.style, FillStyleCategoryName).SetProperty(Key(L"color"), Number(1));

    Modify({first.style}, {Path({L"fill", L"color"})},
           Wrapped(std::make_unique<Style>(nullptr, FillStyleCategoryName)));

    EXPECT_EQ(OwnColor(*first.style), Nothing());
    EXPECT_EQ(first.style->GetPathProperty(Path({L"fill", L"color"})), Number(9));
}

TEST_F(Modifier, WritesToSubstylesWhereTargetsAreSubstyles)
{
    Style& fill = Part(*first.style, FillStyleCategoryName);

    Modify({&fill}, {Path({L"color"})}, Change(FillStyleCategoryName, L"color", 1));

    EXPECT_EQ(OwnColor(*first.style), Number(1));
}

TEST_F(Modifier, WritesToNamedStyles)
{
    Modify({&fillOnly}, {Path({L"color"})}, Change(FillStyleCategoryName, L"color", 1));
    Modify({&named}, {Path({L"fill", L"color"})}, Wrapped(Change(FillStyleCategoryName, L"color", 2)));

    EXPECT_EQ(OwnValue(fillOnly, Path({L"color"})), Number(1));
    EXPECT_EQ(OwnColor(named), Number(2));
    EXPECT_EQ(first.style->GetPathProperty(Path({L"fill", L"color"})), Number(2));
}

// Whole styles and styles of one category can be targets together. The change is wrapped for all of them.
TEST_F(Modifier, TakesTheCategoryOfATargetInFrontOfAPathForTheTargetItself)
{
    Modify({first.style, &fillOnly}, {Path({L"fill", L"color"})},
           Wrapped(Change(FillStyleCategoryName, L"color", 1)));

    EXPECT_EQ(OwnColor(*first.style), Number(1));
    EXPECT_EQ(OwnValue(fillOnly, Path({L"color"})), Number(1));
    EXPECT_EQ(fillOnly.GetSubstyle(FillStyleCategoryName, false), nullptr);
}

// A panel of whole styles has their category in front of its paths.
TEST_F(Modifier, TakesTheCategoryOfWholeStylesInFrontOfAPathForTheTargetItself)
{
    auto change = std::make_unique<Style>(nullptr, StyleCategoryName);
    change->SetPathProperty(Path({L"fill", L"color"}), Number(1));
    Part(*first.style, FillStyleCategoryName).SetProperty(Key(L"type"), Number(2));

    Modify({first.style}, {Path({L"style", L"fill", L"color"}), Path({L"style", L"fill", L"type"})},
           Wrapped(std::move(change)));

    EXPECT_EQ(OwnColor(*first.style), Number(1));
    EXPECT_EQ(OwnValue(*first.style, Path({L"fill", L"type"})), Nothing());
    EXPECT_EQ(first.style->GetSubstyle(StyleCategoryName, false), nullptr);
}

TEST_F(Modifier, PassesOverTargetsThatAreMissing)
{
    Modify({first.style, nullptr, second.style}, {Path({L"fill", L"color"})},
           Wrapped(Change(FillStyleCategoryName, L"color", 1)));

    EXPECT_EQ(OwnColor(*first.style), Number(1));
    EXPECT_EQ(OwnColor(*second.style), Number(1));
}

TEST_F(Modifier, WritesNothingWithoutAChange)
{
    Part(*first.style, FillStyleCategoryName).SetProperty(Key(L"color"), Number(1));

    Modify({first.style}, {Path({L"fill", L"color"})}, nullptr, {{first.style, first.number}},
           {Path({L"fill", L"type"})});

    EXPECT_EQ(OwnColor(*first.style), Number(1));
}

TEST_F(Modifier, WritesNothingWithoutTargets)
{
    Modify({}, {Path({L"fill", L"color"})}, Wrapped(Change(FillStyleCategoryName, L"color", 1)));

    EXPECT_EQ(OwnColor(*first.style), Nothing());
    EXPECT_EQ(OwnColor(named), Nothing());
}

TEST_F(Modifier, WritesOverridesToTheObjects)
{
    Modify({first.style}, {}, Wrapped(Change(FillStyleCategoryName, L"color", 1)),
           {{first.style, first.number}}, {Path({L"fill", L"color"})});

    EXPECT_EQ(first.style->GetPathProperty(Path({L"fill", L"color"})), Number(1));
    EXPECT_NE(second.style->GetPathProperty(Path({L"fill", L"color"})), Number(1));
}

TEST_F(Modifier, WritesOverridesToTheObjectsAlsoWhereTargetsAreSubstyles)
{
    Style& fill = Part(*first.style, FillStyleCategoryName);

    Modify({&fill}, {}, Change(FillStyleCategoryName, L"color", 1), {{first.style, first.number}},
           {Path({L"color"})});

    EXPECT_EQ(fill.GetProperty(Key(L"color")), Number(1));
}

TEST_F(Modifier, NestsItsOperations)
{
    IMultipleStyleModifier& modifier = *GetSource().GetMultipleStyleModifier();

    modifier.Begin();
    Modify({first.style}, {Path({L"fill", L"color"})}, Wrapped(Change(FillStyleCategoryName, L"color", 1)));
    Modify({second.style}, {Path({L"fill", L"color"})}, Wrapped(Change(FillStyleCategoryName, L"color", 2)));
    modifier.End();

    EXPECT_EQ(OwnColor(*first.style), Number(1));
    EXPECT_EQ(OwnColor(*second.style), Number(2));
}

TEST_F(Modifier, MayBeginAndEndWithoutWriting)
{
    Part(*first.style, FillStyleCategoryName).SetProperty(Key(L"color"), Number(1));

    GetSource().GetMultipleStyleModifier()->Begin();
    GetSource().GetMultipleStyleModifier()->End();

    EXPECT_EQ(OwnColor(*first.style), Number(1));
}

TEST_F(Modifier, EndsTheChangeThatItWasGiven)
{
    Style& fill = Part(*first.style, FillStyleCategoryName);
    const auto before = host->CountLiveStyles();
    if (!before)
        GTEST_SKIP() << "the host does not count styles";

    Modify({&fill}, {Path({L"color"})}, Change(FillStyleCategoryName, L"color", 1));

    EXPECT_EQ(host->CountLiveStyles(), before);
}

} // namespace HostTests
