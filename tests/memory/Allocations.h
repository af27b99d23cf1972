#pragma once

#include <cstddef>

namespace zem::msglib {

/// Returns the number of allocations so far.
std::size_t allocations();

/// Returns the total number of bytes of these allocations.
std::size_t allocatedBytes();

/// Returns the number of allocations that haven't been released.
std::size_t liveAllocations();

/// Makes one allocation fail with `std::bad_alloc`. At most one object exists at a time.
class FailingAllocation {
public:
    /// @param nth  the number of the allocation, counted from 1 from now on
    explicit FailingAllocation(std::size_t nth);
    ~FailingAllocation();
    FailingAllocation(const FailingAllocation&) = delete;
    FailingAllocation& operator=(const FailingAllocation&) = delete;

    /// Returns whether that allocation was reached.
    bool hasFailed() const;
};

} // namespace zem::msglib
