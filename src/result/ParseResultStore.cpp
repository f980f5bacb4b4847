#include "options/OptionDescription.h"
#include "recognition/IArgumentParser.h"
#include "result/ParseResult.h"

namespace tarv_3_3 {

int ParseResult::store(const OptionDescription& option, const OptionData& data) {
    m_entries.store(option.m_names, data);
    return 0;
}

int ParseResult::applyDefault(std::vector<OptionDescription>& options, std::string& /*errorText*/) {
    for (const OptionDescription& option : options) {
        if (option.m_type == vtNull || !option.m_hasDefault) {
            continue;
        }
        for (const std::string& name : option.m_names) {
            Entries::Data& data = m_entries.ownData(name);
            // A kind that does not exist has no text.
            data.defaultText = m_garbage.init(option.toString(&m_garbage, option.m_default));
            data.defaultPosition = IArgumentParser::getNewPositionIndex();
            data.defaultValue = option.m_default;
        }
    }
    return 0;
}

void ParseResult::storePlainArgument(const std::string& argument, int position) {
    m_freeArguments.emplace_back(argument, position);
}

} // namespace tarv_3_3
