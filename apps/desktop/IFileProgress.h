#pragma once

#include "reference_host/document/Progress.h"

#include <filesystem>

namespace Desktop
{

/// What is done with a file that can take its time.
enum class FileWork
{
    Opening,
    Saving
};

/// Shows how far opening or saving a file is, and lets a person cancel it.
class IFileProgress
{
public:
    virtual ~IFileProgress() = default;

    /// The work begins. There is one at a time.
    virtual void Begin(FileWork work, const std::filesystem::path& file) = 0;

    /// It goes on. Called during the work; may let events happen.
    virtual ReferenceHost::ProgressAnswer Tell(const ReferenceHost::Progress& progress) = 0;

    /// It is over, however it ended.
    virtual void End() = 0;
};

} // namespace Desktop
