#include "bench/drawing/FlatDrawingText.h"

#include <array>
#include <span>
#include <string_view>

namespace Bench
{

namespace
{

/// How a number of the tree is written as the value of an attribute.
enum class Notation
{
    Colour,  ///< "#0f4240"
    Length,  ///< "1.234cm"
    Percent, ///< "70%"
    Point,   ///< "14pt"
    Choice   ///< One of the words.
};

struct Attribute
{
    std::string_view name;
    Notation notation;
    std::array<std::string_view, 3> words = {};
};

using enum Notation;

constexpr std::array<Attribute, 24> kGraphic{
    {{"draw:fill", Choice, {"none", "solid", "gradient"}},
     {"draw:fill-color", Colour},
     {"draw:opacity", Percent},
     {"draw:fill-gradient-name", Choice, {"Sunrise", "Deep_20_Sea", "Ash"}},
     {"draw:fill-hatch-name", Choice, {"Black_20_45", "Red_20_90", "Crossed"}},
     {"draw:fill-image-name", Choice, {"Bricks", "Paper", "Sand"}},
     {"draw:stroke", Choice, {"none", "dash", "solid"}},
     {"svg:stroke-color", Colour},
     {"svg:stroke-width", Length},
     {"svg:stroke-opacity", Percent},
     {"draw:stroke-dash", Choice, {"Fine_20_Dashed", "Dotted", "Long"}},
     {"draw:stroke-linejoin", Choice, {"miter", "round", "bevel"}},
     {"svg:stroke-linecap", Choice, {"butt", "round", "square"}},
     {"draw:marker-start", Choice, {"Arrow", "Circle", "Square_20_45"}},
     {"draw:marker-end", Choice, {"Arrow", "Circle", "Square_20_45"}},
     {"draw:textarea-horizontal-align", Choice, {"left", "center", "justify"}},
     {"draw:textarea-vertical-align", Choice, {"top", "middle", "bottom"}},
     {"draw:auto-grow-height", Choice, {"true", "false", "false"}},
     {"draw:auto-grow-width", Choice, {"true", "false", "false"}},
     {"fo:min-height", Length},
     {"fo:min-width", Length},
     {"fo:padding-top", Length},
     {"draw:shadow-offset-x", Length},
     {"draw:shadow-color", Colour}}};

constexpr std::array<Attribute, 7> kParagraph{{{"fo:text-align", Choice, {"start", "center", "justify"}},
                                               {"fo:margin-left", Length},
                                               {"fo:margin-right", Length},
                                               {"fo:text-indent", Length},
                                               {"fo:margin-top", Length},
                                               {"fo:line-height", Percent},
                                               {"style:writing-mode", Choice, {"lr-tb", "rl-tb", "page"}}}};

constexpr std::array<Attribute, 9> kText{
    {{"fo:font-family", Choice, {"Liberation Sans", "DejaVu Serif", "Noto Mono"}},
     {"fo:font-size", Point},
     {"fo:font-weight", Choice, {"normal", "bold", "600"}},
     {"fo:font-style", Choice, {"normal", "italic", "oblique"}},
     {"style:text-underline-style", Choice, {"none", "solid", "wave"}},
     {"style:text-line-through-style", Choice, {"none", "solid", "dotted"}},
     {"fo:color", Colour},
     {"fo:letter-spacing", Length},
     {"style:letter-kerning", Choice, {"true", "false", "true"}}}};

static_assert(kGraphic.size() + kParagraph.size() + kText.size() == StyleTree::kProperties);

constexpr std::string_view kStart =
    R"(<?xml version="1.0" encoding="UTF-8"?>
<office:document xmlns:office="urn:oasis:names:tc:opendocument:xmlns:office:1.0")"
    R"( xmlns:style="urn:oasis:names:tc:opendocument:xmlns:style:1.0")"
    R"( xmlns:text="urn:oasis:names:tc:opendocument:xmlns:text:1.0")"
    R"( xmlns:table="urn:oasis:names:tc:opendocument:xmlns:table:1.0")"
    R"( xmlns:draw="urn:oasis:names:tc:opendocument:xmlns:drawing:1.0")"
    R"( xmlns:fo="urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0")"
    R"( xmlns:xlink="http://www.w3.org/1999/xlink")"
    R"( xmlns:dc="http://purl.org/dc/elements/1.1/")"
    R"( xmlns:meta="urn:oasis:names:tc:opendocument:xmlns:meta:1.0")"
    R"( xmlns:svg="urn:oasis:names:tc:opendocument:xmlns:svg-compatible:1.0")"
    R"( office:version="1.3")"
    R"( office:mimetype="application/vnd.oasis.opendocument.graphics">
)";

std::string Decimals(int number, int places)
{
    std::string digits = std::to_string(number);
    const auto wanted = static_cast<std::size_t>(places) + 1;
    digits.insert(0, digits.size() < wanted ? wanted - digits.size() : 0, '0');
    return digits.insert(digits.size() - static_cast<std::size_t>(places), ".");
}

std::string HexColour(int number)
{
    constexpr std::string_view kDigits = "0123456789abcdef";
    std::string text = "#000000";
    for (std::size_t place = text.size(); --place > 0; number /= 16)
        text[place] = kDigits[static_cast<std::size_t>(number % 16)];
    return text;
}

std::string ValueOf(const Attribute& attribute, int number)
{
    switch (attribute.notation)
    {
    case Colour:
        return HexColour(number);
    case Length:
        return Decimals(number % 3'000, 3) + "cm";
    case Percent:
        return std::to_string(number % 101) + "%";
    case Point:
        return std::to_string(8 + number % 40) + "pt";
    case Choice:
        break;
    }
    return std::string(attribute.words[static_cast<std::size_t>(number) % attribute.words.size()]);
}

std::string WriteAttribute(std::string_view name, std::string_view value)
{
    return " " + std::string(name) + "=\"" + std::string(value) + "\"";
}

std::string NameOfStyle(std::size_t level, std::size_t index)
{
    constexpr std::array<std::string_view, StyleTree::kLevels> kNames{"standard", "Group_20_", "Member_20_",
                                                                      "gr"};
    return level == 0 ? std::string(kNames[level]) : std::string(kNames[level]) + std::to_string(index + 1);
}

/// Writes the styles of a tree one after another.
class StyleWriter
{
public:
    explicit StyleWriter(const StyleTree& styles) : tree(styles) {}

    void WriteLevel(std::string& text, std::size_t level) const
    {
        for (std::size_t index = 0; index < tree.CountAt(level); ++index)
            WriteStyle(text, level, index);
    }

private:
    void WriteStyle(std::string& text, std::size_t level, std::size_t index) const
    {
        text += "  <style:style" + WriteAttribute("style:name", NameOfStyle(level, index)) +
                WriteAttribute("style:family", "graphic");
        if (level > 0)
            text += WriteAttribute("style:parent-style-name",
                                   NameOfStyle(level - 1, tree.ParentOf(level, index)));
        text += ">";
        std::size_t property = 0;
        const auto writeElement = [&](std::string_view name, std::span<const Attribute> attributes)
        {
            std::string values;
            for (const Attribute& attribute : attributes)
            {
                if (const auto value = tree.OwnValue(level, index, property++))
                    values += WriteAttribute(attribute.name, ValueOf(attribute, *value));
            }
            if (!values.empty())
                text += "<style:" + std::string(name) + "-properties" + values + "/>";
        };
        writeElement("graphic", kGraphic);
        writeElement("paragraph", kParagraph);
        writeElement("text", kText);
        text += "</style:style>\n";
    }

    const StyleTree& tree;
};

void WriteTextStyles(std::string& text, std::size_t count)
{
    for (std::size_t index = 0; index < count; ++index)
    {
        text += "  <style:style" + WriteAttribute("style:name", "P" + std::to_string(index + 1)) +
                WriteAttribute("style:family", "paragraph") + "><style:paragraph-properties" +
                WriteAttribute("fo:text-align", "center") + "/><style:text-properties" +
                WriteAttribute("fo:font-size", std::to_string(10 + index) + "pt") + "/></style:style>\n";
    }
}

void WriteShape(std::string& text, std::size_t index, std::size_t textStyles)
{
    constexpr std::uint64_t kPlaces = 25'000;
    std::uint64_t hash = FixedHash(index);
    const auto length = [&hash]
    {
        const auto hundredths = static_cast<int>(hash % kPlaces);
        hash /= kPlaces;
        return Decimals(hundredths, 3) + "cm";
    };
    const std::string textStyle = "P" + std::to_string(index % textStyles + 1);
    text += "   <draw:rect" + WriteAttribute("draw:style-name", NameOfStyle(StyleTree::kObjectLevel, index)) +
            WriteAttribute("draw:text-style-name", textStyle) + WriteAttribute("draw:layer", "layout");
    for (const std::string_view name : {"svg:width", "svg:height", "svg:x", "svg:y"})
        text += WriteAttribute(name, length());
    if (index % 3 != 0)
    {
        text += "/>\n";
        return;
    }
    text += "><text:p" + WriteAttribute("text:style-name", textStyle) + ">Shape " +
            std::to_string(index + 1) + "</text:p></draw:rect>\n";
}

} // namespace

std::string WriteFlatDrawing(const StyleTree& tree)
{
    constexpr std::size_t kTextStyles = 7;
    const StyleWriter styles(tree);
    std::string text(kStart);
    text += " <office:styles>\n";
    for (std::size_t level = 0; level < StyleTree::kObjectLevel; ++level)
        styles.WriteLevel(text, level);
    text += " </office:styles>\n <office:automatic-styles>\n";
    WriteTextStyles(text, kTextStyles);
    styles.WriteLevel(text, StyleTree::kObjectLevel);
    text += " </office:automatic-styles>\n <office:body>\n  <office:drawing>\n"
            "   <draw:page draw:name=\"page1\">\n";
    for (std::size_t index = 0; index < tree.CountAt(StyleTree::kObjectLevel); ++index)
        WriteShape(text, index, kTextStyles);
    return text + "   </draw:page>\n  </office:drawing>\n </office:body>\n</office:document>\n";
}

} // namespace Bench
