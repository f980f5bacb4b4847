#include <gtest/gtest.h>

#include "api/CommandLine.h"

namespace tarv = tarv_3_3;

namespace {

void declare(tarv::IParser& parser) {
    parser.option("level,l", "", tarv::vtInt32);
    parser.option("verbose", "", tarv::vtBool);
    parser.option("version", "", tarv::vtNull);
    parser.option("size", "", tarv::vtString).allowValue("small").allowValue("smooth").allowValue("large");
    parser.option("refused", "", tarv::vtString).tokenize(0);
}

TEST(Messages, TellWhyAnArgumentFailed) {
    const struct {
        std::vector<const char*> arguments;
        int status;
        const char* error;
    } rows[] = {
        {{"x y"}, 2, "Unknown option: x y"},
        {{"---level"}, 2, "Unknown option: ---level"},
        {{"--ver"}, 2, "Ambiguous option 'ver' in argument: '--ver', could be: 'verbose', 'version'"},
        {{"--version=1"}, 2, "Option 'version'does not requires a value in argument: '--version=1'"},
        {{"--verbose=1"},
         2,
         "Option 'verbose' is boolean and should be declared in form '--option' or '--no-option' in "
         "argument: '--verbose=1'"},
        {{"--level"}, 2, "Option 'level' requires a value in argument: '--level'"},
        {{"-l", "-3"},
         2,
         "Option 'level' received value from the next argument: '-3', but it seems to be an option. Use "
         "'-option=value' declaration form or make sure that value is not missed"},
        {{"--level=x"},
         2,
         "Value validation problem in argument '--level=x': Option 'level' can not parse 'x' value, "
         "requires a type 'integer' here."},
        {{"--level=,,"}, 2, "No value parsed in argument ',,' for option 'level'"},
        {{"--size=sm"},
         2,
         "Value validation problem in argument '--size=sm': Ambiguous value for option 'size'. Possible "
         "values follows: 'small', 'smooth', 'large'"},
        {{"--size=tiny"},
         2,
         "Value validation problem in argument '--size=tiny': Option 'size' does not allow value 'tiny'. "
         "Possible values follows: 'small', 'smooth', 'large'"},
        {{"--refused=no"}, 1, "Value 'no' is not valid for option 'refused' in argument '--refused=no'"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.arguments.front());
        CommandLine line(tarv::flagRejectUnknown);
        declare(*line.parser);
        EventLog handler("no");
        line.parser->addHandler(&handler);
        EXPECT_EQ(line.parse(row.arguments), row.status);
        EXPECT_EQ(line.error(), row.error);
    }
}

TEST(Messages, TellWhichActionsDoNotFit) {
    const struct {
        std::vector<const char*> arguments;
        int status;
        const char* error;
    } rows[] = {
        {{"--build", "--test"},
         2,
         "Action '-test' and action '-build' were defined, but only one action possible."},
        {{"--test", "--jobs=1"}, 2, "Action '-test' doesn't accept option '-jobs'"},
        {{"--jobs=1"}, 2, "No action defined."},
        {{"--build", "--jobs=1", "--quiet"}, 0, ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.arguments.front());
        CommandLine line;
        line.parser->action("build,b", "", tarv::vtNull);
        line.parser->action("test,t", "", tarv::vtNull);
        line.parser->modifier("jobs", "build", "", tarv::vtInt32);
        line.parser->option("quiet", "", tarv::vtNull);
        EXPECT_EQ(line.parse(row.arguments), row.status);
        EXPECT_EQ(line.error(), row.error);
    }
}

TEST(Messages, StayAfterASuccessAndWhereTheyWereHandedOut) {
    CommandLine line(tarv::flagRejectUnknown);
    EXPECT_EQ(line.parse({"a"}), 2);
    const char* const first = line.parser->getErrorDesc();
    EXPECT_EQ(line.parse({}), 0);
    EXPECT_EQ(line.parser->getErrorDesc(), first);
    EXPECT_EQ(line.parse({"b"}), 2);
    EXPECT_STREQ(first, "Unknown option: a");
    EXPECT_EQ(line.error(), "Unknown option: b");
}

TEST(Messages, QuoteAPositionalArgumentAsItWasGivenWhereItsValueWasCompleted) {
    CommandLine commandLine;
    EventLog handler("smooth");
    commandLine.parser->addHandler(&handler);
    commandLine.parser->option("shape", "", tarv::vtString)
        .allowValue("smooth")
        .allowValue("round")
        .tokenize(0)
        .positional();
    EXPECT_EQ(commandLine.parse({"r", "sm"}), 1);
    EXPECT_EQ(handler.events, "option shape; value shape=round; option shape; value shape=smooth");
    EXPECT_EQ(commandLine.error(), "Value 'smooth' is not valid for option 'shape' in argument 'sm'");
}

} // namespace
