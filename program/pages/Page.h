#pragma once

#include <string>
#include <vector>

#include "model/CommandLine.h"

namespace tarv_program {

/// A piece of text, and whether it is typed as it stands or is a place for something.
struct Run {
    enum Style { plain, literal, placeholder };
    Style style;
    std::string text;
};
using Runs = std::vector<Run>;

/// An option, an action or a verb: the ways to write it, and what is said of it.
struct Entry {
    std::vector<Runs> forms;
    std::vector<std::string> sentences;
};

struct Section {
    std::string title;
    /// 1 below the page, 2 below a section of level 1.
    int level = 1;
    std::vector<std::string> paragraphs;
    std::vector<Entry> entries;
};

/// What a page says of a program or a verb, in whatever form it is written.
struct Page {
    /// The program, and the verbs behind it.
    std::vector<std::string> command;
    std::string version;
    std::string purpose;
    std::vector<Runs> synopses;
    std::vector<Section> sections;
};

/// "vcs-log" for the page of the verb log.
std::string fileNameOf(const Page& page);

/// One page for the program with all its verbs.
Page wholePage(const CommandLine& program);

/// A page for the program, and one for each verb. Each says what goes with it alone.
std::vector<Page> pageForEachVerb(const CommandLine& program);

/// As the source of a manual page, in the macros of man. `date` is as it is to be printed.
std::string asManual(const Page& page, const std::string& section, const std::string& date);

std::string asMarkdown(const Page& page);

} // namespace tarv_program
