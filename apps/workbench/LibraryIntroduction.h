#pragma once

#include "host/services/IOrvexCmn_App.h"

namespace Workbench
{

/// Introduces an application to the library for as long as it lives. One at a time in a process.
class LibraryIntroduction
{
public:
    /// `application` is borrowed.
    explicit LibraryIntroduction(IOrvexCmn_App& application);

    LibraryIntroduction(const LibraryIntroduction&) = delete;
    LibraryIntroduction& operator=(const LibraryIntroduction&) = delete;

    /// The library knows no application any more.
    ~LibraryIntroduction();
};

} // namespace Workbench
