#include "adapters/HostValues.h"

#include <cstdlib>

namespace bench {

namespace {

void readDefault(const Option& option, Answer& answer) {
    if (!option.hasDefault)
        return;
    if (option.kind == Kind::Integer)
        answer.integers[option.slot] = defaultInteger;
    else if (option.kind == Kind::Number)
        answer.numbers[option.slot] = defaultNumber;
    else if (option.kind == Kind::Text)
        answer.texts[option.slot] = defaultText;
}

} // namespace

void HostValues::resize(std::size_t options) {
    m_values.resize(options);
}

void HostValues::clear() {
    for (std::vector<const char*>& values : m_values)
        values.clear();
}

void HostValues::read(const std::vector<Option>& options, Answer& answer) const {
    for (std::size_t i = 0; i < options.size(); ++i) {
        const std::vector<const char*>& values = m_values[i];
        const std::size_t slot = options[i].slot;
        if (values.empty()) {
            readDefault(options[i], answer);
            continue;
        }
        switch (options[i].kind) {
        case Kind::Switch:
            answer.switches[slot] = true;
            break;
        case Kind::Integer:
            answer.integers[slot] = std::atoi(values.back());
            break;
        case Kind::Number:
            answer.numbers[slot] = std::strtod(values.back(), nullptr);
            break;
        case Kind::Text:
            answer.texts[slot] = values.back();
            break;
        case Kind::List:
            for (const char* value : values)
                splitAtCommas(value, answer.lists[slot]);
            break;
        case Kind::Positional:
            answer.lists[slot].assign(values.begin(), values.end());
            break;
        }
    }
}

} // namespace bench
