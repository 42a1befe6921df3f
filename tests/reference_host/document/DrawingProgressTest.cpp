// What is told of opening and saving whole drawings, and what is left when they are cancelled.

#include "tests/reference_host/document/DrawingPackage.h"
#include "tests/reference_host/document/SavedDrawing.h"
#include "tests/reference_host/document/SheetFolder.h"

#include "reference_host/document/Progress.h"
#include "reference_host/document/picture/DrawingPicture.h"
#include "reference_host/style_model/StyleHosting.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <functional>
#include <map>
#include <utility>

using ReferenceHost::Drawing;
using ReferenceHost::OperationCancelled;
using ReferenceHost::Progress;
using ReferenceHost::ProgressAnswer;
using ReferenceHost::ProgressListener;
using ReferenceHost::ProgressPhase;
using testing::AllOf;
using testing::Each;
using testing::Ge;
using testing::Le;

namespace
{

namespace fs = std::filesystem;

/// Hears of an operation, and stops it at one of the reports where that is wanted.
struct Hearing
{
    std::vector<double> fractions;
    std::vector<ProgressPhase> phases;
    std::size_t stopAt = 0; ///< The number of the report, from 1; 0 for never.

    [[nodiscard]] ProgressListener Listener()
    {
        return [this](const Progress& progress)
        {
            fractions.push_back(progress.fraction);
            phases.push_back(progress.phase);
            return fractions.size() == stopAt ? ProgressAnswer::Stop : ProgressAnswer::GoOn;
        };
    }

    /// The fractions rise from 0 to 1, and not in few leaps.
    void ExpectToRise() const
    {
        EXPECT_TRUE(std::ranges::is_sorted(fractions));
        EXPECT_THAT(fractions, Each(AllOf(Ge(0.0), Le(1.0))));
        EXPECT_EQ(fractions.front(), 0);
        EXPECT_EQ(fractions.back(), 1);
        EXPECT_THAT(fractions.size(), AllOf(Ge(8U), Le(300U)));
    }

    [[nodiscard]] bool Heard(ProgressPhase phase) const
    {
        return std::ranges::find(phases, phase) != phases.end();
    }
};

/// A drawing with many shapes that links to "house.fodg", where the sheet may be edited.
FlatDrawing ManyShapes()
{
    FlatDrawing drawing = EditingDrawing();
    std::string shapes;
    for (int number = 0; number < 100; ++number)
        shapes += "<draw:rect svg:width='1cm' svg:height='1cm'><text:p>Text</text:p></draw:rect>\n";
    drawing.Page(shapes);
    return drawing;
}

/// All files of a folder with what they hold.
std::map<std::string, std::string> FilesOf(const SheetFolder& folder)
{
    std::map<std::string, std::string> files;
    for (const auto& entry : fs::directory_iterator(folder.PathOf("")))
        files[entry.path().filename().string()] = folder.Bytes(entry.path().filename().string());
    return files;
}

/// Runs an operation again and again, stopped one report later each time, until it gets to its end.
///
/// @returns how often it was stopped.
std::size_t StopAtEachReport(const std::function<void(const ProgressListener&)>& operation,
                             const std::function<void()>& checkNothingIsLeft)
{
    for (std::size_t number = 1;; ++number)
    {
        Hearing hearing;
        hearing.stopAt = number;
        try
        {
            operation(hearing.Listener());
            EXPECT_LT(hearing.fractions.size(), number) << "a stop was not heeded";
            return number - 1;
        }
        catch (const OperationCancelled&)
        {
            EXPECT_EQ(hearing.fractions.size(), number) << "something was told after the stop";
            checkNothingIsLeft();
        }
    }
}

/// A flat file or a package beside a style sheet.
class DrawingsWithProgress : public testing::TestWithParam<const char*>
{
protected:
    DrawingsWithProgress()
    {
        folder.Write("house.fodg", HouseSheet());
        folder.Write("drawing.fodg", ManyShapes());
        folder.WriteBytes("drawing.odg", PackageOf(ManyShapes()));
    }

    [[nodiscard]] fs::path File() const { return folder.PathOf(GetParam()); }

    [[nodiscard]] OpenedDrawing Open() const { return folder.Open(GetParam()); }

    /// Changes a shape, a named style, the palette and the style sheet.
    static void Edit(const OpenedDrawing& opened)
    {
        Set(opened.drawing->GetObjects()[0].GetStyle(), "fill.color", ColourValue(1, 2, 3));
        Set(opened.Named(L"Note"), "fill.color", ColourValue(4, 5, 6));
        Set(opened.drawing->FindStyle(L"House Box"), "fill.color", ColourValue(7, 8, 9));
        opened.drawing->DefinePaletteColour(L"Sea", {1, 2, 3});
    }

    void SaveTo(const OpenedDrawing& opened, const std::string& name, const ProgressListener& listener) const
    {
        std::vector<std::string> warnings;
        ReferenceHost::SaveOptions options;
        options.progress = listener;
        opened.drawing->Save(folder.PathOf(name), options, warnings);
    }

    SheetFolder folder;
};

} // namespace

TEST_P(DrawingsWithProgress, TellHowFarOpeningIs)
{
    Hearing hearing;
    std::vector<std::string> warnings;

    static_cast<void>(Drawing::Open(File(), warnings, {}, hearing.Listener()));

    hearing.ExpectToRise();
    EXPECT_EQ(hearing.phases.front(), ProgressPhase::Reading);
    EXPECT_TRUE(hearing.Heard(ProgressPhase::StyleSheets));
    EXPECT_EQ(hearing.phases.back(), ProgressPhase::Shapes);
}

TEST_P(DrawingsWithProgress, TellHowFarReadingThePictureIs)
{
    const OpenedDrawing opened = Open();
    Hearing hearing;

    static_cast<void>(opened.drawing->ReadPicture(hearing.Listener()));

    hearing.ExpectToRise();
    EXPECT_FALSE(hearing.Heard(ProgressPhase::Checking)) << "the text was checked when it was opened";
}

TEST_P(DrawingsWithProgress, TellHowFarSavingIs)
{
    const OpenedDrawing opened = Open();
    Edit(opened);
    Hearing hearing;

    SaveTo(opened, GetParam(), hearing.Listener());

    hearing.ExpectToRise();
    EXPECT_TRUE(hearing.Heard(ProgressPhase::StyleSheets));
    EXPECT_EQ(hearing.phases.back(), ProgressPhase::Writing);
}

TEST_P(DrawingsWithProgress, LeaveNothingOfAnOpeningThatIsCancelledAnywhere)
{
    const std::size_t stylesBefore = ReferenceHost::LiveStyleCount();
    const auto open = [&](const ProgressListener& listener)
    {
        std::vector<std::string> warnings;
        static_cast<void>(Drawing::Open(File(), warnings, {}, listener));
    };

    const std::size_t stops =
        StopAtEachReport(open, [&] { EXPECT_EQ(ReferenceHost::LiveStyleCount(), stylesBefore); });

    EXPECT_GT(stops, 8U);
}

TEST_P(DrawingsWithProgress, ReadTheirPictureAfterItWasCancelledAnywhere)
{
    const OpenedDrawing opened = Open();
    const auto read = [&](const ProgressListener& listener)
    { static_cast<void>(opened.drawing->ReadPicture(listener)); };

    const std::size_t stops = StopAtEachReport(read, [] {});

    EXPECT_GT(stops, 8U);
    EXPECT_EQ(opened.drawing->ReadPicture().pages.size(), opened.drawing->GetPages().size());
}

TEST_P(DrawingsWithProgress, ReadTheirPictureWhenTheFileIsGone)
{
    const OpenedDrawing opened = Open();
    fs::remove(File());

    EXPECT_EQ(opened.drawing->ReadPicture().pages.size(), opened.drawing->GetPages().size());
}

TEST_P(DrawingsWithProgress, LeaveAllFilesAsTheyWereWhenSavingIsCancelledAnywhere)
{
    OpenedDrawing opened = Open();
    Edit(opened);
    const std::string bytes = Saved(opened);
    const auto before = FilesOf(folder);

    const std::size_t stops =
        StopAtEachReport([&](const ProgressListener& listener) { SaveTo(opened, GetParam(), listener); },
                         [&] { ASSERT_EQ(FilesOf(folder), before); });

    EXPECT_GT(stops, 8U);
    EXPECT_EQ(folder.Bytes(GetParam()), bytes);
    EXPECT_NE(folder.Bytes("house.fodg"), HouseSheet().Text());
    EXPECT_EQ(FilesOf(folder).size(), before.size());
}

TEST_P(DrawingsWithProgress, AreTheSameInMemoryAfterSavingWasCancelledAnywhere)
{
    OpenedDrawing opened = Open();
    Edit(opened);
    const std::string bytes = Saved(opened);

    StopAtEachReport([&](const ProgressListener& listener) { SaveTo(opened, "copy.tmp", listener); },
                     [&] { ASSERT_EQ(Saved(opened), bytes); });
}

TEST_P(DrawingsWithProgress, AreSerialisedUnlessThatIsCancelled)
{
    OpenedDrawing opened = Open();
    Edit(opened);
    std::vector<std::string> warnings;

    const std::size_t stops =
        StopAtEachReport([&](const ProgressListener& listener)
                         { static_cast<void>(opened.drawing->Serialise(warnings, listener)); },
                         [] {});

    EXPECT_GT(stops, 8U);
}

TEST_P(DrawingsWithProgress, PassOnWhatTheListenerThrows)
{
    const auto throwing = [](const Progress&) -> ProgressAnswer { throw std::out_of_range("enough"); };
    std::vector<std::string> warnings;

    EXPECT_THROW(static_cast<void>(Drawing::Open(File(), warnings, {}, throwing)), std::out_of_range);
}

INSTANTIATE_TEST_SUITE_P(OfBothForms, DrawingsWithProgress, testing::Values("drawing.fodg", "drawing.odg"),
                         [](const auto& file)
                         { return std::string(file.param).ends_with(".fodg") ? "Flat" : "Zipped"; });
