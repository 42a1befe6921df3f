#pragma once

#include "host/Export.h"
#include "host/style_model/IStylesSource.h"
#include "reference_host/services/IDocumentStyles.h"

#include <cstddef>
#include <map>
#include <memory>
#include <vector>

namespace ReferenceHost
{

class DocumentStyleModifier;
class PresetManager;
class TransactionOverrides;

/// The style source of one open document.
///
/// What it writes goes to the document's history: each operation is one named step, or part of the step that
/// is open. What is refused changes nothing and leaves no step: styles of sheets outside the document without
/// a link, parents for such styles that lie in no other place than they do, default styles as parents or with
/// one, and parents that would close a cycle. A document without an editor is not changed at all.
///
/// After each step that is recorded, undone or redone it raises "StylePropertiesChange" on idle, once, unless
/// the step has changed default styles only: who writes those announces it.
class STYLEPROPERTIES_HOST_API DocumentStylesSource : public IStylesSource
{
public:
    /// `openDocument` is borrowed and outlives this source, which is the listener of its history.
    explicit DocumentStylesSource(IDocumentStyles& openDocument);
    DocumentStylesSource(const DocumentStylesSource&) = delete;
    DocumentStylesSource& operator=(const DocumentStylesSource&) = delete;
    virtual ~DocumentStylesSource();

    /// Sets the answer of ShouldIgnoreCharacterStyleSiblings, which is false at first.
    void SetIgnoreCharacterStyleSiblings(bool ignore) noexcept;

    /// Tells what CreateStyle and ApplyStyle are about: the whole styles of the selected objects, or the
    /// named style that is selected. Borrowed until the next call; none at first.
    void SetSelectedStyles(std::vector<Styles::Style*> styles);

    /// Sets where presets are taken from; borrowed, null for nowhere, as at first.
    void SetPresetKeeper(PresetManager* newKeeper) noexcept { keeper = newKeeper; }

    /// Tells which category the presets of a preset category are about: applying one changes that substyle
    /// alone.
    void SetPresetCategory(const OvxStringT& presetCategory, const Styles::PropertyKey& category);

    Styles::StyleSheet* GetStyleSheet() override;

    /// As the document answers; null without a sheet of that name.
    Styles::StyleSheet* GetExternalStyleSheet(const OvxStringT& sheetName) override;

    bool ShouldIgnoreCharacterStyleSiblings() override;

    /// Null: the default styles of a drawing have no names and lie in no sheet.
    Styles::StyleSheet* GetDefaultStyleSheet() override;

    std::vector<Styles::Style*> GetDefaultStyles() override;

    /// Null for a document without an editor.
    IMultipleStyleModifier* GetMultipleStyleModifier() override;

    /// Writes the values, then calls `clear`. When it throws, nothing has happened. A null destination, null
    /// values and an empty callback are refused.
    void ApplyToParent(std::function<void(const Styles::PropertyPaths&)> clear, Styles::Style* destination,
                       const Styles::PropertyPaths& paths, std::unique_ptr<Styles::Style> values) override;

    /// Writes the values; with `dropParent` the style has no parent afterwards. Null is refused.
    void ReplaceProperties(Styles::Style* style, const Styles::PropertyPaths& paths,
                           std::unique_ptr<Styles::Style> values, bool dropParent, bool reserved) override;

    /// Makes a named style out of what the first selected style sets, which inherits it from then on, as do
    /// the other selected ones that set the same. Of a category other than "style" the substyle of that
    /// category is meant. Without a selection the style is empty. A name that is empty or taken is refused,
    /// and so is a selection with a style of a sheet outside the document, which could not inherit from the
    /// new one.
    void CreateStyle(const Styles::PropertyKey& category, const OvxStringT& name) override;

    /// Makes the style the parent of each selected style, or of its substyle when the style is of one
    /// category.
    void ApplyStyle(Styles::Style* style, bool reserved) override;

    /// Null clears the parent. A parent of one category becomes that of the substyle of a whole style.
    void SetParent(Styles::Style* target, Styles::Style* parent, bool reserved) override;

    /// Gives each style, or its substyle of the category that the presets are about, what the preset sets;
    /// the category's other properties are inherited from then on. A preset that is not there, and a preset
    /// category that nobody told about, change nothing.
    void ApplyPresetToStyles(const OvxStringT& name, const OvxStringT& category,
                             const std::vector<Styles::Style*>& styles) override;

    /// The same for the styles of objects.
    void ApplyPresetToObjects(const OvxStringT& name, const OvxStringT& category,
                              const std::vector<std::size_t>& objects) override;

    /// Gives each item the name of its preset as its text, its position as its index, and a PresetPicture
    /// where the preset can be read.
    void FillPresetItems(std::vector<Styles::PresetListEntry> entries, const OvxStringT& category) override;

    /// Opens a step of history, or one within that which is open. Groups nest.
    void BeginGroup() override;

    /// Closes the group that was begun last, or takes back what was written since; without one it does
    /// nothing.
    void EndGroup(bool commit) override;

    /// What was written to objects since the outermost open group began; null without one.
    Styles::IModifyStyleOverrides* GetTransactionOverrides() override;

private:
    [[nodiscard]] bool IsDefault(const Styles::Style& style) const;
    [[nodiscard]] bool MayInherit(const Styles::Style* style) const;

    IDocumentStyles& document;
    IDocumentEditor* editor;                         ///< Of the document; null when it cannot be changed.
    std::unique_ptr<DocumentStyleModifier> modifier; ///< Null without an editor.
    PresetManager* keeper = nullptr;                 ///< Borrowed; may be null.
    std::map<OvxStringT, Styles::PropertyKey> presetCategories;
    std::vector<Styles::Style*> selectedStyles;
    std::size_t groupCount = 0;                      ///< Groups that were begun and not ended.
    std::unique_ptr<TransactionOverrides> overrides; ///< Null while no group is open.
    bool ignoreCharacterStyleSiblings = false;
};

} // namespace ReferenceHost
