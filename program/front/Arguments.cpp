#include "front/Arguments.h"

namespace tarv_program {

using namespace tarv_3_3;

std::optional<std::string> Arguments::value(const char* name) const {
    const Value value = getLastValue(&m_result, name);
    return value.status == valueFound && value.text != nullptr ? std::optional<std::string>(value.text)
                                                               : std::nullopt;
}

std::vector<std::string> Arguments::values(const char* name) const {
    std::vector<std::string> all;
    for (Value value = m_result.get(name); value.status == valueFound; value = m_result.next(name)) {
        all.emplace_back(value.text != nullptr ? value.text : "");
    }
    return all;
}

std::vector<std::string> Arguments::plain() const {
    std::vector<std::string> all;
    const char* text = nullptr;
    for (int status = m_result.getFirstArgument(&text); status == valueFound;
         status = m_result.getNextArgument(&text)) {
        all.emplace_back(text);
    }
    return all;
}

} // namespace tarv_program
