#include "reference_host/document/picture/RunTexts.h"

#include "reference_host/document/OdfNamespaces.h"
#include "reference_host/document/XmlText.h"
#include "reference_host/document/picture/NumberScanner.h"

#include "host/utils/Utf8.h"

#include <algorithm>
#include <string_view>

namespace ReferenceHost
{

std::vector<OvxStringT> RunTexts::Read(pugi::xml_node shape)
{
    texts.clear();
    walker.Walk(shape);
    std::vector<OvxStringT> result;
    result.reserve(texts.size());
    for (const std::string& text : texts)
        result.push_back(OvxUtils::FromUtf8(text));
    return result;
}

void RunTexts::BeginParagraph(pugi::xml_node /*paragraph*/)
{
    endsWithBlank = true;
}

void RunTexts::BeginSpan(pugi::xml_node /*span*/)
{
}

void RunTexts::EndSpan()
{
}

void RunTexts::BeginRun(pugi::xml_node /*holder*/)
{
    texts.emplace_back();
}

void RunTexts::Content(pugi::xml_node node)
{
    if (node.type() != pugi::node_element)
        return AddCharacters(node.value());
    // The names of text elements have one prefix throughout a file.
    const std::string_view full = node.name();
    const std::string_view local = full.substr(full.find(':') + 1);
    std::string& text = texts.back();
    endsWithBlank = false;
    if (local == "line-break")
    {
        text += '\n';
        endsWithBlank = true;
    }
    else if (local == "tab")
        text += '\t';
    else if (local == "s")
    {
        constexpr double kMost = 1000;
        const pugi::xml_attribute count = node.find_attribute(
            [](pugi::xml_attribute each) { return std::string_view(each.name()).ends_with(":c"); });
        const double blanks = NumberScanner(count.value()).TakeNumber().value_or(1);
        text.append(static_cast<std::size_t>(std::clamp(blanks, 0.0, kMost)), ' ');
    }
    else
        AddCharacters(node.text().get());
}

void RunTexts::AddCharacters(const char* text)
{
    for (const char character : std::string_view(text))
    {
        const bool isBlank = IsXmlBlank(character);
        if (!isBlank)
            texts.back() += character;
        else if (!endsWithBlank)
            texts.back() += ' ';
        endsWithBlank = isBlank;
    }
}

} // namespace ReferenceHost
