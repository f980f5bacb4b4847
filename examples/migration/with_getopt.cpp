#include <getopt.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

int main(int argc, char** argv) {
    int level = 2;
    bool verbose = false;
    std::string output = "a.out";
    std::vector<std::string> includes;

    const option options[] = {
        {"level", required_argument, nullptr, 'l'},  {"verbose", no_argument, nullptr, 'v'},
        {"output", required_argument, nullptr, 'o'}, {"include", required_argument, nullptr, 'i'},
        {"help", no_argument, nullptr, 'h'},         {nullptr, 0, nullptr, 0},
    };
    for (int found; (found = getopt_long(argc, argv, "l:vo:i:h", options, nullptr)) != -1;) {
        switch (found) {
        case 'l': {
            char* end = nullptr;
            level = static_cast<int>(std::strtol(optarg, &end, 10));
            if (end == optarg || *end != '\0') {
                std::fprintf(stderr, "with_getopt: '%s' is not a level\n", optarg);
                return 2;
            }
            break;
        }
        case 'v':
            verbose = true;
            break;
        case 'o':
            output = optarg;
            break;
        case 'i':
            includes.emplace_back(optarg);
            break;
        case 'h':
            std::printf("-h, --help             Show this help.\n"
                        "-i, --include=FOLDER   A folder to search; may be repeated.\n"
                        "-l, --level=NUMBER     How hard to try (2).\n"
                        "-o, --output=FILE      The file to write (a.out).\n"
                        "-v, --verbose          Say what is done.\n");
            return 0;
        default:
            return 2;
        }
    }

    std::printf("level %d, %s, output %s\n", level, verbose ? "verbose" : "quiet", output.c_str());
    for (const std::string& include : includes) {
        std::printf("include %s\n", include.c_str());
    }
    for (int i = optind; i < argc; ++i) {
        std::printf("file %s\n", argv[i]);
    }
    return 0;
}
