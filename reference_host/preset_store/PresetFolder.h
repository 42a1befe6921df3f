#pragma once

#include "host/Export.h"
#include "host/style_model/Style.h"
#include "host/utils/OvxStringT.h"

#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace ReferenceHost
{

/// The presets of one category: a folder with a file for each, which other processes may change at any time.
///
/// The name inside a file counts, not the file's own. A damaged file is reported and passed over, never
/// changed; of two files with one name the one that bears it counts, else the first by file name, and the
/// other is reported. Changes are made under a lock and replace files as a whole; readers wait for them.
class STYLEPROPERTIES_HOST_API PresetFolder
{
public:
    /// `presetFolder` need not exist; it is made with the first preset.
    explicit PresetFolder(std::filesystem::path presetFolder) : folder(std::move(presetFolder)) {}

    /// In alphabetical order, upper and lower case alike.
    [[nodiscard]] std::vector<OvxStringT> ListNames() const;

    [[nodiscard]] bool Contains(const OvxStringT& name) const;

    /// A copy of the preset; null when there is none of that name.
    [[nodiscard]] std::unique_ptr<Styles::Style> Load(const OvxStringT& name) const;

    /// Copies of all presets, by name.
    [[nodiscard]] std::map<OvxStringT, std::unique_ptr<Styles::Style>> LoadAll() const;

    /// Keeps a preset in the file `fileName`, in one beside it where another preset or a damaged one lies
    /// there, or in that which holds the name already. With `replace` false a
    /// name that is there is left as it is.
    ///
    /// @returns whether it was kept; what keeps it from that is reported.
    bool Add(const OvxStringT& name, const std::string& fileName, const Styles::Style& style,
             bool replace) const;

    /// Drops a preset.
    ///
    /// @returns whether there was one; what keeps it there is reported.
    bool Remove(const OvxStringT& name) const;

private:
    struct Entry
    {
        OvxStringT name;
        std::filesystem::path file;
        std::unique_ptr<Styles::Style> style;
    };

    // Under a lock.
    [[nodiscard]] std::vector<Entry> Read() const;
    [[nodiscard]] std::filesystem::path FindFile(const OvxStringT& name) const;

    std::filesystem::path folder;
};

} // namespace ReferenceHost
