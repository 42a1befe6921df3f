#include "reference_host/document/picture/ListLabels.h"

#include "reference_host/document/Measures.h"
#include "reference_host/document/OdfNamespaces.h"
#include "reference_host/document/picture/NumberScanner.h"

#include "host/utils/Utf8.h"

#include <algorithm>
#include <array>
#include <utility>

namespace ReferenceHost
{

namespace
{

constexpr XmlName kItem{Odf::kText, "list-item"};
constexpr XmlName kHeader{Odf::kText, "list-header"};
constexpr XmlName kList{Odf::kText, "list"};

int WholeNumber(std::string_view text, int otherwise)
{
    constexpr double kMost = 1e6;
    const std::optional<double> number = NumberScanner(text).TakeNumber();
    return number ? static_cast<int>(std::clamp(*number, 0.0, kMost)) : otherwise;
}

/// "a" to "z", then "aa", "bb" and so on.
std::string Letters(int number, char first)
{
    if (number < 1)
        return {};
    constexpr int kLetters = 26;
    constexpr int kMostRepeated = 20;
    const int repeated = std::min((number - 1) / kLetters + 1, kMostRepeated);
    return std::string(static_cast<std::size_t>(repeated),
                       static_cast<char>(first + (number - 1) % kLetters));
}

std::string Roman(int number)
{
    constexpr std::array<std::pair<int, std::string_view>, 13> kDigits{{{1000, "M"},
                                                                        {900, "CM"},
                                                                        {500, "D"},
                                                                        {400, "CD"},
                                                                        {100, "C"},
                                                                        {90, "XC"},
                                                                        {50, "L"},
                                                                        {40, "XL"},
                                                                        {10, "X"},
                                                                        {9, "IX"},
                                                                        {5, "V"},
                                                                        {4, "IV"},
                                                                        {1, "I"}}};
    constexpr int kFirstBeyond = 4000;
    if (number >= kFirstBeyond)
        return std::to_string(number);
    std::string text;
    for (const auto& [value, digits] : kDigits)
    {
        for (; number >= value; number -= value)
            text += digits;
    }
    return text;
}

std::string Formatted(int number, std::string_view format)
{
    if (format == "a" || format == "A")
        return Letters(number, format.front());
    if (format != "i" && format != "I")
        return std::to_string(number);
    std::string roman = Roman(number);
    if (format == "i")
        std::ranges::transform(roman, roman.begin(),
                               [](char letter) { return static_cast<char>(letter - 'A' + 'a'); });
    return roman;
}

} // namespace

void ListLabels::AddStyles(pugi::xml_node root)
{
    for (const pugi::xml_node container : root.children())
    {
        const XmlNames::Scope scope(names, container);
        const XmlName name = names.Of(container);
        if (name != XmlName{Odf::kOffice, "styles"} && name != XmlName{Odf::kOffice, "automatic-styles"})
            continue;
        for (const pugi::xml_node style : container.children())
            AddStyle(style);
    }
}

void ListLabels::AddStyle(pugi::xml_node style)
{
    const XmlNames::Scope scope(names, style);
    if (names.Of(style) != XmlName{Odf::kText, "list-style"})
        return;
    Levels levels;
    for (const pugi::xml_node element : style.children())
    {
        const XmlNames::Scope elementScope(names, element);
        const int number = WholeNumber(names.Attribute(element, {Odf::kText, "level"}), 0);
        if (number > 0)
            levels.emplace(number, ReadLevel(element));
    }
    styles.emplace(names.Attribute(style, {Odf::kStyle, "name"}), std::move(levels));
}

ListLabels::Level ListLabels::ReadLevel(pugi::xml_node element)
{
    Level level;
    level.bullet = names.Attribute(element, {Odf::kText, "bullet-char"});
    level.format = names.Attribute(element, {Odf::kStyle, "num-format"});
    level.prefix = names.Attribute(element, {Odf::kStyle, "num-prefix"});
    level.suffix = names.Attribute(element, {Odf::kStyle, "num-suffix"});
    level.start = WholeNumber(names.Attribute(element, {Odf::kText, "start-value"}), 1);
    for (const pugi::xml_node child : element.children())
    {
        const XmlNames::Scope scope(names, child);
        const XmlName name = names.Of(child);
        if (name == XmlName{Odf::kStyle, "list-level-properties"})
            ReadPlace(child, level);
        else if (name == XmlName{Odf::kStyle, "text-properties"})
            level.sizeShare =
                ParsePercent(names.Attribute(child, {Odf::kFo, "font-size"})).value_or(100) / 100;
    }
    return level;
}

void ListLabels::ReadPlace(pugi::xml_node element, Level& level)
{
    const auto length = [&](pugi::xml_node node, XmlName name)
    { return static_cast<double>(ParseLength(names.Attribute(node, name)).value_or(0)); };
    level.room = length(element, {Odf::kText, "min-label-width"});
    level.indent = length(element, {Odf::kText, "space-before"}) + level.room;
    // The other way to say it.
    for (const pugi::xml_node child : element.children())
    {
        const XmlNames::Scope scope(names, child);
        if (names.Of(child) != XmlName{Odf::kStyle, "list-level-label-alignment"})
            continue;
        level.indent = length(child, {Odf::kFo, "margin-left"});
        level.room = -length(child, {Odf::kFo, "text-indent"});
    }
}

std::vector<ListLabel> ListLabels::Read(pugi::xml_node shape)
{
    labels.clear();
    hasLists = false;
    walker.Walk(shape);
    return hasLists ? std::move(labels) : std::vector<ListLabel>();
}

void ListLabels::BeginParagraph(pugi::xml_node paragraph)
{
    ListLabel& label = labels.emplace_back();
    const pugi::xml_node item = paragraph.parent();
    const XmlName holder = names.Of(item);
    if (holder != kItem && holder != kHeader)
        return;
    hasLists = true;
    const Level* const level = FindLevel(item);
    if (level == nullptr)
        return;
    label.indent = level->indent;
    label.room = level->room;
    label.sizeShare = level->sizeShare;
    if (holder == kHeader || !IsFirstInItem(paragraph))
        return;
    if (!level->bullet.empty())
        label.text = OvxUtils::FromUtf8(level->bullet);
    else if (!level->format.empty())
        label.text = OvxUtils::FromUtf8(level->prefix + Formatted(NumberOf(item, *level), level->format) +
                                        level->suffix);
}

const ListLabels::Level* ListLabels::FindLevel(pugi::xml_node item)
{
    int depth = 0;
    std::string_view style;
    // The scopes of what the walk is in are in force.
    for (pugi::xml_node node = item; node.type() == pugi::node_element; node = node.parent())
    {
        if (names.Of(node).uri != Odf::kText)
            break;
        if (names.Of(node) != kList)
            continue;
        ++depth;
        if (style.empty())
            style = names.Attribute(node, {Odf::kText, "style-name"});
    }
    const auto found = styles.find(style);
    if (found == styles.end())
        return nullptr;
    const auto level = found->second.find(depth);
    return level == found->second.end() ? nullptr : &level->second;
}

bool ListLabels::IsFirstInItem(pugi::xml_node paragraph)
{
    for (pugi::xml_node before = paragraph.previous_sibling(); before; before = before.previous_sibling())
    {
        if (before.type() == pugi::node_element)
            return false;
    }
    return true;
}

int ListLabels::NumberOf(pugi::xml_node item, const Level& level)
{
    int number = level.start;
    for (pugi::xml_node before = item.previous_sibling(); before; before = before.previous_sibling())
    {
        if (before.type() == pugi::node_element && names.Of(before) == kItem)
            ++number;
    }
    return number;
}

} // namespace ReferenceHost
