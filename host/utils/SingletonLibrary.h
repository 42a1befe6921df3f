#pragma once

#include "host/Export.h"
#include "host/utils/SafeFunction.h"
#include "host/utils/ThreadLock.h"

#include <atomic>
#include <typeindex>

namespace OvxUtils
{

/// What the process keeps for one singleton type: the shared data and who must be asked to end it.
struct SingletonEntry
{
    /// What ends the data.
    using Deleter = void (*)(void* data);
    /// What names a module: an operation that each has for itself.
    using Finalizer = void (*)();

    ThreadLock lock; ///< Held while the data is being made.

    /// The shared data, made by the first module that needed it; null before, and again after it was taken
    /// away.
    std::atomic<void*> data = nullptr;

    Deleter deleter = nullptr;     ///< Ends `data`; code of the module that made it.
    Finalizer finalizer = nullptr; ///< The module that made `data`, named by the address of its finaliser.
};

/// The process-wide registry behind Singleton: one entry for each type, shared by all modules.
///
/// Never destroyed: modules may still announce their unloading while the process ends. Safe from any thread.
class STYLEPROPERTIES_HOST_API SingletonLibrary
{
public:
    /// Fills an entry that holds no data. Called under a WriteLock on the entry's lock; with `create` false
    /// it makes nothing.
    using CreateData = void (*)(SingletonEntry& entry, bool create);

    /// Gives the entry for `type` and remembers `withdrawn`, which is called once when the entry is taken
    /// away.
    ///
    /// An entry without data is filled by `createData`, on one thread while others wait for it; when that
    /// throws before there is data, the next who asks tries again. With `create` false, an entry that is
    /// missing or holds no data is not made, nothing is called or remembered, and null is returned at once.
    ///
    /// `withdrawn` must not call the registry. It must be removed with RemoveCallback before its module goes.
    ///
    /// @returns the entry, owned by the registry; may be null. It is never freed: after it was taken away, it
    ///          holds no data until a later call fills it again.
    static SingletonEntry* GetEntryForType(std::type_index type, CreateData createData, bool create,
                                           const basic_safe_function<void()>& withdrawn);

    /// Forgets the callback of one module. Does nothing when there is none.
    static void RemoveCallback(std::type_index type, basic_safe_function<void()>::Token token);

    /// Tells that the module whose finaliser is at this address is being unloaded.
    ///
    /// Every entry whose data that module made is taken away: the remembered callbacks are called, so that no
    /// module keeps a pointer to it, then the data is ended with its deleter. Other entries stay.
    ///
    /// Who still uses the data on another thread meanwhile uses what is being destroyed: a module is unloaded
    /// when no one is inside what it made.
    static void NotifySingletonModuleUnloaded(SingletonEntry::Finalizer moduleFinalizer);
};

} // namespace OvxUtils
