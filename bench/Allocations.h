#pragma once

#include <cstddef>

namespace bench {

/// Returns how many blocks the calling thread has taken from the heap so far.
std::size_t allocations();

} // namespace bench
