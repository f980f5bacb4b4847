#pragma once

#include <string>
#include <vector>

#include "tarv_3_3/tarv.h"

/// Ends the process, in a way that a fuzzer notices, when `holds` is false.
void require(bool holds, const char* what, const std::string& shown = std::string());

/// Drops what goes to standard output from now on: the trace, which a command line may switch on.
void silenceTrace();

/// One parser with its result, destroyed at the end.
struct Parse {
    explicit Parse(int flags);
    Parse(const Parse&) = delete;
    Parse& operator=(const Parse&) = delete;
    ~Parse();

    /// Each checks that the status and the message agree, and that the values are what their texts
    /// say, before it returns the status.
    int arguments(const std::vector<std::string>& arguments);
    int stream(const std::string& text);

    /// The message of the last failure.
    std::string error() const;

    /// All that the queries tell about the given options and the plain arguments, positions counted
    /// from the first.
    std::string dump(const std::vector<std::string>& names) const;

    /// A fresh result.
    void renew();

    tarv_3_3::IParser* parser = nullptr;
    tarv_3_3::IParseResult* result = nullptr;
    /// An option declared with no name at all cannot be stored: then a parse may end as unidentified.
    bool hasNamelessOption = false;
    /// The text of a default that is a double has six digits, the value may have more.
    bool hasDefaultDouble = false;

private:
    int checked(int status, const std::string& errorBefore) const;
};

/// Parses the arguments twice, into fresh results of one parser: the answers must be the same.
void requireSameTwice(Parse& parse, const std::vector<std::string>& arguments,
                      const std::vector<std::string>& names);

/// Whether `value` is what the standard extraction reads from the text, which was accepted.
bool isWhatTheTextSays(const char* text, const tarv_3_3::variant_t& value);

/// Whether `value` is a double, and the standard insertion writes it as `text`.
bool isDoubleWrittenAs(const char* text, const tarv_3_3::variant_t& value);

/// What the standard extraction yields for a text of the given kind; null when it refuses.
tarv_3_3::variant_t extracted(const std::string& text, tarv_3_3::das_variant_type_t kind);
