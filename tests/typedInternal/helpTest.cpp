#include "typed/help.h"

#include <gtest/gtest.h>

#include "support/OpenProgram.h"

namespace {

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
