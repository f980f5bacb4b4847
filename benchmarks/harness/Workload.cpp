#include "harness/Workload.h"

#include <algorithm>
#include <array>

namespace bench {

namespace {

struct Declaration {
    const char* name;
    char alias;
    Kind kind;
    const char* description;
};

constexpr Declaration everydayOptions[] = {
    {"verbose", 'v', Kind::Switch, "Tell what is being done, one line for every file."},
    {"quiet", 'q', Kind::Switch, "Print nothing but errors."},
    {"force", 'f', Kind::Switch, "Overwrite files that exist already."},
    {"dry-run", 'n', Kind::Switch, "Only print what would be done, and change nothing on disk."},
    {"keep-going", 0, Kind::Switch, "Go on with the other files after an error."},
    {"color-output", 0, Kind::Switch, "Mark messages with colours."},
    {"follow-symbolic-links", 0, Kind::Switch, "Enter directories that symbolic links point to."},
    {"strict", 0, Kind::Switch, "Treat every warning as an error."},
    {"jobs", 'j', Kind::Integer, "How many files to work on at the same time."},
    {"retry-count", 0, Kind::Integer, "How often to try again after a failed transfer."},
    {"max-line-length", 0, Kind::Integer, "The column at which lines of the output are broken."},
    {"timeout", 't', Kind::Integer, "How many seconds to wait for an answer before giving up."},
    {"scale", 's', Kind::Number, "The factor by which every length is multiplied."},
    {"compression-ratio", 0, Kind::Number, "The ratio below which a file is stored as it is."},
    {"output-file", 'o', Kind::Text, "Where the result is written; standard output if not given."},
    {"config", 'c', Kind::Text, "A file with further settings."},
    {"log-file", 'l', Kind::Text, "Where messages are kept."},
    {"target", 0, Kind::Text, "What to build, by name."},
    {"user-name", 'u', Kind::Text, "The account used for transfers."},
    {"work-directory", 0, Kind::Text, "Where intermediate files are kept while the work goes on."},
    {"message", 0, Kind::Text, "A remark that is stored with the result."},
    {"cache-size-policy", 0, Kind::Text, "How the cache decides what it forgets."},
    {"include-path", 'i', Kind::List, "Directories to search, separated by commas."},
    {"input", 0, Kind::Positional, "The files to work on."},
};

/// Kinds that share a storage in `Answer` count their slots together.
std::size_t storageOf(Kind kind) {
    return static_cast<std::size_t>(kind == Kind::Positional ? Kind::List : kind);
}

class Declarations {
public:
    Declarations(std::vector<Option>& options, std::size_t atMost) : m_options(options), m_atMost(atMost) {}

    void add(std::string name, char alias, Kind kind, std::string description) {
        std::size_t& slot = m_used[storageOf(kind)];
        m_options.push_back({std::move(name), alias, kind, std::move(description), slot++, m_atMost});
    }

private:
    std::vector<Option>& m_options;
    std::size_t m_atMost;
    std::array<std::size_t, 6> m_used{};
};

void declareEverydayOptions(std::vector<Option>& options, std::size_t atMost) {
    Declarations declarations(options, atMost);
    for (const Declaration& each : everydayOptions)
        declarations.add(each.name, each.alias, each.kind, each.description);
}

void declareMany(std::vector<Option>& options, std::size_t count, Kind kind, Naming naming) {
    Declarations declarations(options, 100);
    for (std::size_t i = 0; i < count; ++i)
        declarations.add(naming(i), 0, kind, "A setting of the program, number " + std::to_string(i) + ".");
    declarations.add("input", 0, Kind::Positional, "The files to work on.");
    for (Option& option : options)
        option.isOnAtFirst = option.kind == Kind::Switch;
}

const Option* named(const std::vector<Option>& options, std::string_view name) {
    return &*std::find_if(options.begin(), options.end(),
                          [name](const Option& option) { return option.name == name; });
}

} // namespace

Workload everydayWorkload() {
    Workload workload;
    declareEverydayOptions(workload.options, 100);
    const auto positional = [&](const char* value) { workload.given.push_back({nullptr, value, false}); };
    const auto joined = [&](const char* name, const char* value) {
        workload.given.push_back({named(workload.options, name), value, true});
    };
    const auto apart = [&](const char* name, const char* value) {
        workload.given.push_back({named(workload.options, name), value, false});
    };
    const auto on = [&](const char* name) { apart(name, ""); };
    positional("main.cpp");
    on("verbose");
    joined("jobs", "8");
    apart("output-file", "build/result.o");
    positional("support.cpp");
    on("dry-run");
    joined("scale", "0.75");
    joined("include-path", "include,/usr/local/include,third_party");
    apart("config", "settings.conf");
    apart("max-line-length", "110");
    positional("parser.cpp");
    on("keep-going");
    joined("target", "release");
    apart("log-file", "build/messages.log");
    on("follow-symbolic-links");
    positional("help.cpp");
    return workload;
}

Workload everydayWithDefaults() {
    Workload workload = everydayWorkload();
    for (Option& option : workload.options)
        option.hasDefault = option.kind != Kind::List && option.kind != Kind::Positional;
    return workload;
}

Workload everydayWatched() {
    Workload workload = everydayWorkload();
    workload.isWatched = true;
    return workload;
}

Workload longCommandLine(std::size_t arguments) {
    Workload workload;
    declareEverydayOptions(workload.options, arguments);
    const Option* list = named(workload.options, "include-path");
    std::size_t room = arguments;
    for (std::size_t i = 0; room > 0; ++i) {
        const std::string number = std::to_string(i);
        if (i % 3 == 0)
            workload.given.push_back({list, "modules/" + number, true});
        else if (i % 3 == 1 || room == 1)
            workload.given.push_back({nullptr, "file-" + number + ".cpp", false});
        else {
            workload.given.push_back({list, "modules/" + number, false});
            --room;
        }
        --room;
    }
    return workload;
}

std::string groupedName(std::size_t index) {
    static constexpr std::array<const char*, 20> words = {
        "archive", "backup", "cache",  "debug",   "error",  "filter", "graph", "history", "index", "join",
        "kernel",  "link",   "memory", "network", "object", "print",  "query", "report",  "stack", "trace"};
    const std::size_t count = words.size();
    std::string name = words[index % count];
    if (index >= count)
        name.append("-").append(words[index / count % count]);
    if (index >= count * count)
        name.append("-").append(words[index / count / count % count]);
    return name;
}

std::string featureName(std::size_t index) {
    return "feature-" + groupedName(index);
}

std::string numberedName(std::size_t index) {
    const std::string number = std::to_string(index);
    return "feature-" + std::string(4 - std::min<std::size_t>(number.size(), 4), '0') + number;
}

Workload manyOptions(std::size_t options, Naming naming, std::size_t cut) {
    Workload workload;
    declareMany(workload.options, options, Kind::List, naming);
    for (std::size_t i = 0; i < 85; ++i) {
        const std::string number = std::to_string(i);
        if (i % 17 == 5 || i % 17 == 12) {
            workload.given.push_back({nullptr, "file-" + number + ".cpp", false});
            continue;
        }
        const bool joined = i % 17 % 5 != 0;
        workload.given.push_back({&workload.options[i * options / 85], "value-" + number, joined, cut});
    }
    return workload;
}

Workload manySwitches(std::size_t options, Naming naming) {
    Workload workload;
    declareMany(workload.options, options, Kind::Switch, naming);
    for (std::size_t i = 0; i < 100; ++i) {
        if (i % 10 == 5)
            workload.given.push_back({nullptr, "file-" + std::to_string(i) + ".cpp", false});
        else
            workload.given.push_back({&workload.options[i * options / 100], "", false});
    }
    return workload;
}

} // namespace bench
