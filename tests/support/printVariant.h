#pragma once

#include <ostream>

#include "dovel2/variant.h"

namespace dovel2 {

/// How GoogleTest shows a variant: `int32 5`, `string "a"`, `null`.
inline void PrintTo(const variant_t& value, std::ostream* out) {
    switch (value.type()) {
    case vtBool:
        *out << "bool " << value.get<bool>();
        return;
    case vtInt32:
        *out << "int32 " << value.get<int32_t>();
        return;
    case vtUInt32:
        *out << "uint32 " << value.get<uint32_t>();
        return;
    case vtInt64:
        *out << "int64 " << value.get<int64_t>();
        return;
    case vtUInt64:
        *out << "uint64 " << value.get<uint64_t>();
        return;
    case vtDouble:
        *out << "double " << value.get<double>();
        return;
    case vtString:
        *out << "string \"" << value.get<const char*>() << '"';
        return;
    case vtNull:
        break;
    }
    *out << "null";
}

} // namespace dovel2
