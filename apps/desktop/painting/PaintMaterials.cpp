#include "apps/desktop/painting/PaintMaterials.h"

#include <QByteArray>

#include <algorithm>
#include <cstddef>
#include <limits>

namespace Desktop
{
namespace
{

template <class Type>
const Type* FindIn(const std::map<OvxStringT, Type>& all, const OvxStringT& name)
{
    const auto found = all.find(name);
    return found == all.end() ? nullptr : &found->second;
}

} // namespace

const ReferenceHost::GradientDefinition* PaintMaterials::FindGradient(const OvxStringT& name) const
{
    return FindIn(definitions->gradients, name);
}

const ReferenceHost::GradientDefinition* PaintMaterials::FindOpacity(const OvxStringT& name) const
{
    return FindIn(definitions->opacities, name);
}

const ReferenceHost::HatchDefinition* PaintMaterials::FindHatch(const OvxStringT& name) const
{
    return FindIn(definitions->hatches, name);
}

const ReferenceHost::DashDefinition* PaintMaterials::FindDash(const OvxStringT& name) const
{
    return FindIn(definitions->dashes, name);
}

const ReferenceHost::MarkerDefinition* PaintMaterials::FindMarker(const OvxStringT& name) const
{
    return FindIn(definitions->markers, name);
}

const QImage& PaintMaterials::FindBitmap(const OvxStringT& name)
{
    const ReferenceHost::PictureBytes* const bytes = FindIn(definitions->bitmaps, name);
    return Decode(bytes == nullptr ? nullptr : *bytes);
}

const QImage& PaintMaterials::Decode(const ReferenceHost::PictureBytes& bytes)
{
    const auto [place, isNew] = decoded.try_emplace(bytes);
    if (isNew && bytes != nullptr &&
        bytes->size() <= static_cast<std::size_t>(std::numeric_limits<int>::max()))
        place->second =
            QImage::fromData(reinterpret_cast<const uchar*>(bytes->data()), static_cast<int>(bytes->size()));
    return place->second;
}

QColor ColourOf(CLR_COLORSPEC::Rgb colour, int transparency)
{
    QColor result(colour.red, colour.green, colour.blue);
    result.setAlphaF(static_cast<float>(100 - std::clamp(transparency, 0, 100)) / 100.0F);
    return result;
}

} // namespace Desktop
