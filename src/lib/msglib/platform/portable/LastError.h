#pragma once

#include "platform/LastError.h"

#include <cstdint>

namespace zem::msglib::platform {

/// Leaves `reason` for the next `GetLastError` of the calling thread.
void setLastError(std::uint32_t reason) noexcept;

} // namespace zem::msglib::platform
