#include <algorithm>

#include "pages/Page.h"
#include "text/shellQuoted.h"

namespace tarv_program {

namespace {

std::string escaped(const std::string& text) {
    std::string source;
    for (const char byte : visible(text)) {
        source += std::string("\\`*_[]<>&#|").find(byte) == std::string::npos ? "" : "\\";
        source += byte;
    }
    return source;
}

// As many backticks around it as it takes.
std::string code(const std::string& text) {
    const std::string shown = visible(text);
    const std::string mark = shown.find('`') == std::string::npos ? "`" : "``";
    return mark + (mark.size() > 1 ? " " : "") + shown + (mark.size() > 1 ? " " : "") + mark;
}

std::string plainText(const Runs& runs) {
    std::string text;
    for (const Run& run : runs) {
        text += run.text;
    }
    return text;
}

std::string joined(const std::vector<std::string>& words) {
    std::string text;
    for (const std::string& word : words) {
        text += (text.empty() ? "" : " ") + word;
    }
    return text;
}

void appendEntry(std::string& page, const Entry& entry) {
    page += "- ";
    for (const Runs& form : entry.forms) {
        page += (&form == &entry.forms.front() ? "" : ", ") + code(plainText(form));
    }
    page += "\n\n";
    if (!entry.sentences.empty()) {
        page += "  " + escaped(joined(entry.sentences)) + "\n\n";
    }
}

} // namespace

std::string asMarkdown(const Page& page) {
    std::string text = "# " + escaped(joined(page.command)) + "\n\n";
    if (!page.purpose.empty()) {
        text += escaped(page.purpose) + "\n\n";
    }
    for (const Runs& runs : page.synopses) {
        text += "    " + visible(plainText(runs)) + "\n";
    }
    for (const Section& section : page.sections) {
        text += "\n" + std::string(static_cast<std::size_t>(section.level) + 1, '#') + " " +
                escaped(section.title) + "\n\n";
        for (const std::string& paragraph : section.paragraphs) {
            text += paragraph.empty() ? "" : escaped(paragraph) + "\n\n";
        }
        for (const Entry& entry : section.entries) {
            appendEntry(text, entry);
        }
        while (text.size() > 1 && text.compare(text.size() - 2, 2, "\n\n") == 0) {
            text.pop_back();
        }
    }
    return text;
}

} // namespace tarv_program
