#include "apps/desktop/Document.h"

#include "apps/desktop/WindowText.h"
#include "apps/desktop/dialogs/WindowDialogs.h"
#include "tests/desktop/OpenWindow.h"
#include "tests/workbench/EditorFixture.h"

#include <QSignalSpy>

#include <algorithm>
#include <functional>
#include <vector>

using Desktop::Document;
using DesktopTests::DialogAnswer;
using DesktopTests::Press;
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

/// Hears of files being opened and saved, and cancels at a report where that is wanted.
class HeardProgress final : public Desktop::IFileProgress
{
public:
    std::vector<double> fractions;
    std::size_t stopAt = 0; ///< The number of the report, from 1; 0 for never.
    bool isShown = false;
    std::function<void()> meanwhile = [] {};

    void Begin(Desktop::FileWork /*work*/, const std::filesystem::path& /*file*/) override { isShown = true; }

    ReferenceHost::ProgressAnswer Tell(const ReferenceHost::Progress& progress) override
    {
        fractions.push_back(progress.fraction);
        meanwhile();
        return fractions.size() == stopAt ? ReferenceHost::ProgressAnswer::Stop
                                          : ReferenceHost::ProgressAnswer::GoOn;
    }

    void End() override { isShown = false; }
};

} // namespace

TEST_F(WindowDocument, TellsHowFarOpeningAndReadingThePictureAre)
{
    HeardProgress progress;
    document.SetProgress(&progress);

    ASSERT_TRUE(document.Open(file));

    EXPECT_TRUE(std::ranges::is_sorted(progress.fractions));
    EXPECT_EQ(progress.fractions.front(), 0);
    EXPECT_EQ(progress.fractions.back(), 1);
    EXPECT_FALSE(progress.isShown);
}

TEST_F(WindowDocument, KeepsItsDrawingWhenOpeningAnotherIsCancelledAnywhere)
{
    ASSERT_TRUE(document.Open(file));
    const std::filesystem::path other = folder.Write("other.fodg", FourBoxes().Text());
    const QSignalSpy closing(&document, &Document::closing);
    const QSignalSpy failed(&document, &Document::failed);
    std::size_t stops = 0;
    for (bool isOpen = false; !isOpen; ++stops)
    {
        ASSERT_EQ(document.GetPath(), file);
        ASSERT_EQ(closing.count(), 0);
        HeardProgress progress;
        progress.stopAt = stops + 1;
        document.SetProgress(&progress);

        isOpen = document.Open(other);

        ASSERT_FALSE(progress.isShown);
    }
    document.SetProgress(nullptr);

    EXPECT_GT(stops, 10U);
    EXPECT_EQ(document.GetPath(), other);
    EXPECT_EQ(failed.count(), 0) << "what a person cancels is no failure";
}

TEST_F(WindowDocument, NotesThatOpeningWasCancelled)
{
    HeardProgress progress;
    progress.stopAt = 1;
    document.SetProgress(&progress);
    const QSignalSpy noted(&document, &Document::noted);

    document.Open(file);

    ASSERT_EQ(noted.count(), 1);
    EXPECT_EQ(noted.front().front().toString(), Desktop::TextOf(L"window.cancelled"));
}

TEST_F(WindowDocument, StaysModifiedWhenSavingIsCancelled)
{
    const std::string before = DesktopTests::ReadBytes(file);
    document.Open(file);
    SetColour(L"#123456");
    HeardProgress progress;
    progress.stopAt = 3;
    document.SetProgress(&progress);

    EXPECT_FALSE(document.Save(file));

    EXPECT_TRUE(document.IsModified());
    EXPECT_EQ(DesktopTests::ReadBytes(file), before);
}

TEST_F(WindowDocument, LetsNothingElseHappenWhileAFileIsOpened)
{
    const std::filesystem::path other = folder.Write("other.fodg", FourBoxes().Text());
    HeardProgress progress;
    bool hasOpened = false;
    bool hasSaved = false;
    bool hasEdited = false;
    progress.meanwhile = [&]
    {
        EXPECT_TRUE(document.IsBusy());
        hasOpened |= document.Open(other);
        hasSaved |= document.Save(other);
        hasEdited |= document.Edit([](Workbench::Editor&) {});
    };
    document.SetProgress(&progress);

    EXPECT_TRUE(document.Open(file));

    EXPECT_FALSE(hasOpened);
    EXPECT_FALSE(hasSaved);
    EXPECT_FALSE(hasEdited);
    EXPECT_FALSE(document.IsBusy());
    EXPECT_EQ(document.GetPath(), file);
}

TEST_F(WindowDocument, HidesTheProgressBeforeItTellsWhatFailed)
{
    const std::filesystem::path broken = folder.Write("broken.fodg", "<office:document><");
    HeardProgress progress;
    document.SetProgress(&progress);
    bool wasShown = true;
    QObject::connect(&document, &Document::failed, [&] { wasShown = progress.isShown; });

    EXPECT_FALSE(document.Open(broken));

    EXPECT_FALSE(wasShown);
}

TEST_F(WindowDocument, GivesThePictureThatWasReadWithTheDrawing)
{
    document.Open(file);
    std::filesystem::remove(file);

    const ReferenceHost::DrawingPicture picture = document.TakePicture();

    ASSERT_EQ(picture.pages.size(), 1U);
    EXPECT_EQ(picture.pages.front().shapes.front().object,
              &document.GetSession().GetDrawing().GetObjects().front());
}

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

TEST_F(WindowDocument, AsksBeforeItReplacesWhatSomebodyElseHasChanged)
{
    document.Open(file);
    SetColour(L"#123456");
    folder.Write("drawing.fodg", "of somebody else");
    const DialogAnswer answer(
        [](QDialog& dialog)
        {
            EXPECT_TRUE(static_cast<QMessageBox&>(dialog).text().contains(QStringLiteral("drawing.fodg")));
            Press(dialog, QMessageBox::No);
        });

    EXPECT_FALSE(document.Save(file));

    EXPECT_EQ(DesktopTests::ReadBytes(file), "of somebody else");
    EXPECT_TRUE(document.IsModified());
}

TEST_F(WindowDocument, ReplacesWhatSomebodyElseHasChangedWhenThePersonSaysSo)
{
    document.Open(file);
    SetColour(L"#123456");
    folder.Write("drawing.fodg", "of somebody else");
    const DialogAnswer answer([](QDialog& dialog) { Press(dialog, QMessageBox::Yes); });

    EXPECT_TRUE(document.Save(file));

    EXPECT_NE(DesktopTests::ReadBytes(file), "of somebody else");
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
