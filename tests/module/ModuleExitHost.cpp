// A program with a host of its own that prints what the library does when it goes, a line each:
//
//   module-exit-host MODULE nothing|use|recreate exit|unload
//
// It loads the module (tests/module/StylesCommonModule.h), uses StylesCommon through it as told, and ends
// with the module loaded or unloads it first. What it defines of the host takes the place of the host
// library's own, because the loader looks in the program first. The texts of the library's constants are
// recognised in the memory that is freed.

#include "host/data_binding/IDataSourceRegistrar.h"
#include "host/utils/SingletonLibrary.h"
#include "host/utils/WriteLock.h"
#include "tests/module/OpenedLibrary.h"

#include <malloc.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cstdlib>
#include <cstring>
#include <new>
#include <string_view>

namespace
{

struct WatchedConstant
{
    std::wstring_view text;
    std::string_view line;
};

constexpr std::array<WatchedConstant, 5> kWatchedConstants{{
    {L"494d1725-676f-484b-9453-fe7fb1958759", "constant destroyed: fill dialog key\n"},
    {L"0b965e6d-2a66-4c2f-a255-3f788991c9dc", "constant destroyed: outline dialog key\n"},
    {L"fb799669-a363-408d-bf0a-b2d3ea840de3", "constant destroyed: paragraph dialog key\n"},
    {L"ead5c24a-060b-44d8-acf5-1d8df2e00d17", "constant destroyed: character dialog key\n"},
    {L"0f6cfc84-8a1f-9182-4a02-21556f4ad8f8", "constant destroyed: add-preset dialog key\n"},
}};

constinit std::atomic<bool> ending = false;

/// Writes at once and allocates nothing: exit routines print too.
void Print(std::string_view line)
{
    if (write(STDOUT_FILENO, line.data(), line.size()) < 0)
        std::abort();
}

/// Keeps a value that exit routines of any module may still need: its destructor never runs.
template <class T>
union Lasting
{
    constexpr Lasting() : value() {}

    ~Lasting() {}

    T value;
};

class PrintingRegistrar final : public IDataSourceRegistrar
{
public:
    void RegisterFactory(IDataSourceFactory* /*factory*/) override { Print("factory registered\n"); }

    void UnregisterFactory(IDataSourceFactory* /*factory*/) override { Print("factory unregistered\n"); }

    [[nodiscard]] IDataSourceFactory* FindFactory(const OvxStringT& /*typeKey*/) const override
    {
        return nullptr;
    }

    [[nodiscard]] std::vector<IDataSourceFactory*> GetFactories() const override { return {}; }
};

/// The registry for one singleton type and one module: as much as this program needs.
struct PrintingRegistry
{
    OvxUtils::SingletonEntry entry;
    OvxUtils::basic_safe_function<void()>::Shared withdrawal;
};

constinit Lasting<PrintingRegistrar> registrar;
constinit Lasting<PrintingRegistry> registry;

} // namespace

IDataSourceRegistrar& IDataSourceRegistrar::GetInstance()
{
    return registrar.value;
}

namespace OvxUtils
{

SingletonEntry* SingletonLibrary::GetEntryForType(std::type_index /*type*/, CreateData createData,
                                                  bool create, const basic_safe_function<void()>& withdrawn)
{
    PrintingRegistry& only = registry.value;
    if (!create && only.entry.data == nullptr)
        return nullptr;

    only.withdrawal = withdrawn.Share();
    const WriteLock lock(only.entry.lock);
    createData(only.entry, create);
    return &only.entry;
}

void SingletonLibrary::RemoveCallback(std::type_index /*type*/, basic_safe_function<void()>::Token /*token*/)
{
    Print("callback removed\n");
    registry.value.withdrawal = {};
}

void SingletonLibrary::NotifySingletonModuleUnloaded(SingletonEntry::Finalizer moduleFinalizer)
{
    PrintingRegistry& only = registry.value;
    Print(moduleFinalizer == only.entry.finalizer ? "registry notified\n"
                                                  : "registry notified by a stranger\n");
    only.withdrawal();
    only.entry.deleter(only.entry.data.exchange(nullptr));
}

} // namespace OvxUtils

void* operator new(std::size_t size)
{
    void* memory = std::malloc(size);
    if (memory == nullptr)
        throw std::bad_alloc();
    return memory;
}

void operator delete(void* memory) noexcept
{
    if (memory != nullptr && ending)
    {
        for (const WatchedConstant& constant : kWatchedConstants)
        {
            const std::size_t size = constant.text.size() * sizeof(wchar_t);
            if (malloc_usable_size(memory) >= size && std::memcmp(memory, constant.text.data(), size) == 0)
                Print(constant.line);
        }
    }
    std::free(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept
{
    operator delete(memory);
}

int main(int argc, char** argv)
{
    if (argc != 4)
        return 2;

    const std::string_view use = argv[2];
    const std::string_view end = argv[3];
    OpenedLibrary module(argv[1]);

    const StylesCommonModule& ways = module.StylesCommonWays();
    if (use != "nothing")
        ways.useFallbacks();
    if (use == "recreate")
    {
        ways.releaseInstanceOfLibrary(false);
        ways.useFallbacks();
    }

    ending = true;
    Print("the end begins\n");
    // Ends without unloading: exit() does not end what main() holds.
    if (end == "exit")
        std::exit(0);

    module.Close();
    Print("unloaded\n");
    return 0;
}
