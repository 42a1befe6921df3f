#include "tests/model/PlainDescription.h"

#include <array>
#include <cstdio>

namespace LibraryModel
{

namespace
{

struct ValueTeller
{
    std::string operator()(std::monostate) const { return "empty"; }

    std::string operator()(int number) const { return std::to_string(number); }

    std::string operator()(const std::string& text) const { return "'" + text + "'"; }

    std::string operator()(Key key) const { return TextOf(key); }

    std::string operator()(const PlainColor& color) const
    {
        std::array<char, 8> text{};
        static_cast<void>(
            std::snprintf(text.data(), text.size(), "#%06x", static_cast<unsigned>(color.rgb) & 0xffffffU));
        return std::string(text.data()) + (color.entry.empty() ? "" : "@" + color.entry);
    }
};

std::string JoinSorted(const std::set<std::string>& texts)
{
    return Join({texts.begin(), texts.end()}, ", ");
}

} // namespace

std::string Join(const std::vector<std::string>& texts, const std::string& separator)
{
    std::string joined;
    for (const std::string& text : texts)
        joined += (joined.empty() ? "" : separator) + text;
    return joined;
}

std::string Tell(const PlainValue& value)
{
    return std::visit(ValueTeller(), value);
}

std::string Tell(const Path& path)
{
    std::vector<std::string> words;
    for (const Key key : path)
        words.push_back(TextOf(key));
    return words.empty() ? "()" : Join(words, ".");
}

std::string Tell(const Paths& paths)
{
    std::vector<std::string> texts;
    for (const Path& path : paths)
        texts.push_back(Tell(path));
    return "[" + Join(texts, ", ") + "]";
}

std::string Tell(const Paths* paths)
{
    return paths == nullptr ? "null" : Tell(*paths);
}

std::string Tell(const std::set<Path>& paths)
{
    std::set<std::string> texts;
    for (const Path& path : paths)
        texts.insert(Tell(path));
    return "{" + JoinSorted(texts) + "}";
}

std::string Tell(const PlainStyle* style)
{
    if (style == nullptr)
        return "null";
    std::set<std::string> values;
    for (const Path& path : OwnPaths(*style))
        values.insert(Tell(path) + "=" + Tell(EffectiveValueAt(*style, path)));
    return TextOf(style->category) + "{" + JoinSorted(values) + "}" +
           (style->parent == nullptr ? "" : " with a parent");
}

std::string Tell(bool flag)
{
    return flag ? "true" : "false";
}

std::string NameOf(const PlainStyle* style)
{
    if (style == nullptr)
        return "null";
    if (!style->name.empty())
        return style->name;
    return style->owner == nullptr ? "unnamed" : NameOf(style->owner) + "." + TextOf(style->category);
}

std::string NamesOf(const std::vector<PlainStyle*>& styles)
{
    std::vector<std::string> names;
    for (const PlainStyle* style : styles)
        names.push_back(NameOf(style));
    return "[" + Join(names, ", ") + "]";
}

} // namespace LibraryModel
