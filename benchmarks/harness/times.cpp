/// The same workloads in times, all libraries in one process and one run, so that their ratios
/// mean something. Libraries whose declarations belong to the process are left out.

#include "adapters/candidates.h"

#include <benchmark/benchmark.h>

namespace bench {

namespace {

const Candidate* const candidates[] = {&tarvCandidate,   &typedCandidate,  &handwrittenCandidate,
                                       &getoptCandidate, &poptCandidate,   &argtable2Candidate,
                                       &llvmCandidate,   &tclapCandidate,  &boostCandidate,
                                       &cli11Candidate,  &cxxoptsCandidate};

struct Scene {
    const Candidate& candidate;
    Workload workload;
    CommandLine line;
    Answer answer;

    Scene(const Candidate& its, Workload plain)
        : candidate(its), workload(prepared(its, std::move(plain))), line(workload, its.dialect),
          answer(workload) {}

    std::unique_ptr<Library> declared() const {
        std::unique_ptr<Library> library = candidate.make();
        library->declare(workload.options);
        return library;
    }

    void parseAndRead(Library& library) {
        answer.clear();
        library.parse(line.count(), line.arguments());
        library.read(workload.options, answer);
        benchmark::DoNotOptimize(answer.switches.data());
    }
};

void wholeLife(benchmark::State& state, Scene scene) {
    for (auto _ : state)
        scene.parseAndRead(*scene.declared());
}

void usedAgain(benchmark::State& state, Scene scene) {
    const std::unique_ptr<Library> library = scene.declared();
    for (auto _ : state) {
        scene.parseAndRead(*library);
        library->forget();
    }
}

void parseAlone(benchmark::State& state, Scene scene) {
    const std::unique_ptr<Library> library = scene.declared();
    for (auto _ : state) {
        library->parse(scene.line.count(), scene.line.arguments());
        state.PauseTiming();
        library->forget();
        state.ResumeTiming();
    }
}

void helpAlone(benchmark::State& state, Scene scene) {
    const std::unique_ptr<Library> library = scene.declared();
    library->parse(scene.line.count(), scene.line.arguments());
    for (auto _ : state)
        benchmark::DoNotOptimize(library->help());
}

using Run = void (*)(benchmark::State&, Scene);

void add(const char* measure, const Candidate& candidate, Run run, Workload (*makeWorkload)()) {
    const std::string name = std::string(measure) + '/' + candidate.name;
    benchmark::RegisterBenchmark(name.c_str(), [&candidate, run, makeWorkload](benchmark::State& state) {
        run(state, Scene(candidate, makeWorkload()));
    });
}

void addAll() {
    for (const Candidate* candidate : candidates) {
        add("W1", *candidate, wholeLife, everydayWorkload);
        add("W1 again", *candidate, usedAgain, everydayWorkload);
        add("W2", *candidate, parseAlone, [] { return longCommandLine(10000); });
        add("W3", *candidate, parseAlone, [] { return manyOptions(1000); });
        if ((candidate->abilities & helps) != 0)
            add("W4", *candidate, helpAlone, everydayWorkload);
    }
}

} // namespace

} // namespace bench

int main(int argc, char** argv) {
    bench::addAll();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
