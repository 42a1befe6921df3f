#pragma once

#include "reference_host/document/Drawing.h"

#include <memory>
#include <string>
#include <vector>

/// A drawing that was opened, and what was reported on the way.
struct OpenedDrawing
{
    std::unique_ptr<ReferenceHost::Drawing> drawing;
    std::vector<std::string> warnings;

    /// The object with this id; null without it.
    [[nodiscard]] ReferenceHost::DrawingObject* Object(const std::wstring& id) const;

    /// The ids of all objects and groups in order.
    [[nodiscard]] std::vector<std::wstring> Ids() const;

    /// The named style; null without it.
    [[nodiscard]] Styles::Style* Named(const std::wstring& name) const;

    /// The name of a style's parent in the sheet; empty without one.
    [[nodiscard]] std::wstring ParentOf(const Styles::Style* style) const;
};

/// Writes a drawing to a file and opens it.
[[nodiscard]] OpenedDrawing OpenText(const std::string& text,
                                     const std::vector<ReferenceHost::PropertyMapping>& extensions = {});

/// Builds the text of a drawing out of the parts that a test is about.
class FlatDrawing
{
public:
    /// Adds to office:styles.
    FlatDrawing& Styles(const std::string& xml);

    /// Adds a named graphic style; `properties` are its child elements.
    FlatDrawing& Named(const std::string& attributes, const std::string& properties = "");

    /// Adds the default style of the graphic family.
    FlatDrawing& Defaults(const std::string& properties);

    /// Adds to office:automatic-styles.
    FlatDrawing& Automatic(const std::string& xml);

    /// Adds an automatic style of a family.
    FlatDrawing& Automatic(const std::string& family, const std::string& attributes,
                           const std::string& properties);

    /// Adds to office:font-face-decls.
    FlatDrawing& Fonts(const std::string& xml);

    /// Adds to office:meta.
    FlatDrawing& Meta(const std::string& xml);

    /// Adds a page with these shapes.
    FlatDrawing& Page(const std::string& shapes);

    /// The whole text.
    [[nodiscard]] std::string Text() const;

    /// The text as content.xml and as styles.xml of a package.
    [[nodiscard]] std::string ContentText() const;
    [[nodiscard]] std::string StylesText() const;

    /// Opens the drawing.
    [[nodiscard]] OpenedDrawing
    Open(const std::vector<ReferenceHost::PropertyMapping>& extensions = {}) const;

private:
    std::string fonts;
    std::string meta;
    std::string styles;
    std::string automatic;
    std::string pages;
};

/// What a style shows for "category.key": "#3366cc" (and "#3366cc@Sea" for a palette colour), "140", a choice
/// by its name, a text in quotes, and "-" for nothing.
[[nodiscard]] std::string EffectiveOf(const Styles::Style* style, const std::string& path);

/// The same, of what the style sets itself.
[[nodiscard]] std::string OwnOf(const Styles::Style* style, const std::string& path);

/// All that a style sets itself, as sorted "category.key=value" lines.
[[nodiscard]] std::vector<std::string> AllOwnOf(const Styles::Style* style);
