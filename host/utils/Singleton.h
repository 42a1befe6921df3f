#pragma once

#include "host/Export.h"
#include "host/utils/SafeFunction.h"
#include "host/utils/SingletonLibrary.h"
#include "host/utils/ThreadLock.h"
#include "host/utils/WriteLock.h"

#include <atomic>
#include <typeindex>
#include <typeinfo>

namespace OvxUtils
{

/// One instance of `T` for the whole process, however many modules use it.
///
/// Each module instantiates this template for itself and keeps only a pointer to the entry that
/// SingletonLibrary holds; the pointer is withdrawn when the module that made the data is unloaded. The
/// instance is always made and ended by code of that module, whoever asks for it, so that none outlives its
/// own code. All operations are safe from any thread; the instance itself is not guarded, and no operation
/// may still run while the module that made the data is being unloaded.
template <class T>
class STYLEPROPERTIES_MODULE_LOCAL Singleton
{
public:
    /// The instance, made when missing.
    ///
    /// @returns a reference that is valid until ReleaseInstance or the unloading of the module that made it.
    static T& GetInstance();

    /// Tells whether there is an instance. Creates nothing.
    static bool HasInstance();

    /// Ends the instance, when there is one. `final` also records that it was released for good; the record
    /// blocks nothing: a later GetInstance makes a fresh instance. Creates nothing.
    static void ReleaseInstance(bool final);

    /// Makes the data, by the code of this module.
    static T* CreateInstance() { return new T; }

    /// Ends the data, by the code of this module.
    static void DeleteInstance(T* instance) { delete instance; }

    /// Arranges, once for each module, that StaticFinalizer runs when the module goes.
    static void RegisterFinalizer();

    /// Tells the registry that this module is going. Its own address is the module's name there.
    static void StaticFinalizer() { SingletonLibrary::NotifySingletonModuleUnloaded(&StaticFinalizer); }

private:
    /// What all modules share.
    struct SingletonData
    {
        std::atomic<T*> instance = nullptr; ///< Owned; null until first needed. Changed under `lock` only.
        std::atomic<bool> released = false; ///< Set when the instance was released for good.
        ThreadLock lock;

        /// How the module that made the data makes and ends instances.
        T* (*const createInstance)() = &CreateInstance;
        void (*const deleteInstance)(T*) = &DeleteInstance;
    };

    /// The callback by which the registry withdraws the entry; takes itself off the registry when the module
    /// goes. It goes after the finaliser, and ends what other exit routines asked for in between.
    struct WithdrawCallback
    {
        basic_safe_function<void()> function{[] { g_pEntry.exchange(nullptr); }};

        ~WithdrawCallback();
    };

    /// Runs the finaliser when the module goes. A static object and not an exit routine, because those may be
    /// kept until the process ends, long after the module.
    struct FinalizerAtExit
    {
        ~FinalizerAtExit() { StaticFinalizer(); }
    };

    static std::type_index Type() { return typeid(Singleton<T>); }

    static SingletonData* GetSingletonData(bool create);
    static void CreateData(SingletonEntry& entry, bool create);
    static void DeleteData(void* data);

    /// Makes the instance when there is none.
    ///
    /// @returns the instance, never null; it is the one that was seen, even when another thread releases it
    /// meanwhile.
    static T* CreateSingletonData(SingletonData& data);

    /// The registry's entry; null before first use and again after it was withdrawn. Atomic exchange only.
    static inline std::atomic<SingletonEntry*> g_pEntry = nullptr;
};

template <class T>
T& Singleton<T>::GetInstance()
{
    return *CreateSingletonData(*GetSingletonData(true));
}

template <class T>
bool Singleton<T>::HasInstance()
{
    const SingletonData* data = GetSingletonData(false);
    return data != nullptr && data->instance.load() != nullptr;
}

template <class T>
void Singleton<T>::ReleaseInstance(bool final)
{
    SingletonData* data = GetSingletonData(false);
    if (data == nullptr)
        return;

    WriteLock lock(data->lock);
    data->deleteInstance(data->instance.exchange(nullptr));
    if (final)
        data->released = true;
}

// A static object and not std::atexit: not every runtime knows which module an exit routine belongs to, and
// one that does not would run it when the process ends, after the module's code is gone.
template <class T>
void Singleton<T>::RegisterFinalizer()
{
    static const FinalizerAtExit atExit;
}

template <class T>
Singleton<T>::WithdrawCallback::~WithdrawCallback()
{
    SingletonEntry* const entry = g_pEntry.load();
    if (entry != nullptr && entry->data.load() != nullptr && entry->finalizer == &StaticFinalizer)
        StaticFinalizer();
    SingletonLibrary::RemoveCallback(Type(), function.GetToken());
}

template <class T>
typename Singleton<T>::SingletonData* Singleton<T>::GetSingletonData(bool create)
{
    static const WithdrawCallback withdraw;

    // The entry may have been taken away just before it was stored here; one without data is asked for again.
    SingletonEntry* entry = g_pEntry.load();
    void* data = entry == nullptr ? nullptr : entry->data.load();
    while (data == nullptr)
    {
        entry = SingletonLibrary::GetEntryForType(Type(), &CreateData, create, withdraw.function);
        if (entry == nullptr)
            return nullptr;
        g_pEntry.exchange(entry);
        data = entry->data.load();
    }
    return static_cast<SingletonData*>(data);
}

template <class T>
void Singleton<T>::CreateData(SingletonEntry& entry, bool create)
{
    if (!create)
        return;

    if (entry.data.load() == nullptr)
    {
        entry.data = new SingletonData;
        entry.deleter = &DeleteData;
        entry.finalizer = &StaticFinalizer;
        // The data must be gone before this module is, whichever module makes the instance.
        RegisterFinalizer();
    }
    CreateSingletonData(*static_cast<SingletonData*>(entry.data.load()));
}

template <class T>
void Singleton<T>::DeleteData(void* data)
{
    auto* shared = static_cast<SingletonData*>(data);
    shared->released = true;
    DeleteInstance(shared->instance.exchange(nullptr));
    delete shared;
}

// The test before the lock is deliberate: once the instance stands, nobody waits for the lock again.
template <class T>
T* Singleton<T>::CreateSingletonData(SingletonData& data)
{
    if (T* const standing = data.instance.load())
        return standing;

    WriteLock lock(data.lock);
    if (T* const standing = data.instance.load())
        return standing;

    T* const created = data.createInstance();
    data.deleteInstance(data.instance.exchange(created));
    RegisterFinalizer();
    return created;
}

} // namespace OvxUtils
