#pragma once

/// What the templates of `tarv_3_3/typed.h` ask of types, which is little: the standard header with all such
/// questions takes as long to compile as a small program.
namespace tarv_3_3::typed {

inline namespace v1 {

namespace values {

template <class...>
using Void = void;
template <class T, class U>
inline constexpr bool isSame = __is_same(T, U);
template <class T>
T&& given();
template <class T>
void accept(T);

enum Number : int { notNumber = 0, wholeNumber = 1, realNumber = 2 };
/// What kind of number a type is; `bool` and `char` are numbers as well.
template <class T>
inline constexpr int numberOf = notNumber;
template <>
inline constexpr int numberOf<bool> = wholeNumber;
template <>
inline constexpr int numberOf<char> = wholeNumber;
template <>
inline constexpr int numberOf<signed char> = wholeNumber;
template <>
inline constexpr int numberOf<unsigned char> = wholeNumber;
#if defined(__cpp_char8_t)
template <>
inline constexpr int numberOf<char8_t> = wholeNumber;
#endif
template <>
inline constexpr int numberOf<short> = wholeNumber;
template <>
inline constexpr int numberOf<unsigned short> = wholeNumber;
template <>
inline constexpr int numberOf<int> = wholeNumber;
template <>
inline constexpr int numberOf<unsigned> = wholeNumber;
template <>
inline constexpr int numberOf<long> = wholeNumber;
template <>
inline constexpr int numberOf<unsigned long> = wholeNumber;
template <>
inline constexpr int numberOf<long long> = wholeNumber;
template <>
inline constexpr int numberOf<unsigned long long> = wholeNumber;
template <>
inline constexpr int numberOf<float> = realNumber;
template <>
inline constexpr int numberOf<double> = realNumber;
template <>
inline constexpr int numberOf<long double> = realNumber;

template <class T>
inline constexpr bool isArithmetic = numberOf<T> != notNumber;
template <class T>
inline constexpr bool isWhole = numberOf<T> == wholeNumber;
template <class T>
inline constexpr bool isReal = numberOf<T> == realNumber;

template <class T, bool = isArithmetic<T>>
inline constexpr bool isSigned = false;
template <class T>
inline constexpr bool isSigned<T, true> = static_cast<T>(-1) < static_cast<T>(0);

template <class From, class To, class = void>
inline constexpr bool isConvertible = false;
template <class From, class To>
inline constexpr bool isConvertible<From, To, Void<decltype(accept<To>(given<From>()))>> = true;

/// Whether a function can be called with these arguments, and what it returns made a `Returned`.
template <class Returned, class F, class Arguments, class = void>
inline constexpr bool isCallable = false;
template <class Returned, class F, class... Arguments>
inline constexpr bool isCallable<Returned, F, void(Arguments...),
                                 Void<decltype(accept<Returned>(given<F>()(given<Arguments>()...)))>> = true;
template <class F, class... Arguments>
inline constexpr bool
    isCallable<void, F, void(Arguments...), Void<decltype(given<F>()(given<Arguments>()...))>> = true;

} // namespace values

} // namespace v1

} // namespace tarv_3_3::typed
