#include "typed/enumerators.h"

#include <algorithm>
#include <string_view>

namespace tarv_3_3::typed::engine {

namespace {

constexpr std::string_view label = "tarvValues = ";

bool isNameByte(char byte) {
    return ('a' <= byte && byte <= 'z') || ('A' <= byte && byte <= 'Z') || ('0' <= byte && byte <= '9') ||
           byte == '_' || byte == '$' || (static_cast<unsigned char>(byte) & 0x80) != 0;
}

// The last part of a qualified name, with dashes between its words.
std::string typedName(std::string_view value) {
    std::size_t begin = value.size();
    while (begin > 0 && isNameByte(value[begin - 1])) {
        --begin;
    }
    std::string name(value.substr(begin));
    name.erase(name.find_last_not_of('_') + 1);
    std::replace(name.begin(), name.end(), '_', '-');
    return name;
}

} // namespace

// Values are separated by commas within one pair of brackets; more brackets belong to the enumeration's
// own name.
std::vector<std::string> enumeratorNames(const char* spelling) {
    std::string_view rest = spelling;
    rest.remove_prefix(std::min(rest.find(label), rest.size() - label.size()) + label.size());
    std::vector<std::string> names;
    std::size_t begin = 0;
    int depth = 0;
    for (std::size_t i = 0; i < rest.size(); ++i) {
        const bool opens = std::string_view("(<{").find(rest[i]) != std::string_view::npos;
        const bool closes = std::string_view(")>}").find(rest[i]) != std::string_view::npos;
        if (depth == 1 && (rest[i] == ',' || closes)) {
            names.push_back(typedName(rest.substr(begin, i - begin)));
            begin = i + 1;
        }
        depth += opens ? 1 : closes ? -1 : 0;
        if (depth == 0) {
            break;
        }
    }
    return names;
}

} // namespace tarv_3_3::typed::engine
