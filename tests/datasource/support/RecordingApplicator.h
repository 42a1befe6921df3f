#pragma once

#include "host/style_model/IStyleApplicator.h"
#include "tests/datasource/support/CallLog.h"

/// A style applicator that takes down every call with all its arguments and writes nothing.
class RecordingApplicator final : public IStyleApplicator
{
public:
    explicit RecordingApplicator(CallLog& callLog) : log(callLog) {}

    void AttachDataSource(int id, BaseStylePropertiesDatasource* dataSource) override;
    void ModifyStyles(int id, const Styles::PropertyPaths& paths, Styles::Style* changeStyle,
                      const Styles::PropertyPaths* overridePaths, bool toDefaultStyles) override;
    Styles::PropertyPath GetTargetPath(int id) override;

    Styles::PropertyPath targetPath; ///< The answer of GetTargetPath.

private:
    CallLog& log;
};
