#include "host/utils/PostConstructible.h"

#include <cstddef>
#include <utility>

namespace OvxUtils
{

PostConstructible::PostConstructible() = default;
PostConstructible::~PostConstructible() = default;

void PostConstructible::PostConstruct()
{
}

void PostConstructible::CallOnPostConstruct(std::function<void()> delegate)
{
    queued.push_back(std::move(delegate));
}

void PostConstructible::FinishConstruction()
{
    if (finished)
        return;

    finished = true;
    // By index: a delegate may queue further ones.
    for (std::size_t i = 0; i < queued.size(); ++i)
    {
        const auto delegate = std::move(queued[i]);
        delegate();
    }
    queued.clear();
    PostConstruct();
}

} // namespace OvxUtils
