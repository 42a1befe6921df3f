#include "apps/desktop/rows/StateIcon.h"

#include "apps/desktop/VectorIcon.h"
#include "apps/desktop/WindowText.h"

#include <algorithm>
#include <iterator>

namespace Desktop
{
namespace
{

struct StatePicture
{
    const char* image;
    const char* icon;
};

constexpr StatePicture kPictures[] = {{"NoneImage", "none"},
                                      {"OverriddenImage", "overridden"},
                                      {"InheritedImage", "inherited"},
                                      {"AmbiguousImage", "ambiguous"}};

} // namespace

QIcon MakeStateIcon(const OvxStringT& image)
{
    const QString name = ToQString(image);
    const auto* found =
        std::find_if(std::begin(kPictures), std::end(kPictures),
                     [&](const StatePicture& picture) { return name == QLatin1String(picture.image); });
    if (found == std::end(kPictures))
        found = std::begin(kPictures);
    return MakeVectorIcon(QLatin1String(found->icon));
}

} // namespace Desktop
