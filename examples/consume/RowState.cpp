// The smallest use of the library: a panel of one's own, one style that inherits from another, and the
// picture that the panel shows beside a row, before and after the style gets a value of its own.

#include "datasource/BaseStylePropertiesDatasource.h"
#include "host/data_binding/DataSource.h"
#include "host/data_binding/DataSourceFactory.h"
#include "host/data_binding/ID_CString.h"
#include "host/style_model/CategoryNames.h"
#include "host/utils/Utf8.h"
#include "module/StylesCommon.h"
#include "reference_host/services/Application.h"

#include <iostream>

namespace
{

const Styles::PropertyPath kFillColor{
    Styles::FillStyleCategoryName, Styles::PropertyKey(Styles::PooledString<Styles::StringPool>(L"color"))};

class FillStates final : public BaseStylePropertiesDatasource, public DataSource<FillStates, true>
{
protected:
    [[nodiscard]] Styles::PropertyKey GetCategory() const override { return Styles::FillStyleCategoryName; }
};

void PrintPicture(BaseStylePropertiesDatasource& panel, const char* situation)
{
    const OvxUtils::Any question(ID_CString{L"color", {}});
    panel.WriteAny(L"PropertyIcon", question);
    std::cout << situation << ": " << OvxUtils::ToUtf8(question.Get<ID_CString>().result) << '\n';
}

} // namespace

int main()
{
    ReferenceHost::Application application;
    StylesCommon::GetInstance().Initialize(&application);

    Styles::Style base(nullptr, Styles::StyleCategoryName);
    Styles::Style shape(&base, Styles::StyleCategoryName);
    base.SetPathProperty(kFillColor, OvxUtils::Any(OvxStringT(L"blue")));

    DataSourceFactory<FillStates> factory(L"frame");
    auto& panel = dynamic_cast<FillStates&>(*factory.Create(nullptr));
    panel.SetTargetStyle({&shape}, false, Styles::PropertyKey::Empty, {});
    PrintPicture(panel, "from the parent");

    shape.SetPathProperty(kFillColor, OvxUtils::Any(OvxStringT(L"blue")));
    PrintPicture(panel, "of its own");

    panel.Destroy();
    StylesCommon::ReleaseInstance(true);
}
