#include "apps/desktop/Document.h"

#include "apps/desktop/dialogs/WindowDialogs.h"
#include "tests/desktop/OpenWindow.h"
#include "tests/workbench/EditorFixture.h"

#include <QSignalSpy>

using Desktop::Document;
using WorkbenchTests::FourBoxes;

namespace
{

struct WindowDocument : testing::Test
{
    ScratchFolder folder;
    std::filesystem::path file = folder.Write("drawing.fodg", FourBoxes().Text());
    Desktop::WindowDialogs dialogs;
    Document document{Workbench::ReadPanelFolder(SHIPPED_PANELS), dialogs};

    void SetColour(const wchar_t* colour)
    {
        document.Edit([&](Workbench::Editor& editor) { editor.Set({{L"fill.color", colour}}); });
    }
};

} // namespace

TEST_F(WindowDocument, BeginsWithABlankDrawing)
{
    EXPECT_TRUE(document.GetPath().empty());
    EXPECT_FALSE(document.IsModified());
}

TEST_F(WindowDocument, KeepsItsDrawingWhenAnotherCannotBeOpened)
{
    ASSERT_TRUE(document.Open(file));
    const std::filesystem::path broken = folder.Write("broken.fodg", "<office:document");
    const QSignalSpy failed(&document, &Document::failed);

    EXPECT_FALSE(document.Open(broken));

    EXPECT_EQ(document.GetPath(), file);
    ASSERT_EQ(failed.count(), 1);
    EXPECT_TRUE(failed.front().front().toString().contains(QStringLiteral("broken.fodg")));
}

TEST_F(WindowDocument, IsModifiedUntilItIsSaved)
{
    document.Open(file);
    SetColour(L"#123456");
    EXPECT_TRUE(document.IsModified());

    document.Save(file);

    EXPECT_FALSE(document.IsModified());
}

TEST_F(WindowDocument, IsNotModifiedAfterEverythingWasUndone)
{
    document.Open(file);
    SetColour(L"#123456");

    document.Undo();

    EXPECT_FALSE(document.IsModified());
}

TEST_F(WindowDocument, IsModifiedAfterAnotherStepTookThePlaceOfTheOneThatWasSaved)
{
    document.Open(file);
    SetColour(L"#123456");
    document.Save(file);
    document.Undo();

    SetColour(L"#654321");

    EXPECT_TRUE(document.IsModified());
}

TEST_F(WindowDocument, SavesTheBytesThatItOpenedAfterEverythingWasUndone)
{
    const std::string before = DesktopTests::ReadBytes(file);
    document.Open(file);
    document.Select(L"all");
    SetColour(L"#123456");
    document.Edit([](Workbench::Editor& editor)
                  { editor.Restyle(L"style", Workbench::PickByName{L"Accent"}); });
    document.Edit([](Workbench::Editor& editor) { editor.DefineColours({{L"Sea", L"#000000"}}); });
    ASSERT_EQ(document.GetEditor().GetStepCount(), 3U);

    while (document.IsModified())
        document.Undo();
    document.Save(folder.GetPath() / "undone.fodg");

    EXPECT_EQ(DesktopTests::ReadBytes(folder.GetPath() / "undone.fodg"), before);
}

TEST_F(WindowDocument, TellsWhatFailsAndStaysAsItIs)
{
    document.Open(file);
    const QSignalSpy failed(&document, &Document::failed);

    SetColour(L"no colour");

    EXPECT_EQ(failed.count(), 1);
    EXPECT_FALSE(document.IsModified());
}

TEST_F(WindowDocument, SelectsTheDocumentDefaultsWhenNoObjectIsLeft)
{
    document.Open(file);

    document.SelectObjects({});

    EXPECT_EQ(document.GetEditor().GetSelection().scope, Workbench::SelectorScope::Defaults);
}

TEST_F(WindowDocument, IgnoresWhatADragGoesOnToDoAfterItFailed)
{
    document.Open(file);
    document.Select(L"id:1/1");
    const auto drag = [&](const wchar_t* colour) {
        document.Drag([&](Workbench::Editor& editor) { editor.Set({{L"fill.color", colour}}); });
    };
    document.BeginDrag();
    drag(L"#111111");

    drag(L"no colour");
    drag(L"#222222");
    document.EndDrag(true);

    EXPECT_FALSE(document.IsModified());
}
