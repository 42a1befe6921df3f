#include "host/utils/SingletonLibrary.h"

#include "host/utils/WriteLock.h"
#include "reference_host/utils/Immortal.h"

#include <algorithm>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace OvxUtils
{

namespace
{

/// One entry and what the registry remembers of it.
struct Record
{
    enum class State
    {
        Vacant,   ///< Without data: never made, or taken away.
        Creating, ///< A call is making the data; others wait for it.
        Ready     ///< The entry holds data.
    };

    /// The name is a copy: the memory of a type's own name goes with the module that it came from.
    explicit Record(std::type_index createdType) : name(createdType.name()), type(createdType) {}

    const std::string name;
    std::type_index
        type; ///< Looked at unless vacant. It comes from the module that made the data, which is loaded.
    State state = State::Vacant;
    SingletonEntry entry;
    std::vector<basic_safe_function<void()>::Shared> withdrawals;
};

/// All entries. A record is never taken out, so that a module that still holds an entry after it was taken
/// away reads an entry without data and not freed memory; a type that comes back gets its record again.
class Registry
{
public:
    SingletonEntry* GetEntry(std::type_index type, SingletonLibrary::CreateData createData, bool create,
                             const basic_safe_function<void()>& withdrawn);
    void RemoveCallback(std::type_index type, basic_safe_function<void()>::Token token);
    void Withdraw(SingletonEntry::Finalizer moduleFinalizer);

private:
    struct OrphanedData
    {
        void* data;
        SingletonEntry::Deleter deleter;
    };

    Record* FindInUse(std::type_index type);
    Record& MakeRecord(std::type_index type);
    void Fill(Record& record, SingletonLibrary::CreateData createData, std::unique_lock<std::mutex>& held);
    static void Remember(Record& record, const basic_safe_function<void()>& withdrawn);

    std::mutex mutex; ///< Guards everything below; never held while singletons are made or ended.
    std::condition_variable filled;
    std::vector<std::unique_ptr<Record>> records; ///< A handful: one for each singleton type of the process.
};

Registry& TheRegistry()
{
    static ReferenceHost::Immortal<Registry> registry;
    return *registry;
}

SingletonEntry* Registry::GetEntry(std::type_index type, SingletonLibrary::CreateData createData, bool create,
                                   const basic_safe_function<void()>& withdrawn)
{
    std::unique_lock held(mutex);
    Record* record = FindInUse(type);
    while (create && record != nullptr && record->state == Record::State::Creating)
    {
        filled.wait(held);
        record = FindInUse(type);
    }
    if (record == nullptr && create)
    {
        record = &MakeRecord(type);
        Fill(*record, createData, held);
    }
    if (record == nullptr || record->state != Record::State::Ready)
        return nullptr;

    Remember(*record, withdrawn);
    return &record->entry;
}

void Registry::RemoveCallback(std::type_index type, basic_safe_function<void()>::Token token)
{
    const std::lock_guard held(mutex);
    Record* record = FindInUse(type);
    if (record != nullptr)
        std::erase_if(record->withdrawals, [token](const auto& kept) { return kept.GetToken() == token; });
}

// Nothing is allocated: this runs in destructors of modules that go, where a failure would end the program.
void Registry::Withdraw(SingletonEntry::Finalizer moduleFinalizer)
{
    for (std::size_t index = 0;; ++index)
    {
        OrphanedData orphan{};
        {
            const std::lock_guard held(mutex);
            if (index == records.size())
                return;
            Record& record = *records[index];
            if (record.state != Record::State::Ready || record.entry.finalizer != moduleFinalizer)
                continue;
            for (const auto& withdrawal : record.withdrawals)
                withdrawal();
            record.withdrawals.clear();
            orphan = {record.entry.data.exchange(nullptr), record.entry.deleter};
            record.entry.deleter = nullptr;
            record.entry.finalizer = nullptr;
            record.state = Record::State::Vacant;
        }
        // Outside of the lock: a singleton that goes may use others.
        orphan.deleter(orphan.data);
    }
}

Record* Registry::FindInUse(std::type_index type)
{
    const auto found = std::find_if(records.begin(), records.end(),
                                    [type](const auto& record) {
                                        return record->state != Record::State::Vacant && record->type == type;
                                    });
    return found == records.end() ? nullptr : found->get();
}

Record& Registry::MakeRecord(std::type_index type)
{
    const auto vacant =
        std::find_if(records.begin(), records.end(),
                     [type](const auto& record)
                     { return record->state == Record::State::Vacant && record->name == type.name(); });
    Record& record =
        vacant == records.end() ? *records.emplace_back(std::make_unique<Record>(type)) : **vacant;
    record.type = type;
    return record;
}

/// Has the data made, without the registry's lock: making a singleton may need another one.
void Registry::Fill(Record& record, SingletonLibrary::CreateData createData,
                    std::unique_lock<std::mutex>& held)
{
    struct Announcement
    {
        Announcement(Registry& owner, Record& filledRecord, std::unique_lock<std::mutex>& lock)
            : registry(owner), made(filledRecord), held(lock)
        {
            made.state = Record::State::Creating;
            held.unlock();
        }

        // Also when making the singleton failed: who waits must go on, and data without an instance is data.
        ~Announcement()
        {
            held.lock();
            made.state = made.entry.data.load() != nullptr ? Record::State::Ready : Record::State::Vacant;
            registry.filled.notify_all();
        }

        Announcement(const Announcement&) = delete;
        Announcement& operator=(const Announcement&) = delete;

        Registry& registry;
        Record& made;
        std::unique_lock<std::mutex>& held;
    };

    const Announcement announcement(*this, record, held);
    WriteLock lock(record.entry.lock);
    createData(record.entry, true);
}

void Registry::Remember(Record& record, const basic_safe_function<void()>& withdrawn)
{
    const bool known =
        std::any_of(record.withdrawals.begin(), record.withdrawals.end(),
                    [&withdrawn](const auto& kept) { return kept.GetToken() == withdrawn.GetToken(); });
    if (!known)
        record.withdrawals.push_back(withdrawn.Share());
}

} // namespace

SingletonEntry* SingletonLibrary::GetEntryForType(std::type_index type, CreateData createData, bool create,
                                                  const basic_safe_function<void()>& withdrawn)
{
    return TheRegistry().GetEntry(type, createData, create, withdrawn);
}

void SingletonLibrary::RemoveCallback(std::type_index type, basic_safe_function<void()>::Token token)
{
    TheRegistry().RemoveCallback(type, token);
}

void SingletonLibrary::NotifySingletonModuleUnloaded(SingletonEntry::Finalizer moduleFinalizer)
{
    TheRegistry().Withdraw(moduleFinalizer);
}

} // namespace OvxUtils
