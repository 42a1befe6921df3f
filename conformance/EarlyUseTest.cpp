#include "conformance/HostTest.h"
#include "conformance/PrintedValues.h"
#include "conformance/Subjects.h"

#include "host/data_binding/DataSource.h"
#include "host/data_binding/DataSourceFactory.h"
#include "host/data_binding/IDataSourceRegistrar.h"

#include <gtest/gtest.h>

HOST_TESTS_SUBJECT(EarlyUseTest);

// What modules use while they are loaded, before anybody has started the host, and while they go, after its
// end.
namespace HostTests
{

namespace
{

class EarlyPanel : public DataSource<EarlyPanel, false>
{
};

/// Registers itself as the module is loaded; unregisters when the program ends, without any test at hand.
class EarlyFactory : public DataSourceFactory<EarlyPanel>
{
public:
    EarlyFactory() : DataSourceFactory<EarlyPanel>(L"frame")
    {
        IDataSourceRegistrar::GetInstance().RegisterFactory(this);
    }
};

const Styles::PropertyKey kEarlyKey = Key(L"HostTests.early");
EarlyFactory earlyFactory; // NOLINT(cert-err58-cpp): a failure here is a failure of the host

using EarlyUse = HostTest;

} // namespace

TEST_F(EarlyUse, GivesKeysThatHoldLater)
{
    EXPECT_EQ(kEarlyKey, Key(L"HostTests.early"));
    EXPECT_EQ(kEarlyKey.GetString(), L"HostTests.early");
}

TEST_F(EarlyUse, RegistersFactoriesThatAreFoundLater)
{
    EXPECT_EQ(IDataSourceRegistrar::GetInstance().FindFactory(earlyFactory.GetTypeKey()), &earlyFactory);
    EXPECT_NE(host->CreateDataSource(earlyFactory.GetTypeKey()), nullptr);
}

TEST_F(EarlyUse, OutlastsTheHost)
{
    host.reset();

    EXPECT_EQ(kEarlyKey, Key(L"HostTests.early"));
    EXPECT_EQ(IDataSourceRegistrar::GetInstance().FindFactory(earlyFactory.GetTypeKey()), &earlyFactory);
}

} // namespace HostTests
