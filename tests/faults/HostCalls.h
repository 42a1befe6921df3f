#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>

/// What a host call throws that was chosen to fail.
class HostCallFailure : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// Counts the calls that reach a host, lets one of them fail, and keeps account of what must be balanced.
class HostCalls
{
public:
    HostCalls() = default;
    HostCalls(const HostCalls&) = delete;
    HostCalls& operator=(const HostCalls&) = delete;

    /// To be called first by every operation of the host that may fail.
    ///
    /// @throws HostCallFailure when this is the call that is to fail.
    void Enter(const char* call);

    /// Makes the call fail that comes after that many others from now on.
    void FailAfter(std::size_t others) noexcept;

    /// Makes none fail any more.
    void FailNone() noexcept { isArmed = false; }

    /// The call that has failed since FailAfter; null when none has.
    [[nodiscard]] const char* GetFailed() const noexcept { return failed; }

    /// Adds a line to what the host did. Not counted among the allocations that may fail.
    void Note(const std::string& line);

    /// The lines so far, which are forgotten.
    [[nodiscard]] std::string TakeNotes();

    int openModifications = 0; ///< Begun by the modifier and not ended.
    int openGroups = 0;        ///< Begun by the style source and not ended.

private:
    bool isArmed = false;
    std::size_t remaining = 0;
    const char* failed = nullptr;
    std::string notes;
};
