#include "reference_host/document/DrawingFile.h"

#include "reference_host/document/DocumentKind.h"
#include "reference_host/document/OdfNamespaces.h"
#include "reference_host/document/XmlNames.h"
#include "reference_host/document/XmlText.h"
#include "reference_host/document/XmlTree.h"
#include "reference_host/document/ZipArchive.h"

#include <algorithm>
#include <cerrno>
#include <fstream>

namespace ReferenceHost
{

namespace
{

constexpr const char* kContentEntry = "content.xml";
constexpr const char* kManifestEntry = "META-INF/manifest.xml";

} // namespace

DocumentError CannotRead(const std::string& label, std::error_code reason)
{
    const bool isMissing =
        reason == std::errc::no_such_file_or_directory || reason == std::errc::not_a_directory;
    if (isMissing)
        return DocumentError("the file does not exist", label, "an OpenDocument drawing");
    return DocumentError("the file cannot be read (" + reason.message() + ")", label,
                         "a file that may be read");
}

namespace
{

/// The size of a file that is worth opening.
std::size_t MeasureFile(const std::filesystem::path& file, const std::string& label)
{
    std::error_code reason;
    const std::filesystem::file_status status = std::filesystem::status(file, reason);
    if (status.type() == std::filesystem::file_type::not_found)
        throw CannotRead(label, std::make_error_code(std::errc::no_such_file_or_directory));
    if (reason)
        throw CannotRead(label, reason);
    if (std::filesystem::is_directory(status))
        throw DocumentError("this is a directory", label, "an OpenDocument drawing");
    if (!std::filesystem::is_regular_file(status))
        throw DocumentError("this is no regular file", label, "an OpenDocument drawing");
    const std::uintmax_t size = std::filesystem::file_size(file, reason);
    if (reason)
        throw CannotRead(label, reason);
    if (size == 0)
        throw DocumentError("the file is empty", label, "an OpenDocument drawing");
    if (size > kLargestUnpacked)
    {
        throw DocumentError("the file is larger than " + std::to_string(kLargestUnpacked >> 20U) + " MiB",
                            label, "a smaller drawing");
    }
    return static_cast<std::size_t>(size);
}

std::string ReadBytes(const std::filesystem::path& file, const std::string& label, ProgressSpan progress)
{
    std::string bytes(MeasureFile(file, label), '\0');
    progress.Start(bytes.size());
    errno = 0;
    std::ifstream stream(file, std::ios::binary);
    if (!stream)
        throw CannotRead(label, std::error_code(errno, std::generic_category()));
    constexpr std::size_t kAtOnce = std::size_t{1} << 20U;
    std::size_t length = 0;
    while (stream && length < bytes.size())
    {
        const std::size_t wanted = std::min(kAtOnce, bytes.size() - length);
        stream.read(bytes.data() + length, static_cast<std::streamsize>(wanted));
        length += static_cast<std::size_t>(stream.gcount());
        progress.Reach(length);
    }
    if (stream.bad())
        throw CannotRead(label, std::error_code(errno, std::generic_category()));
    bytes.resize(length);
    return bytes;
}

/// What the manifest of a package tells.
struct Manifest
{
    std::string mediaType; ///< Of the package; empty when the manifest does not say.
    bool isContentEncrypted = false;
};

Manifest ReadManifest(std::string_view text, const std::string& label)
{
    Manifest manifest;
    const auto tree = ParseXml(text, label);
    XmlNames names;
    const pugi::xml_node root = tree->document_element();
    const XmlNames::Scope rootScope(names, root);
    for (const pugi::xml_node fileEntry : root.children())
    {
        const XmlNames::Scope scope(names, fileEntry);
        const std::string_view path = names.Attribute(fileEntry, {Odf::kManifest, "full-path"});
        if (path == "/")
            manifest.mediaType = names.Attribute(fileEntry, {Odf::kManifest, "media-type"});
        if (path != kContentEntry)
            continue;
        for (const pugi::xml_node child : fileEntry.children())
            manifest.isContentEncrypted |= names.Of(child) == XmlName{Odf::kManifest, "encryption-data"};
    }
    return manifest;
}

std::string ReadOptional(const ZipArchive& archive, const std::string& entry,
                         const ProgressSpan& progress = {})
{
    return archive.Contains(entry) ? archive.Read(entry, progress) : std::string();
}

/// Tells whether the manifest must be read. It is left alone otherwise: programs that write sound drawings
/// have written manifests with a DOCTYPE.
bool NeedsManifest(std::string_view manifest, std::string_view mimetype)
{
    return mimetype.empty() || manifest.find("encryption-data") != std::string_view::npos;
}

/// How much of unpacking each entry is taken for: the content is by far the largest one.
constexpr double kContentUnpacked = 0.9;
constexpr double kStylesUnpacked = 0.99;

void Unpack(DrawingFile& file, const ProgressSpan& progress)
{
    const ZipArchive archive(file.bytes, file.label);
    const std::string mimetype = ReadOptional(archive, "mimetype");
    if (!mimetype.empty())
        file.isTemplate = IsTemplateMediaType(TrimXmlBlanks(mimetype), file.label);
    const std::string manifestText = ReadOptional(archive, kManifestEntry);
    Manifest manifest;
    if (!manifestText.empty() && NeedsManifest(manifestText, mimetype))
        manifest = ReadManifest(manifestText, archive.LabelOf(kManifestEntry));
    if (mimetype.empty() && !manifest.mediaType.empty())
        file.isTemplate = IsTemplateMediaType(manifest.mediaType, file.label);
    const bool isPackage =
        !mimetype.empty() || !manifest.mediaType.empty() || archive.Contains(kContentEntry);
    if (!isPackage)
        FailNotADrawing("a zip archive with other contents", file.label);
    if (manifest.isContentEncrypted)
        throw DocumentError("the entry is encrypted", archive.LabelOf(kContentEntry),
                            "a drawing without a password");
    file.content = archive.Read(kContentEntry, progress.Part(0, kContentUnpacked));
    file.styles = ReadOptional(archive, "styles.xml", progress.Part(kContentUnpacked, kStylesUnpacked));
    file.meta = ReadOptional(archive, "meta.xml", progress.Part(kStylesUnpacked, 1));
}

/// Tells whether bytes can be the beginning of an XML text, in whatever encoding.
bool LooksLikeXml(std::string_view bytes)
{
    if (bytes.starts_with("\xFE\xFF") || bytes.starts_with("\xFF\xFE"))
        return true;
    const std::string_view text = WithoutByteOrderMark(bytes);
    const auto* const first =
        std::ranges::find_if_not(text, [](char byte) { return IsXmlBlank(byte) || byte == '\0'; });
    return first != text.end() && *first == '<';
}

} // namespace

DrawingFile ReadDrawingFile(const std::filesystem::path& path, const ProgressSpan& progress)
{
    constexpr double kRead = 0.2;
    DrawingFile file;
    file.label = path.string();
    file.bytes = ReadBytes(path, file.label, progress.Part(ProgressPhase::Reading, 0, kRead));
    const bool isArchive = file.bytes.starts_with("PK\x03\x04") || file.bytes.starts_with("PK\x05\x06");
    file.form = isArchive ? DrawingForm::Zipped : DrawingForm::Flat;
    if (isArchive)
        Unpack(file, progress.Part(ProgressPhase::Unpacking, kRead, 1));
    else if (!LooksLikeXml(file.bytes))
        FailNotADrawing("neither a zip archive nor XML", file.label);
    return file;
}

} // namespace ReferenceHost
