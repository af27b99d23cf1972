#pragma once

namespace zem::msglib {

/// Whether an emulator of another processor runs the tests. What takes minutes there, and concerns
/// no processor, is left out.
#if defined(MSGLIB_TESTS_ARE_EMULATED)
constexpr bool runsUnderEmulator = true;
#else
constexpr bool runsUnderEmulator = false;
#endif

} // namespace zem::msglib
