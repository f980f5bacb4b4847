#pragma once

#include <new>

#include "tarv_3_3/internal/typedEngine.h"
#include "tarv_3_3/internal/typedTraits.h"
#include "tarv_3_3/typedTypes.h"

/// How a C++ type is made of text. Hosts use `tarv_3_3/typed.h`.
namespace tarv_3_3::typed {

inline namespace v1 {

namespace values {

template <class>
inline constexpr bool never = false;

// ---- What a type is -------------------------------------------------------------------------------

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

// ---- Enumerations ---------------------------------------------------------------------------------

template <class T, T...>
struct Values {};
#if defined(__clang__)
template <int count>
using FirstValues = __make_integer_seq<Values, int, count>;
#else
template <int count>
using FirstValues = Values<int, __integer_pack(count)...>;
#endif

template <class E, E... tarvValues>
constexpr const char* spelled() {
    return __PRETTY_FUNCTION__;
}
template <class E, int from, int... places>
constexpr const char* spelling(Values<int, places...>) {
    return spelled<E, static_cast<E>(from + places)...>();
}

/// What the compiler's spelling of several values says: which have names. The library reads the names
/// themselves from it.
struct Spelled {
    int named = 0;
    int lastNamed = -1;
    int longest = 0;
};

constexpr bool isNameByte(char byte) {
    return ('a' <= byte && byte <= 'z') || ('A' <= byte && byte <= 'Z') || ('0' <= byte && byte <= '9') ||
           byte == '_' || byte == '$' || (static_cast<unsigned char>(byte) & 0x80) != 0;
}

constexpr const char* behindLabel(const char* text) {
    constexpr const char* label = "tarvValues = ";
    for (; *text != '\0'; ++text) {
        int length = 0;
        while (label[length] != '\0' && text[length] == label[length]) {
            ++length;
        }
        if (label[length] == '\0') {
            return text + length;
        }
    }
    return text;
}

// Of the value that begins here: the comma or the bracket behind it.
constexpr const char* endOfValue(const char* text) {
    for (int depth = 0; *text != '\0'; ++text) {
        const bool closes = *text == ')' || *text == '>' || *text == '}';
        if (depth == 0 && (*text == ',' || closes)) {
            break;
        }
        depth += *text == '(' || *text == '<' || *text == '{' ? 1 : closes ? -1 : 0;
    }
    return text;
}

// A value with a name ends in its name, "ns::Paper::a4"; one without in a number, "(ns::Paper)7". Nearly all
// have none; behind the first of them, the type in brackets is skipped, since compilers take their time for
// each byte.
constexpr Spelled scan(const char* text) {
    Spelled found;
    long typeLength = 0;
    const char* const end = text + __builtin_strlen(text);
    text = behindLabel(text) + 1;
    for (int place = 0; text < end; ++place) {
        const bool isSkipped =
            typeLength != 0 && typeLength < end - text && *text == '(' && text[typeLength - 1] == ')' &&
            (text[typeLength] == '-' || ('0' <= text[typeLength] && text[typeLength] <= '9'));
        const char* const begin = text;
        text += isSkipped ? typeLength + 1 : 0;
        while (isSkipped && '0' <= *text && *text <= '9') {
            ++text;
        }
        text = endOfValue(text);
        if (!isSkipped) {
            const char* name = text;
            while (isNameByte(name[-1])) {
                --name;
            }
            if (name[-1] != ')' && name[-1] != '-') {
                ++found.named;
                found.lastNamed = place;
                found.longest = text - name > found.longest ? static_cast<int>(text - name) : found.longest;
            } else {
                typeLength = name - begin - (name[-1] == '-' ? 1 : 0);
            }
        }
        if (*text != ',') {
            break;
        }
        text += 2;
    }
    return found;
}

template <class E>
constexpr const char* spellingOf() {
    if constexpr (isNamed<E>) {
        return nullptr;
    } else if constexpr (!hasFixedType<E> || isSame<__underlying_type(E), bool>) {
        static_assert(never<E>, "tarv: this enumeration has no fixed underlying type; specialize "
                                "tarv_3_3::typed::Names for it");
    } else {
        constexpr Spelled found = scan(spelling<E, 0>(FirstValues<128>()));
        constexpr int below =
            isSigned<__underlying_type(E)> ? scan(spelling<E, -128>(FirstValues<128>())).named : 0;
        static_assert(found.named > 0 && found.lastNamed + 1 == found.named && below == 0,
                      "tarv: the values of this enumeration do not count up from 0; specialize "
                      "tarv_3_3::typed::Names for it");
        static_assert(found.longest <= 63, "tarv: a name of this enumeration is over 63 bytes; specialize "
                                           "tarv_3_3::typed::Names for it");
        return spelling<E, 0>(FirstValues<found.named>());
    }
}

template <class E>
int placeOf(E value) {
    if constexpr (isNamed<E>) {
        int place = 0;
        for (const Choice<E>& choice : Names<E>::list) {
            if (choice.value == value) {
                return place;
            }
            ++place;
        }
        return -1;
    } else {
        return static_cast<int>(value);
    }
}

/// The name at a place of `Names`; null behind the last.
template <class E>
const char* choiceAt(int place) {
    if constexpr (isNamed<E>) {
        constexpr int count = static_cast<int>(sizeof Names<E>::list / sizeof Names<E>::list[0]);
        return place < count ? Names<E>::list[place].name : nullptr;
    } else {
        return nullptr;
    }
}

template <class E>
E valueAt(int place) {
    if constexpr (isNamed<E>) {
        return Names<E>::list[place].value;
    } else {
        return static_cast<E>(place);
    }
}

// ---- Records --------------------------------------------------------------------------------------

struct Check : engine::Owned {
    const char* must;
    /// Is given an element of the option's type.
    bool (*accepts)(const Check*, const void* element);
};

struct Completer : engine::Owned {
    void (*call)(const Completer*, engine::Taking*, const char* word);
};

/// What a handle points to, unless the library makes the value.
template <class T>
struct Slot : engine::State {
    using Element = typename ElementOf<T>::Type;

    Slot(const engine::Shape& itsShape, const T& value)
        : engine::State{&itsShape, nullptr, nullptr, nullptr, 0, 0, 0, nullptr, &own}, own(value) {}
    Slot(const engine::Shape& itsShape)
        : engine::State{&itsShape, nullptr, nullptr, nullptr, 0, 0, 0, nullptr, &own}, own() {}
    Slot(const Slot&) = delete;
    Slot& operator=(const Slot&) = delete;

    T own;
};

/// One with an initial value of its own.
template <class T>
struct InitialSlot : Slot<T> {
    InitialSlot(const engine::Shape& itsShape, T&& value)
        : Slot<T>(itsShape, value), initial(static_cast<T&&>(value)) {}

    T initial;
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

/// Reads one element; false when the text is none, which the library notes.
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
    } else if constexpr (isText<E>) {
        // What owns nothing points to what the program keeps.
        const char* const whole = engine::readText(taking, text, __is_trivially_copyable(E));
        if (whole == nullptr) {
            return false;
        }
        element = static_cast<E>(whole);
        return true;
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
[[gnu::cold]] bool take(engine::State* state, engine::Taking* taking, const char* text, int mode) {
    T& target = *static_cast<T*>(state->target);
    typename ElementOf<T>::Type element{};
    if (!read(taking, text, element) || !isAccepted(state, taking, &element)) {
        return false;
    }
    if (mode == engine::takeCheck) {
        return true;
    }
    if constexpr (isList<T>) {
        if (mode == engine::takeFirst) {
            target = T();
        }
        if constexpr (hasPushBack<T>) {
            target.push_back(static_cast<decltype(element)&&>(element));
        } else {
            target.insert(static_cast<decltype(element)&&>(element));
        }
    } else {
        target = static_cast<decltype(element)&&>(element);
    }
    return true;
}

template <class T, bool hasInitial>
[[gnu::cold]] void restore(engine::State* state) {
    T& target = *static_cast<T*>(state->target);
    if constexpr (hasInitial) {
        target = static_cast<InitialSlot<T>&>(*state).initial;
    } else {
        target = T();
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

template <class T, bool hasInitial>
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
        shape.restore = restore<T, hasInitial>;
        shape.take = take<T>;
        if constexpr (hasInitial) {
            shape.destroy = destroy<InitialSlot<T>>;
        } else {
            shape.destroy = destroy<Slot<T>>;
        }
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

template <class T, bool hasInitial>
inline constexpr engine::Shape shapeFor = makeShape<T, hasInitial>(kindOf<typename ElementOf<T>::Type>());
template <class T>
inline constexpr engine::Shape shapeForCounter = makeShape<T, false>(engine::kindCounter);

// ---- What a declaration says ----------------------------------------------------------------------

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

template <class Element, class F>
[[gnu::cold]] void addCheck(engine::State* state, const char* must, F accepts) {
    struct With : Check {
        explicit With(F&& function) : Check{}, test(static_cast<F&&>(function)) {}
        F test;
    };
    const char* const kept = engine::addCheck(state != nullptr ? state->option : nullptr, must);
    if (kept == nullptr) {
        return;
    }
    With* const made = new (std::nothrow) With(static_cast<F&&>(accepts));
    if (made == nullptr) {
        engine::failMemory(state->option);
        return;
    }
    made->must = kept;
    made->accepts = [](const Check* check, const void* element) -> bool {
        return static_cast<const With*>(check)->test(*static_cast<const Element*>(element));
    };
    made->destroy = [](engine::Owned* check) { delete static_cast<With*>(check); };
    engine::Owned** end = &state->checks;
    while (*end != nullptr) {
        end = &(*end)->next;
    }
    *end = made;
}

template <class Candidates, class F>
[[gnu::cold]] void setCompleter(engine::State* state, F function) {
    struct With : Completer {
        explicit With(F&& completer) : Completer{}, completes(static_cast<F&&>(completer)) {}
        F completes;
    };
    if (state == nullptr) {
        return;
    }
    With* const made = new (std::nothrow) With(static_cast<F&&>(function));
    if (made == nullptr) {
        engine::failMemory(state->option);
        return;
    }
    made->call = [](const Completer* completer, engine::Taking* taking, const char* word) {
        Candidates candidates(taking);
        static_cast<const With*>(completer)->completes(word, candidates);
    };
    made->destroy = [](engine::Owned* completer) { delete static_cast<With*>(completer); };
    if (state->completer != nullptr) {
        state->completer->destroy(state->completer);
    }
    state->completer = made;
}

template <class F>
[[gnu::cold]] engine::Body* makeBody(F function) {
    struct With : engine::Body {
        explicit With(F&& body) : engine::Body{}, runs(static_cast<F&&>(body)) {}
        F runs;
    };
    With* const made = new (std::nothrow) With(static_cast<F&&>(function));
    if (made != nullptr) {
        made->call = [](engine::Body* body) -> int {
            if constexpr (isSame<decltype(static_cast<With*>(body)->runs()), void>) {
                static_cast<With*>(body)->runs();
                return 0;
            } else {
                return static_cast<With*>(body)->runs();
            }
        };
        made->destroy = [](engine::Body* body) { delete static_cast<With*>(body); };
    }
    return made;
}

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
