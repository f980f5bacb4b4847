/// Runs one workload with one library, phase by phase. Under callgrind (with collection off at the
/// start) every phase becomes a dump of its own; with the allocation counter preloaded its
/// allocations are printed.
///
///     bench-NAME MODE WORKLOAD SIZE
///
/// MODE is `answer` (prints what was read), `measure` (writes every phase and its allocations to
/// the standard error), `measure-again` (the same, and a second command line), `help` (prints the
/// help text) or `measure-help`. WORKLOAD is `everyday`, which has one size, `arguments` or
/// `options`.

#include "adapters/candidates.h"

#include <dlfcn.h>
#include <valgrind/callgrind.h>

#include <cstdio>
#include <cstdlib>

namespace bench {

namespace {

const Candidate& candidate = BENCH_CANDIDATE;

/// A command line as main receives it.
class CommandLine {
public:
    explicit CommandLine(const Workload& workload) : m_texts(arguments(workload, candidate.dialect)) {
        for (std::string& text : m_texts)
            m_pointers.push_back(text.data());
        m_pointers.push_back(nullptr);
    }

    int count() const { return static_cast<int>(m_texts.size()); }
    char** pointers() { return m_pointers.data(); }

private:
    std::vector<std::string> m_texts;
    std::vector<char*> m_pointers;
};

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

Workload workloadNamed(const std::string& name, std::size_t size) {
    Workload workload;
    if (name == "everyday")
        workload = everydayWorkload();
    else if (name == "arguments")
        workload = longCommandLine(size);
    else if (name == "options")
        workload = manyOptions(size);
    else
        fail("no workload " + name);
    for (Option& option : workload.options)
        option.declared = candidate.declared(option);
    return workload;
}

void printAnswer(const Workload& workload) {
    CommandLine line(workload);
    Answer answer(workload);
    const std::unique_ptr<Library> library = candidate.make();
    library->declare(workload.options);
    library->parse(line.count(), line.pointers());
    library->read(workload.options, answer);
    const std::string first = answer.canonicalText(workload.options);
    CommandLine second(workload);
    answer.clear();
    library->forget();
    library->parse(second.count(), second.pointers());
    library->read(workload.options, answer);
    if (answer.canonicalText(workload.options) != first)
        fail("a second parse finds something else");
    std::fputs(first.c_str(), stdout);
}

/// A whole life before the measured one: allocates what the process allocates once.
void warmUp() {
    if (candidate.onePerProcess)
        return;
    const Workload workload = workloadNamed("everyday", 0);
    CommandLine line(workload);
    Answer answer(workload);
    const std::unique_ptr<Library> library = candidate.make();
    library->declare(workload.options);
    library->parse(line.count(), line.pointers());
    library->read(workload.options, answer);
    library->forget();
}

/// The declared parser used for a second command line.
void measureAgain(Library& library, const Workload& workload, Answer& answer) {
    CommandLine line(workload);
    answer.clear();
    measure("again-forget", [&] { library.forget(); });
    measure("again-parse", [&] { library.parse(line.count(), line.pointers()); });
    measure("again-read", [&] { library.read(workload.options, answer); });
}

void measurePhases(const Workload& workload, bool again) {
    CommandLine line(workload);
    Answer answer(workload);
    warmUp();
    measure("nothing", [] {});
    std::unique_ptr<Library> library;
    measure("declare", [&] {
        library = candidate.make();
        library->declare(workload.options);
    });
    measure("parse", [&] { library->parse(line.count(), line.pointers()); });
    measure("read", [&] { library->read(workload.options, answer); });
    if (again)
        measureAgain(*library, workload, answer);
    measure("release", [&] { library.reset(); });
}

void printHelp(const Workload& workload) {
    const std::unique_ptr<Library> library = candidate.make();
    library->declare(workload.options);
    std::fputs(library->help().c_str(), stdout);
}

void measureHelp(const Workload& workload) {
    const std::unique_ptr<Library> library = candidate.make();
    library->declare(workload.options);
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
    if (mode == "answer")
        printAnswer(workload);
    else if (mode == "measure")
        measurePhases(workload, false);
    else if (mode == "measure-again")
        measurePhases(workload, true);
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
