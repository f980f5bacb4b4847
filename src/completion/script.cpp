#include "completion/script.h"

#include <string_view>

namespace tarv_3_3 {

namespace {

#include "completion/scripts.inc"

// Independent of the locale. The shells are, too, in such names.
bool isLetterOrDigit(char byte) {
    return ('a' <= byte && byte <= 'z') || ('A' <= byte && byte <= 'Z') || ('0' <= byte && byte <= '9');
}

bool isPlainWord(std::string_view name) {
    for (const char byte : name) {
        if (!isLetterOrDigit(byte) && std::string_view("_.+-").find(byte) == std::string_view::npos) {
            return false;
        }
    }
    return !name.empty() && name.front() != '-';
}

/// The name of a program as a part of the name of a shell function. Two programs never get the same one.
std::string makeFunctionName(std::string_view program) {
    std::string name;
    for (const char byte : program) {
        if (isLetterOrDigit(byte)) {
            name += byte;
        } else {
            constexpr std::string_view digits = "0123456789abcdef";
            const unsigned code = static_cast<unsigned char>(byte);
            name += {'_', digits[code / 16], digits[code % 16]};
        }
    }
    return name;
}

void replaceAll(std::string& text, std::string_view from, const std::string& to) {
    for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size())) {
        text.replace(at, from.size(), to);
    }
}

std::string_view templateFor(Shell shell) {
    switch (shell) {
    case Shell::bash:
        return bashScript;
    case Shell::zsh:
        return zshScript;
    case Shell::fish:
        return fishScript;
    case Shell::unknown:
        break;
    }
    return "";
}

} // namespace

std::string makeScript(Shell shell, const char* path) {
    std::string_view program = path != nullptr ? path : "";
    program.remove_prefix(program.rfind('/') + 1);
    if (!isPlainWord(program)) {
        return "";
    }
    std::string script(templateFor(shell));
    // In this order, since a program may be called FUNCTION.
    replaceAll(script, "FUNCTION", makeFunctionName(program));
    replaceAll(script, "PROGRAM", std::string(program));
    return script;
}

} // namespace tarv_3_3
