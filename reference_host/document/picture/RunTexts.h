#pragma once

#include "reference_host/document/TextWalker.h"

#include "host/utils/OvxStringT.h"

#include <pugixml.hpp>

#include <string>
#include <vector>

namespace ReferenceHost
{

/// Reads what the runs of shapes say, as people see it: blanks in a row are one, fields show what they were
/// last, line breaks are L'\n' and tabs L'\t'.
class RunTexts final : private ITextVisitor
{
public:
    /// Borrows the names, which outlive this.
    explicit RunTexts(XmlNames& xmlNames) : walker(xmlNames, *this) {}

    /// One text for each run of a shape, in order. `shape` is the element, whose scope is in force.
    [[nodiscard]] std::vector<OvxStringT> Read(pugi::xml_node shape);

private:
    void BeginParagraph(pugi::xml_node paragraph) override;
    void BeginSpan(pugi::xml_node span) override;
    void EndSpan() override;
    void BeginRun(pugi::xml_node holder) override;
    void Content(pugi::xml_node node) override;
    void AddCharacters(const char* text);

    TextWalker walker;
    std::vector<std::string> texts; ///< In UTF-8.
    bool endsWithBlank = true;      ///< A blank that follows is not shown.
};

} // namespace ReferenceHost
