#pragma once

#include "host/data_binding/IDataContext.h"
#include "host/data_binding/IDataSource.h"
#include "host/data_binding/IDialogService.h"
#include "host/data_binding/IHostObject.h"
#include "host/style_model/IStyleApplicator.h"
#include "tests/datasource/support/CallLog.h"

#include <map>

/// Dialogs that are taken down and not shown.
class RecordingDialogs final : public IDialogService
{
public:
    explicit RecordingDialogs(CallLog& callLog) : log(callLog) {}

    void ShowDialog(const OvxStringT& key, IDataContext* context) override;
    void CloseDialog(const OvxStringT& key, int result, int reserved) override;

private:
    CallLog& log;
};

/// A host object that takes down the identifiers it is asked for, byte by byte.
class RecordingHostObject final : public IHostObject
{
public:
    explicit RecordingHostObject(CallLog& callLog) : log(callLog) {}

    void* Query(const InterfaceId& id) override;

    IStyleApplicator* applicator = nullptr; ///< Borrowed.
    std::uintptr_t applicatorNumber = 0;    ///< A whole pointer's worth of bits.

private:
    CallLog& log;
};

/// A data context that takes down what it is asked and answers what the test has set.
class RecordingContext final : public IDataContext
{
public:
    explicit RecordingContext(CallLog& callLog) : log(callLog) {}

    IHostObject* GetHostObject() override;
    IDataSource* GetDataSource(const OvxStringT& name) override;
    IDialogService* GetDialogService() override;

    IHostObject* hostObject = nullptr;              ///< Borrowed.
    std::map<OvxStringT, IDataSource*> dataSources; ///< By name; borrowed. Null for all others.
    IDialogService* dialogs = nullptr;              ///< Borrowed.

private:
    CallLog& log;
};
