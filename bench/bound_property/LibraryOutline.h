#pragma once

#include "bench/bound_property/OutlineRow.h"
#include "datasource/BaseStylePropertiesDatasource.h"
#include "host/data_binding/DataSource.h"
#include "host/style_model/CategoryNames.h"
#include "host/utils/OvxStringT.h"
#include "host/utils/RepeatingCallback.h"
#include "host/utils/RepeatingCallbackMemento.h"

#include <array>

namespace Bench
{

/// A panel of the library whose rows are numbers, behind the names that every panel has.
class OutlinePanel final : public BaseStylePropertiesDatasource, public DataSource<OutlinePanel, true>
{
public:
    void FillDataSourceMap();

protected:
    [[nodiscard]] Styles::PropertyKey GetCategory() const override
    {
        return Styles::OutlineStyleCategoryName;
    }

private:
    std::array<int, kOutlineRows.size()> values{};
};

/// Reads and writes the width by its bound name: with the calls looked up once, as a control keeps them for
/// as long as it shows a panel, or by the text.
class LibraryOutline
{
public:
    LibraryOutline();

    [[nodiscard]] int ReadResolved() const { return (*read)(); }

    [[nodiscard]] int ReadByText() const { return panel.Read<int>(name); }

    void WriteResolved(int value) { (*write)(value); }

    void WriteByText(int value) { panel.Write<int>(name, value); }

private:
    OutlinePanel panel;
    OvxStringT name;
    OvxUtils::RepeatingCallbackMemento getter; ///< Keeps what `read` points to.
    OvxUtils::RepeatingCallbackMemento setter; ///< Keeps what `write` points to.
    const OvxUtils::RepeatingCallback<int()>* read;
    const OvxUtils::RepeatingCallback<void(const int&)>* write;
};

} // namespace Bench
