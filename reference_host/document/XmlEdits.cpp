#include "reference_host/document/XmlEdits.h"

#include "reference_host/document/XmlPrefixes.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace ReferenceHost
{

namespace
{

/// The place of an attribute among those of the element; none without it.
std::optional<std::size_t> FindAttribute(pugi::xml_node element, std::string_view uri, std::string_view local)
{
    const pugi::xml_attribute wanted = FindXmlAttribute(element, uri, local);
    if (wanted.empty())
        return std::nullopt;
    const auto attributes = element.attributes();
    return static_cast<std::size_t>(
        std::distance(attributes.begin(), std::find(attributes.begin(), attributes.end(), wanted)));
}

pugi::xml_node LastChildElement(pugi::xml_node element)
{
    pugi::xml_node child = element.last_child();
    while (!child.empty() && child.type() != pugi::node_element)
        child = child.previous_sibling();
    return child;
}

std::string_view WithoutLineBreak(std::string_view indentation)
{
    return indentation.substr(indentation.find('\n') + 1);
}

std::string WriteAttribute(std::string_view name, std::string_view value)
{
    return " " + std::string(name) + "=\"" + EscapeAttributeValue(value, '"') + "\"";
}

std::string WriteDeclarations(const XmlPrefixes& prefixes)
{
    std::string text;
    for (const XmlPrefixes::Declaration& declaration : prefixes.GetDeclarations())
        text += WriteAttribute("xmlns:" + declaration.prefix, declaration.uri);
    return text;
}

} // namespace

XmlEdits::XmlEdits(const XmlSource& xmlSource) : source(xmlSource)
{
}

void XmlEdits::SetAttribute(pugi::xml_node element, AttributeEdit edit)
{
    auto& attributes = EditsOf(element).attributes;
    const auto same = std::ranges::find_if(attributes, [&](const AttributeEdit& each)
                                           { return each.uri == edit.uri && each.local == edit.local; });
    if (same == attributes.end())
        attributes.push_back(std::move(edit));
    else
        *same = std::move(edit);
}

void XmlEdits::SetAttributeUnlessEdited(pugi::xml_node element, AttributeEdit edit)
{
    const auto& attributes = EditsOf(element).attributes;
    const bool isEdited = std::ranges::any_of(attributes, [&](const AttributeEdit& each)
                                              { return each.uri == edit.uri && each.local == edit.local; });
    if (!isEdited)
        SetAttribute(element, std::move(edit));
}

void XmlEdits::AppendChild(pugi::xml_node element, std::string xml)
{
    EditsOf(element).children.push_back(std::move(xml));
}

void XmlEdits::InsertBefore(pugi::xml_node element, const std::string& xml)
{
    const std::size_t place = source.BeginOf(element);
    splices.push_back({place, place, Order::Usual, xml + std::string(source.IndentationOf(element))});
}

void XmlEdits::InsertBehind(pugi::xml_node element, const std::string& xml)
{
    const std::size_t place = source.EndOf(element);
    splices.push_back({place, place, Order::Usual, std::string(source.IndentationOf(element)) + xml});
}

void XmlEdits::Wrap(std::size_t begin, std::size_t end, const std::string& openTag,
                    const std::string& closeTag)
{
    splices.push_back({begin, begin, Order::Opening, openTag});
    splices.push_back({end, end, Order::Closing, closeTag});
}

void XmlEdits::Replace(std::size_t begin, std::size_t end, std::string text)
{
    splices.push_back({begin, end, Order::Usual, std::move(text)});
}

void XmlEdits::RemoveElement(pugi::xml_node element)
{
    const std::size_t begin = source.BeginOf(element) - source.IndentationOf(element).size();
    splices.push_back({begin, source.EndOf(element), Order::Usual, {}});
}

bool XmlEdits::IsEmpty() const noexcept
{
    return splices.empty() && elements.empty();
}

XmlEdits::ElementEdits& XmlEdits::EditsOf(pugi::xml_node element)
{
    ElementEdits& edits = elements[source.BeginOf(element)];
    edits.element = element;
    return edits;
}

void XmlEdits::SpliceElement(const ElementEdits& edits, std::vector<Splice>& target) const
{
    const StartTag tag = source.TagOf(edits.element);
    XmlPrefixes prefixes(edits.element);
    std::string added;
    for (const AttributeEdit& edit : edits.attributes)
    {
        const std::optional<std::size_t> place = FindAttribute(edits.element, edit.uri, edit.local);
        if (!place)
        {
            if (edit.value)
                added += WriteAttribute(prefixes.Qualify(edit.uri, edit.local), *edit.value);
            continue;
        }
        const SourceAttribute& attribute = tag.attributes[*place];
        if (!edit.value)
            target.push_back({attribute.begin, attribute.valueEnd + 1, Order::Usual, {}});
        else if (source.GetText().substr(attribute.valueBegin, attribute.valueEnd - attribute.valueBegin) !=
                 *edit.value)
            target.push_back({attribute.valueBegin, attribute.valueEnd, Order::Usual,
                              EscapeAttributeValue(*edit.value, attribute.quote)});
    }
    added = WriteDeclarations(prefixes) + added;
    if (!added.empty())
        target.push_back({tag.attributesEnd, tag.attributesEnd, Order::Usual, added});
    if (!edits.children.empty())
        SpliceChildren(edits, tag, target);
}

std::string XmlEdits::DeeperIndentation(pugi::xml_node element) const
{
    const std::string_view own = source.IndentationOf(element);
    const std::string_view blanks = WithoutLineBreak(own);
    const std::string_view outer = WithoutLineBreak(source.IndentationOf(element.parent()));
    const bool isDeeper = blanks.starts_with(outer) && blanks.size() > outer.size();
    if (own.empty())
        return {};
    return std::string(own).append(isDeeper ? blanks.substr(outer.size()) : std::string_view(" "));
}

void XmlEdits::SpliceChildren(const ElementEdits& edits, const StartTag& tag,
                              std::vector<Splice>& target) const
{
    const pugi::xml_node last = LastChildElement(edits.element);
    const std::string_view outer = source.IndentationOf(edits.element);
    const std::string indentation =
        last.empty() ? DeeperIndentation(edits.element) : std::string(source.IndentationOf(last));
    std::string text;
    for (const std::string& child : edits.children)
        text += indentation + child;
    // The first children of an element that begins its line go into lines of their own, as it does.
    const bool startsLines = last.empty() && edits.element.first_child().empty() && !outer.empty();
    if (startsLines)
        text += outer;
    if (tag.isEmpty)
    {
        text = ">" + text + "</" + std::string(tag.name) + ">";
        const std::size_t slash = tag.end - 2;
        target.push_back({slash, tag.end, Order::Usual, text});
        return;
    }
    const std::size_t place = last.empty() ? tag.end : source.EndOf(last);
    target.push_back({place, place, Order::Usual, text});
}

std::string XmlEdits::Apply(std::size_t begin, std::size_t end, ProgressSpan progress) const
{
    std::vector<Splice> all = splices;
    progress.Start(elements.size());
    std::size_t done = 0;
    for (const auto& [place, edits] : elements)
    {
        progress.Reach(done++);
        SpliceElement(edits, all);
    }
    std::ranges::stable_sort(all, {},
                             [](const Splice& splice) { return std::pair(splice.begin, splice.order); });
    std::string result;
    std::size_t copied = begin;
    for (const Splice& splice : all)
    {
        // What stands within something that was removed went with it.
        if (splice.begin < copied || splice.end > end)
            continue;
        result += source.GetText().substr(copied, splice.begin - copied);
        result += splice.text;
        copied = splice.end;
    }
    result += source.GetText().substr(copied, end - copied);
    return result;
}

std::string XmlEdits::Apply(const ProgressSpan& progress) const
{
    return Apply(0, source.GetText().size(), progress);
}

std::string WriteStartTag(pugi::xml_node scope, const XmlName& name,
                          const std::vector<AttributeEdit>& attributes, bool isEmpty)
{
    XmlPrefixes prefixes(scope);
    const std::string qualified = prefixes.Qualify(name.uri, name.local);
    std::string text;
    for (const AttributeEdit& attribute : attributes)
    {
        if (attribute.value)
            text += WriteAttribute(prefixes.Qualify(attribute.uri, attribute.local), *attribute.value);
    }
    return "<" + qualified + WriteDeclarations(prefixes) + text + (isEmpty ? "/>" : ">");
}

std::string WriteEndTag(pugi::xml_node scope, const XmlName& name)
{
    return "</" + XmlPrefixes(scope).Qualify(name.uri, name.local) + ">";
}

} // namespace ReferenceHost
