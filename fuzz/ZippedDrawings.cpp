// Zipped drawings. An input that begins like an archive is one; any other describes one, so that checksums
// and sizes are right and what is in the entries gets its turn:
//
//   === NAME     begins a stored entry, up to the next such line
//   =+= NAME     begins a packed one
//   =?= EDITS    decides what is edited, see SavedDrawings.cpp

#include "fuzz/Choices.h"
#include "fuzz/FuzzTarget.h"
#include "fuzz/SavingPromises.h"
#include "tests/reference_host/document/ZipBuilder.h"

#include <optional>

namespace
{

struct Described
{
    ZipBuilder archive;
    std::string edits;
};

struct Entry
{
    std::string name;
    ZipBuilder::Packing packing = ZipBuilder::Packing::Stored;
    std::string bytes;
};

constexpr std::size_t kMarkLength = 4;

void Add(Described& described, const std::optional<Entry>& entry)
{
    if (entry)
        described.archive.Add(entry->name, entry->bytes, entry->packing);
}

Described Read(std::string_view input)
{
    Described described;
    std::optional<Entry> entry;
    while (!input.empty())
    {
        const std::string_view line = Fuzz::TakePart(input, '\n');
        const bool isPacked = line.starts_with("=+= ");
        if (line.starts_with("=?= "))
        {
            described.edits = line.substr(kMarkLength);
        }
        else if (isPacked || line.starts_with("=== "))
        {
            Add(described, entry);
            entry = Entry{std::string(line.substr(kMarkLength)),
                          isPacked ? ZipBuilder::Packing::Deflated : ZipBuilder::Packing::Stored,
                          {}};
        }
        else if (entry)
        {
            entry->bytes += (entry->bytes.empty() ? "" : "\n") + std::string(line);
        }
    }
    Add(described, entry);
    return described;
}

} // namespace

void Fuzz::RunInput(std::string_view input)
{
    if (input.starts_with("PK"))
        return DemandSavingPromises(std::string(input), {});
    const Described described = Read(input);
    DemandSavingPromises(described.archive.Build(), described.edits);
}
