#include "typed/ranges.h"

#include <limits>

#include "typed/numbers.h"

namespace tarv_3_3::typed::engine {

namespace {

TimeUnit unitOf(const Option& option) {
    return {option.shape().periodNumerator, option.shape().periodDenominator};
}

} // namespace

std::string showNumber(const Option& option, long long number) {
    const std::string digits = std::to_string(number);
    return option.shape().kind == kindDuration ? showDuration(digits, unitOf(option)) : digits;
}

std::string showNumber(const Option& option, unsigned long long number) {
    const std::string digits = std::to_string(number);
    return option.shape().kind == kindSize       ? showSize(number)
           : option.shape().kind == kindDuration ? showDuration(digits, unitOf(option))
                                                 : digits;
}

std::string showNumber(const Option& option, double number) {
    const std::string digits = showReal(number, option.shape().isFloat != 0);
    return option.shape().kind == kindDuration ? showDuration(digits, unitOf(option)) : digits;
}

NumberForm numberForm(const Option& option) {
    const Shape& shape = option.shape();
    switch (shape.kind) {
    case kindSigned:
    case kindCounter:
        return NumberForm::asSigned;
    case kindUnsigned:
    case kindSize:
        return NumberForm::asUnsigned;
    case kindReal:
        return NumberForm::asReal;
    case kindDuration:
        return shape.most == 0 ? NumberForm::asReal : NumberForm::asSigned;
    default:
        return NumberForm::none;
    }
}

long long greatestSigned(const Shape& shape) {
    constexpr long long most = std::numeric_limits<long long>::max();
    return shape.most < static_cast<unsigned long long>(most) ? static_cast<long long>(shape.most) : most;
}

bool hasRange(const Option& option) {
    return option.range.isSet;
}

std::string leastText(const Option& option) {
    const Range& range = option.range;
    const Shape& shape = option.shape();
    switch (numberForm(option)) {
    case NumberForm::asSigned:
        return showNumber(option, range.isSet ? range.leastSigned : shape.least);
    case NumberForm::asUnsigned:
        return showNumber(option, range.isSet ? range.leastUnsigned : 0ULL);
    case NumberForm::asReal:
        return range.isSet ? showNumber(option, range.leastReal) : "";
    case NumberForm::none:
        break;
    }
    return "";
}

std::string mostText(const Option& option) {
    const Range& range = option.range;
    const Shape& shape = option.shape();
    switch (numberForm(option)) {
    case NumberForm::asSigned:
        return showNumber(option, range.isSet ? range.mostSigned : greatestSigned(shape));
    case NumberForm::asUnsigned:
        return showNumber(option, range.isSet ? range.mostUnsigned : shape.most);
    case NumberForm::asReal:
        return range.isSet ? showNumber(option, range.mostReal) : "";
    case NumberForm::none:
        break;
    }
    return "";
}

std::string rangeText(const Option& option) {
    const std::string least = leastText(option);
    const std::string most = mostText(option);
    return least.empty() ? "" : "from " + least + " to " + most;
}

} // namespace tarv_3_3::typed::engine
