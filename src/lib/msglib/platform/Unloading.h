#pragma once

namespace zem::msglib::platform {

/// Has `action` called with `object` when the module that holds this library is unloaded or the
/// program ends.
///
/// That is later than the destruction of every static object of that module and of the program,
/// whenever it was made. There is one action: a second call replaces it. In a static library for
/// Windows there is no such moment, and nothing is called.
void callAtUnload(void (*action)(void*), void* object) noexcept;

} // namespace zem::msglib::platform
