#include "conformance/HostUnderTest.h"

int main(int argc, char** argv)
{
    return HostTests::Run(argc, argv);
}
