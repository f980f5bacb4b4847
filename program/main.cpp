// tarv looks at the command lines of programs. What it does is in front/verbs.cpp.

#include <cstdio>
#include <exception>

#include "front/verbs.h"
#include "text/shellQuoted.h"
#include "version.h"

int main(int argc, char** argv) {
    try {
        tarv_3_3::typed::Program tool("tarv", tarv_program::version,
                                      "Looks at the command lines of programs. Exit code: 0 all is well, 1 "
                                      "something was found, 2 bad command line or no answer.");
        tarv_program::declareVerbs(tool);
        return tool.run(argc, argv);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "tarv: %s\n", tarv_program::visible(failure.what()).c_str());
        return 2;
    }
}
