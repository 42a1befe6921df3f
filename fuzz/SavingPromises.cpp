#include "fuzz/SavingPromises.h"

#include "fuzz/ChosenEdits.h"
#include "fuzz/Demand.h"
#include "fuzz/InputFile.h"
#include "host/utils/Utf8.h"
#include "reference_host/document/DocumentError.h"
#include "reference_host/document/Drawing.h"
#include "reference_host/document/picture/DrawingPicture.h"
#include "reference_host/history/History.h"
#include "tests/reference_host/document/DrawingDump.h"
#include "tests/reference_host/document/FlatDrawing.h"

#include <memory>
#include <vector>

namespace Fuzz
{
namespace
{

using ReferenceHost::Drawing;

std::unique_ptr<Drawing> Open(const std::string& bytes)
{
    std::vector<std::string> warnings;
    return Drawing::Open(WriteInputFile(bytes), warnings);
}

/// What a unit of text sets itself in the category that it is edited in. Its other values follow what is
/// around it.
std::string LineOf(ReferenceHost::TextUnit& unit)
{
    const bool isRun = unit.GetKind() == ReferenceHost::TextUnit::Kind::Run;
    std::string line = isRun ? "run" : "paragraph";
    for (const std::string& own : AllOwnOf(unit.GetStyle()))
    {
        if (own.starts_with(isRun ? "character." : "paragraph."))
            line += " " + own;
    }
    return line + "\n";
}

std::string AllOf(Drawing& drawing)
{
    std::string all;
    for (const std::string& line : DumpOf(drawing))
    {
        if (!line.starts_with("paragraph of") && !line.starts_with("run of"))
            all += line + "\n";
    }
    for (ReferenceHost::DrawingObject& object : drawing.GetObjects())
    {
        all += "texts of " + OvxUtils::ToUtf8(object.GetId()) + "\n";
        for (ReferenceHost::TextUnit& paragraph : object.GetParagraphs())
            all += LineOf(paragraph);
        for (ReferenceHost::TextUnit& run : object.GetRuns())
            all += LineOf(run);
    }
    return all;
}

void DemandPicturePromises(const Drawing& drawing)
{
    const ReferenceHost::DrawingPicture picture = drawing.ReadPicture();
    Demand(picture.pages.size() == drawing.GetPages().size(), "a picture has the pages of the drawing");
    for (const ReferenceHost::PagePicture& page : picture.pages)
    {
        for (const ReferenceHost::ShapePicture& shape : page.shapes)
            Demand(shape.object != nullptr && shape.runTexts.size() == shape.object->GetRuns().size(),
                   "a picture has a text for each run of each object");
    }
}

} // namespace

void DemandSavingPromises(const std::string& bytes, std::string_view edits)
{
    try
    {
        const std::unique_ptr<Drawing> drawing = Open(bytes);
        DemandPicturePromises(*drawing);
        AllOf(*drawing);
        std::vector<std::string> lost;
        DemandEqual(drawing->Serialise(lost), bytes, "a drawing that nobody edited keeps its bytes");
        if (edits.empty())
            return;
        Choices choices(edits);
        EditAsChosen(*drawing, choices);
        DemandItIsSaved(*drawing);
        while (drawing->GetHistory().Undo())
            continue;
        DemandEqual(drawing->Serialise(lost), bytes, "a drawing keeps its bytes when all edits are undone");
    }
    catch (const ReferenceHost::DocumentError&)
    {
        return;
    }
}

void DemandItIsSaved(Drawing& drawing)
{
    std::vector<std::string> lost;
    const std::string saved = drawing.Serialise(lost);
    std::unique_ptr<Drawing> again;
    try
    {
        again = Open(saved);
    }
    catch (const ReferenceHost::DocumentError& error)
    {
        Demand(false, std::string("what was saved can be read again: ") + error.what() + "\n" + saved);
    }
    if (lost.empty())
        DemandEqual(AllOf(*again), AllOf(drawing), "what was saved is what was edited:\n" + saved);
}

} // namespace Fuzz
