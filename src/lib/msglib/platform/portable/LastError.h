#pragma once

#include "platform/LastError.h"

#include <cstdint>

namespace zem::msglib::platform {

/// Sets the result of `GetLastError` on the calling thread.
void setLastError(std::uint32_t reason) noexcept;

} // namespace zem::msglib::platform
