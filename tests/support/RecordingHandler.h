#pragma once

#include <set>
#include <stdexcept>
#include <string>

#include "support/RelativePositions.h"
#include "tarv_3_3/EventHandler.h"

/// Notes every event; refuses, and throws at, what it is told to.
class RecordingHandler : public tarv_3_3::EventHandler {
public:
    explicit RecordingHandler(const RelativePositions& relative) : m_relative(relative) {}

    bool onOptionParse(const char* name) override {
        note(std::string("option ") + name);
        return optionAnswer;
    }

    bool onValueParse(const char* name, const tarv_3_3::Value& value) override {
        note(std::string("value ") + name + "=\"" + value.text + "\"@" +
             std::to_string(m_relative(value.position)));
        lastValue = value.value;
        if (value.text == thrownAt) {
            throw std::runtime_error("thrown by a test");
        }
        return refusedValues.count(value.text) == 0;
    }

    bool onUknownArgument(const char* argument) override {
        note(std::string("unknown ") + argument);
        return unknownAnswer;
    }

    /// The events in order, as `option level; value level="5"@2; unknown x`.
    std::string events;
    tarv_3_3::variant_t lastValue;
    std::set<std::string> refusedValues;
    /// The value at which it throws.
    std::string thrownAt = "no value";
    bool optionAnswer = true;
    bool unknownAnswer = true;

private:
    void note(const std::string& event) { events += (events.empty() ? "" : "; ") + event; }

    const RelativePositions& m_relative;
};
