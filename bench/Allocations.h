#pragma once

#include <cstddef>

namespace bench {

/// Returns the number of allocations of the calling thread so far.
std::size_t allocations();

} // namespace bench
