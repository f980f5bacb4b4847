#include <absl/flags/flag.h>
#include <absl/flags/parse.h>

#include <cstdio>
#include <string>
#include <vector>

ABSL_FLAG(bool, verbose, false, "Tell what is being done.");
ABSL_FLAG(int, jobs, 0, "How many files to work on at the same time.");
ABSL_FLAG(double, scale, 0, "The factor for every length.");
ABSL_FLAG(std::string, output_file, "", "Where the result is written.");
ABSL_FLAG(std::vector<std::string>, include_path, {}, "Directories to search.");

int main(int argc, char** argv) {
    const std::vector<char*> inputs = absl::ParseCommandLine(argc, argv);
    std::printf("%d %d %g %s\n", absl::GetFlag(FLAGS_verbose), absl::GetFlag(FLAGS_jobs),
                absl::GetFlag(FLAGS_scale), absl::GetFlag(FLAGS_output_file).c_str());
    for (const std::string& path : absl::GetFlag(FLAGS_include_path))
        std::printf("%s\n", path.c_str());
    for (std::size_t i = 1; i < inputs.size(); ++i)
        std::printf("%s\n", inputs[i]);
}
