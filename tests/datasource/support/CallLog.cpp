#include "tests/datasource/support/CallLog.h"

#include "host/utils/Utf8.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace
{

bool BeginsWithAny(std::string_view line, std::initializer_list<std::string_view> beginnings)
{
    return std::any_of(beginnings.begin(), beginnings.end(),
                       [line](std::string_view beginning) { return line.starts_with(beginning); });
}

} // namespace

void CallLog::Add(const std::string& line)
{
    lines.push_back(line);
    // A copy: the observer may be replaced from inside its own call.
    if (const auto observer = onLine)
        observer(line);
}

std::vector<std::string> CallLog::LinesOf(std::initializer_list<std::string_view> beginnings) const
{
    std::vector<std::string> found;
    std::copy_if(lines.begin(), lines.end(), std::back_inserter(found),
                 [beginnings](const std::string& line) { return BeginsWithAny(line, beginnings); });
    return found;
}

std::vector<std::string> CallLog::LinesBut(std::initializer_list<std::string_view> beginnings) const
{
    std::vector<std::string> found;
    std::copy_if(lines.begin(), lines.end(), std::back_inserter(found),
                 [beginnings](const std::string& line) { return !BeginsWithAny(line, beginnings); });
    return found;
}

std::vector<std::string> CallLog::CallsOf(std::initializer_list<std::string_view> beginnings) const
{
    std::vector<std::string> calls = LinesOf(beginnings);
    for (std::string& call : calls)
        call.resize(std::min(call.find('('), call.size()));
    return calls;
}

void CallLog::FailAt(std::string beginning)
{
    onLine = [this, beginning = std::move(beginning)](const std::string& line)
    {
        if (!line.starts_with(beginning))
            return;
        onLine = nullptr;
        throw InjectedFailure(line);
    };
}

void CallLog::SetName(const void* object, std::string name)
{
    names[object] = std::move(name);
}

std::string CallLog::NameOf(const void* object) const
{
    if (object == nullptr)
        return "null";
    const auto found = names.find(object);
    return found == names.end() ? "unnamed" : found->second;
}

std::string CallLog::NameOfStyle(const Styles::Style* style) const
{
    if (style == nullptr || names.contains(style) || style->GetOwner() == nullptr)
        return NameOf(style);
    return NameOfStyle(style->GetOwner()) + "." + OvxUtils::ToUtf8(style->GetCategoryName().GetString());
}

std::string CallLog::NamesOfStyles(const std::vector<Styles::Style*>& styles) const
{
    std::string joined;
    for (const Styles::Style* style : styles)
        joined += (joined.empty() ? "" : ", ") + NameOfStyle(style);
    return "[" + joined + "]";
}
