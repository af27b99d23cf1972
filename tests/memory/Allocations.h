#pragma once

#include <cstddef>

namespace zem::msglib {

/// Returns how many blocks the program has taken from the heap so far.
std::size_t allocations();

/// Returns how many bytes those blocks had together.
std::size_t allocatedBytes();

/// Returns how many blocks it holds.
std::size_t liveAllocations();

/// Makes one allocation fail with `std::bad_alloc`. There is one such object at a time.
class FailingAllocation {
public:
    /// @param nth  which one, counted from 1 from now on
    explicit FailingAllocation(std::size_t nth);
    ~FailingAllocation();
    FailingAllocation(const FailingAllocation&) = delete;
    FailingAllocation& operator=(const FailingAllocation&) = delete;

    /// Tells whether it has come to that allocation.
    bool hasFailed() const;
};

} // namespace zem::msglib
