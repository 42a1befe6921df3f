#pragma once

#include "host/Export.h"

#include <functional>
#include <vector>

namespace OvxUtils
{

/// An object with a second phase of construction, run once the whole object stands.
class STYLEPROPERTIES_HOST_API PostConstructible
{
public:
    virtual ~PostConstructible();

    /// Called once by FinishConstruction, after the queued delegates. The base does nothing.
    virtual void PostConstruct();

    /// Queues `delegate` until the object is complete. Bases queue before what derives from them, so their
    /// delegates run first. What a running delegate queues runs too; what is queued after that never does.
    void CallOnPostConstruct(std::function<void()> delegate);

    /// Runs the queued delegates in order, then PostConstruct. For whoever created the object, after its
    /// context was set; every later call does nothing.
    void FinishConstruction();

protected:
    PostConstructible();
    PostConstructible(const PostConstructible&) = delete;
    PostConstructible& operator=(const PostConstructible&) = delete;

private:
    std::vector<std::function<void()>> queued;
    bool finished = false;
};

} // namespace OvxUtils
