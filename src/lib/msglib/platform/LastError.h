#pragma once

#include <cstdint>

namespace zem::msglib::platform {

/// The reasons for failures of the operations in this folder, with the operating system's numbers.
constexpr std::uint32_t ERROR_INVALID_PARAMETER = 87;
constexpr std::uint32_t ERROR_INSUFFICIENT_BUFFER = 122;
constexpr std::uint32_t ERROR_MR_MID_NOT_FOUND = 317;
constexpr std::uint32_t ERROR_INVALID_FLAGS = 1004;

/// Returns the reason for the last failure on the calling thread. A success doesn't change it.
std::uint32_t GetLastError() noexcept;

} // namespace zem::msglib::platform
