// A key has a comma, and values are split at none.
#define CXXOPTS_VECTOR_DELIMITER '\0'
#include <cxxopts.hpp>

#include <map>
#include <stdexcept>

#include "lines.h"

namespace {

using lines::Order;

unsigned inRange(const char* option, unsigned value, unsigned low, unsigned high) {
    if (value < low || value > high) {
        throw std::invalid_argument(std::string("--") + option + " must be from " + std::to_string(low) +
                                    " to " + std::to_string(high));
    }
    return value;
}

unsigned long long sizeOf(const std::string& text) {
    std::size_t end = 0;
    const unsigned long long number = std::stoull(text, &end);
    const std::map<std::string, unsigned long long> units = {{"", 1},
                                                             {"k", 1000},
                                                             {"M", 1000000},
                                                             {"G", 1000000000},
                                                             {"KiB", 1ULL << 10},
                                                             {"MiB", 1ULL << 20},
                                                             {"GiB", 1ULL << 30}};
    const auto unit = units.find(text.substr(end));
    if (unit == units.end()) {
        throw std::invalid_argument("'" + text + "' is no size");
    }
    return number * unit->second;
}

std::vector<std::string> textsOf(const cxxopts::ParseResult& found, const char* name) {
    return found.count(name) != 0 ? found[name].as<std::vector<std::string>>() : std::vector<std::string>();
}

Order orderOf(const cxxopts::ParseResult& found) {
    const std::map<std::string, Order> orders = {{"text", Order::text},
                                                 {"general-numeric", Order::general_numeric},
                                                 {"human-numeric", Order::human_numeric},
                                                 {"month", Order::month},
                                                 {"numeric", Order::numeric},
                                                 {"random", Order::random},
                                                 {"version", Order::version}};
    Order order = Order::text;
    int given = 0;
    for (const auto& [name, value] : orders) {
        if (value != Order::text && found.count(name + "-sort") != 0) {
            order = value;
            ++given;
        }
    }
    if (found.count("sort") != 0) {
        const std::string name = found["sort"].as<std::string>();
        const auto named = orders.find(name);
        if (named == orders.end()) {
            throw std::invalid_argument("--sort does not allow '" + name + "'");
        }
        order = named->second;
        ++given;
    }
    if (given > 1) {
        throw std::invalid_argument("orders exclude each other");
    }
    return order;
}

lines::Job makeJob(const cxxopts::ParseResult& found) {
    lines::Job job;
    job.ignoreLeadingBlanks = found["ignore-leading-blanks"].as<bool>();
    job.dictionaryOrder = found["dictionary-order"].as<bool>();
    job.ignoreCase = found["ignore-case"].as<bool>();
    job.ignoreNonprinting = found["ignore-nonprinting"].as<bool>();
    job.reverse = found["reverse"].as<bool>();
    job.order = orderOf(found);
    for (const std::string& text : textsOf(found, "key")) {
        lines::Key key;
        if (!fromText(text.c_str(), key)) {
            throw std::invalid_argument("'" + text + "' is no key");
        }
        job.keys.push_back(key);
    }
    if (found.count("field-separator") != 0) {
        job.separator = found["field-separator"].as<char>();
    }
    job.check = found["check"].as<bool>();
    job.output = found["output"].as<std::string>();
    if (job.check && !job.output.empty()) {
        throw std::invalid_argument("--check and --output exclude each other");
    }
    job.merge = found["merge"].as<bool>();
    job.stable = found["stable"].as<bool>();
    job.unique = found["unique"].as<bool>();
    job.zeroTerminated = found["zero-terminated"].as<bool>();
    job.debug = found["debug"].as<bool>();
    job.filesFrom = found["files0-from"].as<std::string>();
    job.randomSource = found["random-source"].as<std::string>();
    job.compressProgram = found["compress-program"].as<std::string>();
    job.bufferSize = sizeOf(found["buffer-size"].as<std::string>());
    for (const std::string& folder : textsOf(found, "temporary-directory")) {
        job.temporaryDirectories.emplace_back(folder);
    }
    job.batchSize = inRange("batch-size", found["batch-size"].as<unsigned>(), 2, 1024);
    job.parallel = inRange("parallel", found["parallel"].as<unsigned>(), 1, 256);
    for (const std::string& file : textsOf(found, "file")) {
        job.files.emplace_back(file);
    }
    if (!job.filesFrom.empty() && !job.files.empty()) {
        throw std::invalid_argument("--files0-from and files exclude each other");
    }
    return job;
}

void declare(cxxopts::Options& tool) {
    const auto text = [](const char* initial) {
        return cxxopts::value<std::string>()->default_value(initial);
    };
    const auto number = [](const char* initial) {
        return cxxopts::value<unsigned>()->default_value(initial);
    };
    // clang-format off
    tool.add_options("Order")
        ("b,ignore-leading-blanks", "Ignore leading blanks.")
        ("d,dictionary-order", "Only blanks, letters and digits.")
        ("f,ignore-case", "Lower case is upper case.")
        ("i,ignore-nonprinting", "Only what can be printed.")
        ("r,reverse", "The other way round.")
        ("sort", "Sort by this.", cxxopts::value<std::string>())
        ("g,general-numeric-sort", "By general numbers.")
        ("h,human-numeric-sort", "By numbers as 2K and 1G.")
        ("M,month-sort", "By months.")
        ("n,numeric-sort", "By numbers.")
        ("R,random-sort", "By chance.")
        ("V,version-sort", "By versions.");
    tool.add_options()
        ("k,key", "Fields to sort by, as in 2,3.", cxxopts::value<std::vector<std::string>>(), "FIRST[,LAST]")
        ("t,field-separator", "What stands between fields.", cxxopts::value<char>())
        ("c,check", "Only look whether it is sorted.")
        ("o,output", "Write here.", text(""))
        ("m,merge", "Merge what is sorted already.")
        ("s,stable", "Leave equal lines in their order.")
        ("u,unique", "One of equal lines only.")
        ("z,zero-terminated", "Lines end in a zero byte.")
        ("debug", "Show what is compared.")
        ("files0-from", "Read the names of files here.", text(""))
        ("random-source", "Take chance from here.", text(""))
        ("compress-program", "Compresses temporary files.", text(""))
        ("S,buffer-size", "How much memory to take.", text("0"))
        ("T,temporary-directory", "For temporary files.", cxxopts::value<std::vector<std::string>>())
        ("batch-size", "How many to merge at a time, from 2 to 1024.", number("16"))
        ("parallel", "How many sorts at a time, from 1 to 256.", number("1"))
        ("help", "Show this help.")
        ("version", "Show the version.")
        ("file", "What to sort.", cxxopts::value<std::vector<std::string>>());
    // clang-format on
    tool.parse_positional("file");
    tool.positional_help("[FILE]...");
}

} // namespace

int main(int argc, char** argv) {
    cxxopts::Options tool("sort_lines", "Sorts the lines of text files, or of standard input.");
    declare(tool);
    try {
        const cxxopts::ParseResult found = tool.parse(argc, argv);
        if (found.count("help") != 0) {
            std::printf("%s\n", tool.help().c_str());
        } else if (found.count("version") != 0) {
            std::printf("sort_lines 1.0\n");
        } else {
            lines::sort(makeJob(found));
        }
    } catch (const std::exception& error) {
        std::fprintf(stderr, "sort_lines: %s\n", error.what());
        return 2;
    }
    return 0;
}
