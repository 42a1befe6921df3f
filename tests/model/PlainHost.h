#pragma once

#include "tests/model/PlainStyle.h"

#include <array>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace LibraryModel
{

/// A style sheet as a list of names.
struct PlainSheet
{
    struct Entry
    {
        std::string name;
        PlainStyle* style;
    };

    std::string prefix; ///< What its lines begin with.
    std::vector<Entry> entries;
    std::set<std::string> unresolved; ///< Listed, but not found.
};

/// A data context: what lives in it, and the host object behind it.
struct PlainContext
{
    enum class Presets
    {
        None,      ///< Nothing under the key of the preset data source.
        Something, ///< A data source of another class.
        Dialog,    ///< The preset data source.
    };
    enum class Editor
    {
        None,
        Plain, ///< A data source that edits no styles.
        Styles,
    };

    std::string name;
    bool hasHostObject = true;
    bool hasApplicator = false;
    int applicatorNumber = 0;
    bool hasDialogs = true;
    Presets presets = Presets::Dialog;
    Editor editor = Editor::Styles;
};

/// What the host has and answers, as plain fields, and the lines that its recorders write down.
///
/// An operation that is named after one of the host's writes that one's line and gives its answer.
struct PlainHost
{
    void Record(const std::string& line) { lines.push_back(line); }

    [[nodiscard]] bool HasSource() const { return hasApp && hasSource; }

    /// The source's sheet; null when it has none.
    PlainSheet* GetStyleSheet();
    PlainSheet* GetExternalStyleSheet(const std::string& name);
    PlainStyle* GetStyle(const PlainSheet& sheet, const std::string& name);
    std::string GetStyleName(const PlainSheet& sheet, const PlainStyle* style);
    std::vector<std::string> GetStyleNames(const PlainSheet& sheet, Key category);

    std::string GetDisplayStyleName(const std::string& name);
    bool IsExcludedStyleName(const std::string& name);

    /// What a context holds under the key of the preset data source.
    PlainContext::Presets FindPresets(PlainContext& context);

    // The preset manager: that of the application, or one that keeps nothing
    std::vector<std::string> GetPresetNames(const std::string& presetCategory);
    bool DoesPresetNameExist(const std::string& presetCategory, const std::string& presetName);
    void AddPreset(const std::string& presetCategory, const std::string& presetName);
    void DeletePreset(const std::string& presetCategory, const std::string& presetName);
    std::string GetUnusedPresetName(const std::string& presetCategory, const std::string& base);

    // What others keep and delete
    void KeepPreset(const std::string& presetCategory, const std::string& presetName)
    {
        presets[presetCategory].insert(presetName);
    }

    void DropPreset(const std::string& presetCategory, const std::string& presetName)
    {
        presets[presetCategory].erase(presetName);
    }

    /// The context in which objects are edited; null for none, or without a user interface.
    [[nodiscard]] PlainContext* ObjectPropertiesContext();

    std::vector<std::string> lines;
    std::vector<std::string> waitingEvents; ///< Until the application is idle.

    bool hasApp = true;
    bool hasStylesApp = true;
    bool hasSource = true;
    bool hasSheet = true;
    bool hasDefaultSheet = true;
    bool hasModifier = true;
    bool hasTransaction = false;
    bool ignoresCharacterStyles = false;
    bool fillsPresetItems = true;
    bool hasUserInterface = true;
    int answer = 6; ///< To questions; 6 is yes.
    int objectPropertiesContext = 0;
    bool hasObjectPropertiesContext = true;
    std::optional<Paths> clearedPaths; ///< What ApplyToParent asks to be cleared.
    Path targetPath;                   ///< The applicator's.
    PlainSheet sheet{"sheet", {}, {}};
    PlainSheet defaultSheet{"defaults", {}, {}};
    PlainSheet externalSheet{"external", {}, {}};
    std::vector<PlainStyle*> defaultStyles;
    std::set<std::string> excludedNames;
    std::array<PlainContext, 2> contexts;

private:
    /// The names in a category; null while the manager is one that keeps nothing.
    std::set<std::string>* KeptPresets(const std::string& presetCategory);

    std::map<std::string, std::set<std::string>> presets;
};

/// What the host shows to people: texts by their keys, and display names and properties of categories. The
/// same all along, and none of the library's business, so that both sides ask the host.
[[nodiscard]] const std::string& ShownText(const std::string& key);
[[nodiscard]] const std::string& DisplayNameOf(Key category);
[[nodiscard]] const std::set<Key>& CategoryProperties(Key category);

/// A message pattern with its inserts filled in.
[[nodiscard]] std::string Fill(const std::string& pattern, const std::vector<std::string>& inserts);

/// The text with every "&" doubled.
[[nodiscard]] std::string Escape(const std::string& text);

} // namespace LibraryModel
