#include "reliability/FailingAllocations.h"

#include <malloc.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <new>

#include "tarv_3_3/variant.h"

#if defined(__SANITIZE_ADDRESS__)
#define OWN_MALLOC 0
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define OWN_MALLOC 0
#else
#define OWN_MALLOC 1
#endif
#else
#define OWN_MALLOC 1
#endif

namespace {

bool isArmed = false;
long nthToFail = 0;
failing::Mode mode = failing::Mode::once;
failing::Account account = {};
long live = 0;
long bytesNow = 0;
long bytesAtMost = 0;

bool mustFail() {
    if (!isArmed) {
        return false;
    }
    ++account.asked;
    const bool isHit = mode == failing::Mode::once ? account.asked == nthToFail : account.asked >= nthToFail;
    const bool fails = nthToFail != 0 && isHit;
    account.failed += fails ? 1 : 0;
    return fails;
}

} // namespace

#if OWN_MALLOC
extern "C" {
void* __libc_malloc(size_t bytes);

void* malloc(size_t bytes) {
    if (mustFail()) {
        errno = ENOMEM;
        return nullptr;
    }
    return __libc_malloc(bytes);
}
}
#endif

namespace {

// Memory that is counted as one allocation, however it is got.
void* take(std::size_t bytes) {
    if (mustFail()) {
        return nullptr;
    }
#if OWN_MALLOC
    void* const block = __libc_malloc(bytes);
#else
    void* const block = std::malloc(bytes);
#endif
    live += block != nullptr ? 1 : 0;
    bytesNow += static_cast<long>(malloc_usable_size(block));
    bytesAtMost = std::max(bytesAtMost, bytesNow);
    return block;
}

void give(void* block) {
    live -= block != nullptr ? 1 : 0;
    bytesNow -= static_cast<long>(malloc_usable_size(block));
    std::free(block);
}

void* takeOrThrow(std::size_t bytes) {
    void* const block = take(bytes);
    if (block == nullptr) {
        throw std::bad_alloc();
    }
    return block;
}

} // namespace

namespace failing {

void arm(long nth, Mode newMode) {
    account = {};
    nthToFail = nth;
    mode = newMode;
    isArmed = true;
}

Account disarm() {
    isArmed = false;
    return account;
}

long liveBlocks() {
    return live;
}

long liveBytes() {
    return bytesNow;
}

long peakBytes() {
    return bytesAtMost;
}

void forgetPeak() {
    bytesAtMost = bytesNow;
}

void hookVariants() {
    tarv_3_3::variant_t::m_mem = {take, give};
}

} // namespace failing

void* operator new(std::size_t bytes) {
    return takeOrThrow(bytes);
}

void* operator new[](std::size_t bytes) {
    return takeOrThrow(bytes);
}

void* operator new(std::size_t bytes, const std::nothrow_t&) noexcept {
    return take(bytes);
}

void* operator new[](std::size_t bytes, const std::nothrow_t&) noexcept {
    return take(bytes);
}

// No alignment beyond malloc's own is asked for here: arenas ask for that of any object.
void* operator new(std::size_t bytes, std::align_val_t) {
    return takeOrThrow(bytes);
}

void operator delete(void* block, std::align_val_t) noexcept {
    give(block);
}

void operator delete(void* block, std::size_t, std::align_val_t) noexcept {
    give(block);
}

void operator delete(void* block) noexcept {
    give(block);
}

void operator delete[](void* block) noexcept {
    give(block);
}

void operator delete(void* block, std::size_t) noexcept {
    give(block);
}

void operator delete[](void* block, std::size_t) noexcept {
    give(block);
}
