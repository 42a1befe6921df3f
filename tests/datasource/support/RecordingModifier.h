#pragma once

#include "host/style_model/IMultipleStyleModifier.h"
#include "tests/datasource/support/CallLog.h"

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

private:
    CallLog& log;
};
