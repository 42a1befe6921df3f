// A program with a host of its own: one document, one object that inherits from a named style, and a panel on
// it. Prints what the panel shows of two rows at first, after a value was written, and after it was reverted.

#include "datasource/BaseStylePropertiesDatasource.h"
#include "host/data_binding/DataSource.h"
#include "host/data_binding/DataSourceFactory.h"
#include "host/data_binding/ID_CString.h"
#include "host/style_model/CategoryNames.h"
#include "host/utils/Utf8.h"
#include "module/StylesCommon.h"
#include "tiny_host/TinyApplication.h"

#include <iostream>

namespace
{

using Styles::PropertyKey;

PropertyKey Key(const wchar_t* name)
{
    return Styles::PooledString<Styles::StringPool>(name);
}

/// The panel: of the fill category, with a row that can be written.
class DemoPanel final : public BaseStylePropertiesDatasource, public DataSource<DemoPanel, true>
{
public:
    void SetWidth(int width) { WriteTarget(Key(L"width"), OvxUtils::Any(width), nullptr, nullptr); }

protected:
    [[nodiscard]] PropertyKey GetCategory() const override { return Styles::FillStyleCategoryName; }
};

void PrintRow(DemoPanel& panel, const Styles::Style& style, const wchar_t* row)
{
    const OvxUtils::Any question(ID_CString{row, {}});
    panel.WriteAny(L"PropertyTooltip", question);
    const OvxUtils::Any& value = style.GetPathProperty({Styles::FillStyleCategoryName, Key(row)});
    std::cout << "  " << OvxUtils::ToUtf8(row) << ' ' << value.Get<int>() << " ("
              << OvxUtils::ToUtf8(question.Get<ID_CString>().result) << ")\n";
}

void Print(DemoPanel& panel, const Styles::Style& style, const char* moment)
{
    std::cout << moment << '\n';
    PrintRow(panel, style, L"width");
    PrintRow(panel, style, L"height");
}

} // namespace

int main()
{
    TinyHost::Application application;
    TinyHost::Document document(application.GetPresets());
    application.SetActiveDocument(&document);
    StylesCommon::GetInstance().Initialize(&application);

    Styles::Style* const named = document.AddStyle(Styles::StyleCategoryName, L"Plain");
    named->SetPathProperty({Styles::FillStyleCategoryName, Key(L"width")}, OvxUtils::Any(100));
    named->SetPathProperty({Styles::FillStyleCategoryName, Key(L"height")}, OvxUtils::Any(50));
    const std::size_t object = document.AddObject(named);
    Styles::Style* const style = document.GetObjectStyle(object);

    DataSourceFactory<DemoPanel> factory(L"frame");
    IDataSourceRegistrar::GetInstance().RegisterFactory(&factory);
    auto& panel = dynamic_cast<DemoPanel&>(*application.GetContext().Create(factory.GetTypeKey()));
    panel.SetTargetStyle({style}, false, PropertyKey::Empty, {});
    std::cout << OvxUtils::ToUtf8(panel.Read<OvxStringT>(L"SectionTitle")) << '\n';
    Print(panel, *style, "at first");

    panel.SetWidth(7);
    Print(panel, *style, "after a width was written");

    panel.Write<OvxStringT>(L"ActiveIdentifier", L"width");
    panel.Invoke(L"OnRevertToParent");
    Print(panel, *style, "after it was reverted");

    TinyHost::Application::RunIdle();
    panel.Destroy();
    StylesCommon::ReleaseInstance(true);
}
