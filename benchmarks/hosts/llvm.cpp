#include <llvm/Support/CommandLine.h>

#include <cstdio>

using namespace llvm;

static cl::opt<bool> verbose("verbose", cl::desc("Tell what is being done."));
static cl::alias verboseAlias("v", cl::aliasopt(verbose));
static cl::opt<int> jobs("jobs", cl::desc("How many files to work on at the same time."));
static cl::alias jobsAlias("j", cl::aliasopt(jobs));
static cl::opt<double> scale("scale", cl::desc("The factor for every length."));
static cl::opt<std::string> output("output-file", cl::desc("Where the result is written."));
static cl::alias outputAlias("o", cl::aliasopt(output));
static cl::list<std::string> paths("include-path", cl::CommaSeparated, cl::desc("Directories to search."));
static cl::list<std::string> inputs(cl::Positional, cl::desc("The files to work on."));

int main(int argc, char** argv) {
    cl::ParseCommandLineOptions(argc, argv);
    std::printf("%d %d %g %s\n", verbose.getValue(), jobs.getValue(), scale.getValue(), output.c_str());
    for (const std::string& path : paths)
        std::printf("%s\n", path.c_str());
    for (const std::string& input : inputs)
        std::printf("%s\n", input.c_str());
}
