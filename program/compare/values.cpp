#include "compare/values.h"

#include <algorithm>
#include <map>

#include "compare/ValueQuestion.h"
#include "text/shellQuoted.h"

namespace tarv_program {

namespace {

using Values = std::optional<std::vector<std::string>>;

bool acceptsAlike(const Option& older, const Option& newer) {
    const std::string* const before = older.note("range");
    const std::string* const now = newer.note("range");
    const bool isSameRange = before == nullptr ? now == nullptr : now != nullptr && *before == *now;
    const bool isSplitAlike = older.isSlot() == newer.isSlot() && older.separator == newer.separator;
    return older.kind == newer.kind && older.allowed == newer.allowed && isSplitAlike && isSameRange;
}

std::string said(const Values& values) {
    if (!values) {
        return "is refused";
    }
    if (values->empty()) {
        return "has no value";
    }
    std::string text = values->size() == 1 ? "has the value" : "has the values";
    for (const std::string& value : *values) {
        text += " " + shellQuoted(value);
    }
    return text;
}

class ValueComparison {
public:
    ValueComparison(const Sides& sides, std::size_t place, Examples& examples, Comparison& comparison)
        : m_place(place), m_older(sides.older.option(place)), m_newer(sides.newer.option(sides.twin(place))),
          m_examples(examples), m_comparison(comparison), m_before(m_older), m_now(m_newer) {}

    void compareAll() {
        // Of each thing that values do now, the first is shown: it is the plainest.
        std::map<bool, bool> isShown;
        for (const std::string& value : telltaleValues(m_older, m_newer)) {
            const Values before = m_before.accept(value);
            const Values now = m_now.accept(value);
            // Without a value, only whether that is accepted: a switch may have become an option without any.
            const bool isSame = now == before || (value.empty() && now);
            if (before && !isSame && !isAllowed(value) && !isShown[now.has_value()]) {
                isShown[now.has_value()] = true;
                report(value, before, now, 0);
            }
        }
        for (const std::string& allowed : m_older.allowed) {
            compareAbbreviations(allowed);
        }
    }

    void listAdditions() {
        for (const std::string& value : m_newer.allowed) {
            if (!m_older.allowed.empty() && !isAllowed(value)) {
                m_comparison.additions.push_back(shown(value));
            }
        }
    }

private:
    bool isAllowed(const std::string& value) const {
        return std::find(m_older.allowed.begin(), m_older.allowed.end(), value) != m_older.allowed.end();
    }

    void compareAbbreviations(const std::string& allowed) {
        struct Broken {
            std::string longest;
            Values before;
            Values now;
            std::size_t count = 0;
        };
        std::map<std::string, Broken> found;
        const std::size_t least = m_older.kind == tarv_3_3::vtString ? 1 : allowed.size();
        for (std::size_t length = allowed.size(); length >= least && length > 0; --length) {
            const std::string typed = allowed.substr(0, length);
            // One that is allowed itself has its own turn.
            if (length < allowed.size() && isAllowed(typed)) {
                continue;
            }
            const Values before = m_before.accept(typed);
            const Values now = m_now.accept(typed);
            if (before && now != before) {
                // What is taken for a text of its own differs with each length.
                Broken& broken = found[now && *now == std::vector<std::string>{typed} ? "text" : said(now)];
                if (broken.count++ == 0) {
                    broken = {typed, before, now, 1};
                }
            }
        }
        for (const auto& [what, broken] : found) {
            report(broken.longest, broken.before, broken.now, broken.count - 1);
        }
    }

    void report(const std::string& value, const Values& before, const Values& now, std::size_t shorter) {
        Finding finding;
        finding.kind = "value";
        finding.command = shown(value);
        finding.was = said(before);
        finding.now = said(now);
        finding.shorter = shorter;
        m_comparison.breaks.push_back(finding);
    }

    std::string shown(const std::string& value) const {
        return m_examples.shown(m_examples.argumentsWith(m_place, value));
    }

    const std::size_t m_place;
    const Option& m_older;
    const Option& m_newer;
    Examples& m_examples;
    Comparison& m_comparison;
    const ValueQuestion m_before;
    const ValueQuestion m_now;
};

} // namespace

void compareValues(const Sides& sides, Examples& examples, Comparison& comparison) {
    for (std::size_t place = 0; place < sides.older.line().options.size(); ++place) {
        const std::size_t twin = sides.twin(place);
        // Behind arguments that take all there are, one may be that no command line gives.
        const bool isOutOfReach = sides.older.option(place).isSlot() && !examples.wordCount({place});
        if (twin != Side::nowhere && !isOutOfReach &&
            !acceptsAlike(sides.older.option(place), sides.newer.option(twin))) {
            ValueComparison question(sides, place, examples, comparison);
            question.compareAll();
            question.listAdditions();
        }
    }
}

} // namespace tarv_program
