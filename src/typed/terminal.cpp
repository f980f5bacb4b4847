#include "typed/terminal.h"

#include <charconv>
#include <cstdlib>
#include <string_view>

#include <sys/ioctl.h>
#include <unistd.h>

namespace tarv_3_3::typed::engine {

namespace {

constexpr std::size_t usualWidth = 80;
constexpr std::size_t leastWidth = 20;

std::string_view variable(const char* name) {
    const char* const text = std::getenv(name);
    return text != nullptr ? text : "";
}

std::size_t widthOfTerminal() {
    winsize size = {};
    const bool isKnown = ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return isKnown ? size.ws_col : usualWidth;
}

// 0 when the variable does not say.
std::size_t widthOfVariable() {
    const std::string_view text = variable("COLUMNS");
    std::size_t width = 0;
    const std::from_chars_result end = std::from_chars(text.data(), text.data() + text.size(), width);
    const bool isNumber = end.ec == std::errc() && end.ptr == text.data() + text.size();
    return isNumber ? width : 0;
}

} // namespace

HelpStyle helpStyle(bool isPrinted) {
    const bool isTerminal = isPrinted && isatty(STDOUT_FILENO) == 1;
    std::size_t width = widthOfVariable();
    if (width == 0) {
        width = isTerminal ? widthOfTerminal() : usualWidth;
    }
    const bool isBold = isTerminal && variable("NO_COLOR").empty() && variable("TERM") != "dumb";
    return {width < leastWidth ? leastWidth : width, isBold};
}

} // namespace tarv_3_3::typed::engine
