#pragma once

#include "reference_host/document/XmlNames.h"

#include <pugixml.hpp>

#include <optional>

namespace ReferenceHost
{

/// What a TextWalker tells about the text of a shape.
class ITextVisitor
{
public:
    ITextVisitor() = default;
    ITextVisitor(const ITextVisitor&) = delete;
    ITextVisitor& operator=(const ITextVisitor&) = delete;
    virtual ~ITextVisitor() = default;

    /// A paragraph begins; its scope is in force.
    virtual void BeginParagraph(pugi::xml_node paragraph) = 0;

    /// A span within the paragraph begins and ends; its scope is in force.
    virtual void BeginSpan(pugi::xml_node span) = 0;
    virtual void EndSpan() = 0;

    /// A run begins, directly in `holder`: the innermost span, or the paragraph. It may be told after the
    /// spans that were open then have ended.
    virtual void BeginRun(pugi::xml_node holder) = 0;

    /// A text, a CDATA section or an element that belongs to the last run.
    virtual void Content(pugi::xml_node node) = 0;
};

/// Walks through the text of one shape after another, and tells paragraphs and runs. What counts as text is
/// decided here alone.
class TextWalker
{
public:
    /// Borrows both.
    TextWalker(XmlNames& xmlNames, ITextVisitor& textVisitor);

    /// Walks through the text of `shape`, an element whose scope is in force.
    void Walk(pugi::xml_node shape);

private:
    /// Where blanks may still turn out to be text: between two pieces of text, but not at the end of a
    /// paragraph.
    struct PendingBlank
    {
        pugi::xml_node holder;
        pugi::xml_node text;
    };

    void WalkParagraph(pugi::xml_node paragraph);
    void WalkInline(pugi::xml_node element, pugi::xml_node holder);
    void WalkInlineElement(pugi::xml_node element, pugi::xml_node holder);
    void TakeText(pugi::xml_node text, pugi::xml_node holder);
    void TakeContent(pugi::xml_node holder, pugi::xml_node node);

    XmlNames& names;
    ITextVisitor& visitor;

    // Of the paragraph being walked
    std::optional<pugi::xml_node> lastHolder; ///< Of the last run.
    std::optional<PendingBlank> pendingBlank;
    bool endsWithBlank = true; ///< Blanks that follow a blank, or begin a paragraph, are no text.
};

} // namespace ReferenceHost
