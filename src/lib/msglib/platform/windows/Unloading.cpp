#include "platform/Unloading.h"

#include <cstdlib>

namespace zem::msglib::platform {

#if defined(MSGLIB_STATIC)

// The exit handlers of a program run between the destructors of its static objects, so there is no
// moment after all of them. The memory is released with the process.
void callAtUnload(void (*)(void*), void*) noexcept {}

#else

namespace {

void (*unloadAction)(void*) = nullptr;
void* unloadObject = nullptr;

} // namespace

// A DLL has its own exit handlers, which run when it is unloaded.
void callAtUnload(void (*action)(void*), void* object) noexcept {
    unloadAction = action;
    unloadObject = object;
    std::atexit([] { unloadAction(unloadObject); });
}

#endif

} // namespace zem::msglib::platform
