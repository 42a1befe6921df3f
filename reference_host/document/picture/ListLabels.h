#pragma once

#include "reference_host/document/TextWalker.h"
#include "reference_host/document/XmlNames.h"
#include "reference_host/document/picture/DrawingPicture.h"

#include <pugixml.hpp>

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace ReferenceHost
{

/// Tells what stands before the paragraphs of lists: bullets and numbers.
class ListLabels final : private ITextVisitor
{
public:
    /// Borrows the names.
    explicit ListLabels(XmlNames& xmlNames) : names(xmlNames), walker(xmlNames, *this) {}

    /// Takes in the list styles below `root`, the root element of an XML text, whose scope is in force. Of
    /// two with one name the first one counts.
    void AddStyles(pugi::xml_node root);

    /// One label for each paragraph of a shape, in order; none where no paragraph is in a list. `shape` is
    /// the element, whose scope is in force.
    [[nodiscard]] std::vector<ListLabel> Read(pugi::xml_node shape);

private:
    /// How one level of a list is labelled.
    struct Level
    {
        std::string bullet; ///< Empty for numbers.
        std::string format; ///< "1", "a", "A", "i" or "I"; empty for no number.
        std::string prefix;
        std::string suffix;
        int start = 1;
        double indent = 0; ///< As ListLabel has them.
        double room = 0;
        double sizeShare = 1;
    };

    using Levels = std::map<int, Level>; ///< By number, from 1.

    void AddStyle(pugi::xml_node style);
    [[nodiscard]] Level ReadLevel(pugi::xml_node element);
    void ReadPlace(pugi::xml_node element, Level& level);

    void BeginParagraph(pugi::xml_node paragraph) override;

    void BeginSpan(pugi::xml_node /*span*/) override {}

    void EndSpan() override {}

    void BeginRun(pugi::xml_node /*holder*/) override {}

    void Content(pugi::xml_node /*node*/) override {}

    [[nodiscard]] const Level* FindLevel(pugi::xml_node item);
    [[nodiscard]] bool IsFirstInItem(pugi::xml_node paragraph);
    [[nodiscard]] int NumberOf(pugi::xml_node item, const Level& level);

    XmlNames& names;
    TextWalker walker;
    std::map<std::string, Levels, std::less<>> styles;
    std::vector<ListLabel> labels; ///< Of the shape being walked.
    bool hasLists = false;         ///< The shape being walked has any.
};

} // namespace ReferenceHost
