#pragma once

#include "host/utils/Any.h"

#include <atomic>

/// What the instances of all modules report to the test.
struct InstanceEvents
{
    std::atomic<int> made = 0;
    std::atomic<int> ended = 0;
};

/// What the test calls in a module. Each operation uses the one singleton type that all modules share.
struct SingletonModule
{
    /// Names where instances report. To be called first.
    void (*reportTo)(InstanceEvents* events);

    /// The address of the instance.
    void* (*getInstance)();

    /// Asks the instance for its answer, through its virtual table: 42.
    int (*getAnswer)();

    bool (*hasInstance)();
    void (*releaseInstance)(bool final);

    /// Makes the module ask for the instance once more while it is unloaded.
    void (*askWhileUnloading)();

    /// Stores values of the types that styles hold, made by code of this module.
    void (*storeValues)(OvxUtils::Any& number, OvxUtils::Any& text, OvxUtils::Any& key,
                        OvxUtils::Any& colour);
};

/// The one symbol of a module: `extern "C" const SingletonModule* GetSingletonModule()`.
using GetSingletonModuleFunction = const SingletonModule* (*)();
