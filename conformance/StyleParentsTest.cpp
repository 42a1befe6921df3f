#include "conformance/HostTest.h"
#include "conformance/PrintedValues.h"
#include "conformance/Subjects.h"

#include "host/style_model/CategoryNames.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <vector>

HOST_TESTS_SUBJECT(StyleParentsTest);

// Who inherits from whom: links, cycles that cannot be made, and dependency.
namespace HostTests
{

using Styles::FillStyleCategoryName;
using Styles::Style;
using Styles::StyleCategoryName;

namespace
{

class ParentLink : public HostTest
{
protected:
    Style& base = *host->AddNamedStyle(StyleCategoryName, L"Base");
    Style& named = *host->AddNamedStyle(StyleCategoryName, L"Named");
    Style& fillOnly = *host->AddNamedStyle(FillStyleCategoryName, L"Fill only");
    Style& object = *host->AddObject().style;
};

/// A base style, a named style that inherits from it, and an object of that style.
class ParentalDependency : public ParentLink
{
protected:
    ParentalDependency()
    {
        named.SetParent(&base);
        object.SetParent(&named);
    }

    [[nodiscard]] static bool Depends(const Style& style, const Style& on)
    {
        Style* const only = const_cast<Style*>(&on); // NOLINT(cppcoreguidelines-pro-type-const-cast)
        return style.HasParentalDependency(std::span<Style* const>(&only, 1));
    }
};

} // namespace

TEST_F(ParentLink, IsSetAndCleared)
{
    named.SetParent(&base);
    EXPECT_EQ(named.GetParent(), &base);

    named.SetParent(nullptr);
    EXPECT_EQ(named.GetParent(), nullptr);
}

TEST_F(ParentLink, OfANewStyleIsTheOneItWasMadeWith)
{
    const Style made(&base, FillStyleCategoryName);

    EXPECT_EQ(made.GetParent(), &base);
    EXPECT_EQ(made.GetCategoryName(), FillStyleCategoryName);
    EXPECT_TRUE(made.IsEmpty());
    EXPECT_EQ(Style().GetParent(), nullptr);
    EXPECT_EQ(Style().GetCategoryName(), Styles::PropertyKey::Empty);
}

TEST_F(ParentLink, IsRefusedToTheStyleItself)
{
    named.SetParent(&base);

    named.SetParent(&named);

    EXPECT_EQ(named.GetParent(), &base);
}

TEST_F(ParentLink, IsRefusedToWhatInheritsFromTheStyle)
{
    named.SetParent(&base);
    object.SetParent(&named);

    base.SetParent(&object);
    EXPECT_EQ(base.GetParent(), nullptr);

    base.SetParent(&named);
    EXPECT_EQ(base.GetParent(), nullptr);
    EXPECT_EQ(object.GetProperty(Key(L"opacity")), Nothing());
}

TEST_F(ParentLink, IsRefusedToASubstyleOfTheStyle)
{
    Style& fill = Part(named, FillStyleCategoryName);

    named.SetParent(&fill);

    EXPECT_EQ(named.GetParent(), nullptr);
}

TEST_F(ParentLink, OfASubstyleIsRefusedToWhatInheritsByWayOfItsOwner)
{
    Style& fill = Part(named, FillStyleCategoryName);
    Style& inheriting = Part(object, FillStyleCategoryName);
    object.SetParent(&named);

    fill.SetParent(&inheriting);

    EXPECT_EQ(fill.GetParent(), nullptr);
}

TEST_F(ParentLink, OfAStyleIsRefusedWhereASubstyleOfTheParentInheritsFromItsOwn)
{
    Style& fill = Part(named, FillStyleCategoryName);
    Part(base, FillStyleCategoryName).SetParent(&fill);

    named.SetParent(&base);

    EXPECT_EQ(named.GetParent(), nullptr);
}

TEST_F(ParentLink, OfASubstyleMayLeadToANamedStyleOfItsCategory)
{
    Style& fill = Part(object, FillStyleCategoryName);

    fill.SetParent(&fillOnly);

    EXPECT_EQ(fill.GetParent(), &fillOnly);
    EXPECT_EQ(object.GetParent(), nullptr);
}

TEST_F(ParentLink, CanTurnRoundOnceItWasCleared)
{
    named.SetParent(&base);

    named.SetParent(nullptr);
    base.SetParent(&named);

    EXPECT_EQ(base.GetParent(), &named);
}

TEST_F(ParentalDependency, ReachesAnyDistance)
{
    EXPECT_TRUE(Depends(object, named));
    EXPECT_TRUE(Depends(object, base));
    EXPECT_FALSE(Depends(base, object));
    EXPECT_FALSE(Depends(named, fillOnly));
}

TEST_F(ParentalDependency, IsNotOnTheStyleItself)
{
    EXPECT_FALSE(Depends(named, named));
}

TEST_F(ParentalDependency, OfASubstyleReachesItsOwnParents)
{
    Style& fill = Part(object, FillStyleCategoryName);
    ASSERT_FALSE(Depends(fill, fillOnly));

    fill.SetParent(&fillOnly);

    EXPECT_TRUE(Depends(fill, fillOnly));
}

TEST_F(ParentalDependency, OfASubstyleReachesTheParentsOfItsOwnerAndTheCounterpartsThere)
{
    const Style& fill = Part(object, FillStyleCategoryName);
    const Style& counterpart = Part(base, FillStyleCategoryName);

    EXPECT_TRUE(Depends(fill, base));
    EXPECT_TRUE(Depends(fill, counterpart));
    EXPECT_FALSE(Depends(counterpart, fill));
}

TEST_F(ParentalDependency, OnOneOfManyIsEnough)
{
    std::vector<Style*> sorted{&fillOnly, &base, &object};
    std::ranges::sort(sorted, std::less<Style*>());

    EXPECT_TRUE(named.HasParentalDependency(sorted));
    EXPECT_FALSE(base.HasParentalDependency(sorted));
    EXPECT_FALSE(named.HasParentalDependency({}));
}

TEST_F(ParentalDependency, IsNotOnTheDefaults)
{
    for (Style* const defaults : GetSource().GetDefaultStyles())
    {
        ASSERT_NE(defaults, nullptr);
        EXPECT_FALSE(Depends(object, *defaults));
        EXPECT_NE(base.GetParent(), defaults);
    }
}

} // namespace HostTests
