#pragma once

#include "tarv_3_3/internal/typedKinds.h"

/// What the values of an enumeration are called. Hosts use `tarv_3_3/typed.h`.
namespace tarv_3_3::typed {

inline namespace v1 {

namespace values {

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
        if (isSkipped) {
            for (text += typeLength + 1; '0' <= *text && *text <= '9'; ++text) {
            }
        }
        text = *text == ',' ? text : endOfValue(text);
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
    } else if constexpr (isSame<__underlying_type(E), bool>) {
        static_assert(never<E>, "tarv: the values of this enumeration are true and false; specialize "
                                "tarv_3_3::typed::Names for it");
    } else if constexpr (!hasFixedType<E>) {
        static_assert(never<E>, "tarv: this enumeration has no fixed underlying type; specialize "
                                "tarv_3_3::typed::Names for it");
    } else {
        constexpr Spelled found = scan(spelling<E, 0>(FirstValues<128>()));
        static_assert(found.named > 0 && found.lastNamed + 1 == found.named,
                      "tarv: the values of this enumeration do not count up from 0; specialize "
                      "tarv_3_3::typed::Names for it");
        if constexpr (isSigned<__underlying_type(E)>) {
            constexpr Spelled below = scan(spelling<E, -128>(FirstValues<128>()));
            static_assert(below.named == 0, "tarv: a value of this enumeration is below 0; specialize "
                                            "tarv_3_3::typed::Names for it");
        }
        static_assert(found.longest <= 63, "tarv: a name of this enumeration is over 63 bytes; specialize "
                                           "tarv_3_3::typed::Names for it");
        return spelling<E, 0>(FirstValues<found.named>());
    }
}

/// Where the value stands among those with names; where none stands, for one without.
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
        const int place = static_cast<int>(value);
        return static_cast<E>(place) == value ? place : -1;
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

} // namespace values

} // namespace v1

} // namespace tarv_3_3::typed
