#pragma once

#include "tarv_3_3/internal/typedEnumerations.h"

/// How a C++ type is made of text, and kept. Hosts use `tarv_3_3/typed.h`.
namespace tarv_3_3::typed {

inline namespace v1 {

namespace values {

struct Check : engine::Owned {
    const char* must;
    /// Is given an element of the option's type.
    bool (*accepts)(const Check*, const void* element);
};

struct Completer : engine::Owned {
    void (*call)(const Completer*, engine::Taking*, const char* word);
};

/// Gives `target` what `value` holds. Exchanging them compiles in a fraction of the time of an assignment.
template <class T>
void moveInto(T& target, T& value) {
    if constexpr (isExchangeable<T>) {
        target.swap(value);
    } else {
        target = static_cast<T&&>(value);
    }
}

/// Gives `list` so many new elements in place of its own.
template <class T>
[[gnu::cold, gnu::noinline]] void remake(T& list, unsigned long count) {
    T made(count);
    list.swap(made);
}

template <class T>
[[gnu::cold, gnu::noinline]] void copyInto(T& target, const T& value) {
    if constexpr (isSized<T>) {
        remake(target, value.size());
        auto* to = target.data();
        const auto* const end = value.data() + value.size();
        for (const auto* from = value.data(); from != end; ++from) {
            *to++ = *from;
        }
    } else if constexpr (isList<T>) {
        T copy = value;
        moveInto(target, copy);
    } else {
        target = value;
    }
}

/// What a handle points to, unless the library makes the value.
template <class T>
struct Slot : engine::State {
    Slot(const engine::Shape& itsShape)
        : engine::State{&itsShape, nullptr, nullptr, nullptr, 0, 0, 0, nullptr, &own}, own() {}
    Slot(const Slot&) = delete;
    Slot& operator=(const Slot&) = delete;

    T own;
};

/// One of a variable of the host's, whose initial value is what it holds when it is bound.
template <class T>
struct BoundSlot : engine::State {
    BoundSlot(const engine::Shape& itsShape, T& variable)
        : engine::State{&itsShape, nullptr, nullptr, nullptr, 0, 0, 0, nullptr, &variable}, initial() {
        copyInto(initial, variable);
    }
    BoundSlot(const BoundSlot&) = delete;
    BoundSlot& operator=(const BoundSlot&) = delete;

    T initial;
};

/// One with an initial value of its own.
template <class T>
struct InitialSlot : BoundSlot<T> {
    InitialSlot(const engine::Shape& itsShape, T& value)
        : BoundSlot<T>(itsShape, value), own(static_cast<T&&>(value)) {
        this->target = &own;
    }

    T own;
};

template <class N>
[[gnu::cold]] bool readNumber(engine::Taking* taking, const char* text, N& number) {
    if constexpr (isReal<N>) {
        double value = 0;
        const bool isRead = engine::readReal(taking, text, &value);
        number = static_cast<N>(value);
        return isRead;
    } else if constexpr (isSigned<N>) {
        long long value = 0;
        const bool isRead = engine::readSigned(taking, text, &value);
        number = static_cast<N>(value);
        return isRead;
    } else {
        unsigned long long value = 0;
        const bool isRead = engine::readUnsigned(taking, text, &value);
        number = static_cast<N>(value);
        return isRead;
    }
}

/// Reads one element that is no text; false when the text is none, which the library notes.
template <class E>
[[gnu::cold]] bool read(engine::Taking* taking, const char* text, E& element) {
    if constexpr (isExplained<E>) {
        const char* must = nullptr;
        return fromText(text, element, must) || engine::refuse(taking, must);
    } else if constexpr (isForeign<E>) {
        return fromText(text, element) || engine::refuse(taking, nullptr);
    } else if constexpr (isSame<E, bool>) {
        return engine::readSwitch(taking, text, &element);
    } else if constexpr (isSame<E, char>) {
        const char* const byte = engine::readText(taking, text, false);
        element = byte != nullptr ? *byte : element;
        return byte != nullptr;
    } else if constexpr (__is_enum(E)) {
        int place = 0;
        const bool isRead = engine::readChoice(taking, text, &place);
        element = isRead ? valueAt<E>(place) : element;
        return isRead;
    } else if constexpr (isDuration<E>) {
        typename E::rep number{};
        const bool isRead = readNumber(taking, text, number);
        element = E(number);
        return isRead;
    } else if constexpr (isSame<E, Size>) {
        return engine::readUnsigned(taking, text, &element.bytes);
    } else {
        return readNumber(taking, text, element);
    }
}

/// Asks the checks about an element.
[[gnu::cold]] inline bool isAccepted(const engine::State* state, engine::Taking* taking,
                                     const void* element) {
    for (const engine::Owned* owned = state->checks; owned != nullptr; owned = owned->next) {
        const auto* const check = static_cast<const Check*>(owned);
        if (!check->accepts(check, element)) {
            return engine::refuse(taking, check->must);
        }
    }
    return true;
}

template <class T>
[[gnu::cold]] void restoreEmpty(engine::State* state) {
    T& target = *static_cast<T*>(state->target);
    if constexpr (isSized<T>) {
        remake(target, 0);
    } else {
        T empty = T();
        moveInto(target, empty);
    }
}

template <class T>
[[gnu::cold]] void restoreInitial(engine::State* state) {
    copyInto(*static_cast<T*>(state->target), static_cast<BoundSlot<T>*>(state)->initial);
}

template <class T>
[[gnu::cold]] void storeElement(engine::State* state, const engine::Taking* taking,
                                typename T::value_type& element, int mode) {
    T& list = *static_cast<T*>(state->target);
    if constexpr (isSized<T>) {
        unsigned long count = 0;
        const unsigned long place = engine::placeOfElement(taking, &count);
        if (mode == engine::takeFirst) {
            remake(list, count);
        }
        if (place < list.size()) { // A variable of the host's may have changed since.
            moveInto(list.data()[place], element);
        }
    } else {
        if (mode == engine::takeFirst) {
            restoreEmpty<T>(state);
        }
        if constexpr (hasPushBack<T>) {
            list.push_back(static_cast<typename T::value_type&&>(element));
        } else {
            list.insert(static_cast<typename T::value_type&&>(element));
        }
    }
}

/// Takes an element that was read.
template <class T>
bool takeElement(engine::State* state, engine::Taking* taking, typename ElementOf<T>::Type& element,
                 int mode) {
    using Element = typename ElementOf<T>::Type;
    if (!isAccepted(state, taking, &element)) {
        return false;
    }
    if (mode == engine::takeCheck) {
        return true;
    }
    if constexpr (isList<T>) {
        storeElement<T>(state, taking, element, mode);
    } else if constexpr (isSame<T, Element>) {
        moveInto(*static_cast<T*>(state->target), element);
    } else {
        *static_cast<T*>(state->target) = static_cast<Element&&>(element);
    }
    return true;
}

template <class T>
[[gnu::cold]] bool take(engine::State* state, engine::Taking* taking, const char* text, int mode) {
    using Element = typename ElementOf<T>::Type;
    if constexpr (isText<Element>) {
        // What owns nothing points to what the program keeps.
        const char* const whole = engine::readText(taking, text, __is_trivially_copyable(Element));
        if (whole == nullptr) {
            return false;
        }
        Element element = static_cast<Element>(whole);
        return takeElement<T>(state, taking, element, mode);
    } else {
        Element element{};
        return read(taking, text, element) && takeElement<T>(state, taking, element, mode);
    }
}

template <class Made>
[[gnu::cold]] void destroy(engine::State* state) {
    delete static_cast<Made*>(state);
}

template <class N>
constexpr engine::Shape withLimits(engine::Shape shape) {
    if constexpr (isWhole<N>) {
        constexpr int bits = static_cast<int>(sizeof(N)) * 8 - (isSigned<N> ? 1 : 0);
        shape.most = ~0ULL >> (64 - bits);
        shape.least = isSigned<N> ? -static_cast<long long>(shape.most) - 1 : 0;
    }
    return shape;
}

template <class T, class Made>
constexpr engine::Shape makeShape(int kind) {
    using Element = typename ElementOf<T>::Type;
    engine::Shape shape = {};
    shape.size = sizeof(engine::Shape);
    shape.kind = kind;
    shape.holds = isList<T> ? engine::holdsMany : isOptional<T> ? engine::holdsOptional : engine::holdsOne;
    shape.isFloat = isSame<Element, float>;
    shape.isPath = isPath<Element>;
    if constexpr (isPlain<T>()) {
        shape.valueSize = sizeof(T);
    } else {
        shape.restore = isSame<Made, Slot<T>> ? restoreEmpty<T> : restoreInitial<T>;
        shape.take = take<T>;
        shape.destroy = destroy<Made>;
    }
    if constexpr (__is_enum(Element) && !isForeign<Element>) {
        shape.spelling = spellingOf<Element>();
        shape.choiceAt = isNamed<Element> ? choiceAt<Element> : nullptr;
    } else if constexpr (isSame<Element, Size>) {
        return withLimits<unsigned long long>(shape);
    } else if constexpr (isDuration<Element> && !isForeign<Element>) {
        shape.periodNumerator = Element::period::num;
        shape.periodDenominator = Element::period::den;
        shape.isFloat = isReal<typename Element::rep>;
        return withLimits<typename Element::rep>(shape);
    }
    return withLimits<Element>(shape);
}

/// What the library knows of a type that a `Made` holds, unless the library makes its values.
template <class T, class Made = Slot<T>>
inline constexpr engine::Shape shapeFor = makeShape<T, Made>(kindOf<typename ElementOf<T>::Type>());
template <class T>
inline constexpr engine::Shape shapeForCounter = makeShape<T, Slot<T>>(engine::kindCounter);

[[gnu::cold]] inline bool perform(const engine::Step& step) {
    switch (step.kind) {
    case engine::stepRestore:
        step.state->shape->restore(step.state);
        return true;
    case engine::stepTake:
        return step.state->shape->take(step.state, step.taking, step.text, step.mode);
    case engine::stepCheck:
        return isAccepted(step.state, step.taking, step.value);
    default:
        static_cast<const Completer*>(step.state->completer)
            ->call(static_cast<const Completer*>(step.state->completer), step.taking, step.text);
        return true;
    }
}

} // namespace values

} // namespace v1

} // namespace tarv_3_3::typed
