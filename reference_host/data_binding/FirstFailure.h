#pragma once

#include <exception>
#include <utility>

namespace ReferenceHost
{

/// Runs a row of calls to the end although some of them throw, and reports the first failure afterwards.
///
/// A listener that fails must not keep the news from the listeners behind it.
class FirstFailure
{
public:
    /// Runs `call`. What it throws is kept when it is the first, and dropped when it is a later one.
    template <class Call>
    void Run(Call&& call)
    {
        try
        {
            std::forward<Call>(call)();
        }
        catch (...)
        {
            if (failure == nullptr)
                failure = std::current_exception();
        }
    }

    /// Throws what the first failing call threw; returns when none failed.
    void Rethrow() const
    {
        if (failure != nullptr)
            std::rethrow_exception(failure);
    }

private:
    std::exception_ptr failure;
};

} // namespace ReferenceHost
