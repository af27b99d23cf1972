#pragma once

#if !defined(__GXX_RTTI) && !defined(_CPPRTTI)
#error "msglib identifies argument types by run-time type information: compile without -fno-rtti"
#endif

/// Marks a declaration that the library exports; every other symbol is hidden.
///
/// `MSGLIB_STATIC` is defined for users of the static library, `MSGLIB_BUILDING` while the library
/// itself is compiled. The CMake target defines both.
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
