#include "reading/Reader.h"

#include "options/findOption.h"
#include "parser/BasicParser.h"
#include "parser/commandLine.h"
#include "recognition/PositionalOptionsParser.h"

namespace tarv_3_3 {

Reader::Reader(BasicParser& parser)
    : m_parser(parser), m_flags(static_cast<unsigned int>(parser.flags())),
      m_filled(positionalPlace(parser.registry().m_options)) {}

ReadArgument Reader::look(const std::string& argument, const std::string* next) {
    ReadArgument read;
    if (m_awaiting != ReadArgument::nowhere) {
        read.role = ArgumentRole::value;
        read.place = m_awaiting;
        return read;
    }
    if (m_isBehindMarker) {
        return lookAtPlain();
    }
    if (m_isRestPositional) {
        read.role = ArgumentRole::positional;
        read.place = m_filled;
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
        read.place = m_filled;
    }
    return read;
}

ReadArgument Reader::lookAtName(const std::string& argument, const std::string* next) {
    const std::vector<OptionDescription>& options = m_parser.registry().m_options;
    const NameOutcome outcome = m_matcher.look(argument, options, &m_parser.registry());
    ReadArgument read;
    read.token = m_matcher.token();
    if (outcome == NameOutcome::none) {
        const bool isPositional = mayBePositional(argument);
        read.role = isPositional ? ArgumentRole::positional : ArgumentRole::unknown;
        read.place = isPositional ? m_filled : ReadArgument::nowhere;
        read.isRefused = !isPositional && (m_flags & flagRejectUnknown) != 0;
        return read;
    }
    const std::string_view typed = read.token.nameIn(argument);
    if (!isOptionName(typed) || outcome == NameOutcome::ambiguous) {
        read.role = isOptionName(typed) ? ArgumentRole::ambiguous : ArgumentRole::misnamed;
        read.isRefused = true;
        return read;
    }
    read.role = ArgumentRole::named;
    read.place = static_cast<std::size_t>(m_matcher.place());
    read.name = m_matcher.bestNameIn(argument);
    const das_variant_type_t kind = options[read.place].m_type;
    read.isAbbreviated = typed != read.name;
    read.isNegated = kind == vtBool && beginsWithNegation(read.name);
    read.source = valueSource(kind, read.token.valueIn(argument), next);
    read.isRefused = isRefused(read.source);
    return read;
}

bool Reader::mayBePositional(const std::string& argument) const {
    return m_filled < m_parser.registry().m_options.size() && isPositionalForm(argument, m_flags);
}

void Reader::pass(const ReadArgument& argument) {
    const bool takesNext =
        argument.source == ValueSource::nextArgument || argument.source == ValueSource::nextIsEmpty;
    m_awaiting = takesNext ? argument.place : ReadArgument::nowhere;
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
