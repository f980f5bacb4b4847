#include "tarv_3_3/Value.h"

namespace tarv_3_3 {

Value::Value() : text(nullptr), status(valueMissing), position(noPosition) {}

Value::Value(const char* textOfValue, const variant_t& typedValue, int positionIndex)
    : text(textOfValue), status(valueFound), position(positionIndex), value(typedValue) {}

Value::~Value() = default;

Value::Value(const Value&) noexcept = default;

Value& Value::operator=(const Value&) noexcept = default;

template <>
const char* Value::as<const char*>() const {
    return status == valueFound ? text : nullptr;
}

} // namespace tarv_3_3
