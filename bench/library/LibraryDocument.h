#pragma once

#include "apps/workbench/DrawingStyles.h"
#include "bench/library/StylePanel.h"
#include "bench/workload/StyleTree.h"
#include "host/style_model/PropertyKey.h"
#include "host/style_model/Style.h"
#include "reference_host/document/Drawing.h"
#include "reference_host/history/History.h"
#include "reference_host/services/DocumentStylesSource.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace Bench
{

/// The active document: a drawing whose shapes have the styles of a tree, with a panel of its fills.
///
/// The 40 properties are a panel's own, kept in the fill of every style.
class LibraryDocument
{
public:
    explicit LibraryDocument(const StyleTree& tree);
    LibraryDocument(const LibraryDocument&) = delete;
    LibraryDocument& operator=(const LibraryDocument&) = delete;
    ~LibraryDocument();

    [[nodiscard]] StylePanel& GetPanel() noexcept { return panel; }

    [[nodiscard]] ReferenceHost::History& GetHistory() noexcept { return drawing->GetHistory(); }

    /// Hands all shapes in to the panel.
    void SelectObjects();

    /// Hands the default styles in to the panel.
    void SelectDefaults();

    /// Makes a step of history that concerns the default style alone.
    void ChangeDefault();

    /// How many shapes there are.
    [[nodiscard]] std::size_t CountObjects() const noexcept { return objects.size(); }

    /// What the fill of a shape shows; 0 for nothing.
    [[nodiscard]] int GetValue(std::size_t object, const Styles::PropertyKey& key) const;

    /// What the fill of the default style shows; 0 for nothing.
    [[nodiscard]] int GetDefault(const Styles::PropertyKey& key);

    /// The keys of the properties, by their numbers.
    [[nodiscard]] const std::vector<Styles::PropertyKey>& Keys() const noexcept { return keys; }

private:
    std::vector<Styles::PropertyKey> keys;
    std::unique_ptr<ReferenceHost::Drawing> drawing; ///< Never null.
    Workbench::DrawingStyles styles;
    ReferenceHost::DocumentStylesSource source;
    StylePanel panel;
    std::vector<Styles::Style*> objects; ///< The whole styles of the shapes; owned by the drawing.
};

} // namespace Bench
