#pragma once

#include "host/Export.h"
#include "reference_host/document/DocumentError.h"

namespace ReferenceHost
{

/// A file was left alone because replacing it would lose something that only the person can decide about:
/// what somebody else has changed meanwhile, its further names, its protection or its owner.
///
/// SaveOptions::force replaces it all the same: whoever catches this may ask, and save again.
class STYLEPROPERTIES_HOST_API OverwriteRefusal : public DocumentError
{
public:
    using DocumentError::DocumentError;
    OverwriteRefusal(const OverwriteRefusal&) = default;
    OverwriteRefusal& operator=(const OverwriteRefusal&) = default;
    ~OverwriteRefusal() override;
};

} // namespace ReferenceHost
