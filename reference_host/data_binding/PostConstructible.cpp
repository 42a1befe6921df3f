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
    if (std::exchange(finished, true))
        return;

    // A delegate may queue another one, which then runs behind those that are there already.
    for (std::size_t i = 0; i < queued.size(); ++i)
        std::exchange(queued[i], nullptr)();
    queued = {};
    PostConstruct();
}

} // namespace OvxUtils
