#include <algorithm>
#include <cctype>
#include <cstring>

#include "pages/Page.h"
#include "text/shellQuoted.h"

namespace tarv_program {

namespace {

/// Source lines are shorter, as far as words allow.
constexpr std::size_t widestLine = 78;

std::string escaped(const std::string& text) {
    std::string all;
    for (const char byte : visible(text)) {
        switch (byte) {
        case '\\':
            all += "\\e";
            break;
        case '-':
            all += "\\-";
            break;
        case '^':
            all += "\\(ha";
            break;
        case '~':
            all += "\\(ti";
            break;
        case '`':
            all += "\\(ga";
            break;
        case '\'':
            all += "\\(aq";
            break;
        case '"':
            all += "\\(dq";
            break;
        default:
            all += byte;
        }
    }
    return all;
}

// Words on lines; a period at the beginning of one would be a request.
std::string filled(const std::string& source) {
    std::string lines;
    std::size_t lineLength = 0;
    for (std::size_t at = 0; at < source.size();) {
        const std::size_t start = source.find_first_not_of(' ', at);
        if (start == std::string::npos) {
            break;
        }
        const std::size_t end = std::min(source.find(' ', start), source.size());
        std::string word = source.substr(start, end - start);
        if (lineLength != 0 && lineLength + 1 + word.size() > widestLine) {
            lines += "\n";
            lineLength = 0;
        }
        if (lineLength == 0 && word.front() == '.') {
            word.insert(0, "\\&");
        }
        lines += (lineLength == 0 ? "" : " ") + word;
        lineLength += word.size() + (lineLength == 0 ? 0 : 1);
        at = end;
    }
    return lines + (lines.empty() ? "" : "\n");
}

std::string quotedArgument(const std::string& text) {
    return "\"" + escaped(text) + "\"";
}

// One that is read as a date has no escapes.
std::string dateArgument(const std::string& date) {
    const bool isDate = date.find_first_not_of("0123456789-") == std::string::npos;
    return isDate ? "\"" + date + "\"" : quotedArgument(date);
}

std::string source(const Runs& runs) {
    static const char* const fonts[] = {"\\fR", "\\fB", "\\fI"};
    std::string text;
    for (const Run& run : runs) {
        if (!run.text.empty()) {
            text +=
                run.style == Run::plain ? escaped(run.text) : fonts[run.style] + escaped(run.text) + "\\fR";
        }
    }
    return text;
}

std::string upper(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(c < 0x80 ? std::toupper(c) : c); });
    return text;
}

void appendEntry(std::string& page, const Entry& entry) {
    page += ".TP\n";
    std::string forms;
    for (const Runs& form : entry.forms) {
        forms += (forms.empty() ? "" : ", ") + source(form);
    }
    // The tag is one line of source.
    page += forms + "\n";
    std::string text;
    for (const std::string& sentence : entry.sentences) {
        text += filled(escaped(sentence));
    }
    page += text.empty() ? "\\&\n" : text;
}

// No title has escapes, of which some hold small letters.
std::string titleOf(const std::string& name) {
    std::string title = upper(name);
    std::replace_if(
        title.begin(), title.end(),
        [](unsigned char c) {
            return (c == 0 || std::strchr("-_.+", c) == nullptr) && (c >= 0x80 || std::isalnum(c) == 0);
        },
        '_');
    return title;
}

std::size_t endOfSentence(const std::string& text) {
    const std::size_t end = text.find(". ");
    return end == std::string::npos ? text.size() : end + 1;
}

} // namespace

std::string asManual(const Page& page, const std::string& section, const std::string& date) {
    const std::string name = fileNameOf(page);
    std::string text =
        ".TH " + quotedArgument(titleOf(name)) + " " + quotedArgument(section) + " " + dateArgument(date) +
        " " + quotedArgument(page.command.front() + (page.version.empty() ? "" : " " + page.version)) + "\n";
    // Manuals are listed with this line, so it is one sentence.
    const std::string purpose = page.purpose.empty() ? "a program" : page.purpose;
    const std::size_t end = endOfSentence(purpose);
    text += ".SH NAME\n" + filled(escaped(name) + " \\- " + escaped(purpose.substr(0, end)));
    text += ".SH SYNOPSIS\n";
    for (const Runs& runs : page.synopses) {
        text += &runs == &page.synopses.front() ? "" : ".br\n";
        text += filled(source(runs));
    }
    if (end < purpose.size()) {
        text += ".SH DESCRIPTION\n" + filled(escaped(purpose.substr(end + 1)));
    }
    for (const Section& part : page.sections) {
        text += (part.level == 1 ? ".SH " : ".SS ") +
                quotedArgument(part.level == 1 ? upper(part.title) : part.title) + "\n";
        bool isFirst = true;
        for (const std::string& paragraph : part.paragraphs) {
            text += isFirst ? "" : ".PP\n";
            text += filled(escaped(paragraph));
            isFirst = false;
        }
        for (const Entry& entry : part.entries) {
            appendEntry(text, entry);
        }
    }
    return text;
}

} // namespace tarv_program
