// Reading a document: just enough XML for texts that programs write.

#include "tiny_host/XmlElement.h"

#include <algorithm>
#include <cwchar>
#include <string>
#include <string_view>

namespace TinyHost
{

namespace
{

constexpr std::wstring_view kBlanks = L" \t\r\n";
constexpr std::size_t kDeepest = 256;

/// Reads on from where it stands. Each operation that fails leaves the reader failed for good.
class XmlReader
{
public:
    explicit XmlReader(std::wstring_view text) : rest(text) {}

    std::shared_ptr<XmlElement> ReadDocument()
    {
        auto root = std::make_shared<XmlElement>();
        SkipMarkup();
        ReadElement(*root, 0);
        SkipMarkup();
        return hasFailed || !rest.empty() ? nullptr : root;
    }

private:
    bool Fail()
    {
        hasFailed = true;
        rest = {};
        return false;
    }

    bool Take(std::wstring_view expected)
    {
        const bool isThere = rest.starts_with(expected);
        rest.remove_prefix(isThere ? expected.size() : 0);
        return isThere;
    }

    void SkipBlanks() { rest.remove_prefix(std::min(rest.find_first_not_of(kBlanks), rest.size())); }

    /// What stands before `end`, which is passed over too.
    std::wstring_view TakeUpTo(std::wstring_view end)
    {
        const std::size_t length = rest.find(end);
        if (length == rest.npos)
        {
            Fail();
            return {};
        }
        const std::wstring_view taken = rest.substr(0, length);
        rest.remove_prefix(length + end.size());
        return taken;
    }

    /// Passes over blanks, comments, instructions and a document type without declarations of its own.
    void SkipMarkup()
    {
        for (SkipBlanks(); !hasFailed; SkipBlanks())
        {
            if (Take(L"<!--"))
                TakeUpTo(L"-->");
            else if (Take(L"<?"))
                TakeUpTo(L"?>");
            else if (Take(L"<!DOCTYPE"))
                TakeUpTo(L">");
            else
                return;
        }
    }

    OvxStringT TakeName()
    {
        constexpr std::wstring_view kNoPartOfNames = L" \t\r\n!\"#$%&'()*+,/;<=>?@[\\]^`{|}~";
        constexpr std::wstring_view kNeverFirst = L"-.0123456789";
        const std::wstring_view name = rest.substr(0, rest.find_first_of(kNoPartOfNames));
        if (name.empty() || kNeverFirst.find(name.front()) != kNeverFirst.npos)
            Fail();
        else
            rest.remove_prefix(name.size());
        return name;
    }

    /// The character that stands for "&ENTITY;", of which the first character has been taken.
    wchar_t TakeEntity()
    {
        const std::wstring entity(TakeUpTo(L";"));
        if (entity.starts_with(L'#'))
        {
            const bool isHexadecimal = entity.starts_with(L"#x");
            const std::wstring digits = entity.substr(isHexadecimal ? 2 : 1);
            wchar_t* end = nullptr;
            const unsigned long code = std::wcstoul(digits.c_str(), &end, isHexadecimal ? 16 : 10);
            if (digits.empty() || *end != L'\0' || code == 0 || code > 0x10FFFF)
                Fail();
            return static_cast<wchar_t>(code);
        }
        constexpr std::pair<std::wstring_view, wchar_t> kEntities[] = {
            {L"lt", L'<'}, {L"gt", L'>'}, {L"amp", L'&'}, {L"quot", L'"'}, {L"apos", L'\''}};
        for (const auto& [name, character] : kEntities)
        {
            if (name == entity)
                return character;
        }
        Fail();
        return L'\0';
    }

    OvxStringT TakeValue()
    {
        const std::wstring_view quote = Take(L"\"") ? L"\"" : L"'";
        std::wstring value;
        if (quote == L"'" && !Take(L"'"))
            Fail();
        while (!hasFailed && !Take(quote))
        {
            if (rest.empty() || rest.front() == L'<')
            {
                Fail();
                break;
            }
            const wchar_t character = rest.front();
            rest.remove_prefix(1);
            const bool isBlank = kBlanks.find(character) != kBlanks.npos;
            value += character == L'&' ? TakeEntity() : (isBlank ? L' ' : character);
        }
        return value;
    }

    /// Reads the attributes up to the end of the start tag.
    ///
    /// @returns whether content and an end tag follow.
    bool ReadAttributes(XmlElement& element)
    {
        while (!hasFailed)
        {
            const bool isSeparated = kBlanks.find(rest.empty() ? L'\0' : rest.front()) != kBlanks.npos;
            SkipBlanks();
            if (Take(L"/>"))
                return false;
            if (Take(L">"))
                return true;
            const OvxStringT name = TakeName();
            SkipBlanks();
            if (!isSeparated || !Take(L"=") || element.FindAttribute(name) != nullptr)
                return Fail();
            SkipBlanks();
            element.attributes.emplace_back(name, TakeValue());
        }
        return false;
    }

    void ReadElement(XmlElement& element, std::size_t depth)
    {
        if (depth == kDeepest || !Take(L"<"))
        {
            Fail();
            return;
        }
        element.name = TakeName();
        if (!ReadAttributes(element))
            return;
        while (!hasFailed && !rest.starts_with(L"</"))
            ReadContent(element, depth);
        Take(L"</");
        const bool isItsEnd = TakeName() == element.name;
        SkipBlanks();
        if (!isItsEnd || !Take(L">"))
            Fail();
    }

    /// Reads one piece of what stands between a start tag and its end tag.
    void ReadContent(XmlElement& element, std::size_t depth)
    {
        if (rest.empty())
            Fail();
        else if (Take(L"<!--"))
            TakeUpTo(L"-->");
        else if (Take(L"<![CDATA["))
            TakeUpTo(L"]]>");
        else if (Take(L"<?"))
            TakeUpTo(L"?>");
        else if (rest.front() == L'<')
            ReadElement(*element.children.emplace_back(std::make_unique<XmlElement>()), depth + 1);
        else if (Take(L"&"))
            TakeEntity();
        else
            rest.remove_prefix(std::min(rest.find_first_of(L"<&"), rest.size()));
    }

    std::wstring_view rest;
    bool hasFailed = false;
};

} // namespace

std::shared_ptr<XmlElement> ReadXml(const OvxStringT& text)
{
    return XmlReader(text.Wide()).ReadDocument();
}

} // namespace TinyHost
