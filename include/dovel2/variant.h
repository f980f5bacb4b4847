#pragma once

#include <stddef.h>

#include "tarv_3_3/export.h"

/// The type of values. Hosts use it under the names that `tarv_3_3/variant.h` gives it.
namespace dovel2 {

///@{
/// The types of `<stdint.h>`; a host that writes their names includes that or `<cstdint>`. They are not
/// included here, since they would take as long to compile as all of this library's headers.
using int32_t = __INT32_TYPE__;
using uint32_t = __UINT32_TYPE__;
using int64_t = __INT64_TYPE__;
using uint64_t = __UINT64_TYPE__;
///@}

/// The kinds of value. The numbers are part of the binary interface. `IParser::option` says how each is
/// written on a command line.
enum das_variant_type_t {
    vtBool = 0,    ///< A truth value, `bool`; an option of this kind is a switch.
    vtInt32 = 6,   ///< An integer of 32 bits, `int32_t`.
    vtUInt32 = 7,  ///< An unsigned integer of 32 bits, `uint32_t`.
    vtInt64 = 8,   ///< An integer of 64 bits, `int64_t`.
    vtUInt64 = 9,  ///< An unsigned integer of 64 bits, `uint64_t`.
    vtDouble = 11, ///< A number, `double`.
    vtString = 12, ///< A text, `const char*`.
    vtNull = 17    ///< No value; an option of this kind takes none.
};

namespace internal {

/// Adds one to `*counter` in one atomic step and returns the new value.
TARV_API int sync_inc(volatile int* counter);

/// Takes one from `*counter` in one atomic step and returns the new value.
TARV_API int sync_dec(volatile int* counter);

struct shared_text_t;

} // namespace internal

/// Where variants get the memory of their texts.
struct variant_memory_t {
    /// Returns a block of at least `bytes` bytes, aligned for any object, or null when there is none.
    void* (*allocate)(size_t bytes);
    /// Takes back a block that `allocate` returned; never called with null.
    void (*release)(void* block);
};

/// A value of one of the kinds above, 16 bytes long.
///
/// Copies of a text share it: copying, assigning and destroying never allocate and never throw.
/// Only the construction from a text does, and throws `std::bad_alloc` when there is no memory.
/// The reference count is atomic, so copies may live on different threads; one object may not be
/// changed on one thread while it is used on another.
class TARV_API variant_t {
public:
    /// The null kind.
    variant_t() noexcept : m_type(vtNull), m_value{} {}
    ///@{
    /// The kind that the type of `value` stands for; every integer type has one.
    variant_t(bool value);
    variant_t(int32_t value);
    variant_t(uint32_t value);
    variant_t(int64_t value);
    variant_t(uint64_t value);
    variant_t(long long value);
    variant_t(unsigned long long value);
    variant_t(double value);
    ///@}
    /// Copies `text` up to its terminating zero; null counts as the empty text.
    variant_t(const char* text);
    /// Other pointers would silently become a bool.
    variant_t(const void*) = delete;

    /// Shares a text with `other`.
    variant_t(const variant_t& other) noexcept : m_type(other.m_type), m_value(other.m_value) {
        if (m_type == vtString) {
            retain_text();
        }
    }
    /// Leaves `other` null.
    variant_t(variant_t&& other) noexcept : m_type(other.m_type), m_value(other.m_value) {
        other.m_type = vtNull;
    }
    /// Shares a text with `other`.
    variant_t& operator=(const variant_t& other) noexcept;
    /// Leaves the former value of this one in `other`.
    variant_t& operator=(variant_t&& other) noexcept;
    ~variant_t() {
        if (m_type == vtString) {
            release_text();
        }
    }

    /// The kind.
    das_variant_type_t type() const noexcept { return m_type; }

    /// Whether the value is of exactly the kind of `T`: `bool`, `int32_t`, `uint32_t`, `int64_t`,
    /// `uint64_t`, `double` or `const char*`. There are no conversions between kinds.
    template <class T>
    bool can_get() const noexcept;

    /// The value, which must be of the kind of `T`. A text stays valid as long as some copy of
    /// this variant does. For a value of another kind the assertion handler is called; should it
    /// return, the result is zero, false or a null text.
    template <class T>
    T get() const;

    /// Equal kind and equal value. Texts compare byte by byte, doubles as numbers, and two nulls
    /// are equal.
    bool operator==(const variant_t& var) const;
    /// The opposite of equality.
    bool operator!=(const variant_t& var) const { return !(*this == var); }

    /// Orders two texts by their bytes: below, equal to or above zero, as `strcmp` does.
    static int string_compare(const char* left, const char* right);

    /// The memory hooks of all variants in the process, `malloc` and `free` at first. Change them
    /// only while no text variant exists, to functions that may be called on every thread which uses
    /// variants.
    static variant_memory_t m_mem;

private:
    void retain_text() const noexcept;
    void release_text() noexcept;

    das_variant_type_t m_type;
    union {
        bool boolean;
        int32_t int32;
        uint32_t uint32;
        int64_t int64;
        uint64_t uint64;
        double number;
        internal::shared_text_t* text;
    } m_value;
};

/// @cond
// clang-format off
template <> TARV_API bool variant_t::can_get<bool>() const noexcept;
template <> TARV_API bool variant_t::can_get<int32_t>() const noexcept;
template <> TARV_API bool variant_t::can_get<uint32_t>() const noexcept;
template <> TARV_API bool variant_t::can_get<int64_t>() const noexcept;
template <> TARV_API bool variant_t::can_get<uint64_t>() const noexcept;
template <> TARV_API bool variant_t::can_get<double>() const noexcept;
template <> TARV_API bool variant_t::can_get<const char*>() const noexcept;

template <> TARV_API bool variant_t::get<bool>() const;
template <> TARV_API int32_t variant_t::get<int32_t>() const;
template <> TARV_API uint32_t variant_t::get<uint32_t>() const;
template <> TARV_API int64_t variant_t::get<int64_t>() const;
template <> TARV_API uint64_t variant_t::get<uint64_t>() const;
template <> TARV_API double variant_t::get<double>() const;
template <> TARV_API const char* variant_t::get<const char*>() const;
// clang-format on
/// @endcond

} // namespace dovel2
