#pragma once

#include "apps/workbench/Editor.h"
#include "apps/workbench/PanelFolder.h"
#include "apps/workbench/Report.h"
#include "apps/workbench/Session.h"
#include "tests/reference_host/document/FlatDrawing.h"
#include "tests/reference_host/document/ScratchFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace WorkbenchTests
{

/// A drawing with the styles Base (colour #3366cc, outline 2 mm wide) and Accent (a child of Base, colour
/// #00aa00), the palette entry Sea (#2a6f97), a default colour #cccccc, and four objects: A inherits from
/// Base and sets its outline's width, B from Base and sets its colour, C from Accent, and D from Base with a
/// paragraph of text.
[[nodiscard]] FlatDrawing FourBoxes();

/// FourBoxes() with more rectangles behind the others, each of which inherits from Base and sets nothing.
[[nodiscard]] FlatDrawing ManyBoxes(std::size_t count);

/// A change in words: "1/2 fill.color #ff0000 -> #3366cc Inherited".
[[nodiscard]] std::string Describe(const Workbench::Change& change);

/// An editor on a drawing, with the panels that are shipped.
class OpenEditor
{
public:
    explicit OpenEditor(const FlatDrawing& drawing);
    explicit OpenEditor(const std::filesystem::path& drawing);

    OpenEditor(const OpenEditor&) = delete;
    OpenEditor& operator=(const OpenEditor&) = delete;

    void Select(const wchar_t* selector);
    void Set(const wchar_t* row, const wchar_t* value);

    /// The row for what is selected, read through the panels of the session.
    [[nodiscard]] Workbench::RowReport Row(const wchar_t* name);

    /// The value of a row for what is selected: "-" for nothing, "?" where the targets differ.
    [[nodiscard]] std::string ValueOf(const wchar_t* row);

    /// The value of a row for another selection; the editor's own stays.
    [[nodiscard]] std::string ValueOf(const wchar_t* selector, const wchar_t* row);

    /// Everything that the panels show of each object, style and default, to compare by.
    [[nodiscard]] std::string Dump();

    /// The changes in words.
    [[nodiscard]] std::vector<std::string> Changes();

    /// What `work` fails with; "no error" without.
    [[nodiscard]] static std::string ErrorOf(const std::function<void()>& work);

    /// Ends the editor; the session stays.
    void EndEditor() { made.reset(); }

    /// Ends the session as well: a process has one at a time.
    void End();

    Workbench::Session& GetSession() { return *session; }

private:
    Workbench::Editor& Start(const std::filesystem::path& drawing);
    [[nodiscard]] Workbench::RowReport ReadRow(const Workbench::Selection& selection, const OvxStringT& name);
    [[nodiscard]] std::string DumpOf(const wchar_t* selector);

    ScratchFolder scratch;
    Workbench::PanelFolder folder;
    std::optional<Workbench::Session> session;
    std::optional<Workbench::Editor> made;

public:
    Workbench::Editor& editor; ///< On all objects at first.
};

/// A test on FourBoxes().
class EditorOnFourBoxes : public testing::Test
{
protected:
    OpenEditor open{FourBoxes()};
    Workbench::Editor& editor = open.editor;
};

} // namespace WorkbenchTests
