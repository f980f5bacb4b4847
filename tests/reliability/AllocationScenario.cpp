#include "reliability/AllocationScenario.h"

#include <cstring>

using tarv_3_3::Value;

bool CountingHandler::onOptionParse(const char*) {
    ++options;
    return true;
}

bool CountingHandler::onValueParse(const char*, const Value& value) {
    ++values;
    return refused == nullptr || std::strcmp(refused, value.text) != 0;
}

bool CountingHandler::onUknownArgument(const char*) {
    ++unknown;
    return true;
}

bool RememberingHandler::onOptionParse(const char* name) {
    names.emplace_back(name);
    return true;
}

bool DeclaringHandler::onOptionParse(const char*) {
    parser->option("a-name-behind-the-last", "", tarv_3_3::vtString);
    return true;
}
