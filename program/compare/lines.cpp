#include "compare/lines.h"

#include <algorithm>
#include <map>
#include <set>

#include "compare/LineQuestion.h"
#include "compare/OlderLines.h"
#include "compare/ValueQuestion.h"
#include "text/shellQuoted.h"

namespace tarv_program {

using namespace tarv_3_3;

namespace {

class LineComparison {
public:
    LineComparison(const Sides& sides, Examples& examples, Comparison& comparison)
        : m_sides(sides), m_examples(examples), m_comparison(comparison), m_lines(sides.older, examples) {}

    void compareAll() {
        compareVerbNeed();
        compare({});
        compareSingleOptions();
        compareActions();
        compareRules();
        compareWordCounts();
        compareNameless();
    }

private:
    /// Nobody types more without an asterisk.
    static constexpr std::size_t mostWords = 100;

    using Places = std::set<std::size_t>;

    std::size_t optionCount() const { return m_sides.older.line().options.size(); }
    bool isLeft(std::size_t place) const { return m_sides.twin(place) != Side::nowhere; }

    // The parsers know no verbs, so this is not asked of them.
    void compareVerbNeed() {
        const CommandLine& before = m_sides.older.line();
        const bool isNeeded = m_sides.newer.line().isVerbRequired.value_or(false);
        if (!isNeeded || before.isVerbRequired.value_or(false)) {
            return;
        }
        if (!before.verbs.empty() && !before.isVerbRequired) {
            m_comparison.unjudged.emplace_back(
                "a verb is needed; the older description does not say whether it was before");
        } else if (const auto arguments = m_lines.with({})) {
            report(*arguments, "is accepted", "is refused: a verb is missing");
        }
    }

    // What is gone, and what a name does now, is found where names are compared.
    void compare(const Places& places) {
        for (const std::size_t place : places) {
            if (!isLeft(place) || isValueRefused(place)) {
                return;
            }
        }
        if (!m_asked.insert(places).second) {
            return;
        }
        if (const auto arguments = m_lines.with(places)) {
            const LineAnswer now = askLine(m_sides.newer, *arguments);
            // One reason is shown once.
            const bool isJudged = !now.isAccepted && !isValueAlone(askLine(m_sides.older, *arguments), now);
            if (isJudged && m_reasons.insert(reasonOf(now.message)).second) {
                report(*arguments, "is accepted", "is refused: " + visible(now.message));
            }
        }
    }

    // Values are compared by themselves; the one of the example must be good on both sides.
    bool isValueRefused(std::size_t place) {
        const auto found = m_isRefused.find(place);
        if (found != m_isRefused.end()) {
            return found->second;
        }
        const Option& newer = m_sides.newer.option(m_sides.twin(place));
        const std::optional<std::string> value = sampleValue(m_sides.older.option(place));
        const bool isRefused = !ValueQuestion(newer).accept(value.value_or("")).has_value();
        m_isRefused[place] = isRefused;
        return isRefused;
    }

    void compareSingleOptions() {
        for (std::size_t place = 0; place < optionCount(); ++place) {
            compare({place});
        }
    }

    // Whether an action goes with an option depends on the tags of both alone.
    void compareActions() {
        for (const std::size_t action : m_lines.actions()) {
            std::set<std::pair<std::vector<std::string>, std::vector<std::string>>> asked;
            for (std::size_t place = 0; place < optionCount(); ++place) {
                if (!isLeft(place) || m_sides.older.option(place).isAction) {
                    continue;
                }
                const auto& before = m_sides.older.option(place).tags;
                const auto& now = m_sides.newer.option(m_sides.twin(place)).tags;
                if (before != now || asked.emplace(before, now).second) {
                    compare({action, place});
                }
            }
        }
    }

    void compareRules() {
        for (const Side* const side : {&m_sides.older, &m_sides.newer}) {
            for (const Rule& rule : side->line().rules) {
                compareRule(rule, *side);
            }
        }
    }

    // None, each, every two and all of what a rule names.
    void compareRule(const Rule& rule, const Side& side) {
        std::vector<std::size_t> places;
        for (const std::string& name : rule.names) {
            const std::size_t place = side.placeOf({name});
            const std::size_t found = &side == &m_sides.older || place == Side::nowhere
                                          ? place
                                          : m_sides.older.placeOf(side.option(place).names);
            if (found != Side::nowhere) {
                places.push_back(found);
            }
        }
        for (const std::size_t one : places) {
            for (const std::size_t other : places) {
                compare({one, other});
            }
        }
        compare(Places(places.begin(), places.end()));
    }

    void compareNameless() {
        const std::string unknown = "--" + unknownName();
        const std::vector<std::vector<std::string>> lines = {
            {"text"},          {"1"},          {"-"},           {"-5"},         {unknown},
            {"text", unknown}, {"text", "--"}, {"--", unknown}, {"--", "text"}, {"--", "1"},
            {"text", "text2"}, {"text,text2"},
        };
        for (const std::vector<std::string>& line : lines) {
            compareNameless(line);
            for (const std::size_t place : firstNamed()) {
                std::vector<std::string> longer = line;
                const std::vector<std::string> more = m_examples.argumentsOf(place);
                longer.insert(longer.end(), more.begin(), more.end());
                compareNameless(longer);
            }
        }
    }

    void compareNameless(const std::vector<std::string>& nameless) {
        std::vector<std::string> arguments = m_lines.with({}).value_or(std::vector<std::string>());
        arguments.insert(arguments.end(), nameless.begin(), nameless.end());
        LineAnswer before = askLine(m_sides.older, arguments, Wanted::values);
        if (!before.isAccepted && !m_lines.actions().empty()) {
            arguments = m_examples.argumentsOf(m_lines.actions().front());
            arguments.insert(arguments.end(), nameless.begin(), nameless.end());
            before = askLine(m_sides.older, arguments, Wanted::values);
        }
        compareMeaning(arguments, before);
    }

    // Each number of arguments at which one of the sides takes them for others, or takes no more.
    void compareWordCounts() {
        std::set<std::size_t> counts;
        for (const Side* const side : {&m_sides.older, &m_sides.newer}) {
            std::size_t sum = 0;
            for (const std::size_t place : side->slots().places()) {
                const Count& count = *side->option(place).count;
                for (const std::size_t more : {count.least, count.most.value_or(count.least + 1)}) {
                    counts.insert({sum + more, sum + more + 1});
                }
                sum += std::max(count.least, count.most.value_or(count.least + 1));
                counts.insert({sum, sum + 1});
            }
        }
        for (const std::size_t count : counts) {
            const auto arguments = count <= mostWords ? m_lines.withWords(count) : std::nullopt;
            if (arguments) {
                compareMeaning(*arguments, askLine(m_sides.older, *arguments, Wanted::values));
            }
        }
    }

    void compareMeaning(const std::vector<std::string>& arguments, const LineAnswer& before) {
        if (!before.isAccepted) {
            return;
        }
        const LineAnswer now = askLine(m_sides.newer, arguments, Wanted::values);
        if (isValueAlone(before, now)) {
            return;
        }
        const std::string what = !now.isAccepted        ? "is refused: " + visible(now.message)
                                 : !isSame(before, now) ? "is understood in another way"
                                                        : "";
        const std::string reason = now.isAccepted ? what : reasonOf(now.message);
        // Values are compared by themselves.
        if (!what.empty() && reason != "Value validation problem" && m_reasons.insert(reason).second) {
            report(arguments, "is accepted", what);
        }
    }

    // Whether an argument went to the same option on both sides: values are compared by themselves.
    bool isValueAlone(const LineAnswer& before, const LineAnswer& now) const {
        return now.isWordRefused && areSameWords(before, now);
    }

    bool areSameWords(const LineAnswer& before, const LineAnswer& now) const {
        const auto isTwin = [this](std::size_t older, std::size_t newer) {
            return m_sides.twin(older) == newer;
        };
        return std::equal(before.words.begin(), before.words.end(), now.words.begin(), now.words.end(),
                          isTwin);
    }

    // Without the argument that it is about.
    static std::string reasonOf(const std::string& message) {
        return message.substr(0, std::min(message.find(':'), message.find(" in argument")));
    }

    bool isSame(const LineAnswer& before, const LineAnswer& now) const {
        std::map<std::size_t, std::vector<std::string>> expected;
        for (const auto& [place, values] : before.values) {
            expected[m_sides.twin(place)] = values;
        }
        // Of two texts that are equal, it matters which is which.
        const bool areOrdered = before.words.empty() || now.words.empty() || areSameWords(before, now);
        return areOrdered && expected == now.values && before.plain == now.plain;
    }

    // Some option that can be told from a positional argument.
    std::vector<std::size_t> firstNamed() {
        for (std::size_t place = 0; place < optionCount(); ++place) {
            const Option& option = m_sides.older.option(place);
            if (isLeft(place) && !option.isAction && option.positional == Positional::no &&
                option.tags.empty() && !option.names.empty() && !isValueRefused(place)) {
                return {place};
            }
        }
        return {};
    }

    std::string unknownName() const {
        std::string name = "zz";
        while (m_sides.older.meaningOf(name).kind == Meaning::one ||
               m_sides.newer.meaningOf(name).kind == Meaning::one) {
            name += "z";
        }
        return name;
    }

    void report(const std::vector<std::string>& arguments, const std::string& was, const std::string& now) {
        Finding finding;
        finding.kind = "line";
        finding.command = m_examples.shown(arguments);
        finding.was = was;
        finding.now = now;
        m_comparison.breaks.push_back(finding);
    }

    const Sides& m_sides;
    Examples& m_examples;
    Comparison& m_comparison;
    OlderLines m_lines;
    std::map<std::size_t, bool> m_isRefused;
    std::set<Places> m_asked;
    std::set<std::string> m_reasons;
};

} // namespace

void compareLines(const Sides& sides, Examples& examples, Comparison& comparison) {
    LineComparison(sides, examples, comparison).compareAll();
}

} // namespace tarv_program
