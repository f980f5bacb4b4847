#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "tarv_3_3/tarv.h"

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

/// What a scenario works on. Whatever is there at its end is destroyed.
struct Session {
    Session() = default;
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;
    ~Session();

    tarv_3_3::IParser* parser = nullptr;
    tarv_3_3::IParseResult* result = nullptr;
    /// The declaration that a builder works on.
    tarv_3_3::IOption* declaration = nullptr;
    tarv_3_3::Value value;
    const char* text = nullptr;
    CountingHandler counting;
    RememberingHandler remembering;
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
    /// Status 3.
    query,
    /// Status 1, or a value found before memory ran out: the question about the last value
    /// does not tell exhaustion from the end.
    lastValue,
    /// The answer "no".
    presence,
    /// The text "Unknown error handled." from the renderer, `std::bad_alloc` around it or when
    /// there is no memory for the text.
    help
};

struct Scenario {
    const char* name;
    Failure failure;
    /// Runs with memory: what has to be there before.
    void (*prepare)(Session&);
    /// Runs without: returns a status.
    int (*act)(Session&);
    /// What `act` returns when memory suffices.
    int status;
    /// Runs with memory, after `act` had what it needed.
    std::string (*answer)(Session&);
    const char* expected;
};

std::vector<Scenario> declarationScenarios();
std::vector<Scenario> parseScenarios();
std::vector<Scenario> handlerScenarios();
std::vector<Scenario> queryScenarios();
std::vector<Scenario> helpScenarios();

/// A parser with the given flags, and a result.
void open(Session& session, int flags = 0);

/// Parses the arguments, which are without a program name.
int parse(Session& session, std::initializer_list<const char*> arguments);

/// Parses, and shows the status and what is then stored: `0 level=3`.
std::string parseAndShow(Session& session, std::initializer_list<const char*> arguments,
                         std::initializer_list<const char*> names);

/// The given options' values as `level=3 files=a,b verbose`, the plain arguments behind "--".
std::string stored(Session& session, std::initializer_list<const char*> names);
