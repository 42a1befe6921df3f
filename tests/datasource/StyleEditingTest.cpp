// Whether the styles behind the targets may be edited: which styles are looked at on the way from a target to
// what it inherits from, and which are not.

#include "host/style_model/CategoryNames.h"
#include "tests/datasource/support/HostedTest.h"
#include "tests/host_pieces/HostPieces.h"

namespace
{

using namespace Styles;

/// Styles are of the document unless they are made external. An external style without a link is closed.
class StyleEditing : public HostedTest
{
protected:
    static void Close(Style& style) { HostPieces::MoveToExternalSheet(style, L"Library", L""); }

    static void Link(Style& style) { HostPieces::MoveToExternalSheet(style, L"Library", L"library.fodg"); }

    bool IsEnabledFor(const std::vector<Style*>& targets)
    {
        Target(panel, targets);
        const int answer = panel.Read<int>(L"EnableStyleEditing");
        EXPECT_TRUE(answer == 0 || answer == 1) << answer;
        return answer == 1;
    }
};

TEST_F(StyleEditing, IsEnabledWithoutTargets)
{
    EXPECT_TRUE(IsEnabledFor({}));
}

TEST_F(StyleEditing, IsEnabledForNullTargets)
{
    EXPECT_TRUE(IsEnabledFor({nullptr, nullptr}));
}

TEST_F(StyleEditing, IsEnabledForStylesOfTheDocument)
{
    Style& base = styles.WithFill("base");

    EXPECT_TRUE(IsEnabledFor({&styles.WithFill("box", &base), &styles.Whole("bare")}));
}

TEST_F(StyleEditing, IsRefusedForAClosedTarget)
{
    Style& box = styles.WithFill("box");
    Close(box);

    EXPECT_FALSE(IsEnabledFor({&box}));
}

TEST_F(StyleEditing, IsEnabledForALinkedTarget)
{
    Style& box = styles.WithFill("box");
    Link(box);

    EXPECT_TRUE(IsEnabledFor({&box}));
}

TEST_F(StyleEditing, IsRefusedWhenTheParentIsClosed)
{
    Style& base = styles.WithFill("base");
    Close(base);

    EXPECT_FALSE(IsEnabledFor({&styles.WithFill("box", &base)}));
}

TEST_F(StyleEditing, IsEnabledWhenTheParentIsLinked)
{
    Style& base = styles.WithFill("base");
    Link(base);

    EXPECT_TRUE(IsEnabledFor({&styles.WithFill("box", &base)}));
}

TEST_F(StyleEditing, LooksNoFurtherThanTheFirstParent)
{
    Style& root = styles.WithFill("root");
    Close(root);
    Style& base = styles.WithFill("base", &root);

    EXPECT_TRUE(IsEnabledFor({&styles.WithFill("box", &base)}));
}

TEST_F(StyleEditing, IsRefusedWhenOneTargetOfManyIsClosed)
{
    Style& open = styles.WithFill("open");
    Style& closed = styles.WithFill("closed");
    Close(closed);

    EXPECT_FALSE(IsEnabledFor({&open, nullptr, &closed}));
    EXPECT_FALSE(IsEnabledFor({&closed, nullptr, &open}));
}

TEST_F(StyleEditing, ClimbsFromASubstyleToTheWholeStyleThatOwnsIt)
{
    Style& base = styles.WithFill("base");
    Close(base);
    Style& box = styles.WithFill("box", &base);

    EXPECT_FALSE(IsEnabledFor({&FillOf(box)})) << "the owner's parent is looked at";
}

TEST_F(StyleEditing, ClimbsPastAnOwnerWhereThereIsAParent)
{
    Style& library = styles.WithFill("library");
    Close(library);
    Style& box = styles.WithFill("box", &library);
    Style& base = styles.WithFill("base");
    FillOf(box).SetParent(&FillOf(base));

    EXPECT_TRUE(IsEnabledFor({&FillOf(box)}))
        << "the way leads to the parent's owner; the closed one is not on it";
}

TEST_F(StyleEditing, ClimbsToTheParentRatherThanToTheOwner)
{
    Style& box = styles.WithFill("box");
    Style& base = styles.WithFill("base");
    Close(base);
    FillOf(box).SetParent(&FillOf(base));

    EXPECT_FALSE(IsEnabledFor({&FillOf(box)}))
        << "the parent's owner is closed, although the own owner is not";
}

TEST_F(StyleEditing, LooksNoFurtherThanWhereAParentLed)
{
    Style& library = styles.WithFill("library");
    Close(library);
    Style& base = styles.WithFill("base", &library);
    Style& alone = styles.OfCategory("alone", FillStyleCategoryName, &FillOf(base));

    EXPECT_TRUE(IsEnabledFor({&alone}))
        << "the owner of the parent is looked at, what that inherits from is not";
}

TEST_F(StyleEditing, IsRefusedWhereAParentLedToAClosedStyle)
{
    Style& base = styles.WithFill("base");
    Close(base);
    Style& alone = styles.OfCategory("alone", FillStyleCategoryName, &FillOf(base));

    EXPECT_FALSE(IsEnabledFor({&alone}));
}

/// A fill style that nothing owns and that inherits from nothing leads to no whole style. What is asked about
/// then is the category that the first shown style leads to.
class StyleEditingWithoutAWholeStyle : public StyleEditing
{
protected:
    Style& alone = styles.OfCategory("alone", FillStyleCategoryName);
};

TEST_F(StyleEditingWithoutAWholeStyle, IsEnabledForAStyleOfTheDocument)
{
    EXPECT_TRUE(IsEnabledFor({&alone}));
}

TEST_F(StyleEditingWithoutAWholeStyle, IsRefusedForAClosedOneByItsOwnCategory)
{
    Close(alone);

    EXPECT_FALSE(IsEnabledFor({&alone}));
}

TEST_F(StyleEditingWithoutAWholeStyle, IsEnabledForALinkedOneWhichHasNoOwnerToAskAbout)
{
    Link(alone);

    EXPECT_TRUE(IsEnabledFor({&alone}));
}

TEST_F(StyleEditingWithoutAWholeStyle, AsksAboutTheFirstTargetWhenNothingIsShownOfIt)
{
    Close(alone);
    panel.givesTargetStyle = [](std::size_t) { return nullptr; };

    EXPECT_FALSE(IsEnabledFor({&alone}));
}

TEST_F(StyleEditingWithoutAWholeStyle, AsksAboutNoCategoryWhenTheFirstTargetIsNull)
{
    Close(alone);

    EXPECT_TRUE(IsEnabledFor({nullptr, &alone})) << "the first decides on the category, and it is null";
}

TEST_F(StyleEditingWithoutAWholeStyle, AsksAboutTheCategoryOfTheShownStyleInEveryTarget)
{
    Style& second = styles.OfCategory("second", FillStyleCategoryName);
    Close(alone);
    Close(second);
    Style& frame = styles.OfCategory("frame", Key(L"frame"));
    panel.givesTargetStyle = [&second](std::size_t) { return &second; };

    EXPECT_TRUE(IsEnabledFor({&frame})) << "no fill style can be reached from the only target";
    EXPECT_FALSE(IsEnabledFor({&frame, &alone}));
}

/// A frame holds a fill style and is no whole style either.
class StyleEditingWithinAFrame : public StyleEditing
{
protected:
    StyleEditingWithinAFrame() { Close(library); }

    Style& library = styles.OfCategory("library", Key(L"frame"));
    Style& frame = styles.OfCategory("frame", Key(L"frame"), &library);
    Style& fill = FillOf(frame);
    Style& fillBase = styles.OfCategory("fillBase", FillStyleCategoryName);
};

TEST_F(StyleEditingWithinAFrame, AsksAboutTheOwnersCategoryForAShownStyleOfTheDocument)
{
    fill.SetParent(&fillBase);

    EXPECT_FALSE(IsEnabledFor({&frame})) << "the frame's parent is closed, although the fill's is not";
}

TEST_F(StyleEditingWithinAFrame, AsksAboutTheOwnersCategoryForALinkedShownStyle)
{
    fill.SetParent(&fillBase);
    Link(frame);

    EXPECT_FALSE(IsEnabledFor({&frame}));
}

TEST_F(StyleEditingWithinAFrame, AsksAboutTheShownStylesOwnCategoryWhenThatIsClosed)
{
    Style& closed = styles.OfCategory("closed", FillStyleCategoryName);
    Close(closed);
    fill.SetParent(&fillBase);
    panel.givesTargetStyle = [&closed](std::size_t) { return &closed; };

    EXPECT_TRUE(IsEnabledFor({&frame})) << "the frame's fill and its parent are open";
}

TEST_F(StyleEditingWithinAFrame, GoesFromAStyleToItsParentRatherThanToItsOwner)
{
    Style& closed = styles.OfCategory("closed", FillStyleCategoryName);
    Close(closed);
    fill.SetParent(&closed);
    panel.givesTargetStyle = [&closed](std::size_t) { return &closed; };

    EXPECT_FALSE(IsEnabledFor({&frame})) << "the frame is open, the fill's parent is not";
}

TEST_F(StyleEditingWithinAFrame, GoesFromAStyleWithoutAParentToItsOwnerAndThenToTheOwnersParent)
{
    Style& closed = styles.OfCategory("closed", FillStyleCategoryName);
    Close(closed);
    panel.givesTargetStyle = [&closed](std::size_t) { return &closed; };

    EXPECT_FALSE(IsEnabledFor({&frame})) << "fill, frame, library";
}

} // namespace
