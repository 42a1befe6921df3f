#include "conformance/PrintedValues.h"

#include "host/utils/Utf8.h"

void PrintTo(const OvxWideString& text, std::ostream* out)
{
    *out << '"' << OvxUtils::ToUtf8(text) << '"';
}

void PrintTo(const CLR_COLORSPEC& colour, std::ostream* out)
{
    const CLR_COLORSPEC::Rgb look = colour.ToRgb();
    *out << "colour of model " << colour.GetModel() << " that looks like " << int{look.red} << ' '
         << int{look.green} << ' ' << int{look.blue};
    if (!colour.GetResourceName().empty())
        *out << " and refers to " << OvxUtils::ToUtf8(colour.GetResourceName());
}

namespace Styles
{

void PrintTo(const PropertyKey& key, std::ostream* out)
{
    *out << OvxUtils::ToUtf8(key.GetString());
}

} // namespace Styles

namespace OvxUtils
{

void PrintTo(const Any& value, std::ostream* out)
{
    if (value.IsEmpty())
        *out << "nothing";
    else if (const int* const number = value.TryGet<int>())
        *out << *number;
    else if (const auto* const text = value.TryGet<OvxStringT>())
        PrintTo(*text, out);
    else if (const auto* const key = value.TryGet<Styles::PropertyKey>())
        PrintTo(*key, out);
    else if (const auto* const colour = value.TryGet<CLR_COLORSPEC>())
        PrintTo(*colour, out);
    else
        *out << "a value of type " << value.GetType().name();
}

} // namespace OvxUtils
