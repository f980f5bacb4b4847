#pragma once

#include "tarv_3_3/internal/typedEngine.h"
#include "tarv_3_3/internal/typedTraits.h"
#include "tarv_3_3/typedTypes.h"

/// What kind of value a C++ type is. Hosts use `tarv_3_3/typed.h`.
namespace tarv_3_3::typed {

inline namespace v1 {

namespace values {

template <class>
inline constexpr bool never = false;

/// Whether the host reads the type, and says what is wrong with a text.
template <class T, class = void>
inline constexpr bool isExplained = false;
template <class T>
inline constexpr bool isExplained<
    T, Void<decltype(fromText(static_cast<const char*>(nullptr), given<T&>(), given<const char*&>()))>> =
    true;

/// Whether the host reads the type.
template <class T, class = void>
inline constexpr bool isForeign = isExplained<T>;
template <class T>
inline constexpr bool isForeign<T, Void<decltype(fromText(static_cast<const char*>(nullptr), given<T&>()))>> =
    true;

template <class T, class = void>
inline constexpr bool isOptional = false;
template <class T>
inline constexpr bool isOptional<T, Void<typename T::value_type, decltype(&T::has_value)>> = true;

template <class T>
inline constexpr bool isText = __is_class(T) && isConvertible<const char*, T> && !isForeign<T> &&
                               !isOptional<T>;

template <class T, class = void>
inline constexpr bool hasPushBack = false;
template <class T>
inline constexpr bool hasPushBack<T, Void<decltype(given<T&>().push_back(given<typename T::value_type>()))>> =
    true;

template <class T, class = void>
inline constexpr bool hasInsert = false;
template <class T>
inline constexpr bool hasInsert<T, Void<decltype(given<T&>().insert(given<typename T::value_type>()))>> =
    true;

template <class T>
inline constexpr bool isList = !isText<T> && !isForeign<T> && (hasPushBack<T> || hasInsert<T>);

/// Whether it takes memory from where its own host says, so that it cannot change places with others.
template <class T, class = void>
inline constexpr bool hasMemoryOfItsOwn = false;
template <class T>
inline constexpr bool hasMemoryOfItsOwn<T, Void<typename T::allocator_type>> =
    !__is_empty(typename T::allocator_type);

template <class T, class = void>
inline constexpr bool isExchangeable = false;
template <class T>
inline constexpr bool isExchangeable<T, Void<decltype(given<T&>().swap(given<T&>()))>> =
    !hasMemoryOfItsOwn<T> && (isText<T> || isList<T>);

/// Whether it is an array that can be made of so many elements at once, which compiles in half the time of
/// appending them.
template <class T, class = void>
inline constexpr bool isSized = false;
template <class T>
inline constexpr bool
    isSized<T, Void<decltype(T(given<unsigned long>())), decltype(given<T&>().data()),
                    decltype(given<T&>().size()), decltype(typename T::value_type()),
                    decltype(given<typename T::value_type&>() = given<const typename T::value_type&>())>> =
        (isList<T> && isExchangeable<T> && hasPushBack<T> &&
         isSame<decltype(given<T&>().data()), typename T::value_type*>);

template <class T, class = void>
inline constexpr bool isDuration = false;
template <class T>
inline constexpr bool isDuration<T, Void<typename T::rep, typename T::period>> = true;

template <class T, class = void>
inline constexpr bool isPath = false;
template <class T>
inline constexpr bool isPath<T, Void<decltype(T::preferred_separator)>> = true;

template <class T, class = void>
inline constexpr bool hasData = false;
template <class T>
inline constexpr bool
    hasData<T, Void<decltype(given<const T&>().data() + 0), decltype(given<const T&>().size())>> = true;

template <class T, class = void>
inline constexpr bool hasCString = false;
template <class T>
inline constexpr bool hasCString<T, Void<decltype(accept<const char*>(given<const T&>().c_str()))>> = true;

template <class T, class = void>
inline constexpr bool isNamed = false;
template <class T>
inline constexpr bool isNamed<T, Void<decltype(Names<T>::list)>> = true;

template <class T, class = void>
inline constexpr bool hasFixedType = false;
template <class T>
inline constexpr bool hasFixedType<T, Void<decltype(T{0})>> = true;

template <class T>
inline constexpr bool
    isNumber = (isArithmetic<T> && !isSame<T, bool> && !isSame<T, char>) || isSame<T, Size> ||
               (isDuration<T> && !isForeign<T>);

template <class T, bool = isList<T> || isOptional<T>>
struct ElementOf {
    using Type = T;
};
template <class T>
struct ElementOf<T, true> {
    using Type = typename T::value_type;
};

template <class T>
struct Held {
    using Type = T;
};
template <>
struct Held<const char*> {
    using Type = Text;
};
template <>
struct Held<char*> {
    using Type = Text;
};
/// What holds a value that was given a default of type T.
template <class T>
using HeldFor = typename Held<T>::Type;

template <class T>
constexpr int kindOf() {
    if constexpr (isForeign<T>) {
        return engine::kindForeign;
    } else if constexpr (isSame<T, bool>) {
        return engine::kindSwitch;
    } else if constexpr (isSame<T, char>) {
        return engine::kindByte;
    } else if constexpr (isWhole<T>) {
        return isSigned<T> ? engine::kindSigned : engine::kindUnsigned;
    } else if constexpr (isSame<T, float> || isSame<T, double>) {
        return engine::kindReal;
    } else if constexpr (__is_enum(T)) {
        return engine::kindChoice;
    } else if constexpr (isSame<T, Size>) {
        return engine::kindSize;
    } else if constexpr (isDuration<T>) {
        return engine::kindDuration;
    } else if constexpr (isText<T>) {
        return engine::kindText;
    } else {
        static_assert(never<T>, "tarv: no option can hold this type; write a bool fromText(const char*, T&) "
                                "beside it");
    }
}

/// Whether the library makes the values, so that a host has no code for the type.
template <class T>
constexpr bool isPlain() {
    if constexpr (isForeign<T>) {
        return false;
    } else if constexpr (isDuration<T>) {
        return __is_trivially_copyable(T) && isSigned<typename T::rep> &&
               !isSame<typename T::rep, long double>;
    } else if constexpr (__is_enum(T)) {
        return !isNamed<T>;
    } else {
        return isWhole<T> || isSame<T, float> || isSame<T, double> || isSame<T, Size>;
    }
}

} // namespace values

} // namespace v1

} // namespace tarv_3_3::typed
