#include "tests/reference_host/document/SavedDrawing.h"

#include <gmock/gmock.h>

using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace
{

FlatDrawing WithPalette()
{
    return FlatDrawing()
        .Meta("<meta:user-defined meta:name='styleprops:palette:Sea'> #010203 </meta:user-defined>"
              "<meta:user-defined meta:name='theirs'>#010203</meta:user-defined>")
        .Page("");
}

TEST(PaletteEdits, ChangeAnEntryInPlace)
{
    OpenedDrawing opened = WithPalette().Open();
    opened.drawing->DefinePaletteColour(L"Sea", {0xAA, 2, 3});

    EXPECT_EQ(Difference(WithPalette().Text(), Saved(opened)), " #010203  -> #aa0203");
}

TEST(PaletteEdits, AddAnEntryBehindTheOtherMetadata)
{
    OpenedDrawing opened = WithPalette().Open();
    opened.drawing->DefinePaletteColour(L"Sand & \"Sun\"", {1, 2, 3});

    EXPECT_THAT(Saved(opened), HasSubstr("<meta:user-defined meta:name=\"styleprops:palette:Sand &amp; "
                                         "&quot;Sun&quot;\" meta:value-type=\"string\">#010203"
                                         "</meta:user-defined></office:meta>"));
    EXPECT_TRUE(Reopened(opened).drawing->FindPaletteColour(L"Sand & \"Sun\"").has_value());
}

TEST(PaletteEdits, MakeTheMetadataWhereThereAreNone)
{
    std::string text = FlatDrawing().Page("").Text();
    const std::string container = "<office:meta></office:meta>";
    text.erase(text.find(container), container.size());
    OpenedDrawing opened = OpenText(text);
    opened.drawing->DefinePaletteColour(L"Sea", {1, 2, 3});

    EXPECT_THAT(Saved(opened), HasSubstr("<office:meta><meta:user-defined"));
    EXPECT_THAT(Reopened(opened).drawing->GetPalette(), SizeIs(1));
}

} // namespace
