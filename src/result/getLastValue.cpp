#include "tarv_3_3/IParseResult.h"

namespace tarv_3_3 {

Value getLastValue(IParseResult* result, const char* name, int lo, int hi) {
    Value last;
    if (result == nullptr || name == nullptr) {
        return last;
    }
    Value found = result->get(name, lo, hi);
    while (found.status == valueFound) {
        last = found;
        found = result->next(name);
    }
    return last;
}

} // namespace tarv_3_3
