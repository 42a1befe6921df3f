// Suites that link the objects of a library beside the library itself have its globals twice. They are the
// same ones, which the address sanitizer takes for two that share a name.

#ifdef __SANITIZE_ADDRESS__
#define HAS_ADDRESS_SANITIZER
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define HAS_ADDRESS_SANITIZER
#endif
#endif

#ifdef HAS_ADDRESS_SANITIZER

extern "C" const char*
__asan_default_options(); // NOLINT(bugprone-reserved-identifier): the sanitizer's name.

/// Globals of one name have to be of one size, and no more.
extern "C" const char* __asan_default_options() // NOLINT(bugprone-reserved-identifier)
{
    return "detect_odr_violation=1";
}

#endif
