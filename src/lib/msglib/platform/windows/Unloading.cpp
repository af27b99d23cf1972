#include "platform/Unloading.h"

#include <cstdlib>

namespace zem::msglib::platform {

#if defined(MSGLIB_STATIC)

// A program's own exit handlers take turns with its static objects. What is kept goes with the
// process.
void callAtUnload(void (*)(void*), void*) noexcept {}

#else

namespace {

void (*unloadAction)(void*) = nullptr;
void* unloadObject = nullptr;

} // namespace

// A DLL has exit handlers of its own, which run when it is unloaded.
void callAtUnload(void (*action)(void*), void* object) noexcept {
    unloadAction = action;
    unloadObject = object;
    std::atexit([] { unloadAction(unloadObject); });
}

#endif

} // namespace zem::msglib::platform
