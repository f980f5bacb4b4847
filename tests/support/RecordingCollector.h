#pragma once

#include <string>
#include <vector>

#include "options/OptionDescription.h"
#include "support/describe.h"
#include "tarv_3_3/internal/IResultCollector.h"

/// Keeps what recognizers store, each occurrence apart.
class RecordingCollector : public tarv_3_3::IResultCollector {
public:
    explicit RecordingCollector(const RelativePositions& relative) : m_relative(relative) {}

    int store(const tarv_3_3::OptionDescription& option, const tarv_3_3::OptionData& data) override {
        stored += (stored.empty() ? "" : " ") + describe(option.primaryName(), data, m_relative);
        values.insert(values.end(), data.values.begin(), data.values.end());
        return answer;
    }

    /// The occurrences in order, as `level@1="5"@2 verbose@3`.
    std::string stored;
    /// The values of all occurrences.
    std::vector<tarv_3_3::OptionValue> values;
    int answer = 0;

private:
    const RelativePositions& m_relative;
};
