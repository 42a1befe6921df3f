// Where a value comes from: the walk through parents and owners, and the names of the styles on the way.

#include "panels/ValueOrigin.h"
#include "host/style_model/CategoryNames.h"
#include "reference_host/style_model/StyleHosting.h"
#include "tests/panels/PanelFixture.h"

using OvxUtils::Any;
using Panels::DescribeOrigin;
using Panels::FindInheritedSetter;
using Panels::FindInheritedValue;
using Panels::FindSheetName;
using Panels::ValueOrigin;
using Styles::Style;
using testing::IsNull;

namespace PanelTests
{

namespace
{

/// An object whose parent is "Near", and whose grandparent is "Far".
class InheritedSetter : public PanelFixture
{
protected:
    static Style* FillOf(Style* whole) { return whole->GetSubstyle(Styles::FillStyleCategoryName, true); }

    static void SetColour(Style* whole) { Set(whole, L"fill", L"color", Colour(0x0000ff)); }

    const Styles::PropertyPath colour{Key(L"color")};
    Style* grandparent = document.AddNamed(L"Far");
    Style* parent = document.AddNamed(L"Near", grandparent);
    Style* object = document.AddObject(parent);
};

TEST_F(InheritedSetter, IsTheNearestParentOfTheOwner)
{
    SetColour(parent);
    SetColour(grandparent);

    EXPECT_EQ(FindInheritedSetter(*FillOf(object), colour), FillOf(parent));
}

TEST_F(InheritedSetter, IsAFartherParentWhenTheNearerSetsNothing)
{
    SetColour(grandparent);

    EXPECT_EQ(FindInheritedSetter(*FillOf(object), colour), FillOf(grandparent));
}

TEST_F(InheritedSetter, IsAParentOfTheStyleItselfBeforeThoseOfItsOwner)
{
    Style ownParent(nullptr, Styles::FillStyleCategoryName);
    ownParent.SetProperty(Key(L"color"), Colour(0xff0000));
    FillOf(object)->SetParent(&ownParent);
    SetColour(parent);

    EXPECT_EQ(FindInheritedSetter(*FillOf(object), colour), &ownParent);
}

TEST_F(InheritedSetter, IsAParentOfTheSameSubstyleBeforeAFartherParentOfTheOwner)
{
    Style ownParent(nullptr, Styles::FillStyleCategoryName);
    ownParent.SetProperty(Key(L"color"), Colour(0xff0000));
    FillOf(parent)->SetParent(&ownParent);
    SetColour(grandparent);

    EXPECT_EQ(FindInheritedSetter(*FillOf(object), colour), &ownParent);
}

TEST_F(InheritedSetter, IsFoundPastAParentWithoutTheSubstyle)
{
    parent->SetSubstyle(Styles::FillStyleCategoryName, nullptr);
    SetColour(grandparent);

    EXPECT_EQ(FindInheritedSetter(*FillOf(object), colour), FillOf(grandparent));
}

TEST_F(InheritedSetter, IsFoundForASubstyleOfASubstyle)
{
    const Styles::PropertyPath nested{Key(L"fill"), Key(L"pattern"), Key(L"color")};
    grandparent->SetPathProperty(nested, Colour(0x0000ff));
    Style* pattern = FillOf(object)->GetSubstyleAndCreateIfMissing(Key(L"pattern"), Key(L"pattern"));

    EXPECT_EQ(FindInheritedSetter(*pattern, colour), FillOf(grandparent)->GetSubstyle(Key(L"pattern"), true));
}

TEST_F(InheritedSetter, IsNoneWhenOnlyTheStyleItselfSetsIt)
{
    SetColour(object);

    EXPECT_THAT(FindInheritedSetter(*FillOf(object), colour), IsNull());
}

TEST_F(InheritedSetter, IsNoneWhenOnlyTheDefaultStyleSetsIt)
{
    SetColour(document.GetDefaults());

    EXPECT_THAT(FindInheritedSetter(*FillOf(object), colour), IsNull());
}

using InheritedValue = InheritedSetter;

TEST_F(InheritedValue, IsThatOfTheNearestStyleThatSetsIt)
{
    SetColour(object);
    Set(parent, L"fill", L"color", Colour(0x00ff00));
    Set(grandparent, L"fill", L"color", Colour(0xff0000));

    EXPECT_EQ(FindInheritedValue(*FillOf(object), colour), Colour(0x00ff00));
}

TEST_F(InheritedValue, IsTheDefaultBehindALocalOneWithoutAParent)
{
    Style* alone = document.AddObject(nullptr);
    SetColour(alone);
    Set(document.GetDefaults(), L"fill", L"color", Colour(0xff0000));

    EXPECT_EQ(FindInheritedValue(*FillOf(alone), colour), Colour(0xff0000));
}

TEST_F(InheritedValue, IsEmptyForTheDefaultStyleItself)
{
    SetColour(document.GetDefaults());

    EXPECT_TRUE(FindInheritedValue(*FillOf(document.GetDefaults()), colour).IsEmpty());
}

TEST_F(InheritedValue, IsEmptyWithoutADocument)
{
    SetColour(object);
    SetColour(document.GetDefaults());
    application.CloseDocument();

    EXPECT_TRUE(FindInheritedValue(*FillOf(object), colour).IsEmpty());
}

/// The styles of a document beside one sheet outside it.
class SourceWithExternalSheet : public ReferenceHost::DocumentStylesSource
{
public:
    using DocumentStylesSource::DocumentStylesSource;

    Styles::StyleSheet* GetExternalStyleSheet(const OvxStringT& sheetName) override
    {
        return sheetName == L"Company" ? &company : nullptr;
    }

    ReferenceHost::NamedStyleSheet company;
};

using SheetName = InheritedSetter;

TEST_F(SheetName, IsThatOfTheStyle)
{
    EXPECT_EQ(FindSheetName(*parent), OvxStringT(L"Near"));
}

TEST_F(SheetName, OfASubstyleIsThatOfItsOwner)
{
    EXPECT_EQ(FindSheetName(*FillOf(parent)), OvxStringT(L"Near"));
}

TEST_F(SheetName, IsEmptyForTheStyleOfAnObject)
{
    EXPECT_EQ(FindSheetName(*object), OvxStringT());
}

TEST_F(SheetName, IsEmptyWithoutADocument)
{
    application.CloseDocument();

    EXPECT_EQ(FindSheetName(*parent), OvxStringT());
}

TEST_F(SheetName, OfAnExternalStyleIsLookedUpInItsOwnSheet)
{
    SourceWithExternalSheet external(document);
    application.OpenDocument(&external, &document);
    Style* house =
        external.company.Add(L"House Blue", std::make_unique<Style>(nullptr, Styles::StyleCategoryName));
    ReferenceHost::SetExternalSheet(*house, L"Company", L"");

    EXPECT_EQ(FindSheetName(*house), OvxStringT(L"House Blue"));
}

TEST_F(SheetName, OfAnExternalStyleIsEmptyWithoutItsSheet)
{
    ReferenceHost::SetExternalSheet(*parent, L"Company", L"");

    EXPECT_EQ(FindSheetName(*parent), OvxStringT());
}

using DescriptionOfAnOrigin = InheritedSetter;

TEST_F(DescriptionOfAnOrigin, NamesTheStyleBehindItsKind)
{
    EXPECT_EQ(DescribeOrigin({ValueOrigin::Kind::Inherited, parent}), OvxStringT(L"style:Near"));
}

TEST_F(DescriptionOfAnOrigin, NamesNoStyleThatHasNoName)
{
    EXPECT_EQ(DescribeOrigin({ValueOrigin::Kind::Inherited, object}), OvxStringT(L"style:"));
}

TEST_F(DescriptionOfAnOrigin, IsOneWordWithoutAStyle)
{
    EXPECT_EQ(DescribeOrigin({ValueOrigin::Kind::Local, nullptr}), OvxStringT(L"local"));
    EXPECT_EQ(DescribeOrigin({ValueOrigin::Kind::Default, nullptr}), OvxStringT(L"default"));
    EXPECT_EQ(DescribeOrigin({ValueOrigin::Kind::Unset, nullptr}), OvxStringT());
}

} // namespace

} // namespace PanelTests
