#include "help/paragraphString.h"

#include <algorithm>
#include <string_view>

namespace tarv_3_3 {

namespace {

constexpr std::size_t typicalLines = 2;

std::string_view withoutLeadingBreaks(std::string_view text) {
    return text.substr(std::min(text.find_first_not_of(" \n"), text.size()));
}

// Brings the line to where its text begins and returns how much of it fits. A lead that leaves no
// room leaves the text to the lines that follow; those take at least one byte each, however narrow
// the column.
unsigned long beginText(std::string& line, unsigned long indent, unsigned long width) {
    const unsigned long length = line.size();
    if (length < indent) {
        line.resize(indent, ' ');
        return length == 0 ? std::max(width - 1, 1UL) : width - 1;
    }
    line += ' ';
    const unsigned long end = indent + width - 1;
    const unsigned long least = length == 0 ? 1 : 0;
    return end > length + 1 ? end - length - 1 : least;
}

bool breaksWord(std::string_view text, std::string_view chunk) {
    if (text.size() == chunk.size()) {
        return false;
    }
    const char behind = text[chunk.size()];
    const bool endsInBlank = !chunk.empty() && chunk.back() == ' ';
    return behind != ' ' && behind != '\n' && !endsInBlank;
}

// What of `text` goes into a line with room for `available` bytes.
std::string_view takeChunk(std::string_view text, unsigned long available) {
    std::string_view chunk = text.substr(0, available);
    chunk = chunk.substr(0, chunk.find('\n'));
    if (breaksWord(text, chunk)) {
        const std::size_t blank = chunk.rfind(' ');
        if (blank != std::string_view::npos) {
            chunk = chunk.substr(0, blank);
        }
    }
    return chunk;
}

} // namespace

std::string paragraphString(std::string text, std::string lead, unsigned long indent, unsigned long width) {
    std::string output;
    if (text.empty()) {
        return output;
    }
    output.reserve(lead.size() + text.size() + typicalLines * (indent + 1));
    std::string line = std::move(lead);
    std::string_view rest = text;
    while (!rest.empty()) {
        rest = withoutLeadingBreaks(rest);
        const unsigned long available = beginText(line, indent, width);
        const std::string_view chunk = takeChunk(rest, available);
        rest.remove_prefix(chunk.size());
        output.append(line).append(chunk).append("\n");
        line.clear();
    }
    return output;
}

} // namespace tarv_3_3
