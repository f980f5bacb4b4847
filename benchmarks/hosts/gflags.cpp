#include <gflags/gflags.h>

#include <cstdio>
#include <cstring>

DEFINE_bool(verbose, false, "Tell what is being done.");
DEFINE_int32(jobs, 0, "How many files to work on at the same time.");
DEFINE_double(scale, 0, "The factor for every length.");
DEFINE_string(output_file, "", "Where the result is written.");
DEFINE_string(include_path, "", "Directories to search.");

int main(int argc, char** argv) {
    gflags::ParseCommandLineFlags(&argc, &argv, true);
    std::printf("%d %d %g %s\n", FLAGS_verbose, FLAGS_jobs, FLAGS_scale, FLAGS_output_file.c_str());
    for (char* path = std::strtok(&FLAGS_include_path[0], ","); path; path = std::strtok(nullptr, ","))
        std::printf("%s\n", path);
    for (int i = 1; i < argc; ++i)
        std::printf("%s\n", argv[i]);
}
