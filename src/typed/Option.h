#pragma once

#include <list>
#include <string>
#include <string_view>
#include <vector>

#include "tarv_3_3/internal/typedEngine.h"

namespace tarv_3_3::typed::engine {

/// The numbers that are accepted, in the member that the kind of the option says; whole numbers that may
/// be negative in `leastSigned` and `mostSigned`.
struct Range {
    bool isSet = false;
    long long leastSigned = 0;
    long long mostSigned = 0;
    unsigned long long leastUnsigned = 0;
    unsigned long long mostUnsigned = 0;
    double leastReal = 0;
    double mostReal = 0;
};

/// A value of a type that the library knows all of: a number, a switch, an enumeration.
struct PlainValue {
    alignas(long long) unsigned char bytes[sizeof(long long)] = {};
};

/// What was declared of an option, an action or a positional argument. Lives as long as its program, in one
/// place.
struct Option {
    Option() = default;
    Option(const Option&) = delete;
    Option& operator=(const Option&) = delete;
    ~Option();

    const Shape& shape() const { return *state->shape; }
    const std::string& name() const { return names.front(); }
    bool isPositional() const { return role == rolePositional || role == roleRest; }
    bool isMany() const { return shape().holds == holdsMany; }
    /// Whether its name alone says everything, and "no-" in front of it the contrary.
    bool isSwitch() const { return role == roleOption && shape().kind == kindSwitch && !isMany(); }
    bool isCounter() const { return shape().kind == kindCounter; }
    bool takesValue() const { return role != roleAction && !isSwitch() && !isCounter(); }
    bool takesNumbers() const {
        const int kind = shape().kind;
        return kind == kindSigned || kind == kindUnsigned || kind == kindReal || kind == kindSize ||
               kind == kindDuration;
    }
    bool hasName(std::string_view wanted) const;
    bool isGiven() const { return state->given != 0; }
    /// Whether the library makes and stores its values; then it has the state.
    bool isPlain() const { return shape().valueSize != 0; }

    State* state = nullptr;
    ///@{
    /// Of a plain one.
    State plainState = {};
    PlainValue own;
    PlainValue initial;
    ///@}
    Command* owner = nullptr;
    int role = roleOption;
    /// The primary one first; never empty.
    std::vector<std::string> names;
    std::string text;
    std::string topic;
    std::string valueName;
    std::string environment;
    std::string completeAs;
    std::string insteadOfIt;
    bool isDeprecated = false;
    bool isRequired = false;
    bool isHidden = false;
    bool mayBeEmpty = false;
    /// Whether the host gave a default.
    bool hasDefault = false;
    /// What it holds initially, as its elements are shown: its default, or what a bound variable held.
    std::vector<std::string> defaults;
    char separator = '\0';
    unsigned least = 0;
    /// 0 for any number.
    unsigned most = 0;
    Range range;
    /// What a value may be, as it is typed; of an enumeration, its names.
    std::vector<std::string> choices;
    /// What checks ask for; a list leaves them where they are.
    std::list<std::string> musts;
    std::vector<Option*> needed;
    std::vector<Option*> actions;
    /// What is wrong with its refinements.
    std::vector<std::string> faults;

    ///@{
    /// Of the parse at hand: the index in `argv` of each occurrence, and the value of the last one.
    std::vector<int> positions;
    const char* lastText = "";
    /// How many elements were stored, and how many a list takes in all.
    unsigned long storedCount = 0;
    unsigned long elementCount = 0;
    ///@}
};

} // namespace tarv_3_3::typed::engine
