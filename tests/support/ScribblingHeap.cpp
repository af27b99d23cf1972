// Overwrites memory when it is released, so that a later read finds invalid data.

#include <algorithm>
#include <cstdlib>
#include <new>

void* operator new(std::size_t size) {
    if (void* const block = std::malloc(size == 0 ? 1 : size)) {
        return block;
    }
    throw std::bad_alloc();
}

void operator delete(void* block) noexcept {
    std::free(block);
}

void operator delete(void* block, std::size_t size) noexcept {
    if (block != nullptr) {
        // The compiler would omit plain writes to memory that is about to be released.
        std::fill_n(static_cast<volatile unsigned char*>(block), size, 0xDD);
    }
    std::free(block);
}
