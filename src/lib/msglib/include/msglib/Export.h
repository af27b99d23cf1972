#pragma once

#if !defined(__GXX_RTTI) && !defined(_CPPRTTI)
#error "msglib tells arguments apart by run-time type information: compile without -fno-rtti"
#endif

/// Marks what the library makes public; every other symbol stays inside it.
///
/// `MSGLIB_STATIC` is defined for users of the static library and `MSGLIB_BUILDING` while the
/// library itself is compiled. The CMake target sets both.
#if defined(MSGLIB_STATIC)
#define MSGLIB_API
#elif defined(_WIN32)
#if defined(MSGLIB_BUILDING)
#define MSGLIB_API __declspec(dllexport)
#else
#define MSGLIB_API __declspec(dllimport)
#endif
#else
#define MSGLIB_API __attribute__((visibility("default")))
#endif
