#pragma once

#include <cstddef>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/hashOf.h"
#include "recognition/NameMatcher.h"
#include "recognition/SpaceClassifier.h"
#include "recognition/valueSource.h"

namespace tarv_3_3 {

class BasicParser;

enum class ArgumentRole {
    /// The first argument, which switches the trace on.
    traceSwitch,
    /// An option or an action by its name.
    named,
    /// The value of the named option in front of it.
    value,
    positional,
    /// "--".
    endMarker,
    /// Behind the end marker; a positional one as well where `index` says so.
    plain,
    unknown,
    /// It fits a name, but is empty behind the dashes or has a third dash; no parse takes that.
    misnamed,
    /// It gives several names equally well.
    ambiguous
};

/// What an argument is.
struct ReadArgument {
    /// The index of an argument that belongs to no declaration.
    static constexpr auto nowhere = static_cast<std::size_t>(-1);

    ArgumentRole role = ArgumentRole::unknown;
    /// Of the declaration, in the registry's table.
    std::size_t index = nowhere;
    /// Of a named one: the whole name that it gives, "no-" included.
    std::string name;
    /// Of one that begins with a dash and can be named: where dashes, name and value begin.
    Token token;
    /// Of a named one: whether the name is cut short.
    bool isAbbreviated = false;
    /// Of a named one: whether it turns a switch off.
    bool isNegated = false;
    /// Of a named one: where its value comes from, or why it has none.
    ValueSource source = ValueSource::none;
    /// Of an ambiguous one: the names that it gives.
    std::vector<std::string> candidates;
    /// Whether a parse ends here with an error. Whether a value is one of the option's, and what handlers
    /// say, is not asked for.
    bool isRefused = false;
};

/// Tells what each argument of a command line is, one after the other. It uses the rules of a parse, but goes
/// on behind errors and has no effects: no events, no position indices, no trace, no option files.
///
/// An abbreviated name is compared with every option, so the cost of a line may be the product of the numbers
/// of arguments and options. The results for the first `maxRemembered` different names are kept, unless a
/// name is very long.
///
/// The parser must outlive the reader, and must get no declarations meanwhile.
class Reader {
public:
    explicit Reader(BasicParser& parser);

    /// What `argument` is at this point of the line. `next` is the argument behind it, null when there is
    /// none.
    ReadArgument look(const std::string& argument, const std::string* next);

    /// Goes on behind an argument that was looked at.
    void pass(const ReadArgument& argument);

    static constexpr std::size_t maxRemembered = 10000;
    static constexpr std::size_t longestRemembered = 256;

private:
    /// Which declared name a typed name stands for.
    struct Match {
        NameOutcome outcome = NameOutcome::none;
        /// Where exactly one fits: its index, and the whole name.
        std::size_t index = ReadArgument::nowhere;
        std::string name;
    };

    ReadArgument lookAtPlain() const;
    ReadArgument lookAtName(const std::string& argument, const std::string* next);
    Match match(const std::string& argument, Token& token);
    Match matchAnew(const std::string& argument);
    void remember(const std::string& argument, const Match& found);
    bool mayBePositional(const std::string& argument) const;

    BasicParser& m_parser;
    const unsigned int m_flags;
    /// The index of the option that positional arguments fill; the size of the table when there is none.
    const std::size_t m_filled;
    NameMatcher m_matcher;
    SpaceClassifier m_classifier;
    /// The key is the name with the dashes in front of it.
    std::unordered_map<std::string, Match, internal::TextHash> m_remembered;
    /// The option whose value comes next.
    std::size_t m_awaiting = ReadArgument::nowhere;
    bool m_isFirst = true;
    bool m_isBehindMarker = false;
    bool m_isRestPositional = false;
};

/// What each of `arguments` is, the program not among them.
std::vector<ReadArgument> readArguments(BasicParser& parser, const std::vector<std::string>& arguments);

} // namespace tarv_3_3
