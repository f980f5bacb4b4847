#include "compare/Examples.h"

#include <algorithm>

#include "compare/ValueQuestion.h"
#include "text/shellQuoted.h"

namespace tarv_program {

namespace {

/// Nobody reads an example that is longer.
constexpr std::size_t mostWords = 100;

// What begins with a dash is an argument behind the end of options only.
std::vector<std::string> asArguments(std::vector<std::string> words) {
    const bool hasDash = std::any_of(words.begin(), words.end(), [](const std::string& word) {
        return !word.empty() && word.front() == '-';
    });
    if (hasDash) {
        words.insert(words.begin(), "--");
    }
    return words;
}

} // namespace

std::vector<std::string> Examples::argumentsOf(std::size_t place, const std::string& name) {
    const std::optional<std::string>& value = sample(place);
    return {"--" + name + (value ? "=" + *value : "")};
}

std::vector<std::string> Examples::argumentsOf(std::size_t place) {
    const Option& option = m_side.option(place);
    if (option.isSlot()) {
        return words(wordCount({place}).value_or(0));
    }
    if (option.positional == Positional::filled) {
        return {sample(place).value_or("text")};
    }
    return argumentsOf(place, option.primaryName());
}

std::vector<std::string> Examples::argumentsWith(std::size_t place, const std::string& value) {
    const Option& option = m_side.option(place);
    if (!option.isSlot()) {
        const bool isPositional = option.positional == Positional::filled && !value.empty();
        return {isPositional ? value : "--" + option.primaryName() + (value.empty() ? "" : "=" + value)};
    }
    std::vector<std::string> all = samples(wordCount({place}).value_or(0));
    const std::vector<std::size_t> places = m_side.slots().placesOf(all.size());
    const auto found = std::find(places.begin(), places.end(), place);
    if (found != places.end()) {
        all[static_cast<std::size_t>(found - places.begin())] = value;
    }
    return asArguments(all);
}

std::vector<std::string> Examples::words(std::size_t count) {
    return asArguments(samples(count));
}

std::vector<std::string> Examples::samples(std::size_t count) {
    std::vector<std::string> all;
    for (const std::size_t place : m_side.slots().placesOf(count)) {
        all.push_back(place == Side::nowhere ? "text" : sample(place).value_or("text"));
    }
    return all;
}

std::optional<std::size_t> Examples::wordCount(const std::set<std::size_t>& places) const {
    for (std::size_t count = 0; count <= mostWords; ++count) {
        const std::vector<std::size_t> filled = m_side.slots().placesOf(count);
        const bool areAllFilled = std::all_of(places.begin(), places.end(), [&](std::size_t place) {
            return std::find(filled.begin(), filled.end(), place) != filled.end();
        });
        if (areAllFilled && m_side.slots().complaint(count).empty()) {
            return count;
        }
    }
    return std::nullopt;
}

std::string Examples::shown(const std::vector<std::string>& arguments) const {
    std::vector<std::string> line = m_command;
    line.insert(line.end(), arguments.begin(), arguments.end());
    return shellQuoted(line);
}

const std::optional<std::string>& Examples::sample(std::size_t place) {
    const auto found = m_samples.find(place);
    if (found != m_samples.end()) {
        return found->second;
    }
    return m_samples.emplace(place, sampleValue(m_side.option(place))).first->second;
}

} // namespace tarv_program
