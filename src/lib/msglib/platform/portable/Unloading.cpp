#include "platform/Unloading.h"

#include <atomic>

namespace zem::msglib::platform {

namespace {

void (*unloadAction)(void*) = nullptr;
std::atomic<void*> unloadObject = nullptr;

// With the lowest priority that isn't reserved, this runs after the destruction of static objects.
[[gnu::destructor(101)]] void unload() {
    if (void* const object = unloadObject.load(std::memory_order_acquire)) {
        unloadAction(object);
    }
}

} // namespace

void callAtUnload(void (*action)(void*), void* object) noexcept {
    unloadAction = action;
    unloadObject.store(object, std::memory_order_release);
}

} // namespace zem::msglib::platform
