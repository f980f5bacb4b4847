#include "typed/numbers.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <utility>

namespace tarv_3_3::typed::engine {

namespace {

/// The digits of a whole number and what stands in front of them.
struct Whole {
    bool isNegative = false;
    int base = 10;
    std::string_view digits;
};

Whole divide(std::string_view text) {
    Whole whole;
    if (!text.empty() && (text.front() == '-' || text.front() == '+')) {
        whole.isNegative = text.front() == '-';
        text.remove_prefix(1);
    }
    if (text.size() > 2 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X')) {
        whole.base = 16;
        text.remove_prefix(2);
    }
    whole.digits = text;
    return whole;
}

NumberOutcome outcomeOf(std::from_chars_result result, std::string_view digits) {
    if (result.ec == std::errc::invalid_argument || result.ptr != digits.data() + digits.size()) {
        return NumberOutcome::notOne;
    }
    return result.ec == std::errc() ? NumberOutcome::read : NumberOutcome::tooLarge;
}

NumberOutcome readDigits(const Whole& whole, unsigned long long& number) {
    // A second sign is none of the digits.
    if (whole.digits.empty() || whole.digits.front() == '-') {
        return NumberOutcome::notOne;
    }
    const char* const begin = whole.digits.data();
    return outcomeOf(std::from_chars(begin, begin + whole.digits.size(), number, whole.base), whole.digits);
}

struct NamedUnit {
    std::string_view name;
    TimeUnit unit;
};

constexpr NamedUnit timeUnits[] = {{"ns", {1, 1000000000}}, {"us", {1, 1000000}}, {"ms", {1, 1000}},
                                   {"s", {1, 1}},           {"min", {60, 1}},     {"h", {3600, 1}},
                                   {"d", {86400, 1}}};

const NamedUnit* findUnit(std::string_view name) {
    for (const NamedUnit& row : timeUnits) {
        if (row.name == name) {
            return &row;
        }
    }
    return nullptr;
}

/// A decimal number as digits without a point, and how many of them stood behind it.
struct Decimal {
    bool isNegative = false;
    unsigned long long digits = 0;
    int places = 0;
};

NumberOutcome readDecimal(std::string_view text, Decimal& decimal) {
    std::string digits;
    bool hasPoint = false;
    for (const char byte : text.substr(!text.empty() && (text[0] == '-' || text[0] == '+') ? 1 : 0)) {
        if (byte == '.' && !hasPoint) {
            hasPoint = true;
        } else if ('0' <= byte && byte <= '9') {
            digits += byte;
            decimal.places += hasPoint ? 1 : 0;
        } else {
            return NumberOutcome::notOne;
        }
    }
    if (digits.empty()) {
        return NumberOutcome::notOne;
    }
    while (decimal.places > 0 && digits.back() == '0') {
        digits.pop_back();
        --decimal.places;
    }
    decimal.isNegative = text[0] == '-';
    return readDigits({false, 10, digits.empty() ? std::string_view("0") : std::string_view(digits)},
                      decimal.digits);
}

__extension__ using Wide = unsigned __int128;

struct Fraction {
    Wide numerator;
    Wide denominator;
};

// How many of the one unit are in the other, in lowest terms.
Fraction ratioOf(TimeUnit typed, TimeUnit counted) {
    const Wide numerator = static_cast<Wide>(typed.numerator) * static_cast<Wide>(counted.denominator);
    const Wide denominator = static_cast<Wide>(typed.denominator) * static_cast<Wide>(counted.numerator);
    Wide divisor = numerator;
    for (Wide rest = denominator; rest != 0;) {
        divisor = std::exchange(rest, divisor % rest);
    }
    return {numerator / divisor, denominator / divisor};
}

// Multiplies by a fraction; only what is whole is read.
DurationOutcome scale(const Decimal& decimal, Fraction fraction, unsigned long long& scaled) {
    Wide over = 0;
    if (__builtin_mul_overflow(decimal.digits, fraction.numerator, &over)) {
        return DurationOutcome::tooLarge;
    }
    Wide under = fraction.denominator;
    for (int i = 0; i < decimal.places; ++i) {
        if (__builtin_mul_overflow(under, 10U, &under)) {
            return DurationOutcome::inexact;
        }
    }
    if (over % under != 0) {
        return DurationOutcome::inexact;
    }
    over /= under;
    scaled = static_cast<unsigned long long>(over);
    return over == scaled ? DurationOutcome::read : DurationOutcome::tooLarge;
}

std::size_t unitStart(std::string_view text) {
    const std::size_t end = text.find_last_of("0123456789.");
    return end == std::string_view::npos ? 0 : end + 1;
}

} // namespace

NumberOutcome readWhole(std::string_view text, unsigned long long& number) {
    const Whole whole = divide(text);
    const NumberOutcome outcome = readDigits(whole, number);
    return whole.isNegative && outcome == NumberOutcome::read && number != 0 ? NumberOutcome::tooLarge
                                                                             : outcome;
}

NumberOutcome readWhole(std::string_view text, long long& number) {
    const Whole whole = divide(text);
    unsigned long long size = 0;
    const NumberOutcome outcome = readDigits(whole, size);
    const unsigned long long most =
        static_cast<unsigned long long>(std::numeric_limits<long long>::max()) + (whole.isNegative ? 1 : 0);
    if (outcome == NumberOutcome::read && size > most) {
        return NumberOutcome::tooLarge;
    }
    number = static_cast<long long>(whole.isNegative ? 0 - size : size);
    return outcome;
}

NumberOutcome readReal(std::string_view text, double& number) {
    if (text.size() > 1 && text[0] == '+' && text[1] != '-') {
        text.remove_prefix(1);
    }
    const NumberOutcome outcome =
        outcomeOf(std::from_chars(text.data(), text.data() + text.size(), number), text);
    return outcome == NumberOutcome::read && !std::isfinite(number) ? NumberOutcome::notOne : outcome;
}

NumberOutcome readSize(std::string_view text, unsigned long long& bytes) {
    const std::size_t behind = unitStart(text);
    std::string_view unit = text.substr(behind);
    if (!unit.empty() && unit.back() == 'B') {
        unit.remove_suffix(1);
    }
    const bool isBinary = unit.size() == 2 && unit[1] == 'i';
    const std::string_view prefixes = isBinary ? "KMGTPE" : "kMGTPE";
    const std::size_t power = unit.empty() ? 0 : prefixes.find(unit[0]) + 1;
    if (unit.size() > (isBinary ? 2U : 1U) || (power == 0 && !unit.empty())) {
        return NumberOutcome::notOne;
    }
    unsigned long long factor = 1;
    for (std::size_t i = 0; i < power; ++i) {
        factor *= isBinary ? 1024 : 1000;
    }
    Decimal decimal;
    const NumberOutcome outcome = readDecimal(text.substr(0, behind), decimal);
    if (outcome != NumberOutcome::read || (decimal.isNegative && decimal.digits != 0)) {
        return outcome == NumberOutcome::tooLarge ? outcome : NumberOutcome::notOne;
    }
    switch (scale(decimal, {factor, 1}, bytes)) {
    case DurationOutcome::read:
        return NumberOutcome::read;
    case DurationOutcome::tooLarge:
        return NumberOutcome::tooLarge;
    default:
        return NumberOutcome::notOne;
    }
}

DurationOutcome readDuration(std::string_view text, TimeUnit unit, long long& count) {
    const std::size_t behind = unitStart(text);
    Decimal decimal;
    const NumberOutcome outcome = readDecimal(text.substr(0, behind), decimal);
    if (outcome != NumberOutcome::read) {
        return outcome == NumberOutcome::tooLarge ? DurationOutcome::tooLarge : DurationOutcome::notOne;
    }
    const NamedUnit* const typed = findUnit(text.substr(behind));
    if (typed == nullptr) {
        return behind == text.size() ? DurationOutcome::noUnit : DurationOutcome::notOne;
    }
    unsigned long long size = 0;
    const DurationOutcome scaled = scale(decimal, ratioOf(typed->unit, unit), size);
    if (scaled != DurationOutcome::read) {
        return scaled;
    }
    if (size > static_cast<unsigned long long>(std::numeric_limits<long long>::max())) {
        return DurationOutcome::tooLarge;
    }
    count = decimal.isNegative ? -static_cast<long long>(size) : static_cast<long long>(size);
    return DurationOutcome::read;
}

DurationOutcome readDuration(std::string_view text, TimeUnit unit, double& count) {
    const std::size_t behind = unitStart(text);
    const NumberOutcome outcome = readReal(text.substr(0, behind), count);
    if (outcome != NumberOutcome::read) {
        return outcome == NumberOutcome::tooLarge ? DurationOutcome::tooLarge : DurationOutcome::notOne;
    }
    const NamedUnit* const typed = findUnit(text.substr(behind));
    if (typed == nullptr) {
        return behind == text.size() ? DurationOutcome::noUnit : DurationOutcome::notOne;
    }
    count *= static_cast<double>(typed->unit.numerator) * static_cast<double>(unit.denominator);
    count /= static_cast<double>(typed->unit.denominator) * static_cast<double>(unit.numerator);
    return std::isfinite(count) ? DurationOutcome::read : DurationOutcome::tooLarge;
}

std::string showReal(double number, bool isFloat) {
    char digits[64];
    const std::to_chars_result end =
        isFloat ? std::to_chars(digits, digits + sizeof digits, static_cast<float>(number))
                : std::to_chars(digits, digits + sizeof digits, number);
    return std::string(digits, end.ptr);
}

std::string showSize(unsigned long long bytes) {
    const char* unit = "";
    for (const char* larger : {"KiB", "MiB", "GiB", "TiB", "PiB", "EiB"}) {
        if (bytes == 0 || bytes % 1024 != 0) {
            break;
        }
        bytes /= 1024;
        unit = larger;
    }
    return std::to_string(bytes) + unit;
}

std::string showDuration(const std::string& count, TimeUnit unit) {
    for (const NamedUnit& row : timeUnits) {
        if (row.unit.numerator == unit.numerator && row.unit.denominator == unit.denominator) {
            return count + std::string(row.name);
        }
    }
    double seconds = 0;
    std::from_chars(count.data(), count.data() + count.size(), seconds);
    seconds *= static_cast<double>(unit.numerator) / static_cast<double>(unit.denominator);
    return showReal(seconds, false) + "s";
}

int readSwitchText(std::string_view text) {
    for (const std::string_view on : {"1", "true", "yes", "on"}) {
        if (text == on) {
            return 1;
        }
    }
    for (const std::string_view off : {"0", "false", "no", "off"}) {
        if (text == off) {
            return 0;
        }
    }
    return -1;
}

} // namespace tarv_3_3::typed::engine
