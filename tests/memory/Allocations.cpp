#include "Allocations.h"

#include <cstdlib>
#include <new>

namespace {

std::size_t allocated = 0;
std::size_t released = 0;
std::size_t bytes = 0;
std::size_t untilFailure = 0; // 0 if none fails

} // namespace

namespace zem::msglib {

std::size_t allocations() {
    return allocated;
}

std::size_t allocatedBytes() {
    return bytes;
}

std::size_t liveAllocations() {
    return allocated - released;
}

FailingAllocation::FailingAllocation(std::size_t nth) {
    untilFailure = nth;
}

FailingAllocation::~FailingAllocation() {
    untilFailure = 0;
}

bool FailingAllocation::hasFailed() const {
    return untilFailure == 0;
}

} // namespace zem::msglib

void* operator new(std::size_t size) {
    if (untilFailure > 0 && --untilFailure == 0) {
        throw std::bad_alloc();
    }
    void* const block = std::malloc(size == 0 ? 1 : size);
    if (block == nullptr) {
        throw std::bad_alloc();
    }
    ++allocated;
    bytes += size;
    return block;
}

void operator delete(void* block) noexcept {
    released += block != nullptr ? 1 : 0;
    std::free(block);
}

void operator delete(void* block, std::size_t) noexcept {
    operator delete(block);
}
