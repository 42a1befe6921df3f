#pragma once

#include "host/style_model/PropertyKey.h"
#include "host/style_model/Style.h"

#include <memory>

namespace ReferenceHost
{

/// Which substyle stood under one name of a style at one moment. One that has been taken out since is kept
/// here, alive and under its old address.
class SubstylePlace
{
public:
    /// `itsOwner` is borrowed, and lives whenever the place is used. `standing` is null where nothing stood.
    SubstylePlace(Styles::Style& itsOwner, const Styles::PropertyKey& itsKey,
                  std::unique_ptr<Styles::Style> standing);

    [[nodiscard]] Styles::Style& GetOwner() const noexcept { return *owner; }

    /// The substyle that stood there, while it is kept here; null otherwise.
    [[nodiscard]] const std::unique_ptr<Styles::Style>& GetKept() const noexcept { return kept; }

    /// Tells whether anything is lost or gained by what stands there now: substyles without values and
    /// parents at any depth count as nothing.
    [[nodiscard]] bool DiffersFromNow() const;

    /// Puts back what stood there, and keeps what has stood there until now.
    void Exchange();

private:
    Styles::Style* owner;
    Styles::PropertyKey key;
    std::unique_ptr<Styles::Style> kept;
};

/// Tells whether a style, or a substyle of it at any depth, sets anything or has a parent.
[[nodiscard]] bool HasContent(const Styles::Style& style);

} // namespace ReferenceHost
