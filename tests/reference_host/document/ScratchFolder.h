#pragma once

#include <filesystem>
#include <string>
#include <string_view>

/// A folder for one test, gone with it.
class ScratchFolder
{
public:
    ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    ~ScratchFolder();

    [[nodiscard]] const std::filesystem::path& GetPath() const noexcept { return path; }

    /// Writes a file with these bytes.
    ///
    /// @returns its path.
    std::filesystem::path Write(const std::string& name, std::string_view bytes) const;

private:
    std::filesystem::path path;
};
