#include "typed/plainValues.h"

#include <cstdint>
#include <cstring>

#include "typed/ranges.h"

namespace tarv_3_3::typed::engine {

namespace {

template <class Number, class Whole>
void put(PlainValue& value, Whole whole) {
    const auto number = static_cast<Number>(whole);
    std::memcpy(value.bytes, &number, sizeof number);
}

template <class Number>
Number get(const PlainValue& value) {
    Number number{};
    std::memcpy(&number, value.bytes, sizeof number);
    return number;
}

void putWhole(PlainValue& value, unsigned size, unsigned long long whole) {
    switch (size) {
    case 1:
        return put<std::uint8_t>(value, whole);
    case 2:
        return put<std::uint16_t>(value, whole);
    case 4:
        return put<std::uint32_t>(value, whole);
    default:
        return put<std::uint64_t>(value, whole);
    }
}

unsigned long long getUnsigned(const PlainValue& value, unsigned size) {
    return size == 1   ? get<std::uint8_t>(value)
           : size == 2 ? get<std::uint16_t>(value)
           : size == 4 ? get<std::uint32_t>(value)
                       : get<std::uint64_t>(value);
}

long long getSigned(const PlainValue& value, unsigned size) {
    return size == 1   ? get<std::int8_t>(value)
           : size == 2 ? get<std::int16_t>(value)
           : size == 4 ? get<std::int32_t>(value)
                       : get<std::int64_t>(value);
}

bool isFloat(const Shape& shape) {
    return shape.valueSize == sizeof(float);
}

bool makeReal(Taking& taking, const char* text, const Shape& shape, PlainValue& value) {
    double real = 0;
    const bool isRead = readReal(&taking, text, &real);
    if (isFloat(shape)) {
        put<float>(value, real);
    } else {
        put<double>(value, real);
    }
    return isRead;
}

bool makeChoice(Taking& taking, const char* text, const Shape& shape, PlainValue& value) {
    int place = 0;
    const bool isRead = readChoice(&taking, text, &place);
    putWhole(value, shape.valueSize, static_cast<unsigned long long>(place));
    return isRead;
}

bool makeByte(Taking& taking, const char* text, PlainValue& value) {
    const char* const byte = readText(&taking, text, false);
    value.bytes[0] = byte != nullptr ? static_cast<unsigned char>(*byte) : 0;
    return byte != nullptr;
}

bool makeSwitch(Taking& taking, const char* text, PlainValue& value) {
    bool isOn = false;
    const bool isRead = readSwitch(&taking, text, &isOn);
    put<bool>(value, isOn);
    return isRead;
}

} // namespace

bool makePlain(Taking& taking, const char* text, PlainValue& value) {
    const Shape& shape = taking.option->shape();
    long long whole = 0;
    unsigned long long natural = 0;
    bool isRead = false;
    switch (numberForm(*taking.option)) {
    case NumberForm::asSigned:
        isRead = readSigned(&taking, text, &whole);
        putWhole(value, shape.valueSize, static_cast<unsigned long long>(whole));
        return isRead;
    case NumberForm::asUnsigned:
        isRead = readUnsigned(&taking, text, &natural);
        putWhole(value, shape.valueSize, natural);
        return isRead;
    case NumberForm::asReal:
        return makeReal(taking, text, shape, value);
    case NumberForm::none:
        break;
    }
    return shape.kind == kindChoice ? makeChoice(taking, text, shape, value)
           : shape.kind == kindByte ? makeByte(taking, text, value)
                                    : makeSwitch(taking, text, value);
}

void storePlain(const Option& option, const PlainValue& value) {
    std::memcpy(option.state->target, value.bytes, option.shape().valueSize);
}

void showPlainDefault(Option& option) {
    const Shape& shape = option.shape();
    const PlainValue& value = option.initial;
    switch (numberForm(option)) {
    case NumberForm::asSigned:
        return addDefaultSigned(&option, getSigned(value, shape.valueSize));
    case NumberForm::asUnsigned:
        return addDefaultUnsigned(&option, getUnsigned(value, shape.valueSize));
    case NumberForm::asReal:
        return addDefaultReal(&option, isFloat(shape) ? get<float>(value) : get<double>(value));
    case NumberForm::none:
        break;
    }
    if (shape.kind == kindByte) {
        addDefaultText(&option, reinterpret_cast<const char*>(value.bytes), 1);
    } else if (shape.kind == kindChoice) {
        addDefaultSigned(&option, static_cast<long long>(getUnsigned(value, shape.valueSize)));
    } else {
        addDefaultUnsigned(&option, getUnsigned(value, shape.valueSize));
    }
}

} // namespace tarv_3_3::typed::engine
