#pragma once

#include "host/colour/CLR_COLORSPEC.h"
#include "host/utils/OvxStringT.h"
#include "reference_host/document/picture/Definitions.h"

#include <QColor>
#include <QImage>

#include <map>

namespace Desktop
{

/// What shapes are painted with beside plain colours: the definitions of a drawing, and its pictures decoded
/// when they are first seen. Borrows the definitions.
class PaintMaterials
{
public:
    explicit PaintMaterials(const ReferenceHost::Definitions& drawingDefinitions)
        : definitions(&drawingDefinitions)
    {
    }

    /// Each is null for an unknown name.
    [[nodiscard]] const ReferenceHost::GradientDefinition* FindGradient(const OvxStringT& name) const;
    [[nodiscard]] const ReferenceHost::GradientDefinition* FindOpacity(const OvxStringT& name) const;
    [[nodiscard]] const ReferenceHost::HatchDefinition* FindHatch(const OvxStringT& name) const;
    [[nodiscard]] const ReferenceHost::DashDefinition* FindDash(const OvxStringT& name) const;
    [[nodiscard]] const ReferenceHost::MarkerDefinition* FindMarker(const OvxStringT& name) const;

    /// A null image for an unknown name, and for a picture that cannot be decoded.
    [[nodiscard]] const QImage& FindBitmap(const OvxStringT& name);

    /// The picture that these bytes hold; a null image for none, and for one that cannot be decoded.
    [[nodiscard]] const QImage& Decode(const ReferenceHost::PictureBytes& bytes);

private:
    const ReferenceHost::Definitions* definitions;
    std::map<ReferenceHost::PictureBytes, QImage> decoded;
};

/// A colour that lets `transparency` percent through.
[[nodiscard]] QColor ColourOf(CLR_COLORSPEC::Rgb colour, int transparency = 0);

} // namespace Desktop
