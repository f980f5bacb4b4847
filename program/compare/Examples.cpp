#include "compare/Examples.h"

#include "compare/ValueQuestion.h"
#include "text/shellQuoted.h"

namespace tarv_program {

std::vector<std::string> Examples::argumentsOf(std::size_t place, const std::string& name) {
    const std::optional<std::string>& value = sample(place);
    return {"--" + name + (value ? "=" + *value : "")};
}

std::vector<std::string> Examples::argumentsOf(std::size_t place) {
    if (m_side.option(place).positional == Positional::filled) {
        return {sample(place).value_or("text")};
    }
    return argumentsOf(place, m_side.option(place).primaryName());
}

std::string Examples::shown(const std::vector<std::string>& arguments) const {
    std::vector<std::string> words = m_command;
    words.insert(words.end(), arguments.begin(), arguments.end());
    return shellQuoted(words);
}

const std::optional<std::string>& Examples::sample(std::size_t place) {
    const auto found = m_samples.find(place);
    if (found != m_samples.end()) {
        return found->second;
    }
    return m_samples.emplace(place, sampleValue(m_side.option(place))).first->second;
}

} // namespace tarv_program
