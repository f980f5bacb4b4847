#include <tclap/CmdLine.h>

#include <cstdio>
#include <cstring>

int main(int argc, char** argv) {
    TCLAP::CmdLine line("A program with a command line.");
    TCLAP::SwitchArg verbose("v", "verbose", "Tell what is being done.", line);
    TCLAP::ValueArg<int> jobs("j", "jobs", "How many files to work on at the same time.", false, 0, "number",
                              line);
    TCLAP::ValueArg<double> scale("", "scale", "The factor for every length.", false, 0, "number", line);
    TCLAP::ValueArg<std::string> output("o", "output-file", "Where the result is written.", false, "", "file",
                                        line);
    TCLAP::ValueArg<std::string> paths("", "include-path", "Directories to search.", false, "", "paths",
                                       line);
    TCLAP::UnlabeledMultiArg<std::string> inputs("input", "The files to work on.", false, "file", line);
    line.parse(argc, argv);
    std::printf("%d %d %g %s\n", verbose.getValue(), jobs.getValue(), scale.getValue(),
                output.getValue().c_str());
    for (char* path = std::strtok(&paths.getValue()[0], ","); path; path = std::strtok(nullptr, ","))
        std::printf("%s\n", path);
    for (const std::string& input : inputs.getValue())
        std::printf("%s\n", input.c_str());
}
