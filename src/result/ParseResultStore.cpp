#include "options/OptionDescription.h"
#include "recognition/IArgumentParser.h"
#include "result/ParseResult.h"

namespace tarv_3_3 {

int ParseResult::store(const OptionDescription& option, const OptionData& data) {
    m_entries.store(option.m_names, data);
    return 0;
}

int ParseResult::applyDefault(std::vector<OptionDescription>& options, std::string& /*message*/) {
    for (OptionDescription& option : options) {
        if (option.m_type != vtNull && option.m_hasDefault) {
            m_entries.storeDefaults(option.m_names, [&option] {
                const variant_t& text = option.defaultText();
                return internal::Entries::Default{text, option.m_default,
                                                  IArgumentParser::getNewPositionIndex()};
            });
        }
    }
    return 0;
}

void ParseResult::noteParser(std::uint64_t number) {
    const bool isFirst = m_parser == noParser && m_entries.list().empty();
    m_parser = isFirst || m_parser == number ? number : severalParsers;
}

void ParseResult::storePlainArgument(const std::string& argument, int position) {
    m_freeArguments.emplace_back(argument, position);
}

} // namespace tarv_3_3
