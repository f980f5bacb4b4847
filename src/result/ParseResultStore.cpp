#include "options/OptionDescription.h"
#include "recognition/IArgumentParser.h"
#include "result/ParseResult.h"

namespace tarv_3_3 {

namespace {

// One by one: when memory runs out, an insertion of several at once may lose what was there before.
void append(OptionData& entry, const OptionData& data) {
    for (const int position : data.positions) {
        entry.positions.push_back(position);
    }
    for (const OptionValue& value : data.values) {
        entry.values.push_back(value);
    }
}

} // namespace

int ParseResult::store(const OptionDescription& option, const OptionData& data) {
    // The first name alone decides whether this is the option's first occurrence.
    const auto [first, isFirst] = m_options.try_emplace(option.m_names.at(0), data);
    if (!isFirst) {
        append(first->second, data);
    }
    for (auto name = option.m_names.begin() + 1; name != option.m_names.end(); ++name) {
        if (isFirst) {
            m_options.insert_or_assign(*name, data);
        } else {
            append(m_options[*name], data);
        }
    }
    return 0;
}

int ParseResult::applyDefault(std::vector<OptionDescription>& options, std::string& /*errorText*/) {
    for (const OptionDescription& option : options) {
        if (option.m_type == vtNull || !option.m_hasDefault) {
            continue;
        }
        for (const std::string& name : option.m_names) {
            OptionData& entry = m_options[name];
            // A kind that does not exist has no text.
            entry.defaultText = m_garbage.init(option.toString(&m_garbage, option.m_default));
            entry.defaultPosition = IArgumentParser::getNewPositionIndex();
            entry.defaultValue = option.m_default;
        }
    }
    return 0;
}

void ParseResult::storePlainArgument(const std::string& argument, int position) {
    m_freeArguments.emplace_back(argument, position);
}

} // namespace tarv_3_3
