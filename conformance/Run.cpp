#include "conformance/HostUnderTest.h"
#include "conformance/Subjects.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace HostTests
{

int Run(int argc, char** argv)
{
    IncludeAllSubjects();
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}

} // namespace HostTests
