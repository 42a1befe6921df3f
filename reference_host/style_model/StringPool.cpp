#include "host/style_model/StringPool.h"

#include "reference_host/style_model/ConstantTexts.h"
#include "reference_host/utils/Immortal.h"

#include <array>
#include <deque>
#include <memory>
#include <mutex>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

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

        const std::wstring& kept = characterLists.emplace_back(characters);
        try
        {
            if (lastBlock.empty())
                lastBlock = AddBlock();
            known.emplace(kept, &lastBlock.front());
        }
        catch (...)
        {
            characterLists.pop_back();
            throw;
        }
        StringPool::Text& added = lastBlock.front();
        added.characters = kept;
        lastBlock = lastBlock.subspan(1);
        return &added;
    }

private:
    /// Texts stand side by side, in the order in which they came: their addresses number them.
    using Block = std::array<StringPool::Text, 256>;

    std::span<StringPool::Text> AddBlock() { return *blocks.emplace_back(std::make_unique<Block>()); }

    std::mutex mutex;
    std::deque<std::wstring>
        characterLists; ///< What the texts show; a deque keeps the addresses of what it holds.
    std::vector<std::unique_ptr<Block>> blocks;
    std::span<StringPool::Text> lastBlock; ///< What is left of the last block.
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
