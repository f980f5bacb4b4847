#include <cstdio>
#include <cstdlib>
#include <cstring>

static const char* valueOf(char** argv, int& i, const char* name) {
    const std::size_t length = std::strlen(name);
    if (std::strncmp(argv[i], name, length) != 0)
        return nullptr;
    if (argv[i][length] == '=')
        return argv[i] + length + 1;
    return argv[i][length] == 0 ? argv[++i] : nullptr;
}

int main(int argc, char** argv) {
    bool verbose = false;
    int jobs = 0;
    double scale = 0;
    const char* output = "";
    const char* paths = "";
    int inputs = 0;
    for (int i = 1; i < argc; ++i) {
        const char* text = nullptr;
        if (std::strcmp(argv[i], "--verbose") == 0)
            verbose = true;
        else if ((text = valueOf(argv, i, "--jobs")))
            jobs = std::atoi(text);
        else if ((text = valueOf(argv, i, "--scale")))
            scale = std::strtod(text, nullptr);
        else if ((text = valueOf(argv, i, "--output-file")))
            output = text;
        else if ((text = valueOf(argv, i, "--include-path")))
            paths = text;
        else
            argv[++inputs] = argv[i];
    }
    std::printf("%d %d %g %s\n", verbose, jobs, scale, output);
    for (char* path = std::strtok(const_cast<char*>(paths), ","); path; path = std::strtok(nullptr, ","))
        std::printf("%s\n", path);
    for (int i = 1; i <= inputs; ++i)
        std::printf("%s\n", argv[i]);
}
