/// Runs one workload with one library, phase by phase. Under callgrind (with collection off at the
/// start) every phase becomes a dump of its own; with the allocation counter preloaded its
/// allocations are printed.
///
///     bench-NAME MODE WORKLOAD SIZE
///
/// MODE is `about` (prints the library's name and what it can do), `answer` (prints what was read),
/// `measure` (writes every phase and its allocations to the standard error), `measure-again` (the
/// same, and a second command line), `measure-cold` (the same without a warm-up), `help` (prints the
/// help text) or `measure-help`. WORKLOAD is one of `workloads`; those of the everyday have one size.

#include "adapters/candidates.h"

#include <dlfcn.h>
#include <valgrind/callgrind.h>

#include <cstdio>
#include <cstdlib>

namespace bench {

namespace {

const Candidate& candidate = BENCH_CANDIDATE;

unsigned long noAllocations() {
    return 0;
}

using AllocationCounter = unsigned long (*)();

AllocationCounter findAllocationCounter() {
    void* symbol = dlsym(RTLD_DEFAULT, "bench_allocations");
    return symbol ? reinterpret_cast<AllocationCounter>(symbol) : noAllocations;
}

const AllocationCounter allocations = findAllocationCounter();

template <class Action>
void measure(const char* phase, Action action) {
    const unsigned long before = allocations();
    CALLGRIND_TOGGLE_COLLECT;
    action();
    CALLGRIND_TOGGLE_COLLECT;
    const unsigned long after = allocations();
    CALLGRIND_DUMP_STATS_AT(phase);
    std::fprintf(stderr, "%s %lu\n", phase, after - before);
}

constexpr std::pair<const char*, Workload (*)(std::size_t size)> workloads[] = {
    {"everyday", [](std::size_t) { return everydayWorkload(); }},
    {"defaults", [](std::size_t) { return everydayWithDefaults(); }},
    {"watched", [](std::size_t) { return everydayWatched(); }},
    {"arguments", longCommandLine},
    {"options", [](std::size_t size) { return manyOptions(size); }},
    {"features", [](std::size_t size) { return manyOptions(size, featureName); }},
    {"numbered", [](std::size_t size) { return manyOptions(size, numberedName); }},
    {"cut-options", [](std::size_t size) { return manyOptions(size, groupedName, 1); }},
    {"cut-features", [](std::size_t size) { return manyOptions(size, featureName, 1); }},
    {"switches", [](std::size_t size) { return manySwitches(size, groupedName); }},
    {"feature-switches", [](std::size_t size) { return manySwitches(size, featureName); }},
};

Workload workloadNamed(const std::string& name, std::size_t size) {
    for (const auto& [known, make] : workloads)
        if (name == known)
            return prepared(candidate, make(size));
    fail("no workload " + name);
}

void printAbout() {
    std::printf("%s\n", candidate.name);
    constexpr std::pair<Ability, const char*> names[] = {
        {takesBack, "takes-back"}, {collects, "collects"},       {helps, "helps"},
        {negates, "negates"},      {abbreviates, "abbreviates"}, {watches, "watches"}};
    for (const auto& [ability, name] : names)
        if ((candidate.abilities & ability) != 0)
            std::puts(name);
}

void printAnswer(const Workload& workload) {
    CommandLine line(workload, candidate.dialect);
    Answer answer(workload);
    const std::unique_ptr<Library> library = candidate.make();
    declare(*library, workload);
    library->parse(line.count(), line.arguments());
    library->read(workload.options, answer);
    const std::string first = answer.canonicalText(workload.options);
    answer.clear();
    library->forget();
    library->parse(line.count(), line.arguments());
    library->read(workload.options, answer);
    if (answer.canonicalText(workload.options) != first)
        fail("a second parse finds something else");
    std::fputs(first.c_str(), stdout);
}

/// A whole life before the measured one: allocates what the process allocates once.
void warmUp() {
    if ((candidate.abilities & takesBack) == 0)
        return;
    const Workload workload = workloadNamed("everyday", 0);
    CommandLine line(workload, candidate.dialect);
    Answer answer(workload);
    const std::unique_ptr<Library> library = candidate.make();
    library->declare(workload.options);
    library->parse(line.count(), line.arguments());
    library->read(workload.options, answer);
    library->forget();
}

/// The declared parser used for a second command line.
void measureAgain(Library& library, const Workload& workload, Answer& answer) {
    CommandLine line(workload, candidate.dialect);
    char** const arguments = line.arguments();
    answer.clear();
    measure("again-forget", [&] { library.forget(); });
    measure("again-parse", [&] { library.parse(line.count(), arguments); });
    measure("again-read", [&] { library.read(workload.options, answer); });
}

/// Declarations that cannot be taken back have no whole life before: only the parser is warmed up.
void warmUpDeclared(Library& library, const Workload& workload, Answer& answer) {
    if ((candidate.abilities & takesBack) != 0)
        return;
    CommandLine line(workload, candidate.dialect);
    library.parse(line.count(), line.arguments());
    library.read(workload.options, answer);
    library.forget();
    answer.clear();
}

void measurePhases(const Workload& workload, bool isWarm, bool again) {
    CommandLine line(workload, candidate.dialect);
    char** const arguments = line.arguments();
    Answer answer(workload);
    if (isWarm)
        warmUp();
    measure("nothing", [] {});
    std::unique_ptr<Library> library;
    measure("declare", [&] {
        library = candidate.make();
        declare(*library, workload);
    });
    if (isWarm)
        warmUpDeclared(*library, workload, answer);
    measure("parse", [&] { library->parse(line.count(), arguments); });
    measure("read", [&] { library->read(workload.options, answer); });
    if (again)
        measureAgain(*library, workload, answer);
    measure("release", [&] { library.reset(); });
}

/// A library that has parsed, for one of them has no help before.
std::unique_ptr<Library> readyForHelp(const Workload& workload, CommandLine& line) {
    std::unique_ptr<Library> library = candidate.make();
    library->declare(workload.options);
    library->parse(line.count(), line.arguments());
    return library;
}

void printHelp(const Workload& workload) {
    CommandLine line(workload, candidate.dialect);
    std::fputs(readyForHelp(workload, line)->help().c_str(), stdout);
}

void measureHelp(const Workload& workload) {
    CommandLine line(workload, candidate.dialect);
    const std::unique_ptr<Library> library = readyForHelp(workload, line);
    library->help();
    std::string text;
    measure("nothing", [] {});
    measure("help", [&] { text = library->help(); });
}

int run(int argc, char** argv) {
    const std::vector<std::string> words(argv + 1, argv + argc);
    if (words.size() != 3)
        fail("usage: MODE WORKLOAD SIZE");
    const std::string& mode = words[0];
    const Workload workload = workloadNamed(words[1], std::stoul(words[2]));
    if (mode == "about")
        printAbout();
    else if (mode == "answer")
        printAnswer(workload);
    else if (mode == "measure")
        measurePhases(workload, true, false);
    else if (mode == "measure-again")
        measurePhases(workload, true, true);
    else if (mode == "measure-cold")
        measurePhases(workload, false, false);
    else if (mode == "help")
        printHelp(workload);
    else if (mode == "measure-help")
        measureHelp(workload);
    else
        fail("no mode " + mode);
    return EXIT_SUCCESS;
}

} // namespace

} // namespace bench

int main(int argc, char** argv) {
    try {
        return bench::run(argc, argv);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s: %s\n", argv[0], error.what());
        return EXIT_FAILURE;
    }
}
