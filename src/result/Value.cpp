#include "tarv_3_3/Value.h"

namespace tarv_3_3 {

template <>
const char* Value::as<const char*>() const {
    return status == valueFound ? text : nullptr;
}

} // namespace tarv_3_3
