#include "conformance/HostUnderTest.h"

namespace HostTests
{

HostUnderTest::~HostUnderTest() = default;

} // namespace HostTests
