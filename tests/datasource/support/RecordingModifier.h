#pragma once

#include "host/style_model/IMultipleStyleModifier.h"
#include "tests/datasource/support/CallLog.h"

#include <string>
#include <vector>

/// What one call of Modify was given, as people read it.
struct RecordedChange
{
    std::string targets;       ///< "[box, null]".
    std::string objects;       ///< "{box: 3}", ordered by the names of the styles.
    std::string paths;         ///< "[fill.color]", in order.
    std::string changeStyle;   ///< "fill{color=3}", or "null".
    std::string overridePaths; ///< As the paths.
    bool reserved = false;
    bool bound = false;
    std::string transactionOverrides; ///< A name, or "null".
};

/// A modifier that takes down every call with all its arguments and writes nothing.
class RecordingModifier final : public IMultipleStyleModifier
{
public:
    explicit RecordingModifier(CallLog& callLog) : log(callLog) {}

    void Begin() override;
    void End() override;
    void Modify(const std::vector<Styles::Style*>& targets,
                const std::map<Styles::Style*, std::size_t>& objects, const Styles::PropertyPaths& paths,
                std::unique_ptr<Styles::Style> changeStyle, const Styles::PropertyPaths& overridePaths,
                bool reserved, bool bound, Styles::IModifyStyleOverrides* transactionOverrides) override;

    /// The last change; one of nothing when none came.
    [[nodiscard]] RecordedChange Last() const { return changes.empty() ? RecordedChange() : changes.back(); }

    std::vector<RecordedChange> changes; ///< In the order in which they came.

private:
    CallLog& log;
};
