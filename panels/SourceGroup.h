#pragma once

#include "host/style_model/IStylesSource.h"

#include <utility>

namespace Panels
{

/// Makes everything that is written while it lives one change of a style source.
///
/// What was written is taken back at its end, unless Commit() came before.
class SourceGroup
{
public:
    /// `itsSource` is borrowed.
    explicit SourceGroup(IStylesSource& itsSource) : source(&itsSource) { source->BeginGroup(); }

    SourceGroup(const SourceGroup&) = delete;
    SourceGroup& operator=(const SourceGroup&) = delete;

    ~SourceGroup()
    {
        if (source != nullptr)
            source->EndGroup(false);
    }

    /// Closes the group and keeps what was written. Once.
    void Commit() { std::exchange(source, nullptr)->EndGroup(true); }

private:
    IStylesSource* source; ///< Null after Commit().
};

} // namespace Panels
