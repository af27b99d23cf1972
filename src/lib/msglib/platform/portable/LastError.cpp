#include "platform/portable/LastError.h"

namespace zem::msglib::platform {

namespace {

thread_local std::uint32_t lastError = 0;

} // namespace

std::uint32_t GetLastError() noexcept {
    return lastError;
}

void setLastError(std::uint32_t reason) noexcept {
    lastError = reason;
}

} // namespace zem::msglib::platform
