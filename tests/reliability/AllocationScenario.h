#pragma once

#include <string>
#include <vector>

#include "reliability/Session.h"

/// A handler that keeps its notes where no allocation is needed.
struct CountingHandler : tarv_3_3::EventHandler {
    bool onOptionParse(const char* name) override;
    bool onValueParse(const char* name, const tarv_3_3::Value& value) override;
    bool onUknownArgument(const char* argument) override;

    int options = 0;
    int values = 0;
    int unknown = 0;
    /// The text of a value to refuse; null for none.
    const char* refused = nullptr;
};

/// A handler that itself needs memory for every event.
struct RememberingHandler : tarv_3_3::EventHandler {
    bool onOptionParse(const char* name) override;

    std::vector<std::string> names;
};

/// A handler that declares an option when it is told of one.
struct DeclaringHandler : tarv_3_3::EventHandler {
    bool onOptionParse(const char* name) override;

    tarv_3_3::IParser* parser = nullptr;
};

/// What a scenario works on.
struct Subject : Session {
    /// The declaration that a builder works on.
    tarv_3_3::IOption* declaration = nullptr;
    tarv_3_3::Value value;
    const char* text = nullptr;
    CountingHandler counting;
    RememberingHandler remembering;
    DeclaringHandler declaring;
};

/// How a scenario may answer a failed allocation.
enum class Failure {
    /// `std::bad_alloc` reaches the caller.
    throws,
    /// Status 3, nothing was made.
    creation,
    /// Status 3 around the parse, with the last message unchanged; behind that, status 4 inside it
    /// with a message of its own, or 3 when there is no memory for the message either.
    parse,
    /// Status 3, which a scenario also makes of a null text.
    query,
    /// Status 1, or a value found before memory ran out: the question about the last value
    /// does not tell exhaustion from the end.
    lastValue,
    /// The text "Unknown error handled." from the renderer, `std::bad_alloc` around it or when
    /// there is no memory for the text.
    help
};

struct Scenario {
    const char* name;
    Failure failure;
    /// Runs with memory: what has to be there before.
    void (*prepare)(Subject&);
    /// Runs without: returns a status.
    int (*act)(Subject&);
    /// What `act` returns when memory suffices.
    int status;
    /// Runs with memory, after `act` had what it needed.
    std::string (*answer)(Subject&);
    const char* expected;
};

std::vector<Scenario> declarationScenarios();
std::vector<Scenario> parseScenarios();
std::vector<Scenario> handlerScenarios();
std::vector<Scenario> queryScenarios();
std::vector<Scenario> helpScenarios();
std::vector<Scenario> descriptionScenarios();
