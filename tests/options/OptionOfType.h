#pragma once

#include "options/OptionDescription.h"
#include "tarv_3_3/internal/Garbage.h"

namespace tarv_3_3 {

/// The record of an option "opt" of some kind, with the keeper of its texts.
struct OptionOfType {
    explicit OptionOfType(das_variant_type_t type) {
        option.m_names = {"opt", "o"};
        option.m_kind = Option;
        option.m_type = type;
        option.m_garbage = &garbage;
    }

    OptionOfType(const OptionOfType&) = delete;
    OptionOfType& operator=(const OptionOfType&) = delete;

    Garbage garbage;
    OptionDescription option;
};

inline variant_t converted(das_variant_type_t type, const char* text) {
    OptionOfType of(type);
    return of.option.fromString(text, &of.garbage);
}

} // namespace tarv_3_3
