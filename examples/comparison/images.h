#pragma once

#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

/// What convert does, whichever library reads its command line: it says what it would do.
namespace images {

using Path = std::filesystem::path;

enum class Format { png, jpeg, webp };
enum class Filter { box, linear, cubic };

struct Job {
    Format format = Format::png;
    Filter filter = Filter::linear;
    int quality = 85;
    std::vector<int> widths;
    double gamma = 1;
    Path folder = ".";
    std::string title;
    bool keep = false;
    bool strip = false;
    bool overwrite = false;
    bool backup = false;
    unsigned long long memory = 0;
    unsigned jobs = 1;
    std::vector<Path> files;
};

inline void convert(const Job& job) {
    static const char* const formats[] = {"png", "jpeg", "webp"};
    static const char* const filters[] = {"box", "linear", "cubic"};
    std::printf("to %s, %s, quality %d, gamma %g, %u jobs, %llu bytes\n",
                formats[static_cast<int>(job.format)], filters[static_cast<int>(job.filter)], job.quality,
                job.gamma, job.jobs, job.memory);
    std::printf("in '%s', title '%s'%s%s%s%s, widths", job.folder.c_str(), job.title.c_str(),
                job.keep ? ", keep" : "", job.strip ? ", strip" : "", job.overwrite ? ", overwrite" : "",
                job.backup ? ", backup" : "");
    for (const int width : job.widths) {
        std::printf(" %d", width);
    }
    std::printf("\n");
    for (const Path& file : job.files) {
        std::printf("file '%s'\n", file.c_str());
    }
}

} // namespace images
