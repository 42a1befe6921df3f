#pragma once

#include "host/Export.h"
#include "host/style_model/Style.h"

#include <cstddef>
#include <memory>

namespace ReferenceHost
{

class DrawingObject;
class CascadeStyles;

/// A paragraph of a shape's text, or a run: text of one paragraph that stands in one set of spans.
///
/// A unit's style is a whole style with all its substyles. What it sets itself are the paragraph and text
/// properties that the automatic styles of its run, paragraph and shape set, nearest first, named text and
/// paragraph styles between them included; its parent is the named style of the shape. Fill and outline do
/// not concern text and stay empty.
class STYLEPROPERTIES_HOST_API TextUnit
{
public:
    enum class Kind
    {
        Paragraph,
        Run
    };

    /// Made by the reader. Object and styles are borrowed and outlive the unit; the cascade is a number of
    /// those styles.
    TextUnit(Kind itsKind, DrawingObject& itsObject, std::size_t itsParagraph, CascadeStyles& itsStyles,
             std::size_t itsCascade);

    [[nodiscard]] Kind GetKind() const noexcept { return kind; }

    /// The shape whose text this is.
    [[nodiscard]] DrawingObject& GetObject() const noexcept { return *object; }

    /// The place of the paragraph among those of the shape, from 0: of a run, the one that it stands in.
    [[nodiscard]] std::size_t GetParagraph() const noexcept { return paragraph; }

    /// The unit's whole style, owned by the unit and made when it is first asked for; never null.
    [[nodiscard]] Styles::Style* GetStyle();

    /// The same where it was asked for already; null where it was not, so that it is as the file says.
    [[nodiscard]] Styles::Style* FindStyle() const noexcept { return style.get(); }

    /// The style for reading alone, without making one, as with DrawingObject::GetStyleToRead(); never null.
    [[nodiscard]] const Styles::Style* GetStyleToRead() const;

    /// Which styles of the file make up the unit's style: a number of CascadeStyles.
    [[nodiscard]] std::size_t GetCascade() const noexcept { return cascade; }

private:
    DrawingObject* object;
    CascadeStyles* styles;
    std::size_t cascade;
    std::size_t paragraph;
    std::unique_ptr<Styles::Style> style; ///< Null until asked for: most units of a large drawing never are.
    Kind kind;
};

} // namespace ReferenceHost
