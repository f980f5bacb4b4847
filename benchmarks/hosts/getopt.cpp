#include <getopt.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

static const option options[] = {
    {"verbose", no_argument, nullptr, 'v'},
    {"jobs", required_argument, nullptr, 'j'},
    {"scale", required_argument, nullptr, 's'},
    {"output-file", required_argument, nullptr, 'o'},
    {"include-path", required_argument, nullptr, 'i'},
    {nullptr, 0, nullptr, 0},
};

int main(int argc, char** argv) {
    bool verbose = false;
    int jobs = 0;
    double scale = 0;
    const char* output = "";
    char* paths = nullptr;
    for (int code; (code = getopt_long(argc, argv, "vj:o:", options, nullptr)) != -1;) {
        switch (code) {
        case 'v':
            verbose = true;
            break;
        case 'j':
            jobs = std::atoi(optarg);
            break;
        case 's':
            scale = std::strtod(optarg, nullptr);
            break;
        case 'o':
            output = optarg;
            break;
        case 'i':
            paths = optarg;
            break;
        default:
            return 1;
        }
    }
    std::printf("%d %d %g %s\n", verbose, jobs, scale, output);
    for (char* path = paths ? std::strtok(paths, ",") : nullptr; path; path = std::strtok(nullptr, ","))
        std::printf("%s\n", path);
    for (int i = optind; i < argc; ++i)
        std::printf("%s\n", argv[i]);
}
