#include <argtable2.h>

#include <cstdio>
#include <cstring>

int main(int argc, char** argv) {
    arg_lit* verbose = arg_lit0("v", "verbose", "Tell what is being done.");
    arg_int* jobs = arg_int0("j", "jobs", "<n>", "How many files to work on at the same time.");
    arg_dbl* scale = arg_dbl0(nullptr, "scale", "<x>", "The factor for every length.");
    arg_str* output = arg_str0("o", "output-file", "<file>", "Where the result is written.");
    arg_str* paths = arg_str0(nullptr, "include-path", "<paths>", "Directories to search.");
    arg_str* inputs = arg_strn(nullptr, nullptr, "<input>", 0, 100, "The files to work on.");
    struct arg_end* end = arg_end(20);
    void* table[] = {verbose, jobs, scale, output, paths, inputs, end};
    if (arg_parse(argc, argv, table) != 0) {
        arg_print_errors(stderr, end, "host");
        return 1;
    }
    std::printf("%d %d %g %s\n", verbose->count, jobs->ival[0], scale->dval[0], output->sval[0]);
    for (char* path = std::strtok(const_cast<char*>(paths->sval[0]), ","); path;
         path = std::strtok(nullptr, ","))
        std::printf("%s\n", path);
    for (int i = 0; i < inputs->count; ++i)
        std::printf("%s\n", inputs->sval[i]);
    arg_freetable(table, sizeof table / sizeof table[0]);
}
