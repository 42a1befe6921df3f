#include "host/colour/CLR_COLORSPEC.h"
#include "host/style_model/PropertyKey.h"
#include "host/utils/Any.h"
#include "host/utils/OvxStringT.h"

// The values that styles hold outlive the module that stored them: what an Any calls for them must be code of
// the host library, which stays loaded.
namespace OvxUtils
{

template STYLEPROPERTIES_HOST_API const AnyOperations* OperationsOf<int>();
template STYLEPROPERTIES_HOST_API const AnyOperations* OperationsOf<OvxWideString>();
template STYLEPROPERTIES_HOST_API const AnyOperations* OperationsOf<Styles::PropertyKey>();
template STYLEPROPERTIES_HOST_API const AnyOperations* OperationsOf<CLR_COLORSPEC>();

} // namespace OvxUtils
