#pragma once

namespace zem::msglib::platform {

/// Calls `action` with `object` when the module that contains this library is unloaded or the
/// program ends.
///
/// The call comes after the destruction of every static object of that module and of the program.
/// There is one action: a second call of this function replaces it. In a static library for Windows
/// there is no such moment, and `action` is never called.
void callAtUnload(void (*action)(void*), void* object) noexcept;

} // namespace zem::msglib::platform
