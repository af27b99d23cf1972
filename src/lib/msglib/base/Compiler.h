#pragma once

/// What compilers spell differently.

/// Keeps a function that is rarely called out of its callers, so that those stay small.
#if defined(_MSC_VER)
#define MSGLIB_NOINLINE __declspec(noinline)
#else
#define MSGLIB_NOINLINE [[gnu::noinline]]
#endif
