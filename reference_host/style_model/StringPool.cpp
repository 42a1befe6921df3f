#include "host/style_model/StringPool.h"

#include "reference_host/style_model/ConstantTexts.h"
#include "reference_host/utils/Immortal.h"

#include <deque>
#include <mutex>
#include <string>
#include <string_view>
#include <unordered_map>

namespace Styles
{

namespace
{

class TextTable
{
public:
    TextTable()
    {
        for (const StringPool::Text& text : ReferenceHost::kConstantTexts)
            known.emplace(text.characters, &text);
    }

    const StringPool::Text* Intern(std::wstring_view characters)
    {
        const std::lock_guard held(mutex);
        const auto found = known.find(characters);
        if (found != known.end())
            return found->second;

        const std::wstring& kept = copies.emplace_back(characters);
        const StringPool::Text& text = texts.emplace_back(StringPool::Text{kept});
        known.emplace(text.characters, &text);
        return &text;
    }

private:
    std::mutex mutex;
    std::deque<std::wstring> copies; ///< What `texts` show; deques keep the addresses of what they hold.
    std::deque<StringPool::Text> texts;
    std::unordered_map<std::wstring_view, const StringPool::Text*> known;
};

} // namespace

const StringPool::Text* StringPool::Intern(OvxStringViewT text)
{
    if (text.empty())
        return nullptr;

    static ReferenceHost::Immortal<TextTable> table;
    return table->Intern(text);
}

} // namespace Styles
