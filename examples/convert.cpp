// convert, a tool with enumerations, lists, ranges, rules and environment: its command line. What it does is
// in comparison/images.h.

#include <tarv_3_3/typed.h>

#include "comparison/images.h"

namespace tarv = tarv_3_3::typed;

int main(int argc, char** argv) {
    tarv::Program tool("convert", "2.1", "Converts images.");
    images::Job job;
    tool.bind("to,t", job.format, "The format to write.");
    tool.bind("filter", job.filter, "How to scale.");
    tool.bind("quality,q", job.quality, "Of lossy formats.").range(1, 100).env("CONVERT_QUALITY");
    tool.bind("width,w", job.widths, "Widths to make.").range(1, 65535);
    tool.bind("gamma", job.gamma, "Brightness.").range(0.1, 10);
    tool.bind("output,o", job.folder, "The folder to write to.").value("FOLDER");
    tool.bind("title", job.title, "What to write into the files.");
    auto keep = tool.bind("keep", job.keep, "Keep notes of the camera.");
    auto strip = tool.bind("strip", job.strip, "Remove notes of the camera.");
    tool.atMostOne(keep, strip);
    auto overwrite = tool.bind("overwrite", job.overwrite, "Write over files.");
    tool.bind("backup", job.backup, "Keep what is written over.").needs(overwrite);
    auto memory =
        tool.option("memory", "Take no more than this.", tarv::Size(256 << 20)).env("CONVERT_MEMORY");
    tool.bind("jobs,j", job.jobs, "How many at a time.").range(1, 64).env("CONVERT_JOBS");
    tool.bindPositional("image", job.files, "What to convert.").required();
    return tool.run(argc, argv, [&] {
        job.memory = *memory;
        images::convert(job);
    });
}
