#include "tests/endurance/MemoryUse.h"

#include "reference_host/style_model/StyleHosting.h"
#include "reference_host/xml/LiveXmlTrees.h"
#include "tests/faults/FailingAllocations.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <link.h>
#include <ostream>
#include <string>
#include <system_error>

#if defined(__SANITIZE_ADDRESS__)
#define KEEPS_FREED_MEMORY
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define KEEPS_FREED_MEMORY
#endif
#endif

namespace
{

std::size_t CountModules()
{
    std::size_t count = 0;
    dl_iterate_phdr(
        [](dl_phdr_info* /*module*/, std::size_t /*size*/, void* counter)
        {
            ++*static_cast<std::size_t*>(counter);
            return 0;
        },
        &count);
    return count;
}

std::size_t CountFiles()
{
    std::error_code unknown;
    const std::filesystem::directory_iterator open("/proc/self/fd", unknown);
    return static_cast<std::size_t>(std::distance(open, std::filesystem::directory_iterator()));
}

std::optional<std::size_t> ReadResidentKib()
{
#if !defined(KEEPS_FREED_MEMORY)
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;)
    {
        std::size_t number = 0;
        if (word == "VmRSS:" && status >> number)
            return number;
    }
#endif
    return std::nullopt;
}

} // namespace

MemoryUse MeasureMemory()
{
    // The count first: what measures takes memory itself.
    const std::size_t allocations = FailingAllocations::CountLive();
    return {allocations,
            ReferenceHost::LiveStyleCount(),
            ReferenceHost::CountLiveXmlTrees(),
            CountModules(),
            CountFiles(),
            ReadResidentKib()};
}

std::ostream& operator<<(std::ostream& out, const MemoryUse& use)
{
    out << use.allocations << " allocations, " << use.styles << " styles, " << use.trees << " trees, "
        << use.modules << " modules, " << use.files << " files";
    if (use.residentKib)
        out << ", " << *use.residentKib << " KiB";
    return out;
}
