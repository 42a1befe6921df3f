#pragma once

#include "host/Export.h"
#include "host/style_model/IMultipleStyleModifier.h"
#include "host/style_model/IStylesSource.h"
#include "tiny_host/TinyPresets.h"
#include "tiny_host/TinySheet.h"

#include <deque>
#include <map>
#include <memory>
#include <vector>

namespace TinyHost
{

/// An open document in memory, which is its own style source: a sheet of named styles, one default style, and
/// objects that own a whole style each.
class STYLEPROPERTIES_HOST_API Document final : public IStylesSource, private IMultipleStyleModifier
{
public:
    /// `presetKeeper` is borrowed and outlives the document.
    explicit Document(Presets& presetKeeper);
    Document(const Document&) = delete;
    Document& operator=(const Document&) = delete;
    ~Document() override;

    /// Adds a named style behind the others.
    ///
    /// @returns the style; null when the name is empty or taken.
    Styles::Style* AddStyle(const Styles::PropertyKey& category, const OvxStringT& name);

    /// Adds an object whose style inherits from `parent`, which may be null.
    ///
    /// @returns its number, counted from 0, by which the library hands objects in.
    std::size_t AddObject(Styles::Style* parent);

    /// The whole style that an object owns; null for an unknown number.
    [[nodiscard]] Styles::Style* GetObjectStyle(std::size_t object);

    [[nodiscard]] Styles::Style& GetDefaultStyle() noexcept { return *defaultStyle; }

    /// Sets what CreateStyle and ApplyStyle are about: whole styles, borrowed until the next call.
    void Select(std::vector<Styles::Style*> styles);

    /// Adds a whole style to the sheet of that name outside the document. With an empty link it cannot be
    /// edited.
    Styles::Style* AddExternalStyle(const OvxStringT& sheetName, const OvxStringT& name,
                                    const OvxStringT& link);

    /// Tells what the presets of a preset category are about: applying one changes that substyle alone.
    /// Presets of other categories are applied whole.
    void SetPresetCategory(const OvxStringT& presetCategory, const Styles::PropertyKey& category);

    Styles::StyleSheet* GetStyleSheet() override { return &sheet; }

    Styles::StyleSheet* GetExternalStyleSheet(const OvxStringT& sheetName) override;

    bool ShouldIgnoreCharacterStyleSiblings() override { return false; }

    /// Null: the default style has no name.
    Styles::StyleSheet* GetDefaultStyleSheet() override { return nullptr; }

    std::vector<Styles::Style*> GetDefaultStyles() override { return {defaultStyle.get()}; }

    IMultipleStyleModifier* GetMultipleStyleModifier() override { return this; }

    void ApplyToParent(std::function<void(const Styles::PropertyPaths&)> clear, Styles::Style* destination,
                       const Styles::PropertyPaths& paths, std::unique_ptr<Styles::Style> values) override;
    void ReplaceProperties(Styles::Style* style, const Styles::PropertyPaths& paths,
                           std::unique_ptr<Styles::Style> values, bool dropParent, bool reserved) override;

    /// The new style takes over what the first selected one sets and inherits, and becomes its parent.
    void CreateStyle(const Styles::PropertyKey& category, const OvxStringT& name) override;
    void ApplyStyle(Styles::Style* style, bool reserved) override;
    void SetParent(Styles::Style* target, Styles::Style* parent, bool reserved) override;
    void ApplyPresetToStyles(const OvxStringT& name, const OvxStringT& category,
                             const std::vector<Styles::Style*>& styles) override;
    void ApplyPresetToObjects(const OvxStringT& name, const OvxStringT& category,
                              const std::vector<std::size_t>& objects) override;
    void FillPresetItems(std::vector<Styles::PresetListEntry> entries, const OvxStringT& category) override;
    void BeginGroup() override;
    void EndGroup(bool commit) override;

    /// Null: nothing here wants to know what a transaction overrides.
    Styles::IModifyStyleOverrides* GetTransactionOverrides() override { return nullptr; }

private:
    struct Image;

    void Begin() override;
    void End() override;
    void Modify(const std::vector<Styles::Style*>& targets,
                const std::map<Styles::Style*, std::size_t>& objects, const Styles::PropertyPaths& paths,
                std::unique_ptr<Styles::Style> changeStyle, const Styles::PropertyPaths& overridePaths,
                bool reserved, bool bound, Styles::IModifyStyleOverrides* transactionOverrides) override;

    [[nodiscard]] std::vector<Styles::Style*> CollectStyles();
    [[nodiscard]] bool MayInherit(const Styles::Style* style) const;

    Presets& presets;
    std::unique_ptr<Styles::Style> defaultStyle;
    Sheet sheet;
    std::map<OvxStringT, Sheet> externalSheets;
    std::deque<Styles::Style> objectStyles; ///< By the numbers of the objects.
    std::vector<Styles::Style*> selection;
    std::map<OvxStringT, Styles::PropertyKey> presetCategories;
    std::vector<Image> groups; ///< What the document was when each of the open groups began.
};

} // namespace TinyHost
