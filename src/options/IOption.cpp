#include "tarv_3_3/IOption.h"

namespace tarv_3_3 {

IOption::~IOption() = default;

} // namespace tarv_3_3
