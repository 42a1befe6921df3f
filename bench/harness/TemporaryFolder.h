#pragma once

#include <filesystem>

namespace Bench
{

/// A folder of its own that is gone with this.
class TemporaryFolder
{
public:
    /// @throws std::runtime_error when none can be made.
    TemporaryFolder();

    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder();

    [[nodiscard]] const std::filesystem::path& GetPath() const noexcept { return path; }

private:
    std::filesystem::path path;
};

} // namespace Bench
