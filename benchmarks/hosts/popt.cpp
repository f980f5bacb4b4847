#include <popt.h>

#include <cstdio>
#include <cstring>

static int verbose;
static int jobs;
static double scale;
static char* output;
static char* paths;

static poptOption options[] = {
    {"verbose", 'v', POPT_ARG_NONE, &verbose, 0, "Tell what is being done.", nullptr},
    {"jobs", 'j', POPT_ARG_INT, &jobs, 0, "How many files to work on at the same time.", nullptr},
    {"scale", 0, POPT_ARG_DOUBLE, &scale, 0, "The factor for every length.", nullptr},
    {"output-file", 'o', POPT_ARG_STRING, &output, 0, "Where the result is written.", nullptr},
    {"include-path", 0, POPT_ARG_STRING, &paths, 0, "Directories to search.", nullptr},
    POPT_AUTOHELP POPT_TABLEEND};

int main(int argc, char** argv) {
    poptContext context = poptGetContext(nullptr, argc, const_cast<const char**>(argv), options, 0);
    if (const int code = poptGetNextOpt(context); code != -1) {
        std::fprintf(stderr, "%s\n", poptStrerror(code));
        return 1;
    }
    std::printf("%d %d %g %s\n", verbose, jobs, scale, output ? output : "");
    for (char* path = paths ? std::strtok(paths, ",") : nullptr; path; path = std::strtok(nullptr, ","))
        std::printf("%s\n", path);
    for (const char** input = poptGetArgs(context); input && *input; ++input)
        std::printf("%s\n", *input);
    poptFreeContext(context);
}
