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

        Kept& added = kept.emplace_back(Kept{std::wstring(characters), {}});
        added.text.characters = added.characters;
        try
        {
            known.emplace(added.text.characters, &added.text);
        }
        catch (...)
        {
            kept.pop_back();
            throw;
        }
        return &added.text;
    }

private:
    struct Kept
    {
        std::wstring characters; ///< What the text shows.
        StringPool::Text text;
    };

    std::mutex mutex;
    std::deque<Kept> kept; ///< A deque keeps the addresses of what it holds.
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
