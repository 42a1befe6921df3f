#pragma once

namespace HostTests
{

/// Does nothing but to refer to every source of tests, so that the linker takes them all.
void IncludeAllSubjects();

} // namespace HostTests

/// Stands once in each source of tests, with the name of the file, outside any namespace.
#define HOST_TESTS_SUBJECT(subject)                                                                          \
    namespace HostTests                                                                                      \
    {                                                                                                        \
    void Include##subject();                                                                                 \
    void Include##subject()                                                                                  \
    {                                                                                                        \
    }                                                                                                        \
    }                                                                                                        \
    static_assert(true, "takes the semicolon")
