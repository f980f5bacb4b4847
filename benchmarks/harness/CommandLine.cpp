#include "harness/CommandLine.h"

#include <algorithm>

namespace bench {

namespace {

std::vector<std::string> textsOf(const Workload& workload, const Dialect& dialect) {
    std::vector<std::string> texts{"program"};
    for (const Given& given : workload.given) {
        if (!given.option) {
            texts.push_back(given.value);
            continue;
        }
        std::string name = given.option->name.substr(0, given.option->name.size() - given.cut);
        std::replace(name.begin(), name.end(), '-', dialect.wordSeparator);
        name.insert(0, given.option->isOnAtFirst ? std::string("--") + dialect.negation : "--");
        if (given.option->kind == Kind::Switch) {
            texts.push_back(name);
        } else if (given.joined && dialect.joinsValues) {
            texts.push_back(name + '=' + given.value);
        } else {
            texts.push_back(name);
            texts.push_back(given.value);
        }
    }
    return texts;
}

} // namespace

CommandLine::CommandLine(const Workload& workload, const Dialect& dialect)
    : m_texts(textsOf(workload, dialect)), m_pointers(m_texts.size() + 1) {}

char** CommandLine::arguments() {
    for (std::size_t i = 0; i < m_texts.size(); ++i)
        m_pointers[i] = m_texts[i].data();
    return m_pointers.data();
}

} // namespace bench
