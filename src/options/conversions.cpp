#include "options/conversions.h"

#include <charconv>
#include <cmath>
#include <cstring>
#include <istream>
#include <locale>
#include <new>
#include <sstream>
#include <string_view>
#include <type_traits>

#include "tarv_3_3/internal/Garbage.h"

namespace tarv_3_3 {

using namespace std::string_literals;

namespace {

std::istringstream classicStream(const char* text) {
    std::istringstream stream{std::string(text)};
    stream.imbue(std::locale::classic());
    return stream;
}

// A stream reports exhausted memory by its badbit. That must not be taken for a wrong number.
bool succeeded(const std::istream& stream) {
    if (stream.bad()) {
        throw std::bad_alloc();
    }
    return !stream.fail();
}

template <class T>
bool extractWholeText(const char* text, T& value) {
    std::istringstream stream = classicStream(text);
    stream >> value;
    if (!succeeded(stream)) {
        return false;
    }
    char behind;
    stream >> behind;
    return !succeeded(stream);
}

// Unlike a stream, from_chars reads the words "inf" and "nan".
template <class T>
bool isPlain(T value) {
    if constexpr (std::is_floating_point_v<T>) {
        return std::isfinite(value);
    }
    return true;
}

constexpr std::string_view hexadecimalDigits = "1234567890ABCDEFabcdef";

bool isAllDigits(std::string_view text) {
    return text.find_first_not_of(hexadecimalDigits) == std::string_view::npos;
}

bool isHexadecimal(std::string_view text) {
    const std::string_view prefix = text.substr(0, 2);
    if ((prefix == "0x" || prefix == "0X") && isAllDigits(text.substr(2))) {
        return true;
    }
    const bool hasSuffix = !text.empty() && (text.back() == 'h' || text.back() == 'H');
    return hasSuffix && isAllDigits(text.substr(0, text.size() - 1));
}

} // namespace

// If from_chars reads a text to its end, a stream would read the same value. White space, a plus sign, a
// minus before an unsigned number and all failures are left to the stream.
template <class T>
bool convertWholeText(const char* text, T& value) {
    const char* const end = text + std::strlen(text);
    const auto [behind, error] = std::from_chars(text, end, value);
    if (error == std::errc() && behind == end && isPlain(value)) {
        return true;
    }
    return extractWholeText(text, value);
}

template bool convertWholeText<std::int32_t>(const char*, std::int32_t&);
template bool convertWholeText<std::uint32_t>(const char*, std::uint32_t&);
template bool convertWholeText<std::int64_t>(const char*, std::int64_t&);
template bool convertWholeText<double>(const char*, double&);

OperationFromString::OperationFromString(Garbage* garbageOfParser, const char* textToConvert)
    : garbage(garbageOfParser), input(textToConvert) {}

template <class T>
bool OperationFromString::execute() {
    T value;
    if (!convertWholeText(input, value)) {
        return false;
    }
    result = value;
    return true;
}

template bool OperationFromString::execute<std::int32_t>();
template bool OperationFromString::execute<std::int64_t>();

// A stream reads a bool as a number, and fails unless that is 0 or 1.
template <>
bool OperationFromString::execute<bool>() {
    const bool isDigit = (input[0] == '0' || input[0] == '1') && input[1] == '\0';
    if (isDigit) {
        result = input[0] == '1';
        return true;
    }
    std::int64_t number;
    if (!convertWholeText(input, number) || (number != 0 && number != 1)) {
        return false;
    }
    result = number == 1;
    return true;
}

template <>
bool OperationFromString::execute<std::uint64_t>() {
    std::istringstream stream = classicStream(input);
    stream.setf(isHexadecimal(input) ? std::ios_base::hex : std::ios_base::dec, std::ios_base::basefield);
    std::uint64_t value;
    stream >> value;
    if (!succeeded(stream)) {
        return false;
    }
    result = value;
    return true;
}

template <>
bool OperationFromString::execute<const char*>() {
    result = garbage->init(input);
    return true;
}

OperationToString::OperationToString(Garbage* garbageOfParser, const variant_t& valueToConvert)
    : garbage(garbageOfParser), input(valueToConvert) {}

template <>
bool OperationToString::execute<const char*>() {
    result = garbage->init(input.get<const char*>());
    return true;
}

template <>
bool OperatorGetTypeName::execute<std::int32_t>() {
    result = "integer"s;
    return true;
}

template <>
bool OperatorGetTypeName::execute<std::uint32_t>() {
    result = "unsigned integer"s;
    return true;
}

template <>
bool OperatorGetTypeName::execute<std::int64_t>() {
    result = "64 bit integer"s;
    return true;
}

template <>
bool OperatorGetTypeName::execute<std::uint64_t>() {
    result = "unsigned 64 bit or hex"s;
    return true;
}

template <>
bool OperatorGetTypeName::execute<double>() {
    result = "double"s;
    return true;
}

template <>
bool OperatorGetTypeName::execute<const char*>() {
    result = "string"s;
    return true;
}

} // namespace tarv_3_3
