#include <CLI/CLI.hpp>

#include <map>

#include "images.h"

using images::Filter;
using images::Format;

int main(int argc, char** argv) {
    const std::map<std::string, Format> formats = {
        {"png", Format::png}, {"jpeg", Format::jpeg}, {"webp", Format::webp}};
    const std::map<std::string, Filter> filters = {
        {"box", Filter::box}, {"linear", Filter::linear}, {"cubic", Filter::cubic}};
    CLI::App tool("Converts images.", "convert");
    tool.set_version_flag("--version", "convert 2.1");
    images::Job job;
    job.memory = 256 << 20;
    tool.add_option("-t,--to", job.format, "The format to write.")
        ->capture_default_str()
        ->transform(CLI::CheckedTransformer(formats));
    tool.add_option("--filter", job.filter, "How to scale.")
        ->capture_default_str()
        ->transform(CLI::CheckedTransformer(filters));
    tool.add_option("-q,--quality", job.quality, "Of lossy formats.")
        ->capture_default_str()
        ->check(CLI::Range(1, 100))
        ->envname("CONVERT_QUALITY");
    tool.add_option("-w,--width", job.widths, "Widths to make.")
        ->delimiter(',')
        ->allow_extra_args(false)
        ->check(CLI::Range(1, 65535));
    tool.add_option("--gamma", job.gamma, "Brightness.")->capture_default_str()->check(CLI::Range(0.1, 10.0));
    tool.add_option("-o,--output", job.folder, "The folder to write to.")
        ->capture_default_str()
        ->type_name("FOLDER");
    tool.add_option("--title", job.title, "What to write into the files.");
    CLI::Option* keep = tool.add_flag("--keep", job.keep, "Keep notes of the camera.");
    tool.add_flag("--strip", job.strip, "Remove notes of the camera.")->excludes(keep);
    CLI::Option* overwrite = tool.add_flag("--overwrite", job.overwrite, "Write over files.");
    tool.add_flag("--backup", job.backup, "Keep what is written over.")->needs(overwrite);
    tool.add_option("--memory", job.memory, "Take no more than this.")
        ->capture_default_str()
        ->transform(CLI::AsSizeValue(true))
        ->envname("CONVERT_MEMORY");
    tool.add_option("-j,--jobs", job.jobs, "How many at a time.")
        ->capture_default_str()
        ->check(CLI::Range(1, 64))
        ->envname("CONVERT_JOBS");
    tool.add_option("image", job.files, "What to convert.")->required();
    try {
        tool.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return tool.exit(error) == 0 ? 0 : 2;
    }
    images::convert(job);
    return 0;
}
