// Handles to elements and their attributes, and the part of XPath that lists are searched with: steps to
// children, "name" or "*", joined by "/", each with conditions "[@name='value']", "[@name]" or "[number]".
// Any other expression finds nothing.

#include "host/xml/WXmlDoc.h"

#include "host/utils/Utf8.h"
#include "tiny_host/XmlElement.h"
#include "tiny_host/broken/ForgetfulTree.h"
#include "tiny_host/broken/Promises.h"

#include <algorithm>
#include <charconv>
#include <cwchar>
#include <string>
#include <string_view>

namespace TinyHost
{

namespace
{

using Elements = std::vector<XmlElement*>;

/// The elements that fulfil a condition, written without its brackets; none for one that is not understood.
Elements Filter(const Elements& elements, std::wstring_view condition)
{
    if (!condition.starts_with(L'@'))
    {
        const bool isNumber =
            !condition.empty() && condition.find_first_not_of(L"0123456789") == condition.npos;
        const std::size_t number = isNumber ? std::wcstoul(std::wstring(condition).c_str(), nullptr, 10) : 0;
        return number == 0 || number > elements.size() ? Elements() : Elements{elements[number - 1]};
    }

    const std::size_t equals = condition.find(L'=');
    const std::wstring_view quoted = equals == condition.npos ? L"" : condition.substr(equals + 1);
    const bool isQuoted = quoted.size() >= 2 && (quoted.front() == L'\'' || quoted.front() == L'"') &&
                          quoted.find(quoted.front(), 1) == quoted.size() - 1;
    if (equals != condition.npos && !isQuoted)
        return {};
    const OvxStringT name(condition.substr(1, equals == condition.npos ? equals : equals - 1));
    Elements fulfilling;
    for (XmlElement* const element : elements)
    {
        const OvxStringT* const value = element->FindAttribute(name);
        if (value != nullptr && (!isQuoted || *value == quoted.substr(1, quoted.size() - 2)))
            fulfilling.push_back(element);
    }
    return fulfilling;
}

/// Where `sought` stands first outside of quotes; the size of `text` when nowhere.
std::size_t FindUnquoted(std::wstring_view text, wchar_t sought)
{
    wchar_t quote = L'\0';
    for (std::size_t i = 0; i < text.size(); ++i)
    {
        if (quote != L'\0')
            quote = text[i] == quote ? L'\0' : quote;
        else if (text[i] == sought)
            return i;
        else if (text[i] == L'\'' || text[i] == L'"')
            quote = text[i];
    }
    return text.size();
}

/// The children of `parent` that a step leads to, in document order.
Elements TakeStep(const XmlElement& parent, std::wstring_view step)
{
    const std::wstring_view name = step.substr(0, step.find(L'['));
    Elements found;
    for (const auto& child : parent.children)
    {
        if (name == L"*" || child->name == name)
            found.push_back(child.get());
    }
    std::wstring_view conditions = step.substr(name.size());
    while (!conditions.empty())
    {
        const std::size_t end = FindUnquoted(conditions, L']');
        if (conditions.front() != L'[' || end == conditions.size())
            return {};
        found = Filter(found, conditions.substr(1, end - 1));
        conditions.remove_prefix(end + 1);
    }
    return found;
}

XmlElement* Find(XmlElement& from, std::wstring_view path)
{
    Elements found{&from};
    for (bool isLast = false; !isLast;)
    {
        const std::size_t end = FindUnquoted(path, L'/');
        Elements next;
        for (const XmlElement* const element : found)
        {
            const Elements children = TakeStep(*element, path.substr(0, end));
            next.insert(next.end(), children.begin(), children.end());
        }
        found = std::move(next);
        isLast = end == path.size();
        path.remove_prefix(isLast ? end : end + 1);
    }
    return found.empty() ? nullptr : found.front();
}

XmlElement* AsElement(void* element)
{
    return static_cast<XmlElement*>(element);
}

/// The attribute that an address names; empty for an address of another form.
OvxStringT AttributeIn(const OvxStringT& address)
{
    const std::wstring& text = address.Wide();
    return text.starts_with(L'@') ? OvxStringT(text.substr(1)) : OvxStringT();
}

void Write(void* element, const OvxStringT& address, const OvxStringT& value)
{
    const OvxStringT name = AttributeIn(address);
    if (element == nullptr || name.empty())
        return;
    auto& attributes = AsElement(element)->attributes;
    const auto present =
        std::ranges::find_if(attributes, [&name](const auto& each) { return each.first == name; });
    if (present != attributes.end())
        present->second = value;
    else
        attributes.emplace_back(name, value);
}

const OvxStringT* Read(void* element, const OvxStringT& address)
{
    return element == nullptr ? nullptr : AsElement(element)->FindAttribute(AttributeIn(address));
}

} // namespace

const OvxStringT* XmlElement::FindAttribute(const OvxStringT& attribute) const
{
    const auto found =
        std::ranges::find_if(attributes, [&attribute](const auto& each) { return each.first == attribute; });
    return found == attributes.end() ? nullptr : &found->second;
}

} // namespace TinyHost

using TinyHost::AsElement;
using TinyHost::XmlElement;

bool WXmlDoc::Load(const OvxStringT& text)
{
    std::shared_ptr<XmlElement> read = TinyHost::ReadXml(text);
    XmlElement* const element = read.get();
    root = WXmlNode(std::move(read), element);
    return root.IsValid();
}

WXmlNode WXmlDoc::GetRoot() const
{
    return root;
}

WXmlNode WXmlDoc::CreateNode(const OvxStringT& name)
{
    if (name.empty())
        return {};
    std::shared_ptr<XmlElement> created = TinyHost::Keeps(TinyHost::Promise::HandlesKeepTheirTree)
                                              ? std::make_shared<XmlElement>()
                                              : TinyHost::MakeForgetfulTree();
    created->name = name;
    XmlElement* const element = created.get();
    return {std::move(created), element};
}

OvxStringT WXmlNode::GetName() const
{
    return IsValid() ? AsElement(element)->name : OvxStringT();
}

WXmlNode WXmlNode::CreateChild(const OvxStringT& name)
{
    if (!IsValid() || name.empty())
        return {};
    auto& children = AsElement(element)->children;
    children.push_back(std::make_unique<XmlElement>());
    children.back()->name = name;
    return {TinyHost::Keeps(TinyHost::Promise::HandlesKeepTheirTree) ? tree : nullptr, children.back().get()};
}

WXmlValueAccessor WXmlNode::Attribute(const OvxStringT& address) const
{
    return {tree, element, address};
}

WXmlNode WXmlNode::GetNode(const WXPath& path) const
{
    XmlElement* const found =
        IsValid() ? TinyHost::Find(*AsElement(element), path.GetExpression().Wide()) : nullptr;
    return found == nullptr ? WXmlNode() : WXmlNode(tree, found);
}

std::vector<WXmlNode> WXmlNode::GetChildren() const
{
    std::vector<WXmlNode> handles;
    if (!IsValid())
        return handles;
    for (const auto& child : AsElement(element)->children)
        handles.push_back(WXmlNode(tree, child.get()));
    return handles;
}

std::vector<OvxStringT> WXmlNode::GetAttributeNames() const
{
    std::vector<OvxStringT> names;
    if (!IsValid())
        return names;
    for (const auto& [name, value] : AsElement(element)->attributes)
        names.push_back(name);
    return names;
}

void WXmlValueAccessor::SetString(const OvxStringT& value, const OvxStringT& fallback)
{
    const bool isLeftOut = value == fallback && !fallback.empty();
    if (isLeftOut && element != nullptr)
        std::erase_if(AsElement(element)->attributes, [name = TinyHost::AttributeIn(address)](
                                                          const auto& each) { return each.first == name; });
    else if (!value.empty() || TinyHost::Keeps(TinyHost::Promise::EmptyValuesAreWritten))
        TinyHost::Write(element, address, value);
}

void WXmlValueAccessor::SetBool(bool value)
{
    TinyHost::Write(element, address, value ? L"true" : L"false");
}

void WXmlValueAccessor::SetInt(int value)
{
    TinyHost::Write(element, address, std::to_wstring(value));
}

OvxStringT WXmlValueAccessor::GetString(const OvxStringT& fallback) const
{
    const OvxStringT* const value = TinyHost::Read(element, address);
    return value == nullptr ? fallback : *value;
}

bool WXmlValueAccessor::GetBool(bool fallback) const
{
    const OvxStringT value = GetString();
    return value == L"true" || (fallback && !(value == L"false"));
}

int WXmlValueAccessor::GetInt(int fallback) const
{
    const std::string digits = OvxUtils::ToUtf8(GetString());
    int value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    return error == std::errc() && end == digits.data() + digits.size() ? value : fallback;
}
