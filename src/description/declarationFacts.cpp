#include "description/declarationFacts.h"

#include <charconv>

#include "parser/BasicParser.h"
#include "tarv_3_3/internal/Garbage.h"

namespace tarv_3_3::internal {

BasicParser* ownParser(IParser* parser) {
    return dynamic_cast<BasicParser*>(parser);
}

bool isHidden(const OptionDescription& option) {
    return option.m_topic.first == "tarv_hidden";
}

bool maySuggest(const OptionDescription& option) {
    return !isHidden(option) && !option.m_positional;
}

std::string typedText(const OptionDescription& option, const variant_t& value) {
    if (option.m_type == vtDouble) {
        char digits[32];
        return {digits, std::to_chars(digits, digits + sizeof digits, value.get<double>()).ptr};
    }
    Garbage texts;
    const char* const text = option.toString(&texts, value);
    return text != nullptr ? text : "";
}

std::optional<std::string> typedDefault(const OptionDescription& option) {
    if (!option.m_hasDefault || option.m_type == vtNull) {
        return std::nullopt;
    }
    return typedText(option, option.m_default);
}

} // namespace tarv_3_3::internal
