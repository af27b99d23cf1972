#pragma once

#if !defined(__GXX_RTTI) && !defined(_CPPRTTI)
#error "msglib tells arguments apart by run-time type information: compile without -fno-rtti"
#endif

// Microsoft's compiler warns of members of the standard library in exported classes. Their form is the same in the library
// and in the program, since both have to be built with one run-time library anyway.
#if defined(_MSC_VER)
#pragma warning(disable : 4251)
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
