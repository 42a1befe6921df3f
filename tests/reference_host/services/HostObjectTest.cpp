#include "reference_host/services/HostObject.h"

#include <gtest/gtest.h>

#include <cstdint>

using ReferenceHost::HostObject;

namespace
{

constexpr InterfaceId kApplicator{
    {0x41, 0x1b, 0x2c, 0x4b, 0xae, 0x74, 0x84, 0xe8, 0x45, 0xee, 0x48, 0x59, 0x32, 0xc8, 0x40, 0xf8}};
constexpr InterfaceId kApplicatorNumber{
    {0x4b, 0xc7, 0x8b, 0x18, 0x6a, 0x43, 0xa9, 0x59, 0x47, 0xc7, 0xd4, 0x73, 0x69, 0xc0, 0xb8, 0xb5}};

class NoApplicator final : public IStyleApplicator
{
public:
    void AttachDataSource(int /*id*/, BaseStylePropertiesDatasource* /*dataSource*/) override {}

    void ModifyStyles(int /*id*/, const Styles::PropertyPaths& /*paths*/, Styles::Style* /*changeStyle*/,
                      const Styles::PropertyPaths* /*overridePaths*/, bool /*toDefaultStyles*/) override
    {
    }

    Styles::PropertyPath GetTargetPath(int /*id*/) override { return {}; }
};

std::int32_t NumberIn(void* answer)
{
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(answer)));
}

} // namespace

TEST(HostObjectQuery, IsAnsweredWithTheApplicatorAndItsNumber)
{
    NoApplicator applicator;
    HostObject host;

    host.SetStyleApplicator(&applicator, -5);

    EXPECT_EQ(static_cast<IStyleApplicator*>(host.Query(kApplicator)), &applicator);
    EXPECT_EQ(NumberIn(host.Query(kApplicatorNumber)), -5);
}

TEST(HostObjectQuery, IsAnsweredWithNothingWithoutAnApplicator)
{
    HostObject host;

    EXPECT_EQ(host.Query(kApplicator), nullptr);
    EXPECT_EQ(host.Query(kApplicatorNumber), nullptr);
}

TEST(HostObjectQuery, IsAnsweredWithNothingForAnUnknownIdentifier)
{
    NoApplicator applicator;
    HostObject host;
    host.SetStyleApplicator(&applicator, 1);

    EXPECT_EQ(host.Query(InterfaceId()), nullptr);
}
