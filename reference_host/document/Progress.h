#pragma once

#include "host/Export.h"

#include <exception>
#include <functional>

namespace ReferenceHost
{

/// What is being done while a drawing is opened, looked at or saved.
enum class ProgressPhase
{
    Reading,     ///< The bytes come from disk.
    Unpacking,   ///< The entries of a package are unpacked.
    Checking,    ///< The XML is gone over, so that it can be trusted.
    Parsing,     ///< The tree of the XML is built. Cannot be stopped before it is done.
    Styles,      ///< The styles are read.
    StyleSheets, ///< The style sheets outside the drawing are read or saved.
    Shapes,      ///< The shapes and their texts are read.
    Picture,     ///< What the drawing looks like is read.
    Comparing,   ///< What was changed is found out.
    Composing,   ///< The bytes of the file are put together.
    Packing,     ///< The entries of a package are packed.
    Writing      ///< The bytes go to disk, into a file beside the one that they will replace.
};

/// How far an operation is.
struct Progress
{
    ProgressPhase phase = ProgressPhase::Reading;
    double fraction = 0; ///< Of the whole operation, from 0 to 1; never less than before.
};

/// Whether an operation shall go on.
enum class ProgressAnswer
{
    GoOn,
    Stop ///< The operation throws OperationCancelled from where it is.
};

/// Is told how far an operation is; an empty one is told nothing.
///
/// It is told at each change of phase, within a phase whenever about one part in 250 of the whole was done,
/// and at the end with the fraction 1: at most some 300 times, however large the drawing. That at the end
/// comes while the operation can still be stopped; nothing is told afterwards. It is called on the thread of
/// the operation and must leave the drawing in question alone. What it throws goes on to whoever began the
/// operation, which is then stopped as if it were cancelled.
using ProgressListener = std::function<ProgressAnswer(const Progress& progress)>;

/// An operation that was stopped because its listener asked for that. No failure and no DocumentError:
/// whoever catches those lets it pass.
///
/// Nothing is left behind: what was being opened is gone, what was being saved has changed neither on disk
/// nor in memory. Lines that were added to a list of warnings stay there.
class STYLEPROPERTIES_HOST_API OperationCancelled : public std::exception
{
public:
    OperationCancelled() = default;
    OperationCancelled(const OperationCancelled&) = default;
    OperationCancelled& operator=(const OperationCancelled&) = default;
    ~OperationCancelled() override;

    [[nodiscard]] const char* what() const noexcept override;
};

} // namespace ReferenceHost
