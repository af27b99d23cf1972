#pragma once

#if !defined(__GXX_RTTI) && !defined(_CPPRTTI)
#error "msglib identifies argument types by run-time type information: compile without -fno-rtti"
#endif

// Microsoft's compiler warns about members of the standard library in exported classes. Their layout
// is the same in the library and the program, which must use one run-time library anyway.
#if defined(_MSC_VER)
#pragma warning(disable : 4251)
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
