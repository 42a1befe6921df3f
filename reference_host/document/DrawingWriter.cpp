#include "reference_host/document/DrawingWriter.h"

#include "reference_host/document/AutomaticStyleEdits.h"
#include "reference_host/document/NamedStyleEdits.h"
#include "reference_host/document/OdfNamespaces.h"
#include "reference_host/document/PaletteEdits.h"
#include "reference_host/document/ShapeEdits.h"
#include "reference_host/document/StyleReferences.h"
#include "reference_host/document/ZipArchive.h"
#include "reference_host/document/ZipRewriter.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace ReferenceHost
{

namespace
{

constexpr std::string_view kManifestEntry = "META-INF/manifest.xml";

// Which share of the work is done after each stage, as measured with large drawings of which much was edited.
constexpr double kLoaded = 0.3;
constexpr double kShapesCompared = 0.65;
constexpr double kCompared = 0.75;
constexpr double kComposed = 0.85; ///< In a package.

/// The text of an entry that a package does not have, with a root and nothing in it.
std::string EmptyDocument(std::string_view root)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<office:" + std::string(root) + " xmlns:office=\"" +
           std::string(Odf::kOffice) + "\" office:version=\"1.3\"></office:" + std::string(root) + ">\n";
}

/// An entry of a package that is spliced into.
struct Entry
{
    Entry(std::string_view entryName, std::string_view text, std::string_view root, const std::string& file,
          const ProgressSpan& progress)
        : name(entryName),
          isNew(text.empty()),
          made(isNew ? EmptyDocument(root) : std::string()),
          part(isNew ? std::string_view(made) : text, file + ", " + std::string(entryName),
               XmlTrust::WasChecked, progress)
    {
    }

    std::string name;
    bool isNew;
    std::string made;
    SavedPart part;
};

/// The manifest with entries for texts that are new; as it is where it cannot be read.
std::optional<std::string> ExtendManifest(const std::string& manifest, const std::string& label,
                                          const std::vector<std::string>& added, Warnings& warnings)
try
{
    SavedPart part(manifest, label, XmlTrust::ToBeChecked);
    const pugi::xml_node root = part.GetSource().GetRoot();
    for (const std::string& name : added)
    {
        const std::vector<AttributeEdit> attributes{{Odf::kManifest, "full-path", name},
                                                    {Odf::kManifest, "media-type", "text/xml"}};
        part.GetEdits().AppendChild(root,
                                    WriteStartTag(root, {Odf::kManifest, "file-entry"}, attributes, true));
    }
    return part.GetEdits().Apply();
}

catch (const DocumentError& error)
{
    // Programs that write sound drawings have written manifests with a DOCTYPE.
    warnings.Add(std::string(error.what()) + "; the manifest was left as it is");
    return std::nullopt;
}

} // namespace

DrawingWriter::DrawingWriter(DrawingData& drawing, std::vector<std::string>& warningLines,
                             std::filesystem::path targetFolder)
    : data(drawing), warnings(warningLines), context{data, warnings}, folder(std::move(targetFolder))
{
}

DrawingWriter::DrawingWriter(DrawingData& drawing, std::vector<std::string>& warningLines)
    : DrawingWriter(drawing, warningLines, drawing.path.parent_path())
{
}

std::string DrawingWriter::Write(const ProgressSpan& whole)
{
    progress = whole;
    return data.file.form == DrawingForm::Flat ? WriteFlat() : WritePackage();
}

std::string DrawingWriter::WriteFlat()
{
    SavedPart part(data.file.bytes, data.file.label, XmlTrust::WasChecked, progress.Part(0, kLoaded));
    EditAll(part, part, part);
    return part.GetEdits().Apply(progress.Part(ProgressPhase::Composing, kCompared, 1));
}

std::string DrawingWriter::WritePackage()
{
    const std::string& label = data.file.label;
    const DrawingFile& file = data.file;
    ProgressPieces loading(progress.Part(0, kLoaded),
                           file.content.size() + file.styles.size() + file.meta.size());
    Entry content("content.xml", file.content, "document-content", label, loading.Next(file.content.size()));
    Entry styles("styles.xml", file.styles, "document-styles", label, loading.Next(file.styles.size()));
    Entry meta("meta.xml", file.meta, "document-meta", label, loading.Next(file.meta.size()));
    EditAll(styles.part, content.part, meta.part);

    std::vector<ZipReplacement> replacements;
    std::vector<std::string> added;
    const ProgressSpan composing = progress.Part(ProgressPhase::Composing, kCompared, kComposed);
    for (Entry* const entry : {&content, &styles, &meta})
    {
        if (entry->part.GetEdits().IsEmpty())
            continue;
        std::string text = entry->part.GetEdits().Apply(composing);
        if (text == entry->part.GetSource().GetText())
            continue;
        if (entry->isNew)
            added.push_back(entry->name);
        replacements.push_back({entry->name, std::move(text)});
    }
    const ZipArchive archive(data.file.bytes, label);
    if (!added.empty() && archive.Contains(std::string(kManifestEntry)))
    {
        const std::string manifest(kManifestEntry);
        if (auto text = ExtendManifest(archive.Read(manifest), archive.LabelOf(manifest), added, warnings))
            replacements.push_back({manifest, std::move(*text)});
    }
    return RewriteZip(data.file.bytes, replacements, label, progress.Part(kComposed, 1));
}

void DrawingWriter::EditAll(SavedPart& styles, SavedPart& content, SavedPart& meta)
{
    WritePalette(context, meta);
    MoveSheetLinks(styles);
    NamedStyleEdits named(context, styles);
    named.Write();
    AutomaticStyleEdits automatic(context, content, styles, named.GetRenamed());
    ShapeEdits shapes(context, content, named, automatic);
    EditShapes(shapes);
    automatic.Finish(progress.Part(ProgressPhase::Comparing, kShapesCompared, kCompared));
    RenameStyleReferences(named.GetRenamed(), content);
    if (&styles != &content)
        RenameStyleReferences(named.GetRenamed(), styles);
}

void DrawingWriter::EditShapes(ShapeEdits& shapes)
{
    ProgressSpan comparing = progress.Part(ProgressPhase::Comparing, kLoaded, kShapesCompared);
    comparing.Start(data.objects.size());
    std::size_t done = 0;
    for (DrawingObject& object : data.objects)
    {
        comparing.Reach(done++);
        shapes.Write(object);
    }
}

void DrawingWriter::MoveSheetLinks(SavedPart& styles)
{
    for (const StyleSheetLink& link : data.sheetLinks)
    {
        std::string moved = MoveSheetReference(link.reference, data.path.parent_path(), folder);
        if (moved != link.reference)
            styles.GetEdits().SetAttribute(styles.FindElement(link.place),
                                           {Odf::kXlink, "href", std::move(moved)});
    }
}

} // namespace ReferenceHost
