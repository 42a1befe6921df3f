// A program that links the library and the host library, uses what the library makes on first use, and ends.
// Built with the two in either order, because the order decides which of them is torn down first.

#include "host/data_binding/IDataSourceRegistrar.h"
#include "host/style_model/IStylesSourceApp.h"
#include "module/StylesCommon.h"

int main()
{
    const bool fresh = StylesCommon::GetApp() == nullptr;
    static_cast<void>(StylesCommon::StylesApp().GetStylePresetManager());
    // Named here, because linkers leave out a library that the program itself does not ask for anything.
    const bool registered = IDataSourceRegistrar::GetInstance().FindFactory(L"StylePresets") != nullptr;
    return fresh && registered && StylesCommon::HasInstance() ? 0 : 1;
}
