// What the module makes when it is loaded and destroys when it is unloaded: the dialog keys and the
// registered factory of the add-preset data source. Nothing here uses a constant of the host, whose order of
// initialisation is not ours.

#include "module/Constants.h"

#include "host/data_binding/DataSourceFactory.h"
#include "host/data_binding/IDataSourceRegistrar.h"
#include "presets/StylePresets.h"

const OvxStringT kFillDialogKey = L"494d1725-676f-484b-9453-fe7fb1958759";
const OvxStringT kOutlineDialogKey = L"0b965e6d-2a66-4c2f-a255-3f788991c9dc";
const OvxStringT kParagraphDialogKey = L"fb799669-a363-408d-bf0a-b2d3ea840de3";
const OvxStringT kCharacterDialogKey = L"ead5c24a-060b-44d8-acf5-1d8df2e00d17";
const OvxStringT kAddPresetDialogKey = L"0f6cfc84-8a1f-9182-4a02-21556f4ad8f8";

namespace
{

/// The factory with its registration; the factory's own destructor unregisters it.
struct RegisteredFactory
{
    RegisteredFactory() { IDataSourceRegistrar::GetInstance().RegisterFactory(&factory); }

    DataSourceFactory<StylePresets> factory{L"frame"};
};

const RegisteredFactory addPresetFactory;

} // namespace
