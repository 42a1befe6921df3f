#pragma once

#include "apps/workbench/DrawingStyles.h"
#include "bench/style_list/NamedStyles.h"
#include "datasource/BaseStylePropertiesDatasource.h"
#include "host/data_binding/DataSource.h"
#include "host/style_model/CategoryNames.h"
#include "reference_host/document/Drawing.h"
#include "reference_host/services/DocumentStylesSource.h"

#include <memory>

namespace Bench
{

/// A panel of whole styles.
class WholeStylePanel final : public BaseStylePropertiesDatasource, public DataSource<WholeStylePanel, true>
{
public:
    void FillDataSourceMap() {}

    using BaseStylePropertiesDatasource::GetNewStyleList;
    using BaseStylePropertiesDatasource::GetStyleResourceList;

protected:
    [[nodiscard]] Styles::PropertyKey GetCategory() const override { return Styles::StyleCategoryName; }
};

/// The lists of a panel of the library that edits a named style of a drawing. The drawing is the active one
/// of the application for as long as this lives.
class LibraryStyleList
{
public:
    explicit LibraryStyleList(const NamedStyles& styles);
    LibraryStyleList(const LibraryStyleList&) = delete;
    LibraryStyleList& operator=(const LibraryStyleList&) = delete;
    ~LibraryStyleList();

    /// Makes the list of the styles that may become the parent, and reads the rows that it shows.
    double Open();

    /// Makes the same list and that of the further styles, and reads the rows of both.
    double OpenWhole();

private:
    void ReadMain(RowSum& sum);

    std::unique_ptr<ReferenceHost::Drawing> drawing;
    Workbench::DrawingStyles styles;
    ReferenceHost::DocumentStylesSource source;
    WholeStylePanel panel;
};

} // namespace Bench
