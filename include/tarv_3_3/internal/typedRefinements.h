#pragma once

#include <new>

#include "tarv_3_3/internal/typedValues.h"

/// What a host says of an option besides its type: default, range, choices, and code of its own. Hosts use
/// `tarv_3_3/typed.h`.
namespace tarv_3_3::typed {

inline namespace v1 {

namespace values {

template <class T>
[[gnu::cold]] void showDefault(engine::Option* option, const T& value) {
    if constexpr (isForeign<T>) {
    } else if constexpr (isOptional<T>) {
        if (value.has_value()) {
            showDefault(option, *value);
        }
    } else if constexpr (isList<T>) {
        for (const auto& element : value) {
            showDefault<typename ElementOf<T>::Type>(option, element);
        }
    } else if constexpr (__is_enum(T)) {
        engine::addDefaultSigned(option, placeOf(value));
    } else if constexpr (isDuration<T>) {
        showDefault(option, value.count());
    } else if constexpr (isSame<T, char>) {
        engine::addDefaultText(option, &value, 1);
    } else if constexpr (isReal<T>) {
        engine::addDefaultReal(option, static_cast<double>(value));
    } else if constexpr (isWhole<T> && isSigned<T>) {
        engine::addDefaultSigned(option, value);
    } else if constexpr (isWhole<T> || isSame<T, Size>) {
        engine::addDefaultUnsigned(option, value);
    } else if constexpr (hasData<T>) {
        engine::addDefaultText(option, value.data(), static_cast<unsigned long>(value.size()));
    } else if constexpr (hasCString<T>) {
        engine::addDefaultText(option, value.c_str(), __builtin_strlen(value.c_str()));
    }
}

#define TARV_BOUND_IS_OUTSIDE "tarv: a bound of range() is outside of the option's type"
// Each compiler knows constant bounds in its own way.
#if defined(__clang__)
#define TARV_REFUSE_BOUNDS_IF(condition)                                                                     \
    __attribute__((diagnose_if(condition, TARV_BOUND_IS_OUTSIDE, "error")))
#else
#define TARV_REFUSE_BOUNDS_IF(condition)
[[gnu::error(TARV_BOUND_IS_OUTSIDE)]] void boundIsOutsideOfType();
#endif

template <class N, class Bound>
constexpr bool isOutside(Bound bound) {
    if constexpr (!isWhole<N>) {
        return false;
    } else if (bound < Bound()) {
        return !isSigned<N> || static_cast<long long>(bound) < withLimits<N>({}).least;
    } else {
        return static_cast<unsigned long long>(bound) > withLimits<N>({}).most;
    }
}

/// Whether one of the bounds is no value of the type N, as far as both are whole numbers.
template <class N, class Low, class High>
constexpr bool areOutside(Low low, High high) {
    if constexpr (isWhole<N> && isWhole<Low> && isWhole<High>) {
        return isOutside<N>(low) || isOutside<N>(high);
    } else {
        return false;
    }
}

template <class N, class Low, class High>
[[gnu::always_inline]] inline void setRangeOfNumber(engine::Option* option, Low low, High high) {
    static_assert(isArithmetic<Low> && isArithmetic<High>, "tarv: the bounds of range() are numbers");
    if constexpr (isReal<N>) {
        engine::setRangeReal(option, static_cast<double>(low), static_cast<double>(high));
    } else {
        static_assert(
            isWhole<Low> && isWhole<High>,
            "tarv: the bounds of range() are outside of the option's type, which is a whole number");
#if !defined(__clang__)
        const bool isWrong = areOutside<N>(low, high);
        if (__builtin_constant_p(isWrong) && isWrong) {
            boundIsOutsideOfType();
        }
#endif
        if (low < Low() || high < High()) {
            engine::setRangeSigned(option, static_cast<long long>(low), static_cast<long long>(high));
        } else {
            engine::setRangeUnsigned(option, static_cast<unsigned long long>(low),
                                     static_cast<unsigned long long>(high));
        }
    }
}

template <class Element, class Low, class High>
[[gnu::always_inline]] inline void setRange(engine::Option* option, Low low, High high) {
    if constexpr (isDuration<Element>) {
        setRangeOfNumber<typename Element::rep>(option, Element(low).count(), Element(high).count());
    } else if constexpr (isSame<Element, Size>) {
        setRange<unsigned long long>(option, static_cast<unsigned long long>(low),
                                     static_cast<unsigned long long>(high));
    } else {
        setRangeOfNumber<Element>(option, low, high);
    }
}

template <class Element, class C>
void addChoice(engine::Option* option, const C& choice) {
    if constexpr (isConvertible<const C&, const char*>) {
        engine::refine(option, engine::refineChoice, choice);
    } else if constexpr (hasCString<C>) {
        engine::refine(option, engine::refineChoice, choice.c_str());
    } else {
        static_assert(isArithmetic<C> && isArithmetic<Element>,
                      "tarv: a value of oneOf() is of another type than the option");
        if constexpr (isReal<Element>) {
            engine::addChoiceReal(option, static_cast<double>(choice));
        } else {
            engine::addChoiceSigned(option, static_cast<long long>(choice));
        }
    }
}

// Functions of a class instead of lambdas, each of which is a class of its own to the compiler.
template <class Element, class F>
struct CheckWith : Check {
    explicit CheckWith(F& function) : Check{}, test(static_cast<F&&>(function)) {
        accepts = isAcceptedBy;
        destroy = end;
    }
    static bool isAcceptedBy(const Check* check, const void* element) {
        return static_cast<const CheckWith*>(check)->test(*static_cast<const Element*>(element));
    }
    static void end(engine::Owned* check) { delete static_cast<CheckWith*>(check); }

    F test;
};

template <class Element, class F>
[[gnu::cold]] void addCheck(engine::State* state, const char* must, F& accepts) {
    const char* const kept = engine::addCheck(state != nullptr ? state->option : nullptr, must);
    if (kept == nullptr) {
        return;
    }
    auto* const made = new (std::nothrow) CheckWith<Element, F>(accepts);
    if (made == nullptr) {
        engine::failMemory(state->option);
        return;
    }
    made->must = kept;
    engine::Owned** end = &state->checks;
    while (*end != nullptr) {
        end = &(*end)->next;
    }
    *end = made;
}

template <class Candidates, class F>
struct CompleterWith : Completer {
    explicit CompleterWith(F& function) : Completer{}, completes(static_cast<F&&>(function)) {
        call = complete;
        destroy = end;
    }
    static void complete(const Completer* completer, engine::Taking* taking, const char* word) {
        Candidates candidates(taking);
        static_cast<const CompleterWith*>(completer)->completes(word, candidates);
    }
    static void end(engine::Owned* completer) { delete static_cast<CompleterWith*>(completer); }

    F completes;
};

template <class Candidates, class F>
[[gnu::cold]] void setCompleter(engine::State* state, F& function) {
    if (state == nullptr) {
        return;
    }
    auto* const made = new (std::nothrow) CompleterWith<Candidates, F>(function);
    if (made == nullptr) {
        engine::failMemory(state->option);
        return;
    }
    if (state->completer != nullptr) {
        state->completer->destroy(state->completer);
    }
    state->completer = made;
}

template <class F>
struct BodyWith : engine::Body {
    explicit BodyWith(F& function) : engine::Body{run, end}, runs(static_cast<F&&>(function)) {}
    static int run(engine::Body* body) {
        if constexpr (isSame<decltype(given<F&>()()), void>) {
            static_cast<BodyWith*>(body)->runs();
            return 0;
        } else {
            return static_cast<BodyWith*>(body)->runs();
        }
    }
    static void end(engine::Body* body) { delete static_cast<BodyWith*>(body); }

    F runs;
};

template <class F>
[[gnu::cold]] engine::Body* makeBody(F& function) {
    return new (std::nothrow) BodyWith<F>(function);
}

} // namespace values

} // namespace v1

} // namespace tarv_3_3::typed
