#pragma once

#include <string>
#include <utility>
#include <vector>

#include "options/RegisteredOptionStorage.h"
#include "support/RecordingCollector.h"
#include "support/RecordingHandler.h"
#include "tarv_3_3/internal/Garbage.h"

/// A recognizer with declarations, a handler and a collector around it. Make one for each case.
template <class Recognizer>
class Recognition {
public:
    explicit Recognition(unsigned int flags = 0) : recognizer(&handler, &garbage, flags) {
        registry.m_garbage = &garbage;
    }

    tarv_3_3::IOption& declare(const char* names, tarv_3_3::das_variant_type_t type) {
        return registry.option(names, nullptr, "", false, type, "");
    }

    int recognize(std::vector<std::string> given) {
        args = std::move(given);
        return recognizer.recognize(args, registry.m_options, message);
    }

    /// Goes on behind a `recognize`. The outcome is one line: the status, what was stored, the
    /// message, and every argument that is left behind a '|'.
    std::string parse() {
        message.clear();
        const int status = recognizer.parse(args, &collector, registry.m_options, index, message);
        std::string outcome = std::to_string(status) + ": " + collector.stored + message;
        for (const std::string& left : args) {
            outcome += " |" + left;
        }
        return outcome;
    }

    /// Both steps; "not taken" when the first refuses.
    std::string run(std::vector<std::string> given) {
        return recognize(std::move(given)) == 0 ? parse() : "not taken";
    }

    RelativePositions positions;
    tarv_3_3::Garbage garbage;
    tarv_3_3::RegisteredOptionStorage registry;
    RecordingHandler handler{positions};
    RecordingCollector collector{positions};
    Recognizer recognizer;
    std::vector<std::string> args;
    unsigned long index = 77;
    std::string message;
};
