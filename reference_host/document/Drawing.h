#pragma once

#include "host/Export.h"
#include "host/colour/CLR_COLORSPEC.h"
#include "host/style_model/PropertyKey.h"
#include "host/style_model/Style.h"
#include "host/utils/OvxStringT.h"
#include "reference_host/document/DocumentError.h"
#include "reference_host/document/DrawingObject.h"
#include "reference_host/document/DrawingPage.h"
#include "reference_host/document/Progress.h"
#include "reference_host/document/PropertyMapping.h"
#include "reference_host/style_model/NamedStyleSheet.h"

#include <deque>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace ReferenceHost
{

struct DrawingData;
struct DrawingPicture;
class History;

/// How Drawing::Save() goes about it.
struct SaveOptions
{
    bool keepBackup = false;        ///< A file that is there already is kept as "NAME~".
    bool force = false;             ///< Also a file that OverwriteRefusal protects is replaced.
    ProgressListener progress = {}; ///< Is told how far it is, and may stop it.
};

/// How a drawing lies on disk.
enum class DrawingForm
{
    Flat,  ///< One XML file.
    Zipped ///< A zip archive with XML entries.
};

/// A colour of the document's palette.
struct PaletteEntry
{
    OvxStringT name;
    CLR_COLORSPEC::Rgb look;
};

/// An OpenDocument drawing, read into the style model.
///
/// Owns its pages, objects, named styles and the default style: whatever it hands out is borrowed from it and
/// lives as long as it does. One thread, the user interface's.
class STYLEPROPERTIES_HOST_API Drawing
{
public:
    /// Reads a flat or zipped drawing or drawing template; which it is, its content tells and not its name.
    ///
    /// @param warnings   receives one line in UTF-8 for everything that was repaired or passed over: a
    ///                   missing parent that was dropped, a cycle of parents that was cut, a value that
    ///                   cannot be read and counts as not set. Each names the style.
    /// @param extensions properties of further categories; each of these categories becomes a substyle of
    ///                   every whole style of the drawing.
    /// @param progress   is told how far it is, and may stop it.
    /// @throws DocumentError for everything that cannot be read; nothing is left behind.
    /// @throws OperationCancelled
    [[nodiscard]] static std::unique_ptr<Drawing> Open(const std::filesystem::path& file,
                                                       std::vector<std::string>& warnings,
                                                       const std::vector<PropertyMapping>& extensions = {},
                                                       const ProgressListener& progress = {});

    /// A drawing that lies in no file: one page with one rectangle, and nothing that is named.
    [[nodiscard]] static std::unique_ptr<Drawing>
    CreateBlank(const std::vector<PropertyMapping>& extensions = {});

    /// Made by Open() and CreateBlank().
    explicit Drawing(std::unique_ptr<DrawingData> contents);
    Drawing(const Drawing&) = delete;
    Drawing& operator=(const Drawing&) = delete;
    ~Drawing();

    /// The path as it was given to Open(); empty for a drawing that lies in no file.
    [[nodiscard]] const std::filesystem::path& GetPath() const noexcept;

    [[nodiscard]] DrawingForm GetForm() const noexcept;

    /// Tells whether the file is a template for drawings.
    [[nodiscard]] bool IsTemplate() const noexcept;

    /// The pages in order.
    [[nodiscard]] const std::vector<DrawingPage>& GetPages() const noexcept;

    /// All objects and groups of all pages in document order, a group before its members.
    [[nodiscard]] std::deque<DrawingObject>& GetObjects() noexcept;

    /// The named styles of all categories, by their decoded names ("Mid One", not "Mid_20_One"), in the order
    /// of the file.
    [[nodiscard]] NamedStyleSheet& GetStyleSheet() noexcept;

    /// The names of the style sheets outside the drawing that it links to and that could be read, in the
    /// order of the file.
    [[nodiscard]] std::vector<OvxStringT> GetExternalSheetNames() const;

    /// The style sheet of that name outside the drawing; null without one. Its styles are external, and
    /// changes to them belong to the drawing's history; adding and renaming are for none of them.
    [[nodiscard]] NamedStyleSheet* FindExternalSheet(const OvxStringT& sheetName) const;

    /// The named style that a name means: the drawing's own, else that of the first sheet outside it which
    /// has one; null without any.
    [[nodiscard]] Styles::Style* FindStyle(const OvxStringT& styleName) const;

    /// The name of a named style in its sheet, the drawing's own or one outside it; empty for any other, and
    /// for null.
    [[nodiscard]] OvxStringT FindStyleName(const Styles::Style* style) const;

    /// What people see for the named style that a name means: the display name that the file gives, else the
    /// name itself. A name that means no style comes back as it is.
    [[nodiscard]] OvxStringT GetDisplayName(const OvxStringT& styleName) const;

    /// Tells whether the named style that a name means is hidden from people.
    [[nodiscard]] bool IsHidden(const OvxStringT& styleName) const;

    /// The default style: what every effective value falls back to after the parents. It is nobody's parent
    /// and not in the sheet; empty when the file has none.
    [[nodiscard]] Styles::Style& GetDefaultStyle() noexcept;

    /// The document's palette in the order of the file.
    [[nodiscard]] const std::vector<PaletteEntry>& GetPalette() const noexcept;

    /// The look of a palette entry; none when the palette does not hold it.
    [[nodiscard]] std::optional<CLR_COLORSPEC::Rgb> FindPaletteColour(const OvxStringT& name) const;

    /// What a property that holds the name of a definition may name in this drawing: gradients, hatches and
    /// so on, in alphabetical order. None for a property that holds no such name.
    ///
    /// @param sheetName asks about the file of a style sheet outside the drawing; empty for the drawing
    ///                  itself, as which an unknown name counts too.
    [[nodiscard]] std::optional<std::vector<OvxStringT>>
    GetDefinedNames(const Styles::PropertyKey& category, const Styles::PropertyKey& key,
                    const OvxStringT& sheetName = {}) const;

    /// Reads what the drawing looks like apart from its styles: outlines, texts, pictures and definitions, as
    /// they lay in the file when the drawing was opened. Takes about as long as opening it did, and no longer
    /// needs the file.
    ///
    /// @param progress is told how far it is, and may stop it.
    /// @throws OperationCancelled
    [[nodiscard]] DrawingPicture ReadPicture(const ProgressListener& progress = {}) const;

    /// The categories that every whole style has a substyle of: fill, outline, paragraph, character, then
    /// those of the extensions in the order given.
    [[nodiscard]] const std::vector<Styles::PropertyKey>& GetCategories() const noexcept;

    // Editing: each operation is a step of history, or part of the one that is open.

    /// What was changed since the drawing was opened. Every change of its styles, whoever makes it, is told
    /// there.
    [[nodiscard]] History& GetHistory() noexcept;

    /// Adds a named style without values, behind all others; a whole style has all its substyles.
    ///
    /// @returns the style; null, and nothing happens, when `name` is empty, taken, also by a style of a sheet
    ///          outside the drawing, which it would hide, or holds what XML does not, such as a control
    ///          character, or the category is not one of this drawing's.
    Styles::Style* AddStyle(const Styles::PropertyKey& category, const OvxStringT& name);

    /// Gives a named style another name, which is also what people see of it from then on.
    ///
    /// @returns whether it did: not when `name` is unknown, or `newName` is none that AddStyle() takes.
    bool RenameStyle(const OvxStringT& name, const OvxStringT& newName);

    /// Adds an entry to the palette, or changes its look; every colour in the drawing that refers to it gets
    /// the new look.
    ///
    /// @returns whether anything changed: not when `name` is empty or none that XML holds, or has this look.
    bool DefinePaletteColour(const OvxStringT& name, CLR_COLORSPEC::Rgb look);

    // Saving

    /// The bytes of the file with the model as it stands now. What was not changed stays byte for byte: the
    /// bytes of a drawing that was never edited, or where all edits were undone, are those that were read.
    ///
    /// @param warnings receives one line in UTF-8 for everything that the file cannot hold.
    /// @param progress is told how far it is, and may stop it.
    /// @throws DocumentError
    /// @throws OperationCancelled
    [[nodiscard]] std::string Serialise(std::vector<std::string>& warnings,
                                        const ProgressListener& progress = {}) const;

    /// Writes what Serialise() gives to a file, at once or not at all: a failure leaves a file that was there
    /// as it was, and nothing else behind. Permissions of such a file are kept, a symbolic link is followed.
    /// In another folder, links to style sheets are changed to lead where they have led.
    ///
    /// Style sheets outside the drawing whose styles were changed are written with it, each in the same way
    /// to its own file: when the bytes of all files are on disk, the sheets take their places, then the
    /// drawing.
    ///
    /// @returns the files of style sheets that were written.
    /// @throws OverwriteRefusal for a file that somebody else has changed since it was read or last saved,
    ///         that has further names (hard links), that is protected against writing, or whose owner cannot
    ///         be kept. Nothing is written then unless the options force it.
    /// @throws DocumentError also when `target` is a style sheet of the drawing, or a changed one is no
    ///         longer the file that was read; no file is another than before then. Only where a file cannot
    ///         take its place do those stay that had taken theirs.
    /// @throws OperationCancelled with all files as they were, when the listener in `options` says so.
    std::vector<std::filesystem::path> Save(const std::filesystem::path& target, const SaveOptions& options,
                                            std::vector<std::string>& warnings) const;

private:
    std::unique_ptr<DrawingData> data;
};

} // namespace ReferenceHost
