#pragma once

#include "reference_host/document/DrawingObject.h"
#include "reference_host/document/TextLevels.h"
#include "reference_host/document/TextWalker.h"

#include <pugixml.hpp>

#include <cstddef>
#include <functional>
#include <unordered_map>
#include <vector>

namespace ReferenceHost
{

/// The paragraphs and runs of one shape's text as leaves of its levels, in the order of the shape's units.
class TextLayout final : private ITextVisitor
{
public:
    /// What the attribute of a paragraph or span refers to.
    using Refer = std::function<StyleReference(pugi::xml_node element, StyleFamily family)>;

    /// Walks through the text of `shape` and adds its levels behind those of the shape itself, of which the
    /// last is the innermost. Borrows the levels.
    TextLayout(pugi::xml_node shape, TextLevels& textLevels, Refer referTo);

    [[nodiscard]] std::vector<TextLeaf>& GetParagraphs() noexcept { return paragraphs; }

    [[nodiscard]] std::vector<TextLeaf>& GetRuns() noexcept { return runs; }

    /// What belongs to each run: texts and elements.
    [[nodiscard]] const std::vector<std::vector<pugi::xml_node>>& GetContents() const noexcept
    {
        return contents;
    }

private:
    void BeginParagraph(pugi::xml_node paragraph) override;
    void BeginSpan(pugi::xml_node span) override;
    void EndSpan() override;
    void BeginRun(pugi::xml_node holder) override;
    void Content(pugi::xml_node node) override;

    TextLevels& levels;
    Refer refer;
    std::size_t shapeLevel;
    std::vector<TextLeaf> paragraphs;
    std::vector<TextLeaf> runs;
    std::vector<std::vector<pugi::xml_node>> contents;
    std::vector<std::size_t> open; ///< The levels of the paragraph and the spans that have not ended.
    std::unordered_map<std::size_t, std::size_t> levelsByHolder; ///< By pugixml's hashes of the elements.
};

} // namespace ReferenceHost
