#pragma once

#include "host/data_binding/IDataSource.h"
#include "host/style_model/IStylesCollectionEditor.h"
#include "tests/datasource/support/CallLog.h"

/// A data source without anything of its own.
class PlainDataSource : public IDataSource
{
public:
    [[nodiscard]] IDataContext* GetDataContext() const override { return nullptr; }

    void SetDataSourceProvider(IDataContext*) override {}

    void Destroy() override {}
};

/// A data source that opens named styles for editing: takes down which, and opens none.
class RecordingStylesEditor final : public PlainDataSource, public IStylesCollectionEditor
{
public:
    explicit RecordingStylesEditor(CallLog& callLog) : log(callLog) {}

    void EditStyle(const OvxStringT& name, bool select, bool show) override;

private:
    CallLog& log;
};
