#include "reading/Reader.h"

#include "options/findOption.h"
#include "parser/BasicParser.h"
#include "parser/commandLine.h"
#include "recognition/PositionalOptionsParser.h"

namespace tarv_3_3 {

Reader::Reader(BasicParser& parser)
    : m_parser(parser), m_flags(static_cast<unsigned int>(parser.flags())),
      m_filled(positionalIndex(parser.registry().m_options)) {}

ReadArgument Reader::look(const std::string& argument, const std::string* next) {
    ReadArgument read;
    if (m_awaiting != ReadArgument::nowhere) {
        read.role = ArgumentRole::value;
        read.index = m_awaiting;
        return read;
    }
    if (m_isBehindMarker) {
        return lookAtPlain();
    }
    if (m_isRestPositional) {
        read.role = ArgumentRole::positional;
        read.index = m_filled;
        return read;
    }
    if (m_isFirst && argument == logSwitch) {
        read.role = ArgumentRole::traceSwitch;
        return read;
    }
    if (argument == endMarkerText) {
        read.role = ArgumentRole::endMarker;
        return read;
    }
    return lookAtName(argument, next);
}

ReadArgument Reader::lookAtPlain() const {
    ReadArgument read;
    read.role = ArgumentRole::plain;
    if ((m_flags & flagPlainArePositional) != 0 && m_filled < m_parser.registry().m_options.size()) {
        read.index = m_filled;
    }
    return read;
}

ReadArgument Reader::lookAtName(const std::string& argument, const std::string* next) {
    const std::vector<OptionDescription>& options = m_parser.registry().m_options;
    ReadArgument read;
    Match found = match(argument, read.token);
    if (found.outcome == NameOutcome::none) {
        const bool isPositional = mayBePositional(argument);
        read.role = isPositional ? ArgumentRole::positional : ArgumentRole::unknown;
        read.index = isPositional ? m_filled : ReadArgument::nowhere;
        read.isRefused = !isPositional && (m_flags & flagRejectUnknown) != 0;
        return read;
    }
    const std::string_view typed = read.token.nameIn(argument);
    if (!isOptionName(typed) || found.outcome == NameOutcome::ambiguous) {
        read.role = isOptionName(typed) ? ArgumentRole::ambiguous : ArgumentRole::misnamed;
        read.isRefused = true;
        if (read.role == ArgumentRole::ambiguous) {
            read.candidates = m_matcher.bestNames();
        }
        return read;
    }
    read.role = ArgumentRole::named;
    read.index = found.index;
    read.name = std::move(found.name);
    const das_variant_type_t kind = options[read.index].m_type;
    read.isAbbreviated = typed != read.name;
    read.isNegated = kind == vtBool && beginsWithNegation(read.name);
    read.source = valueSource(kind, read.token.valueIn(argument), next);
    read.isRefused = isRefused(read.source);
    return read;
}

// The key is an argument's dashes and name, so an argument with a known key is cut in the same way. An empty
// name is not kept, since "-" and "-=x" have the same key and different results. A whole name is not kept
// either, since the index of names finds it.
Reader::Match Reader::match(const std::string& argument, Token& token) {
    token = splitToken(argument, m_classifier);
    const auto known = m_remembered.find(argument.substr(0, token.nameEnd));
    if (known != m_remembered.end()) {
        return known->second;
    }
    Match found = matchAnew(argument);
    token = m_matcher.token();
    const std::string_view typed = token.nameIn(argument);
    if (!typed.empty() && typed != found.name) {
        remember(argument, found);
    }
    return found;
}

Reader::Match Reader::matchAnew(const std::string& argument) {
    Match found;
    found.outcome = m_matcher.look(argument, m_parser.registry().m_options, &m_parser.registry());
    if (found.outcome == NameOutcome::found) {
        found.index = static_cast<std::size_t>(m_matcher.index());
        found.name = m_matcher.bestNameIn(argument);
    }
    return found;
}

void Reader::remember(const std::string& argument, const Match& found) {
    const std::size_t nameEnd = m_matcher.token().nameEnd;
    const bool isShort = nameEnd <= longestRemembered && found.name.size() <= longestRemembered;
    if (isShort && m_remembered.size() < maxRemembered) {
        m_remembered.emplace(argument.substr(0, nameEnd), found);
    }
}

bool Reader::mayBePositional(const std::string& argument) const {
    return m_filled < m_parser.registry().m_options.size() && isPositionalForm(argument, m_flags);
}

void Reader::pass(const ReadArgument& argument) {
    const bool takesNext =
        argument.source == ValueSource::nextArgument || argument.source == ValueSource::nextIsEmpty;
    m_awaiting = takesNext ? argument.index : ReadArgument::nowhere;
    m_isFirst = false;
    m_isBehindMarker = m_isBehindMarker || argument.role == ArgumentRole::endMarker;
    m_isRestPositional = m_isRestPositional || (argument.role == ArgumentRole::positional &&
                                                (m_flags & flagPositionalTakesRest) != 0);
}

std::vector<ReadArgument> readArguments(BasicParser& parser, const std::vector<std::string>& arguments) {
    Reader reader(parser);
    std::vector<ReadArgument> all;
    all.reserve(arguments.size());
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string* const next = i + 1 < arguments.size() ? &arguments[i + 1] : nullptr;
        all.push_back(reader.look(arguments[i], next));
        reader.pass(all.back());
    }
    return all;
}

} // namespace tarv_3_3
