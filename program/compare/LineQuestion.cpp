#include "compare/LineQuestion.h"

#include <memory>
#include <new>
#include <set>

#include <tarv_3_3/description.h>
#include <tarv_3_3/explain.h>

#include "compare/ValueQuestion.h"

namespace tarv_program {

using namespace tarv_3_3;

namespace {

struct Release {
    void operator()(const Explanation* explanation) const { release(explanation); }
};
using OwnedExplanation = std::unique_ptr<const Explanation, Release>;

/// One line, asked of a parser that knows which option each argument without a name is for.
class Question {
public:
    Question(const Side& side, const std::vector<std::string>& arguments)
        : m_side(side), m_result(createResult(side.parser())) {
        if (side.slots().places().empty()) {
            m_arguments = arguments;
        } else {
            nameWords(arguments);
        }
    }

    void ask(LineAnswer& answer) {
        const std::vector<const char*> argv = argvOf(m_arguments);
        answer.words = m_words;
        answer.message = m_refusedWord;
        answer.isWordRefused = !m_refusedWord.empty();
        if (m_side.parser().parseArgsVector(static_cast<int>(argv.size()), argv.data(), m_result.get()) !=
            parseOk) {
            answer.message = errorMessage();
            answer.isWordRefused = false;
        } else if (answer.message.empty()) {
            answer.message = m_side.slots().complaint(m_words.size());
            const bool isLeft =
                answer.message.empty() && checkRules(&m_side.parser(), m_result.get()) != parseOk;
            answer.message = isLeft ? errorMessage() : answer.message;
        }
        answer.isAccepted = answer.message.empty();
    }

    // Of what was given only, since a query yields the defaults of all others as well.
    void addValues(LineAnswer& answer) {
        answer.values = m_wordValues;
        for (const std::size_t place : placesGiven()) {
            if (m_side.option(place).isSlot()) {
                continue;
            }
            const std::string name = m_side.option(place).primaryName();
            for (Value value = m_result->get(name.c_str()); value.status == valueFound;
                 value = m_result->next(name.c_str())) {
                answer.values[place].emplace_back(value.text != nullptr ? value.text : "");
            }
        }
        const char* text = nullptr;
        for (int status = m_result->getFirstArgument(&text); status == valueFound;
             status = m_result->getNextArgument(&text)) {
            answer.plain.emplace_back(text);
        }
    }

private:
    static std::vector<const char*> argvOf(const std::vector<std::string>& arguments) {
        std::vector<const char*> argv(1, "");
        for (const std::string& argument : arguments) {
            argv.push_back(argument.c_str());
        }
        return argv;
    }

    OwnedExplanation explained(const std::vector<std::string>& arguments) const {
        const std::vector<const char*> argv = argvOf(arguments);
        OwnedExplanation explanation(explain(&m_side.parser(), static_cast<int>(argv.size()), argv.data()));
        if (explanation == nullptr) {
            throw std::bad_alloc();
        }
        return explanation;
    }

    // Then the parser and the rules judge them as any other option.
    void nameWords(const std::vector<std::string>& arguments) {
        const OwnedExplanation explanation = explained(arguments);
        const std::map<std::size_t, std::size_t> words = m_side.wordsOf(*explanation);
        for (std::size_t i = 0; i < arguments.size(); ++i) {
            const auto found = words.find(i);
            if (found != words.end()) {
                nameWord(found->second, arguments[i]);
            } else if (explainedAt(*explanation, static_cast<unsigned>(i)).role != explainedEndMarker) {
                // What stands behind the marker has names now.
                m_arguments.push_back(arguments[i]);
            }
        }
    }

    void nameWord(std::size_t place, const std::string& word) {
        m_words.push_back(place);
        if (place == Slots::nowhere) {
            return;
        }
        const Option& option = m_side.option(place);
        const auto values = ValueQuestion(option).accept(word);
        if (!values) {
            m_refusedWord = "'" + word + "' is no value of " + option.shownName();
            return;
        }
        std::vector<std::string>& all = m_wordValues[place];
        all.insert(all.end(), values->begin(), values->end());
        if (!word.empty()) {
            m_arguments.push_back("--" + slotName(place) + "=" + word);
        }
    }

    std::string errorMessage() const {
        std::string message = m_side.parser().getErrorDesc();
        for (const std::size_t place : m_side.slots().places()) {
            const std::string name = "'" + slotName(place) + "'";
            const std::size_t at = message.find(name);
            if (at != std::string::npos) {
                message.replace(at, name.size(), m_side.option(place).shownName());
            }
        }
        return message;
    }

    std::set<std::size_t> placesGiven() const {
        const OwnedExplanation explanation = explained(m_arguments);
        std::set<std::size_t> places;
        for (unsigned i = 0; i < explanation->argumentCount; ++i) {
            const int place = explainedAt(*explanation, i).place;
            if (place >= 0) {
                places.insert(static_cast<std::size_t>(place));
            }
        }
        return places;
    }

    const Side& m_side;
    const Result m_result;
    std::vector<std::string> m_arguments;
    std::vector<std::size_t> m_words;
    std::string m_refusedWord;
    std::map<std::size_t, std::vector<std::string>> m_wordValues;
};

} // namespace

LineAnswer askLine(const Side& side, const std::vector<std::string>& arguments, Wanted wanted) {
    LineAnswer answer;
    Question question(side, arguments);
    question.ask(answer);
    if (answer.isAccepted && wanted == Wanted::values) {
        question.addValues(answer);
    }
    return answer;
}

} // namespace tarv_program
