#pragma once

#include "host/data_binding/ListenerToken.h"
#include "tests/datasource/support/CallLog.h"

#include <cstddef>
#include <vector>

/// Takes down the application-wide events of styles as they are delivered: "event NAME(arguments)". Events
/// that wait from before, or are left waiting, are dropped.
class RecordingEvents
{
public:
    explicit RecordingEvents(CallLog& callLog);
    RecordingEvents(const RecordingEvents&) = delete;
    RecordingEvents& operator=(const RecordingEvents&) = delete;
    ~RecordingEvents();

    /// What an application does when it is idle: delivers the events that wait.
    ///
    /// @returns how many there were.
    static std::size_t DeliverPending();

private:
    std::vector<ListenerToken> tokens;
};
