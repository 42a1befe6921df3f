#pragma once

#include "host/data_binding/DataSource.h"
#include "host/data_binding/IDataContext.h"
#include "host/data_binding/IDataSourceFactory.h"
#include "host/data_binding/IDataSourceRegistrar.h"
#include "host/data_binding/TypeName.h"
#include "host/utils/Utf8.h"

#include <memory>
#include <utility>

/// Makes data sources of the class `T`, a DataSource with a default constructor.
///
/// One static object for each class: whoever makes it registers it; its destruction unregisters it.
template <class T>
class DataSourceFactory : public IDataSourceFactory
{
public:
    /// `scope` is what GetScopeName() answers.
    explicit DataSourceFactory(OvxStringT scope) : scopeName(std::move(scope)) {}

    DataSourceFactory(const DataSourceFactory&) = delete;
    DataSourceFactory& operator=(const DataSourceFactory&) = delete;

    ~DataSourceFactory() override { IDataSourceRegistrar::GetInstance().UnregisterFactory(this); }

    [[nodiscard]] OvxStringT GetTypeKey() const override
    {
        static const OvxStringT key = OvxUtils::FromUtf8(TypeName<T>());
        return key;
    }

    IDataSource* Create(IDataContext* provider) override
    {
        auto created = std::make_unique<T>();
        created->SetDataSourceProvider(provider);
        created->FinishConstruction();
        return created.release();
    }

    IDataSource* Find(IDataContext* provider) override
    {
        return provider == nullptr ? nullptr : provider->GetDataSource(GetTypeKey());
    }

    [[nodiscard]] int GetKind() const override { return 2; }

    [[nodiscard]] OvxStringT GetScopeName() const override { return scopeName; }

private:
    OvxStringT scopeName;
};
