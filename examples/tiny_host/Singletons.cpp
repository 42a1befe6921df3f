// What modules of one process share: the registry behind Singleton, the second phase of construction, and the
// tables by which values that styles hold are copied and compared.

#include "host/colour/CLR_COLORSPEC.h"
#include "host/style_model/PropertyKey.h"
#include "host/utils/Any.h"
#include "host/utils/OvxStringT.h"
#include "host/utils/PostConstructible.h"
#include "host/utils/SingletonLibrary.h"
#include "host/utils/WriteLock.h"
#include "tiny_host/Lasting.h"
#include "tiny_host/broken/Promises.h"

#include <algorithm>
#include <list>
#include <mutex>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace OvxUtils
{

// Styles outlive the modules that put values into them: the code that handles these values must be the
// host's.
template STYLEPROPERTIES_HOST_API const AnyOperations* OperationsOf<int>();
template STYLEPROPERTIES_HOST_API const AnyOperations* OperationsOf<OvxWideString>();
template STYLEPROPERTIES_HOST_API const AnyOperations* OperationsOf<Styles::PropertyKey>();
template STYLEPROPERTIES_HOST_API const AnyOperations* OperationsOf<CLR_COLORSPEC>();

namespace
{

/// What the registry keeps of one type. Never freed: a module may still hold the entry when it was taken
/// away.
struct Record
{
    std::optional<std::type_index>
        type;         ///< Empty once taken away: the type's own module may be gone by then.
    std::string name; ///< By which a type that comes back finds its record.
    SingletonEntry entry;
    std::vector<basic_safe_function<void()>::Shared> withdrawals;
};

struct Registry
{
    std::recursive_mutex making; ///< Held while data is made, which may need further singletons. Taken first.
    std::mutex access;           ///< Guards the records.
    std::list<Record> records;

    /// The record of `type` that holds data; null when there is none. Under `access`.
    Record* FindFilled(std::type_index type)
    {
        const auto found = std::ranges::find_if(records, [type](const Record& each)
                                                { return each.type == type && each.entry.data != nullptr; });
        return found == records.end() ? nullptr : &*found;
    }

    bool IsFilled(std::type_index type)
    {
        const std::lock_guard held(access);
        return FindFilled(type) != nullptr;
    }

    Record& ChooseVacant(std::type_index type)
    {
        const std::lock_guard held(access);
        auto vacant = std::ranges::find_if(records, [type](const Record& each)
                                           { return !each.type && each.name == type.name(); });
        if (vacant == records.end())
            vacant = records.emplace(records.end());
        vacant->name = type.name();
        vacant->type = type;
        return *vacant;
    }

    void MakeVacantUnlessFilled(Record& record)
    {
        const std::lock_guard held(access);
        if (record.entry.data == nullptr)
            record.type.reset();
    }

    void Fill(std::type_index type, SingletonLibrary::CreateData createData)
    {
        const std::lock_guard held(making);
        if (IsFilled(type))
            return;
        Record& record = ChooseVacant(type);
        try
        {
            const WriteLock lock(record.entry.lock);
            createData(record.entry, true);
        }
        catch (...)
        {
            MakeVacantUnlessFilled(record);
            throw;
        }
        MakeVacantUnlessFilled(record);
    }
};

} // namespace

SingletonEntry* SingletonLibrary::GetEntryForType(std::type_index type, CreateData createData, bool create,
                                                  const basic_safe_function<void()>& withdrawn)
{
    auto& registry = TinyHost::Lasting<Registry>();
    if (create && !registry.IsFilled(type))
        registry.Fill(type, createData);

    const std::lock_guard held(registry.access);
    Record* const record = registry.FindFilled(type);
    if (record == nullptr)
        return nullptr;
    const auto token = withdrawn.GetToken();
    const auto isKnown = [token](const auto& each) { return each.GetToken() == token; };
    if (std::ranges::none_of(record->withdrawals, isKnown))
        record->withdrawals.push_back(withdrawn.Share());
    return &record->entry;
}

void SingletonLibrary::RemoveCallback(std::type_index type, basic_safe_function<void()>::Token token)
{
    auto& registry = TinyHost::Lasting<Registry>();
    const std::lock_guard held(registry.access);
    if (Record* const record = registry.FindFilled(type))
        std::erase_if(record->withdrawals, [token](const auto& each) { return each.GetToken() == token; });
}

void SingletonLibrary::NotifySingletonModuleUnloaded(SingletonEntry::Finalizer moduleFinalizer)
{
    auto& registry = TinyHost::Lasting<Registry>();
    std::vector<std::pair<SingletonEntry::Deleter, void*>> orphans;
    {
        const std::scoped_lock held(registry.making, registry.access);
        for (Record& record : registry.records)
        {
            if (!record.type || record.entry.data == nullptr || record.entry.finalizer != moduleFinalizer)
                continue;
            for (const auto& withdrawal : record.withdrawals)
                withdrawal();
            record.withdrawals.clear();
            record.type.reset();
            orphans.emplace_back(std::exchange(record.entry.deleter, nullptr),
                                 record.entry.data.exchange(nullptr));
            record.entry.finalizer = nullptr;
        }
    }
    // Without the locks: a singleton that goes may use others.
    for (const auto& [end, data] : orphans)
        end(data);
}

PostConstructible::PostConstructible() = default;
PostConstructible::~PostConstructible() = default;

void PostConstructible::PostConstruct()
{
}

void PostConstructible::CallOnPostConstruct(std::function<void()> delegate)
{
    queued.push_back(std::move(delegate));
}

void PostConstructible::FinishConstruction()
{
    if (std::exchange(finished, true))
        return;
    if (!TinyHost::Keeps(TinyHost::Promise::DelegatesRunInOrder))
        std::ranges::reverse(queued);
    for (std::size_t i = 0; i < queued.size(); ++i)
    {
        // A copy: the delegate may queue further ones.
        const std::function<void()> delegate = queued[i];
        delegate();
    }
    queued.clear();
    PostConstruct();
}

} // namespace OvxUtils
