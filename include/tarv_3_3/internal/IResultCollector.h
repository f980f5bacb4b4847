#pragma once

#include "tarv_3_3/export.h"

namespace tarv_3_3 {

class OptionDescription;
struct OptionData;

/// Where the recognizers put what they find.
class TARV_API IResultCollector {
public:
    /// Records one occurrence of `option` with its values under each of the option's names; the
    /// default fields of `data` count only for the first occurrence. Always returns 0. Throws
    /// `std::out_of_range` for an option without names.
    virtual int store(const OptionDescription& option, const OptionData& data) = 0;

protected:
    IResultCollector() = default;
    IResultCollector(const IResultCollector&) = default;
    IResultCollector& operator=(const IResultCollector&) = default;
    ~IResultCollector() = default;
};

} // namespace tarv_3_3
