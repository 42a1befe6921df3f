// A loadable module that uses the library and hides nothing: it exports the type information that its
// compiler makes for what it mentions, as the module of a stranger may. The types are those of setters that
// the library binds, and which no host mentions.

#include "host/ui_list/WCmnUI_ListItem.h"
#include "host/xml/WXmlNode.h"
#include "module/StylesCommon.h"

#include <typeinfo>

extern "C" __attribute__((visibility("default"))) const std::type_info* GetTypeOfExportingModule();

const std::type_info* GetTypeOfExportingModule()
{
    return StylesCommon::HasInstance() ? &typeid(void(const WXmlNode&))
                                       : &typeid(void(const WCmnUI_ListItem&));
}
