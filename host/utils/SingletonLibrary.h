#pragma once

#include "host/Export.h"
#include "host/utils/SafeFunction.h"
#include "host/utils/ThreadLock.h"

#include <typeindex>

namespace OvxUtils
{

/// What the process keeps for one singleton type: the shared data and who must be asked to end it.
struct SingletonEntry
{
    using Deleter = void (*)(void* data);
    using Finalizer = void (*)();

    ThreadLock lock;               ///< Guards the fields below.
    void* data = nullptr;          ///< The shared data, made by the first module that needed it; null before.
    Deleter deleter = nullptr;     ///< Ends `data`; code of the module that made it.
    Finalizer finalizer = nullptr; ///< The module that made `data`, named by the address of its finaliser.
};

/// The process-wide registry behind Singleton: one entry for each type, shared by all modules.
///
/// Never destroyed: modules may still announce their unloading while the process ends. Safe from any thread.
class STYLEPROPERTIES_HOST_API SingletonLibrary
{
public:
    /// Fills an entry. Called under a WriteLock on the entry's lock; with `create` false it makes nothing.
    using CreateData = void (*)(SingletonEntry& entry, bool create);

    /// Gives the entry for `type` and remembers `withdrawn`, which is called once when the entry is taken
    /// away.
    ///
    /// Calls `createData` for the entry. With `create` false, an entry that is missing or holds no data is
    /// not made, nothing is remembered, and null is returned.
    ///
    /// @returns the entry, owned by the registry and valid until `withdrawn` was called; may be null.
    static SingletonEntry* GetEntryForType(std::type_index type, CreateData createData, bool create,
                                           const basic_safe_function<void()>& withdrawn);

    /// Forgets the callback of one module. Does nothing when there is none.
    static void RemoveCallback(std::type_index type, basic_safe_function<void()>::Token token);

    /// Tells that the module whose finaliser is at this address is being unloaded.
    ///
    /// Every entry whose data that module made is taken away: the remembered callbacks are called, so that no
    /// module keeps a pointer to it, then the data is ended with its deleter. Other entries stay.
    static void NotifySingletonModuleUnloaded(SingletonEntry::Finalizer moduleFinalizer);
};

} // namespace OvxUtils
