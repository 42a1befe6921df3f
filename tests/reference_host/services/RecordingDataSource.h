#pragma once

#include "host/data_binding/DataSourceFactory.h"

#include <string>
#include <vector>

/// A data source that appends to a record when it is created and destroyed.
class RecordingDataSource : public DataSource<RecordingDataSource, false>
{
public:
    RecordingDataSource() { Record().emplace_back("created"); }

    ~RecordingDataSource() override
    {
        Record().emplace_back(GetDataContext() == nullptr ? "destroyed without context" : "destroyed");
    }

    /// What happened, in order, in the running test.
    static std::vector<std::string>& Record()
    {
        static std::vector<std::string> record;
        return record;
    }
};

/// The factory of RecordingDataSource, registered as long as it lives.
class RecordingFactory : public DataSourceFactory<RecordingDataSource>
{
public:
    RecordingFactory() : DataSourceFactory(L"frame")
    {
        RecordingDataSource::Record().clear();
        IDataSourceRegistrar::GetInstance().RegisterFactory(this);
    }
};
