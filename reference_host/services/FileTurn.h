#pragma once

#include <filesystem>

namespace ReferenceHost
{

/// One process's turn at replacing a file: others that take theirs wait until it is over.
///
/// Only a courtesy among programs of this system. Where the file is missing, or the system knows no such
/// turns, and where somebody else holds on to the file, it is anybody's turn; whoever replaces the file looks
/// at it first.
class FileTurn
{
public:
    /// Waits, for about two seconds at most, until it is this process's turn.
    ///
    /// @param file without symbolic links.
    explicit FileTurn(const std::filesystem::path& file);

    FileTurn(const FileTurn&) = delete;
    FileTurn& operator=(const FileTurn&) = delete;
    ~FileTurn();

private:
    int descriptor = -1;
};

} // namespace ReferenceHost
