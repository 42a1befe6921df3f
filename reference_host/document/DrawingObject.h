#pragma once

#include "host/Export.h"
#include "host/style_model/Style.h"
#include "host/utils/OvxStringT.h"
#include "reference_host/document/TextUnit.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace ReferenceHost
{

struct DrawingPage;
class CascadeStyles;
class ShapeReader;
class UserJournal;

/// A shape or a group of a drawing.
///
/// A shape owns a whole style with all its substyles: its own values are those of its automatic style, its
/// parent is the named style. A group has no style; it stands for its members.
class STYLEPROPERTIES_HOST_API DrawingObject
{
public:
    /// Made by the reader. Page and group are borrowed, the group null directly on the page; the position
    /// counts from 1 within the group or the page.
    DrawingObject(DrawingPage& itsPage, DrawingObject* itsGroup, std::size_t itsPosition);

    DrawingObject(const DrawingObject&) = delete;
    DrawingObject& operator=(const DrawingObject&) = delete;
    ~DrawingObject();

    /// Page, position on the page, and positions inside groups, each counted from 1 and joined by "/":
    /// "1/4/2". Objects and groups alone count.
    [[nodiscard]] OvxStringT GetId() const;

    /// The name that the person gave; empty without one. Names need not be unique.
    [[nodiscard]] const OvxStringT& GetName() const noexcept { return name; }

    /// "rect", "custom-shape", "group", ...: the local name of the element, and "group" for a group. Points
    /// to a constant.
    [[nodiscard]] OvxStringViewT GetKind() const noexcept { return kind; }

    [[nodiscard]] bool IsGroup() const noexcept { return isGroup; }

    /// Tells whether a change of its style, or of a style of its text, was ever told, also one that was
    /// undone since. One that was not is as the file says, apart from what it inherits.
    [[nodiscard]] bool WasChanged() const noexcept { return wasChanged; }

    [[nodiscard]] DrawingPage& GetPage() const noexcept { return *page; }

    /// The group that holds this object; null directly on the page.
    [[nodiscard]] DrawingObject* GetGroup() const noexcept { return group; }

    /// The objects and groups directly inside a group, in document order; empty for a shape.
    [[nodiscard]] const std::vector<DrawingObject*>& GetMembers() const noexcept { return members; }

    /// The whole style, owned by the object and made when it is first asked for; null for a group.
    [[nodiscard]] Styles::Style* GetStyle();

    /// The same where it was asked for already; null where it was not, so that it is as the file says.
    [[nodiscard]] Styles::Style* FindStyle() const noexcept { return style.get(); }

    /// The style for reading alone, without making one: the object's own where it was asked for already, else
    /// one that all whose styles the file makes up alike share. It may be another one from then on when the
    /// own one is asked for. Null for a group.
    [[nodiscard]] const Styles::Style* GetStyleToRead() const;

    /// Which styles of the file make up the object's style: a number of CascadeStyles; without meaning for a
    /// group.
    [[nodiscard]] std::size_t GetCascade() const noexcept { return cascade; }

    /// Where the start tag of the element stands in the XML text of the pages.
    [[nodiscard]] std::size_t GetPlace() const noexcept { return place; }

    /// The paragraphs of the text, in order, also those in lists. Empty for a shape without text, which
    /// stands for itself, and for a group. The units keep their addresses.
    [[nodiscard]] std::vector<TextUnit>& GetParagraphs() noexcept { return paragraphs; }

    [[nodiscard]] const std::vector<TextUnit>& GetParagraphs() const noexcept { return paragraphs; }

    /// The runs of all paragraphs, in order; an empty paragraph has one. Empty exactly when GetParagraphs()
    /// is.
    [[nodiscard]] std::vector<TextUnit>& GetRuns() noexcept { return runs; }

    [[nodiscard]] const std::vector<TextUnit>& GetRuns() const noexcept { return runs; }

private:
    friend class ShapeReader;
    friend class UserJournal;

    DrawingPage* page;
    DrawingObject* group;
    std::size_t position;
    OvxStringT name;
    OvxStringViewT kind;
    bool isGroup = false;
    bool wasChanged = false;
    std::size_t place = 0;
    std::vector<DrawingObject*> members; ///< Owned by the drawing.
    std::vector<TextUnit> paragraphs;
    std::vector<TextUnit> runs;
    CascadeStyles* styles = nullptr;      ///< Makes the style; borrowed from the drawing.
    std::size_t cascade = 0;              ///< Which styles of the file make up this one.
    std::unique_ptr<Styles::Style> style; ///< Null until asked for.
};

} // namespace ReferenceHost
