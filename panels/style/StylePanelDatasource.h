#pragma once

#include "host/data_binding/DataSource.h"
#include "panels/PanelDatasource.h"

/// The style panel: the named style that the targets inherit from, and the targets' style as a whole.
///
/// Its one row has the identifier "style", so that the commands on the row are about everything that the
/// targets set themselves. The row's value is the name of the target's parent in the sheet, which the target
/// sets itself: its origin is "local", and nothing can be inherited in its place, nor applied to a parent.
/// The state of the row is not that of the parent's name but that of the whole style.
///
/// Writing the row gives the targets another parent. A name that the sheet does not hold, and for the default
/// styles any name, changes nothing; a parent that would close a cycle is refused by the style source.
class StylePanelDatasource final : public Panels::PanelDatasource,
                                   public DataSource<StylePanelDatasource, true>
{
public:
    /// Binds the row of the panel. Called once by the framework.
    void FillDataSourceMap();

protected:
    [[nodiscard]] Styles::PropertyKey GetCategory() const override;

    /// The full paths of the properties of the fill, outline, paragraph and character substyles that `style`
    /// has, in this order and in key order within each: a whole style has no properties but these.
    [[nodiscard]] Styles::PropertyPaths GetStyleCategoryProperties(Styles::Style* style) const override;

    /// The name of the parent, an OvxStringT; empty without a parent, and for one without a name.
    [[nodiscard]] OvxUtils::Any ReadValue(Styles::Style& categoryStyle,
                                          const Styles::PropertyPath& path) const override;

    /// Local where there is a value.
    [[nodiscard]] Panels::ValueOrigin ReadOrigin(Styles::Style& categoryStyle,
                                                 const Styles::PropertyPath& path) const override;

    /// Always empty.
    [[nodiscard]] OvxUtils::Any ReadParentValue(Styles::Style& categoryStyle,
                                                const Styles::PropertyPath& path) const override;

    /// Makes the style of the name `value` the parent of the targets. With an empty value or name, those that
    /// have a parent lose it and keep what they show.
    ///
    /// @throws std::bad_cast when `value` is neither empty nor a text.
    void WriteValue(const Styles::PropertyPath& path, const OvxUtils::Any& value) override;

    /// Always null.
    [[nodiscard]] Styles::Style* FindApplyDestination(const Styles::Style& categoryStyle) const override;

private:
    void SetParents(IStylesSource& source, Styles::Style& parent);
    void RemoveParents(IStylesSource& source);
};
