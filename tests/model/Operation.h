#pragma once

#include "tests/model/LibraryWorld.h"
#include "tests/model/PlainWorld.h"

#include <functional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace LibraryModel
{

/// One step of a sequence: what is done to the library's side and to the model's.
///
/// It keeps nothing between runs and depends on nothing but the two sides, so that any part of a sequence can
/// be run again.
struct Operation
{
    /// As one would write it in a test.
    std::string text;

    /// What is done, with whatever it answers as a text.
    std::function<std::string(LibraryWorld&)> onLibrary;
    std::function<std::string(PlainWorld&)> onModel;

    /// Whether a host may do this now; always, where it is not set.
    std::function<bool(const PlainWorld&)> isAllowed;

    /// Whether everything is read afterwards; not, so that the next step finds what this one left.
    bool isRead = true;
};

/// An action that answers a text or nothing, as one that answers a text.
template <class World, class Action>
[[nodiscard]] std::function<std::string(World&)> Answering(Action action)
{
    if constexpr (std::is_void_v<std::invoke_result_t<const Action&, World&>>)
    {
        return [action = std::move(action)](World& world)
        {
            action(world);
            return std::string();
        };
    }
    else
    {
        return action;
    }
}

/// Makes an operation of what is done on either side.
template <class OnLibrary, class OnModel>
[[nodiscard]] Operation Do(std::string text, OnLibrary onLibrary, OnModel onModel)
{
    Operation made;
    made.text = std::move(text);
    made.onLibrary = Answering<LibraryWorld>(std::move(onLibrary));
    made.onModel = Answering<PlainWorld>(std::move(onModel));
    return made;
}

using Sequence = std::vector<Operation>;

} // namespace LibraryModel
