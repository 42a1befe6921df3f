#pragma once

/// Where the values that a panel row stands for come from, over all targets.
enum class ActivePropertyState
{
    None = 0,       ///< The first target's category style has no parent: nothing is inherited.
    Overridden = 1, ///< Every target sets the property itself.
    Inherited = 2,  ///< No target sets the property itself.
    Ambiguous = 3,  ///< The targets disagree on setting it.
    AmbiguousParent =
        4, ///< A further target has no category style, or that style has nothing to inherit from.
};
