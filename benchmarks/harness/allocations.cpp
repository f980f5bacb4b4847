/// Preloaded to count allocations. `operator new` reaches `malloc`, so both are counted, once.

#include <cstddef>

extern "C" {

void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);

static unsigned long count = 0;

unsigned long bench_allocations() {
    return count;
}

void* malloc(std::size_t size) {
    ++count;
    return __libc_malloc(size);
}

void* calloc(std::size_t number, std::size_t size) {
    ++count;
    return __libc_calloc(number, size);
}

/// A block that grows is one more allocation.
void* realloc(void* block, std::size_t size) {
    ++count;
    return __libc_realloc(block, size);
}

} // extern "C"
