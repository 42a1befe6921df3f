#pragma once

#include "apps/workbench/Editor.h"
#include "apps/workbench/PanelDescription.h"
#include "apps/workbench/Session.h"
#include "bench/drawing/DrawingScratch.h"
#include "reference_host/document/Drawing.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace Bench
{

/// A drawing in the workbench with the shipped panels, as the tool has it, in steps that are measured one by
/// one.
class LibraryDrawing
{
public:
    explicit LibraryDrawing(std::size_t shapes);
    LibraryDrawing(const LibraryDrawing&) = delete;
    LibraryDrawing& operator=(const LibraryDrawing&) = delete;

    ~LibraryDrawing();

    /// Ends the session, the drawing, and what was saved.
    void Close();

    /// How many bytes the file to open has.
    [[nodiscard]] std::uintmax_t GetFileSize() const
    {
        return std::filesystem::file_size(scratch.GetDrawing());
    }

    /// Reads the file.
    ///
    /// @returns how many shapes there are, as all of these.
    std::size_t Open();

    /// Begins the session with the drawing that was opened, and loads the panels.
    void Begin();

    /// Inspects all shapes as one selection.
    std::size_t Inspect();

    /// Gives the first shape another colour.
    void EditOne();

    /// Gives all shapes another colour.
    void EditAll();

    /// Saves to another file.
    std::size_t Save();

private:
    void Edit(const wchar_t* selector);

    DrawingScratch scratch;
    std::vector<Workbench::PanelDescription> panels;
    Workbench::Session::OpenedDrawing opened; ///< Until the session begins.
    std::unique_ptr<Workbench::Session> session;
};

} // namespace Bench
