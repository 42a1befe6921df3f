#pragma once

#include "reference_host/document/picture/Geometry.h"

#include <string>

/// A contour as "M0,0 L10,0 C1,2 3,4 5,6 Z", numbers rounded to hundredths.
[[nodiscard]] std::string TextOf(const ReferenceHost::Contour& contour);

/// A point as "1,2", rounded likewise.
[[nodiscard]] std::string TextOf(ReferenceHost::Point point);

/// A box as "left,top width x height", rounded likewise.
[[nodiscard]] std::string TextOf(const ReferenceHost::Box& box);
