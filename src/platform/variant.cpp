#include "dovel2/variant.h"

#include <cstdlib>
#include <cstring>
#include <new>
#include <utility>

#include "mero_2_16/assertion.h"

#define DOVEL2_ASSERT(expression)                                                                            \
    ((expression) ? void() : MERO_2_16::report_assertion(#expression, __FILE__, __LINE__))

namespace dovel2 {

namespace internal {

int sync_inc(volatile int* counter) {
    return __atomic_add_fetch(counter, 1, __ATOMIC_RELAXED);
}

// The thread that drops the last reference must see what all other threads did with the text.
int sync_dec(volatile int* counter) {
    return __atomic_sub_fetch(counter, 1, __ATOMIC_ACQ_REL);
}

/// The head of a block; the bytes of the text and its terminating zero follow.
struct shared_text_t {
    volatile int references;

    char* bytes() { return reinterpret_cast<char*>(this + 1); }
};

namespace {

shared_text_t* makeSharedText(const char* text) {
    const std::size_t size = std::strlen(text) + 1;
    void* const block = variant_t::m_mem.allocate(sizeof(shared_text_t) + size);
    if (block == nullptr) {
        throw std::bad_alloc();
    }
    auto* const shared = new (block) shared_text_t{1};
    std::memcpy(shared->bytes(), text, size);
    return shared;
}

} // namespace

} // namespace internal

variant_memory_t variant_t::m_mem = {std::malloc, std::free};

variant_t::variant_t(bool value) : m_type(vtBool), m_value{} {
    m_value.boolean = value;
}

variant_t::variant_t(int32_t value) : m_type(vtInt32), m_value{} {
    m_value.int32 = value;
}

variant_t::variant_t(uint32_t value) : m_type(vtUInt32), m_value{} {
    m_value.uint32 = value;
}

variant_t::variant_t(int64_t value) : m_type(vtInt64), m_value{} {
    m_value.int64 = value;
}

variant_t::variant_t(uint64_t value) : m_type(vtUInt64), m_value{} {
    m_value.uint64 = value;
}

variant_t::variant_t(long long value) : variant_t(int64_t{value}) {}

variant_t::variant_t(unsigned long long value) : variant_t(uint64_t{value}) {}

variant_t::variant_t(double value) : m_type(vtDouble), m_value{} {
    m_value.number = value;
}

variant_t::variant_t(const char* text) : m_type(vtString), m_value{} {
    m_value.text = internal::makeSharedText(text != nullptr ? text : "");
}

void variant_t::retain_text() const noexcept {
    internal::sync_inc(&m_value.text->references);
}

void variant_t::release_text() noexcept {
    if (internal::sync_dec(&m_value.text->references) == 0) {
        m_mem.release(m_value.text);
    }
}

variant_t& variant_t::operator=(const variant_t& other) noexcept {
    variant_t copy(other);
    return *this = std::move(copy);
}

variant_t& variant_t::operator=(variant_t&& other) noexcept {
    std::swap(m_type, other.m_type);
    std::swap(m_value, other.m_value);
    return *this;
}

// clang-format off
template <> bool variant_t::can_get<bool>() const noexcept { return m_type == vtBool; }
template <> bool variant_t::can_get<int32_t>() const noexcept { return m_type == vtInt32; }
template <> bool variant_t::can_get<uint32_t>() const noexcept { return m_type == vtUInt32; }
template <> bool variant_t::can_get<int64_t>() const noexcept { return m_type == vtInt64; }
template <> bool variant_t::can_get<uint64_t>() const noexcept { return m_type == vtUInt64; }
template <> bool variant_t::can_get<double>() const noexcept { return m_type == vtDouble; }
template <> bool variant_t::can_get<const char*>() const noexcept { return m_type == vtString; }
// clang-format on

template <>
bool variant_t::get<bool>() const {
    DOVEL2_ASSERT(m_type == vtBool);
    return m_type == vtBool ? m_value.boolean : false;
}

template <>
int32_t variant_t::get<int32_t>() const {
    DOVEL2_ASSERT(m_type == vtInt32);
    return m_type == vtInt32 ? m_value.int32 : 0;
}

template <>
uint32_t variant_t::get<uint32_t>() const {
    DOVEL2_ASSERT(m_type == vtUInt32);
    return m_type == vtUInt32 ? m_value.uint32 : 0;
}

template <>
int64_t variant_t::get<int64_t>() const {
    DOVEL2_ASSERT(m_type == vtInt64);
    return m_type == vtInt64 ? m_value.int64 : 0;
}

template <>
uint64_t variant_t::get<uint64_t>() const {
    DOVEL2_ASSERT(m_type == vtUInt64);
    return m_type == vtUInt64 ? m_value.uint64 : 0;
}

template <>
double variant_t::get<double>() const {
    DOVEL2_ASSERT(m_type == vtDouble);
    return m_type == vtDouble ? m_value.number : 0.0;
}

template <>
const char* variant_t::get<const char*>() const {
    DOVEL2_ASSERT(m_type == vtString);
    return m_type == vtString ? m_value.text->bytes() : nullptr;
}

bool variant_t::operator==(const variant_t& var) const {
    if (m_type != var.m_type) {
        return false;
    }
    switch (m_type) {
    case vtBool:
        return m_value.boolean == var.m_value.boolean;
    case vtInt32:
        return m_value.int32 == var.m_value.int32;
    case vtUInt32:
        return m_value.uint32 == var.m_value.uint32;
    case vtInt64:
        return m_value.int64 == var.m_value.int64;
    case vtUInt64:
        return m_value.uint64 == var.m_value.uint64;
    case vtDouble:
        return m_value.number == var.m_value.number;
    case vtString:
        return string_compare(m_value.text->bytes(), var.m_value.text->bytes()) == 0;
    case vtNull:
        break;
    }
    DOVEL2_ASSERT(m_type == vtNull && var.m_type == vtNull);
    return true;
}

int variant_t::string_compare(const char* left, const char* right) {
    return std::strcmp(left, right);
}

} // namespace dovel2
