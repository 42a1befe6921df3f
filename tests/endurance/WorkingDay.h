#pragma once

#include "apps/workbench/Editor.h"
#include "tests/model/Dice.h"

#include <cstddef>
#include <map>
#include <string>

/// A person at an open drawing, of whom chance decides what comes next: values, commands, styles from lists,
/// presets, palette, groups, undo and redo.
///
/// Names come from short lists, so that whoever undoes everything has what there was in the beginning.
class WorkingDay
{
public:
    /// Both are borrowed; the drawing is WorkbenchTests::FourBoxes().
    WorkingDay(Workbench::Editor& itsEditor, LibraryModel::Dice& itsDice) : editor(itsEditor), dice(itsDice)
    {
    }

    /// Goes on until so many edits were made. What the drawing does not allow at the moment is passed over
    /// and counts as none.
    void Edit(std::size_t edits);

    /// Takes back every step.
    void UndoAll();

    /// How often each kind of action was done and not refused, by its name.
    [[nodiscard]] const std::map<std::string, std::size_t>& GetDone() const noexcept { return done; }

    /// The names of all kinds of actions.
    [[nodiscard]] static std::vector<std::string> GetKinds();

private:
    /// Something that a person does.
    struct Action;
    static const std::vector<Action>& Actions();

    void Choose();
    void Set();
    void Clear();
    void Revert();
    void ApplyToParent();
    void BreakLink();
    void CreateStyle();
    void OpenStyle();
    void Restyle();
    void ListStyles();
    void KeepPreset();
    void ApplyPreset();
    void DropPreset();
    void DefineColour();
    void EditInAGroup();
    void Undo();
    void Redo();
    void Look();

    Workbench::Editor& editor;
    LibraryModel::Dice& dice;
    std::map<std::string, std::size_t> done;
};
