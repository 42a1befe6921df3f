#pragma once

#include "host/utils/OvxStringT.h"
#include "reference_host/history/History.h"

#include <utility>

namespace Workbench
{

/// One step of history for as long as it lives: what is not kept is taken back at the end.
class Gesture
{
public:
    /// Opens the step; `itsHistory` is borrowed.
    Gesture(ReferenceHost::History& itsHistory, const OvxStringT& name) : history(&itsHistory)
    {
        history->Open(name);
    }

    Gesture(const Gesture&) = delete;
    Gesture& operator=(const Gesture&) = delete;

    ~Gesture()
    {
        if (history != nullptr)
            history->Cancel();
    }

    /// Closes the step and keeps what happened. Once.
    ///
    /// @throws what closing throws; then everything was taken back.
    void Keep() { std::exchange(history, nullptr)->Close(); }

private:
    ReferenceHost::History* history; ///< Null after Keep().
};

} // namespace Workbench
