#include "compare/facts.h"

#include <algorithm>

#include "text/shellQuoted.h"

namespace tarv_program {

namespace {

template <class Element>
bool holds(const std::vector<Element>& list, const Element& wanted) {
    return std::find(list.begin(), list.end(), wanted) != list.end();
}

class FactComparison {
public:
    FactComparison(const Sides& sides, Examples& examples, Comparison& comparison)
        : m_sides(sides), m_examples(examples), m_comparison(comparison) {}

    void compareAll() {
        for (std::size_t place = 0; place < m_sides.older.line().options.size(); ++place) {
            if (m_sides.twin(place) != Side::nowhere) {
                compareDefault(place);
                compareEnvironment(place);
                compareChecks(place);
            }
        }
        compareSources();
    }

private:
    const Option& older(std::size_t place) const { return m_sides.older.option(place); }
    const Option& newer(std::size_t place) const { return m_sides.newer.option(m_sides.twin(place)); }

    void report(const char* kind, const std::string& command, const std::string& was,
                const std::string& now) {
        Finding finding;
        finding.kind = kind;
        finding.command = command;
        finding.was = was;
        finding.now = now;
        m_comparison.breaks.push_back(finding);
    }

    std::string titleOf(std::size_t place) const {
        return older(place).names.empty() ? "the positional option"
               : older(place).isSlot()    ? visible(older(place).shownName())
                                          : shellQuoted("--" + older(place).primaryName());
    }

    static std::string said(const std::optional<std::string>& text) {
        return text ? "is " + shellQuoted(*text) : "has no default";
    }

    void compareDefault(std::size_t place) {
        if (older(place).defaultText != newer(place).defaultText) {
            report("default", m_examples.shown({}), titleOf(place) + " " + said(older(place).defaultText),
                   titleOf(place) + " " + said(newer(place).defaultText));
        }
    }

    void compareEnvironment(std::size_t place) {
        const std::string* const before = older(place).note("environment");
        const std::string* const now = newer(place).note("environment");
        if (before != nullptr && (now == nullptr || *now != *before)) {
            const std::vector<std::string> value = m_examples.argumentsOf(place, "x");
            const std::size_t equals = value.front().find('=');
            const std::string text = equals == std::string::npos ? "1" : value.front().substr(equals + 1);
            report("environment", shellQuoted(*before + "=" + text) + " " + m_examples.shown({}),
                   "gives " + titleOf(place),
                   now == nullptr ? "is not read" : "is not read; " + shellQuoted(*now) + " is");
        }
    }

    void compareChecks(std::size_t place) {
        for (const std::string& check : newer(place).checks) {
            if (!holds(older(place).checks, check)) {
                m_comparison.unjudged.push_back(titleOf(place) +
                                                " is checked by the program: " + visible(check));
            }
        }
    }

    void compareSources() {
        const CommandLine& before = m_sides.older.line();
        const CommandLine& now = m_sides.newer.line();
        if (before.readsOptionFiles && !now.readsOptionFiles) {
            report("settings", m_examples.shown({"--option-file=arguments.txt"}),
                   "reads arguments from a file", "does not");
        }
        for (const Settings& settings : before.settings) {
            const bool isLeft =
                std::any_of(now.settings.begin(), now.settings.end(), [&](const Settings& other) {
                    return other.file == settings.file && other.option == settings.option;
                });
            const std::string from =
                settings.file.empty() ? shellQuoted("--" + settings.option) : shellQuoted(settings.file);
            if (!isLeft) {
                report("settings", m_examples.shown({}), "reads settings from " + from, "does not");
            }
        }
        for (const std::string& mend : before.mends) {
            if (!holds(now.mends, mend)) {
                report("line", m_examples.shown({}), "mends command lines: " + visible(mend), "does not");
            }
        }
        for (const std::string& mend : now.mends) {
            if (!holds(before.mends, mend)) {
                m_comparison.unjudged.push_back("command lines are mended: " + visible(mend));
            }
        }
        for (const std::string& check : now.checks) {
            if (!holds(before.checks, check)) {
                m_comparison.unjudged.push_back("the program checks more than before: " + visible(check));
            }
        }
    }

    const Sides& m_sides;
    Examples& m_examples;
    Comparison& m_comparison;
};

} // namespace

void compareFacts(const Sides& sides, Examples& examples, Comparison& comparison) {
    FactComparison(sides, examples, comparison).compareAll();
}

} // namespace tarv_program
