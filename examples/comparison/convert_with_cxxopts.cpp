#include <cstdlib>
#include <cxxopts.hpp>
#include <initializer_list>
#include <map>
#include <stdexcept>

#include "images.h"

namespace {

using images::Filter;
using images::Format;

template <class E>
E choose(const char* option, const std::string& text, const std::map<std::string, E>& choices) {
    const auto found = choices.find(text);
    if (found == choices.end()) {
        throw std::invalid_argument(std::string("--") + option + " does not allow '" + text + "'");
    }
    return found->second;
}

template <class T>
T inRange(const char* option, T value, T low, T high) {
    if (value < low || value > high) {
        throw std::invalid_argument(std::string("--") + option + " must be from " + std::to_string(low) +
                                    " to " + std::to_string(high));
    }
    return value;
}

std::string environment(const char* name, const std::string& otherwise) {
    const char* const text = std::getenv(name);
    return text != nullptr && *text != '\0' ? text : otherwise;
}

unsigned long long sizeOf(const std::string& text) {
    std::size_t end = 0;
    const unsigned long long number = std::stoull(text, &end);
    const std::map<std::string, unsigned long long> units = {{"", 1},
                                                             {"k", 1000},
                                                             {"M", 1000000},
                                                             {"G", 1000000000},
                                                             {"KiB", 1ULL << 10},
                                                             {"MiB", 1ULL << 20},
                                                             {"GiB", 1ULL << 30}};
    return number * choose("memory", text.substr(end), units);
}

images::Job makeJob(const cxxopts::ParseResult& found) {
    images::Job job;
    job.format = choose<Format>("to", found["to"].as<std::string>(),
                                {{"png", Format::png}, {"jpeg", Format::jpeg}, {"webp", Format::webp}});
    job.filter = choose<Filter>("filter", found["filter"].as<std::string>(),
                                {{"box", Filter::box}, {"linear", Filter::linear}, {"cubic", Filter::cubic}});
    job.quality = inRange("quality", found["quality"].as<int>(), 1, 100);
    if (found.count("width") != 0) {
        job.widths = found["width"].as<std::vector<int>>();
    }
    for (const int width : job.widths) {
        inRange("width", width, 1, 65535);
    }
    job.gamma = inRange("gamma", found["gamma"].as<double>(), 0.1, 10.0);
    job.folder = found["output"].as<std::string>();
    job.title = found["title"].as<std::string>();
    job.keep = found["keep"].as<bool>();
    job.strip = found["strip"].as<bool>();
    if (job.keep && job.strip) {
        throw std::invalid_argument("--keep and --strip exclude each other");
    }
    job.overwrite = found["overwrite"].as<bool>();
    job.backup = found["backup"].as<bool>();
    if (job.backup && !job.overwrite) {
        throw std::invalid_argument("--backup needs --overwrite");
    }
    job.memory = sizeOf(found["memory"].as<std::string>());
    job.jobs = inRange("jobs", found["jobs"].as<unsigned>(), 1U, 64U);
    if (found.count("image") == 0) {
        throw std::invalid_argument("an image is required");
    }
    for (const std::string& file : found["image"].as<std::vector<std::string>>()) {
        job.files.emplace_back(file);
    }
    return job;
}

void declare(cxxopts::Options& tool) {
    const auto text = [](const std::string& initial) {
        return cxxopts::value<std::string>()->default_value(initial);
    };
    const auto quality = environment("CONVERT_QUALITY", "85");
    const auto jobs = environment("CONVERT_JOBS", "1");
    // clang-format off
    tool.add_options()
        ("t,to", "The format to write: png, jpeg or webp.", text("png"))
        ("filter", "How to scale: box, linear or cubic.", text("linear"))
        ("q,quality", "Of lossy formats, from 1 to 100.", cxxopts::value<int>()->default_value(quality))
        ("w,width", "Widths to make, from 1 to 65535.", cxxopts::value<std::vector<int>>())
        ("gamma", "Brightness, from 0.1 to 10.", cxxopts::value<double>()->default_value("1"))
        ("o,output", "The folder to write to.", text("."), "FOLDER")
        ("title", "What to write into the files.", text(""))
        ("keep", "Keep notes of the camera.")
        ("strip", "Remove notes of the camera.")
        ("overwrite", "Write over files.")
        ("backup", "Keep what is written over.")
        ("memory", "Take no more than this.", text(environment("CONVERT_MEMORY", "256MiB")))
        ("j,jobs", "How many at a time, from 1 to 64.", cxxopts::value<unsigned>()->default_value(jobs))
        ("h,help", "Show this help.")
        ("version", "Show the version.")
        ("image", "What to convert.", cxxopts::value<std::vector<std::string>>());
    // clang-format on
    tool.parse_positional("image");
    tool.positional_help("IMAGE...");
}

} // namespace

int main(int argc, char** argv) {
    cxxopts::Options tool("convert", "Converts images.");
    declare(tool);
    try {
        const cxxopts::ParseResult found = tool.parse(argc, argv);
        if (found.count("help") != 0) {
            std::printf("%s\n", tool.help().c_str());
        } else if (found.count("version") != 0) {
            std::printf("convert 2.1\n");
        } else {
            images::convert(makeJob(found));
        }
    } catch (const std::exception& error) {
        std::fprintf(stderr, "convert: %s\n", error.what());
        return 2;
    }
    return 0;
}
