#pragma once

#include "reference_host/document/XmlNames.h"
#include "reference_host/document/picture/DrawingPicture.h"

#include <pugixml.hpp>

#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace ReferenceHost
{

/// Finds the attributes of the styles of shapes and pages that no panel edits, along the styles that they
/// inherit from.
class StyleDetails
{
public:
    /// Takes in the styles below `root`, the root element of an XML text, whose scope is in force. Of two
    /// with one name the first one counts.
    void AddStyles(pugi::xml_node root, XmlNames& names);

    /// What a shape of that style shows; what the default style gives for an unknown one.
    /// Borrowed until styles are added.
    [[nodiscard]] const ShapeDetails& Find(std::string_view styleName);

    /// What pages of that style show behind their shapes; nothing for an unknown one.
    [[nodiscard]] PageBackground FindBackground(std::string_view styleName) const;

private:
    using Attributes = std::map<std::string, std::string, std::less<>>;

    struct Record
    {
        std::string parent;
        Attributes attributes; ///< By local name.
    };

    void AddStyle(pugi::xml_node style, XmlNames& names);
    [[nodiscard]] ShapeDetails Read(std::string_view styleName) const;

    /// An attribute of a style, or of the nearest one that it inherits from; empty without.
    [[nodiscard]] std::string_view Look(std::string_view family, std::string_view styleName,
                                        std::string_view attribute) const;

    std::map<std::string, Record, std::less<>> records; ///< By family and name.
    Attributes defaults;
    std::map<std::string, ShapeDetails, std::less<>> known; ///< Thousands of shapes share a few styles.
};

} // namespace ReferenceHost
