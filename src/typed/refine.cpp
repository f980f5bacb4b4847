#include <string>

#include "typed/guarded.h"
#include "typed/numbers.h"
#include "typed/ranges.h"

namespace tarv_3_3::typed::engine {

namespace {

constexpr char outsideOfType[] = "a bound of the range is outside of its type";
constexpr char noRange[] = "the least number of the range is over the greatest one";

void addFault(Option& option, const char* fault) {
    option.faults.emplace_back(fault);
}

void setSigned(Option& option, long long low, long long high) {
    if (low < option.shape().least || high > greatestSigned(option.shape())) {
        addFault(option, outsideOfType);
    }
    option.range.leastSigned = low;
    option.range.mostSigned = high;
}

void setUnsigned(Option& option, unsigned long long low, unsigned long long high) {
    if (high > option.shape().most) {
        addFault(option, outsideOfType);
    }
    option.range.leastUnsigned = low;
    option.range.mostUnsigned = high;
}

void refineOwn(Option& option, int refinement, const char* text) {
    switch (refinement) {
    case refineRequired:
        option.isRequired = true;
        break;
    case refineEnvironment:
        option.environment = text;
        break;
    case refineTopic:
        option.topic = text;
        break;
    case refineHidden:
        option.isHidden = true;
        break;
    case refineSeparator:
        option.separator = *text;
        break;
    case refineMayBeEmpty:
        option.mayBeEmpty = true;
        break;
    case refineDeprecated:
        option.isDeprecated = true;
        option.insteadOfIt = text;
        break;
    case refineValueName:
        option.valueName = text;
        break;
    case refineCompleteAs:
        option.completeAs = text;
        break;
    case refineChoice:
        option.choices.emplace_back(text);
        break;
    default:
        break;
    }
}

} // namespace

void refine(Option* option, int refinement, const char* text) noexcept {
    guarded(option, [&] { refineOwn(*option, refinement, text != nullptr ? text : ""); });
}

void setTimes(Option* option, unsigned least, unsigned most) noexcept {
    guarded(option, [&] {
        option->least = least;
        option->most = most;
    });
}

void setRangeSigned(Option* option, long long low, long long high) noexcept {
    guarded(option, [&] {
        option->range.isSet = true;
        if (low > high) {
            addFault(*option, noRange);
        }
        if (numberForm(*option) == NumberForm::asSigned) {
            setSigned(*option, low, high);
        } else {
            addFault(*option, outsideOfType);
        }
    });
}

void setRangeUnsigned(Option* option, unsigned long long low, unsigned long long high) noexcept {
    guarded(option, [&] {
        option->range.isSet = true;
        if (low > high) {
            addFault(*option, noRange);
        }
        if (numberForm(*option) == NumberForm::asUnsigned) {
            setUnsigned(*option, low, high);
        } else if (high <= static_cast<unsigned long long>(~0ULL >> 1)) {
            setSigned(*option, static_cast<long long>(low), static_cast<long long>(high));
        } else {
            addFault(*option, outsideOfType);
        }
    });
}

void setRangeReal(Option* option, double low, double high) noexcept {
    guarded(option, [&] {
        option->range.isSet = true;
        if (!(low <= high)) {
            addFault(*option, noRange);
        }
        option->range.leastReal = low;
        option->range.mostReal = high;
    });
}

void addChoiceSigned(Option* option, long long value) noexcept {
    guarded(option, [&] {
        if (option->shape().kind == kindByte) {
            option->choices.emplace_back(1, static_cast<char>(value));
        } else {
            option->choices.push_back(showNumber(*option, value));
        }
    });
}

void addChoiceReal(Option* option, double value) noexcept {
    guarded(option, [&] { option->choices.push_back(showNumber(*option, value)); });
}

void addDefaultSigned(Option* option, long long value) noexcept {
    guarded(option, [&] {
        if (option->shape().kind == kindChoice) {
            const bool isNamed = 0 <= value && value < static_cast<long long>(option->choices.size());
            option->defaults.push_back(isNamed ? option->choices[static_cast<std::size_t>(value)] : "");
            if (!isNamed) {
                addFault(*option, "its default has no name");
            }
        } else {
            option->defaults.push_back(showNumber(*option, value));
        }
    });
}

void addDefaultUnsigned(Option* option, unsigned long long value) noexcept {
    guarded(option, [&] {
        const bool isSwitch = option->shape().kind == kindSwitch;
        option->defaults.push_back(isSwitch ? value != 0 ? "on" : "off" : showNumber(*option, value));
    });
}

void addDefaultReal(Option* option, double value) noexcept {
    guarded(option, [&] { option->defaults.push_back(showNumber(*option, value)); });
}

// A '\0' is no character that could be typed: it stands for none.
void addDefaultText(Option* option, const char* text, unsigned long length) noexcept {
    guarded(option, [&] {
        if (option->shape().kind == kindByte && *text == '\0') {
            return;
        }
        option->defaults.emplace_back(text != nullptr ? text : "", text != nullptr ? length : 0);
    });
}

void addNeed(Option* option, Option* other) noexcept {
    guarded(option, [&] { option->needed.push_back(other); });
}

void addAction(Option* option, Option* action) noexcept {
    guarded(option, [&] { option->actions.push_back(action); });
}

const char* choiceName(const Option* option, int place) noexcept {
    const auto at = static_cast<std::size_t>(place);
    return option != nullptr && at < option->choices.size() ? option->choices[at].c_str() : "";
}

const char* addCheck(Option* option, const char* must) noexcept {
    const char* kept = nullptr;
    guarded(option, [&] { kept = option->musts.emplace_back(must != nullptr ? must : "").c_str(); });
    return kept;
}

void failMemory(Option* option) noexcept {
    if (option != nullptr) {
        option->owner->program().isOutOfMemory = true;
    }
}

} // namespace tarv_3_3::typed::engine
