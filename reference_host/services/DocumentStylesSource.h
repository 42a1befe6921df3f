#pragma once

#include "host/Export.h"
#include "host/style_model/IStylesSource.h"
#include "reference_host/services/IDocumentStyles.h"

namespace ReferenceHost
{

/// The style source of one open document.
///
/// Answers what is there. Drawings are read only, so every operation that would change the document leaves it
/// as it is and forgets what it was given.
class STYLEPROPERTIES_HOST_API DocumentStylesSource : public IStylesSource
{
public:
    /// `document` is borrowed and outlives this source.
    explicit DocumentStylesSource(IDocumentStyles& document) noexcept;
    DocumentStylesSource(const DocumentStylesSource&) = delete;
    DocumentStylesSource& operator=(const DocumentStylesSource&) = delete;
    virtual ~DocumentStylesSource();

    /// Sets the answer of ShouldIgnoreCharacterStyleSiblings, which is false at first.
    void SetIgnoreCharacterStyleSiblings(bool ignore) noexcept;

    Styles::StyleSheet* GetStyleSheet() override;

    /// Null: drawings have no sheets outside themselves.
    Styles::StyleSheet* GetExternalStyleSheet(const OvxStringT& sheetName) override;

    bool ShouldIgnoreCharacterStyleSiblings() override;

    /// Null: the default styles of a drawing have no names and lie in no sheet.
    Styles::StyleSheet* GetDefaultStyleSheet() override;

    std::vector<Styles::Style*> GetDefaultStyles() override;

    /// Null: nothing can be modified.
    IMultipleStyleModifier* GetMultipleStyleModifier() override;

    /// Writes nothing and calls nothing back.
    void ApplyToParent(std::function<void(const Styles::PropertyPaths&)> clear, Styles::Style* destination,
                       const Styles::PropertyPaths& paths, std::unique_ptr<Styles::Style> values) override;

    /// Replaces nothing.
    void ReplaceProperties(Styles::Style* style, const Styles::PropertyPaths& paths,
                           std::unique_ptr<Styles::Style> values, bool dropParent, bool reserved) override;

    /// Makes no style.
    void CreateStyle(const Styles::PropertyKey& category, const OvxStringT& name) override;

    /// Applies nothing.
    void ApplyStyle(Styles::Style* style, bool reserved) override;

    /// Leaves the parent as it is.
    void SetParent(Styles::Style* target, Styles::Style* parent, bool reserved) override;

    /// Applies nothing.
    void ApplyPresetToStyles(const OvxStringT& name, const OvxStringT& category,
                             const std::vector<Styles::Style*>& styles) override;

    /// Applies nothing.
    void ApplyPresetToObjects(const OvxStringT& name, const OvxStringT& category,
                              const std::vector<std::size_t>& objects) override;

    /// Gives each item the name of its preset as its text and its position as its index.
    void FillPresetItems(std::vector<Styles::PresetListEntry> entries, const OvxStringT& category) override;

    /// Opens nothing: there is nothing to be grouped.
    void BeginGroup() override;

    /// Closes nothing.
    void EndGroup(bool commit) override;

    /// Null: no transaction runs.
    Styles::IModifyStyleOverrides* GetTransactionOverrides() override;

private:
    IDocumentStyles& document;
    bool ignoreCharacterStyleSiblings = false;
};

} // namespace ReferenceHost
