// Opening the style sheets that a drawing links to, and finding styles in them. What is saved of them stands
// in ExternalSheetSaving.

#include "reference_host/document/ExternalSheets.h"

#include "reference_host/document/DrawingData.h"
#include "reference_host/document/DrawingReader.h"
#include "reference_host/document/NamedStyles.h"
#include "reference_host/document/Warnings.h"
#include "reference_host/style_model/StyleHosting.h"

#include "host/utils/Utf8.h"

#include <algorithm>
#include <filesystem>

namespace ReferenceHost
{

namespace
{

/// The file of a link.
///
/// @throws DocumentError when it leads to none that may be a sheet.
std::filesystem::path FindFile(const StyleSheetLink& link, const DrawingData& drawing)
{
    const auto file = ResolveSheetReference(link.reference, drawing.path.parent_path());
    if (!file)
        throw DocumentError(link.reference.empty() ? "the link is empty"
                                                   : "the link leads to no file of this machine",
                            "\"" + link.reference + "\"", "the path of a drawing");
    std::error_code ignored;
    if (std::filesystem::equivalent(*file, drawing.path, ignored))
        throw DocumentError("this is the drawing itself", file->string(), "another drawing");
    return *file;
}

/// @throws DocumentError when another link has taken the name or the file.
void DemandNew(const StyleSheetLink& link, const std::filesystem::path& file, const ExternalSheets& sheets)
{
    if (sheets.Find(link.name) != nullptr)
        throw DocumentError("another style sheet of the drawing has this name", file.string(),
                            "a name of its own");
    const auto isSame = [&file](const std::unique_ptr<ExternalSheet>& other)
    {
        std::error_code ignored;
        return std::filesystem::equivalent(file, other->data->path, ignored);
    };
    if (std::ranges::any_of(sheets.GetAll(), isSame))
        throw DocumentError("the drawing names this file twice", file.string(), "one link to it");
}

/// Makes the styles of a sheet external to the drawing.
void PutOutside(ExternalSheet& sheet, DrawingData& drawing)
{
    for (StyleRecord& record : sheet.data->catalogue.GetRecords())
        record.isExternal = true;
    const OvxStringT reference =
        sheet.link.isEditable ? OvxUtils::FromUtf8(sheet.link.reference) : OvxStringT();
    for (const OvxStringT& name : sheet.data->sheet.GetNames())
    {
        Styles::Style& style = *sheet.data->sheet.GetStyle(name);
        SetExternalSheet(style, sheet.link.name, reference);
        LetFallBack(style, *drawing.defaultStyle);
        drawing.sheet.Reserve(name);
    }
    drawing.catalogue.AddFallback(sheet.data->catalogue);
}

} // namespace

ExternalSheet::ExternalSheet(const StyleSheetLink& itsLink) : link(itsLink)
{
}

ExternalSheet::~ExternalSheet() = default;

ExternalSheets::ExternalSheets() = default;
ExternalSheets::~ExternalSheets() = default;

void ExternalSheets::Open(DrawingData& drawing, Warnings& warnings, const ProgressSpan& progress)
{
    ProgressPieces pieces(progress, drawing.sheetLinks.size());
    for (const StyleSheetLink& link : drawing.sheetLinks)
    {
        const ProgressSpan opening = pieces.Next(1);
        try
        {
            sheets.push_back(OpenOne(link, drawing, warnings, opening));
        }
        catch (const DocumentError& error)
        {
            warnings.Add(LabelOfSheet(drawing, link) + ": " + error.what() + "; its styles are missing");
        }
    }
}

std::unique_ptr<ExternalSheet> ExternalSheets::OpenOne(const StyleSheetLink& link, DrawingData& drawing,
                                                       Warnings& warnings, const ProgressSpan& progress) const
{
    const std::filesystem::path file = FindFile(link, drawing);
    DemandNew(link, file, *this);
    auto sheet = std::make_unique<ExternalSheet>(link);
    sheet->data = std::make_unique<DrawingData>(file, drawing.extensions);
    std::vector<std::string> lines;
    DrawingReader(*sheet->data, lines, progress).Read(DrawingReader::SheetLinks::PassOver);
    for (const std::string& line : lines)
        warnings.Add(file.string() + ": " + line);
    PutOutside(*sheet, drawing);
    return sheet;
}

void ExternalSheets::StartHistory(IStyleJournal& history)
{
    for (const std::unique_ptr<ExternalSheet>& sheet : sheets)
    {
        sheet->journal = std::make_unique<SheetJournal>(history);
        for (const OvxStringT& name : sheet->data->sheet.GetNames())
            SetJournal(*sheet->data->sheet.GetStyle(name), sheet->journal.get());
    }
}

const ExternalSheet* ExternalSheets::Find(const OvxStringT& sheetName) const
{
    const auto found = std::ranges::find_if(sheets, [&](const std::unique_ptr<ExternalSheet>& sheet)
                                            { return sheet->link.name == sheetName; });
    return found == sheets.end() ? nullptr : found->get();
}

const ExternalSheet* ExternalSheets::FindHolder(const OvxStringT& styleName) const
{
    const auto found = std::ranges::find_if(sheets, [&](const std::unique_ptr<ExternalSheet>& sheet)
                                            { return sheet->data->sheet.GetStyle(styleName) != nullptr; });
    return found == sheets.end() ? nullptr : found->get();
}

std::string LabelOfSheet(const DrawingData& drawing, const StyleSheetLink& link)
{
    return drawing.path.string() + ", style sheet \"" + OvxUtils::ToUtf8(link.name) + "\"";
}

} // namespace ReferenceHost
