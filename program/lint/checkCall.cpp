#include "lint/checkCall.h"

#include <algorithm>

#include "compare/ValueQuestion.h"
#include "explain/levels.h"
#include "model/mends.h"
#include "text/shellQuoted.h"

namespace tarv_program {

using namespace tarv_3_3;

namespace {

// Bytes that mean the same inside and outside of every kind of quotes.
bool isPlain(const std::string& text) {
    return text.find_first_not_of(
               "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789-_.,+:@%/") ==
           std::string::npos;
}

class CallCheck {
public:
    CallCheck(const Call& call, std::size_t place) : m_call(call), m_first(place + 1) {}

    std::vector<Diagnostic> check(const CommandLine& program) {
        std::vector<std::string> arguments;
        for (std::size_t i = m_first; i < m_call.size(); ++i) {
            arguments.push_back(m_call[i].text);
        }
        forEachLevel(program, arguments, [&](const LevelPart& part) { checkLevel(part); });
        return std::move(m_found);
    }

private:
    const Word& wordAt(const LevelPart& part, std::size_t place) const {
        return m_call[m_first + part.first + place];
    }

    void checkLevel(const LevelPart& part) {
        for (std::size_t i = 0; i < part.count; ++i) {
            checkArgument(part, i);
        }
        if (part.isVerbNext) {
            checkVerb(wordAt(part, part.count), part);
        } else if (part.isHelpNext) {
            checkVerbName(wordAt(part, part.count), "help");
        }
    }

    void checkVerb(const Word& word, const LevelPart& part) {
        if (word.firstUnknown != Word::none) {
            return;
        }
        if (part.verb.kind == Meaning::several) {
            report(word, true, quoted(word.text) + " is ambiguous: " + list(part.verb.candidates, ""));
        } else if (part.verb.kind != Meaning::one) {
            report(word, true, quoted(word.text) + " is no verb");
        } else {
            checkVerbName(word, part.verb.name);
        }
    }

    void checkVerbName(const Word& word, const std::string& name) {
        if (word.text != name) {
            report(word, false, quoted(word.text) + " is short for " + quoted(name));
            mend(word, 0, word.text.size(), name);
        }
    }

    void checkArgument(const LevelPart& part, std::size_t place) {
        const ExplainedArgument& found = part.at(place);
        if (found.role != explainedNamed && !mendOf(part.side.line(), part.arguments[place]).empty()) {
            return;
        }
        const Word& word = wordAt(part, place);
        const std::string dashes = word.text.substr(0, found.nameStart);
        const std::string typed = word.text.substr(0, found.nameEnd);
        if (found.role == explainedNamed) {
            checkNamed(part, place, found, word, dashes);
        } else if (found.role == explainedAmbiguous) {
            const std::vector<std::string> names(found.candidates, found.candidates + found.candidateCount);
            report(word, true, quoted(typed) + " is ambiguous: " + list(names, "--"));
        } else if (found.role == explainedMisnamed ||
                   (found.role == explainedUnknown && found.isRefused != 0 &&
                    word.firstUnknown == Word::none)) {
            report(word, true, quoted(word.text) + " is unknown");
        }
    }

    void checkNamed(const LevelPart& part, std::size_t place, const ExplainedArgument& found,
                    const Word& word, const std::string& dashes) {
        const Option& option = part.side.option(static_cast<std::size_t>(found.place));
        const std::string typed = word.text.substr(0, found.nameEnd);
        if (found.isAbbreviated != 0) {
            report(word, false, quoted(typed) + " is short for " + quoted(dashes + found.name));
            mend(word, found.nameStart, found.nameEnd, found.name);
        }
        if (const std::string* const instead = option.note("deprecated")) {
            report(word, false,
                   quoted(dashes + found.name) + " is deprecated" +
                       (instead->empty() ? "" : "; use " + visible(*instead)));
        }
        if (found.source == sourceSameArgument) {
            checkValue(option, word, found.valueStart);
        } else if (found.source == sourceNextArgument) {
            checkValue(option, wordAt(part, place + 1), 0);
        }
    }

    // Values of a fixed set may be abbreviated as well.
    void checkValue(const Option& option, const Word& word, std::size_t start) {
        if (option.allowed.empty() || word.firstUnknown != Word::none || start >= word.text.size()) {
            return;
        }
        const std::string typed = word.text.substr(start);
        const auto values = ValueQuestion(option).accept(typed);
        if (!values) {
            report(word, true, quoted(typed) + " is no value of " + quoted("--" + option.primaryName()));
            return;
        }
        std::string whole;
        for (const std::string& value : *values) {
            whole += (whole.empty() ? std::string() : std::string(1, option.separator)) + value;
        }
        if (whole.size() > typed.size()) {
            report(word, false, quoted(typed) + " is short for " + quoted(whole));
            mend(word, start, word.text.size(), whole);
        }
    }

    static std::string quoted(const std::string& text) { return "'" + visible(text) + "'"; }

    static std::string list(const std::vector<std::string>& names, const std::string& dashes) {
        std::string text;
        for (const std::string& name : names) {
            text += (text.empty() ? "" : ", ") + quoted(dashes + name);
        }
        return text;
    }

    void report(const Word& word, bool isError, const std::string& message) {
        m_found.push_back({isError, word.line, word.column, message, std::nullopt});
    }

    // Mends what was reported last.
    void mend(const Word& word, std::size_t begin, std::size_t end, const std::string& text) {
        // Plain text stands for itself, in quotes and out of them.
        if (word.isContiguous(begin, end) && isPlain(text)) {
            m_found.back().fix = Replacement{word.offsets[begin], end - begin, text};
        }
    }

    const Call& m_call;
    /// The place of the first argument.
    const std::size_t m_first;
    std::vector<Diagnostic> m_found;
};

} // namespace

std::vector<Diagnostic> checkCall(const CommandLine& program, const Call& call, std::size_t place) {
    return CallCheck(call, place).check(program);
}

} // namespace tarv_program
