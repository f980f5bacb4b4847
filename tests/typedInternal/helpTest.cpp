#include "typed/help.h"

#include <gtest/gtest.h>

#include "tarv_3_3/typed.h"

namespace {

namespace tarv = tarv_3_3::typed;

/// A program whose record can be shown.
struct OpenProgram : tarv::Program {
    using Program::Program;
    tarv::engine::Command& record() { return *m_record; }
};

TEST(RenderHelp, PrintsHeadingsBoldWhereThatIsWanted) {
    OpenProgram program("p", "1.0", "Prints.");
    program.flag("verbose,v", "Say more.");
    EXPECT_EQ(renderHelp(program.record(), {40, true}), "\033[1mUsage:\033[0m p [OPTION]...\n"
                                                        "Prints.\n"
                                                        "\n"
                                                        "\033[1mOptions:\033[0m\n"
                                                        "  -v, --verbose  Say more.\n"
                                                        "  -h, --help     Show this help.\n"
                                                        "      --version  Show the version.\n");
}

} // namespace
