#include <algorithm>
#include <exception>
#include <limits>
#include <string_view>

#include "description/utf8.h"
#include "typed/Taking.h"
#include "typed/messages.h"
#include "typed/numbers.h"
#include "typed/ranges.h"

namespace tarv_3_3::typed::engine {

namespace {

TimeUnit unitOf(const Option& option) {
    return {option.shape().periodNumerator, option.shape().periodDenominator};
}

bool refuseWith(Taking& taking, std::string reason) {
    taking.isRefused = true;
    taking.reason = std::move(reason);
    return false;
}

// What the host's code calls must not throw; a value without memory is refused.
template <class Act>
bool guardedTaking(Taking* taking, Act act) {
    try {
        return act();
    } catch (const std::exception&) {
        taking->isRefused = true;
        taking->isOutOfMemory = true;
        return false;
    }
}

bool refuseNumber(Taking& taking, const char* what) {
    const Option& option = *taking.option;
    return refuseWith(taking, messages::mustBe(hasRange(option) ? std::string(what) + " " + rangeText(option)
                                                                : std::string(what)));
}

bool refuseByRange(Taking& taking) {
    const std::string range = rangeText(*taking.option);
    return refuseWith(taking, range.empty() ? messages::tooLarge : messages::mustBe(range));
}

bool isAmong(Taking& taking, const std::string& shown) {
    const std::vector<std::string>& choices = taking.option->choices;
    if (choices.empty() || std::find(choices.begin(), choices.end(), shown) != choices.end()) {
        return true;
    }
    return refuseWith(taking, messages::mustBeOneOf(choices));
}

bool checkOutcome(Taking& taking, NumberOutcome outcome, const char* what) {
    return outcome == NumberOutcome::read     ? true
           : outcome == NumberOutcome::notOne ? refuseNumber(taking, what)
                                              : refuseByRange(taking);
}

bool checkOutcome(Taking& taking, DurationOutcome outcome) {
    switch (outcome) {
    case DurationOutcome::read:
        return true;
    case DurationOutcome::noUnit:
        return refuseWith(taking, messages::unitIsMissing);
    case DurationOutcome::tooLarge:
        return refuseByRange(taking);
    case DurationOutcome::inexact:
        return refuseWith(taking, messages::mustBeWholeUnits(showDuration("1", unitOf(*taking.option))));
    case DurationOutcome::notOne:
        break;
    }
    return refuseNumber(taking, messages::aDuration);
}

template <class Number>
bool isWithin(Number number, Number least, Number most) {
    return least <= number && number <= most;
}

bool takeSigned(Taking& taking, std::string_view text, long long& number) {
    const Option& option = *taking.option;
    const bool isRead = option.shape().kind == kindDuration
                            ? checkOutcome(taking, readDuration(text, unitOf(option), number))
                            : checkOutcome(taking, readWhole(text, number), messages::aWholeNumber);
    if (!isRead) {
        return false;
    }
    const long long least = option.range.isSet ? option.range.leastSigned : option.shape().least;
    const long long most = option.range.isSet ? option.range.mostSigned : greatestSigned(option.shape());
    return isWithin(number, least, most) ? isAmong(taking, showNumber(option, number))
                                         : refuseByRange(taking);
}

bool takeUnsigned(Taking& taking, std::string_view text, unsigned long long& number) {
    const Option& option = *taking.option;
    if (option.shape().kind == kindDuration) {
        long long count = 0;
        const bool isTaken = takeSigned(taking, text, count);
        number = static_cast<unsigned long long>(count);
        return isTaken;
    }
    const bool isSize = option.shape().kind == kindSize;
    const NumberOutcome outcome = isSize ? readSize(text, number) : readWhole(text, number);
    if (!checkOutcome(taking, outcome, isSize ? messages::aSize : messages::aWholeNumber)) {
        return false;
    }
    const unsigned long long least = option.range.isSet ? option.range.leastUnsigned : 0;
    const unsigned long long most = option.range.isSet ? option.range.mostUnsigned : option.shape().most;
    return isWithin(number, least, most) ? isAmong(taking, showNumber(option, number))
                                         : refuseByRange(taking);
}

bool takeReal(Taking& taking, std::string_view text, double& number) {
    const Option& option = *taking.option;
    const bool isRead = option.shape().kind == kindDuration
                            ? checkOutcome(taking, readDuration(text, unitOf(option), number))
                            : checkOutcome(taking, readReal(text, number), messages::aNumber);
    if (!isRead) {
        return false;
    }
    constexpr double largestFloat = std::numeric_limits<float>::max();
    if (option.shape().isFloat != 0 && !isWithin(number, -largestFloat, largestFloat)) {
        return refuseWith(taking, messages::tooLarge);
    }
    const Range& range = option.range;
    return !range.isSet || isWithin(number, range.leastReal, range.mostReal)
               ? isAmong(taking, showNumber(option, number))
               : refuseByRange(taking);
}

// The place of a choice, cut short if that is allowed; the number of choices when it is none.
std::size_t placeOfChoice(Taking& taking, std::string_view text) {
    const std::vector<std::string>& choices = taking.option->choices;
    const auto equal = std::find(choices.begin(), choices.end(), text);
    if (equal != choices.end()) {
        return static_cast<std::size_t>(equal - choices.begin());
    }
    std::vector<std::string> fitting;
    std::size_t place = choices.size();
    for (std::size_t i = 0; i < choices.size(); ++i) {
        if (taking.mayBeCut && !text.empty() && choices[i].compare(0, text.size(), text) == 0) {
            fitting.push_back(choices[i]);
            place = i;
        }
    }
    if (fitting.size() == 1) {
        return place;
    }
    refuseWith(taking, fitting.empty() ? messages::mustBeOneOf(choices) : messages::couldBe(fitting));
    return choices.size();
}

bool takeSwitch(Taking& taking, std::string_view text, bool& value) {
    const int read = readSwitchText(text);
    value = read == 1;
    return read >= 0 || refuseWith(taking, messages::mustBe(messages::aSwitch));
}

const char* takeText(Taking& taking, const char* text) {
    const Option& option = *taking.option;
    if (option.shape().kind == kindByte && (text[0] == '\0' || text[1] != '\0')) {
        refuseWith(taking, messages::mustBe(messages::oneByte));
        return nullptr;
    }
    if (option.choices.empty()) {
        return text;
    }
    const std::size_t place = placeOfChoice(taking, text);
    return place < option.choices.size() ? option.choices[place].c_str() : nullptr;
}

} // namespace

bool readSwitch(Taking* taking, const char* text, bool* value) noexcept {
    return guardedTaking(taking, [&] { return takeSwitch(*taking, text, *value); });
}

bool readSigned(Taking* taking, const char* text, long long* value) noexcept {
    return guardedTaking(taking, [&] { return takeSigned(*taking, text, *value); });
}

bool readUnsigned(Taking* taking, const char* text, unsigned long long* value) noexcept {
    return guardedTaking(taking, [&] { return takeUnsigned(*taking, text, *value); });
}

bool readReal(Taking* taking, const char* text, double* value) noexcept {
    return guardedTaking(taking, [&] { return takeReal(*taking, text, *value); });
}

bool readChoice(Taking* taking, const char* text, int* place) noexcept {
    return guardedTaking(taking, [&] {
        const std::size_t found = placeOfChoice(*taking, text);
        *place = static_cast<int>(found);
        return found < taking->option->choices.size();
    });
}

const char* readText(Taking* taking, const char* text, bool keep) noexcept {
    const char* read = nullptr;
    guardedTaking(taking, [&] {
        read = takeText(*taking, text);
        if (read != nullptr && keep) {
            read = taking->keptTexts->emplace_back(read).c_str();
        }
        return read != nullptr;
    });
    return read;
}

unsigned long placeOfElement(const Taking* taking, unsigned long* count) noexcept {
    *count = taking->option->elementCount;
    return taking->place;
}

bool refuse(Taking* taking, const char* must) noexcept {
    return guardedTaking(taking,
                         [&] { return refuseWith(*taking, must != nullptr ? messages::mustBe(must) : ""); });
}

void offer(Taking* taking, const char* value, const char* description) noexcept {
    guardedTaking(taking, [&] {
        if (value != nullptr) {
            taking->candidates.emplace_back(value, description != nullptr ? description : "");
        }
        return true;
    });
}

bool isValue(Taking& taking, const char* text) {
    const Option& option = *taking.option;
    bool isOn = false;
    long long whole = 0;
    unsigned long long natural = 0;
    double real = 0;
    switch (numberForm(option)) {
    case NumberForm::asSigned:
        return takeSigned(taking, text, whole);
    case NumberForm::asUnsigned:
        return takeUnsigned(taking, text, natural);
    case NumberForm::asReal:
        return takeReal(taking, text, real);
    case NumberForm::none:
        break;
    }
    return option.shape().kind == kindSwitch ? takeSwitch(taking, text, isOn)
                                             : takeText(taking, text) != nullptr;
}

} // namespace tarv_3_3::typed::engine
