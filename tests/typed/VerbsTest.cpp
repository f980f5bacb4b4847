#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/TypedLine.h"

namespace {

namespace tarv = tarv_3_3::typed;

std::string wrong(const std::string& message, const std::string& path = "vcs") {
    return "2 vcs: " + message + "\nTry '" + path + " --help'.\n";
}

/// A program with verbs, one of which has verbs.
struct Vcs {
    tarv::Program program{"vcs", "1.0", "Tracks versions."};
    tarv::Handle<std::string> directory = program.option<std::string>("git-dir", "The repository.");
    tarv::Command& log = program.verb("log", "Show the history.");
    tarv::Handle<int> count = log.option<int>("max-count,n", "How many.");
    tarv::Handle<bool> graph = log.flag("graph", "Draw.");
    tarv::Command& clone = program.verb("clone", "Copy.");
    tarv::Command& commit = program.verb("commit,ci", "Record.");
    tarv::Handle<bool> give = commit.flag("give-up", "Do not.");
    tarv::Command& remote = program.verb("remote", "Others.");
    tarv::Command& add = remote.verb("add", "One more.");
    tarv::Handle<std::string> url = add.positional<std::string>("url", "Where.").required();
    std::string done;

    Vcs() {
        log.does([this] { done = "log"; });
        clone.does([this] { done = "clone"; });
        commit.does([this] { done = "commit"; });
        add.does([this] {
            done = "add " + *url;
            return 3;
        });
    }

    std::string run(const std::string& line) {
        const std::vector<std::string> arguments = words(line);
        const std::string outcome = parseLine(program, arguments);
        if (outcome != "ok") {
            return outcome;
        }
        std::vector<const char*> argv = {"vcs"};
        for (const std::string& argument : arguments) {
            argv.push_back(argument.c_str());
        }
        done.clear();
        const int code = program.run(static_cast<int>(argv.size()), argv.data());
        return done + " " + std::to_string(code);
    }
};

TEST(TypedVerbs, TheLineChoosesTheBodyThatRuns) {
    Vcs vcs;
    const struct {
        const char* line;
        const char* done;
    } rows[] = {{"log", "log 0"},
                {"l -n 3", "log 0"},
                {"ci", "commit 0"},
                {"com --give-up", "commit 0"},
                {"remote add x", "add x 3"},
                {"r a x --git-dir=y", "add x 3"},
                {"--git-dir y log", "log 0"},
                {"-- log", "log 0"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        EXPECT_EQ(vcs.run(row.line), row.done);
    }
}

TEST(TypedVerbs, WhatIsNoVerbIsRefused) {
    Vcs vcs;
    EXPECT_EQ(vcs.run(""), wrong("a verb is missing"));
    EXPECT_EQ(vcs.run("remote"), wrong("a verb is missing", "vcs remote"));
    EXPECT_EQ(vcs.run("lgo"), wrong("unknown verb 'lgo'\nDid you mean 'log'?"));
    EXPECT_EQ(vcs.run("log=3"), wrong("unknown verb 'log=3'"));
    EXPECT_EQ(vcs.run("c"), wrong("ambiguous verb 'c', could be 'clone', 'commit' or 'ci'"));
    EXPECT_EQ(vcs.run("-- --log"), wrong("unknown verb '--log'"));
    EXPECT_EQ(vcs.run("remote zzz"), wrong("unknown verb 'zzz'", "vcs remote"));
    EXPECT_EQ(vcs.run("remote help"), wrong("unknown verb 'help'", "vcs remote"));
    EXPECT_EQ(vcs.run("log x"), wrong("unexpected argument 'x'", "vcs log"));
    EXPECT_EQ(vcs.run("log --give-up"), wrong("unknown option '--give-up'", "vcs log"));
}

TEST(TypedVerbs, OptionsOfTheProgramStandInFrontOrBehind) {
    Vcs vcs;
    EXPECT_EQ(vcs.run("--git-d=1 log"), "log 0");
    EXPECT_EQ(*vcs.directory, "1");
    EXPECT_EQ(vcs.run("log --git-d=2"), "log 0");
    EXPECT_EQ(*vcs.directory, "2");
    EXPECT_EQ(vcs.directory.position(), 2);
    EXPECT_EQ(vcs.run("--graph log"), wrong("unknown option '--graph'", "vcs log"));
}

TEST(TypedVerbs, InFrontAnAbbreviationIsUniqueWithTheVerbsOptionsToo) {
    tarv::Program program("vcs");
    program.option<int>("depth", "");
    tarv::Command& log = program.verb("log", "");
    const auto deep = log.option<int>("deep", "");
    log.does([] {});
    EXPECT_EQ(parseLine(program, {"--de=1", "log"}),
              wrong("ambiguous option '--de', could be '--depth' or '--deep'", "vcs log"));
    EXPECT_EQ(parseLine(program, {"--dep=1", "log"}), "ok");
    EXPECT_FALSE(deep.given());
}

TEST(TypedVerbs, NamesOfOneVerbAreNoAmbiguity) {
    tarv::Program program("vcs");
    program.verb("commit,ci,checkin", "").does([] {});
    EXPECT_EQ(parseLine(program, {"c"}), "ok");
    EXPECT_EQ(parseLine(program, {"ch"}), "ok");
}

TEST(TypedVerbs, AnOptionOfTheVerbBelongsBehindIt) {
    tarv::Program program("vcs");
    program.option<int>("depth", "");
    program.verb("log", "").does([] {}).option<int>("dep", "");
    EXPECT_EQ(parseLine(program, {"--dep=1", "log"}),
              wrong("option '--dep' belongs behind 'log'", "vcs log"));
    EXPECT_EQ(parseLine(program, {"log", "--dep=1"}), "ok");
}

TEST(TypedVerbs, AnEmptyArgumentIsNoVerb) {
    tarv::Program program("vcs");
    program.verb("log", "").does([] {});
    EXPECT_EQ(parseLine(program, {""}), wrong("unknown verb ''"));
    EXPECT_EQ(parseLine(program, {"l"}), "ok");
}

TEST(TypedVerbs, AProgramWithABodyNeedsNoVerb) {
    tarv::Program program("vcs");
    program.verb("log", "").does([] {});
    const char* const argv[] = {"vcs"};
    EXPECT_EQ(program.run(1, argv, [] { return 7; }), 7);
}

TEST(TypedVerbs, AMovedProgramKeepsHandlesAndVerbs) {
    tarv::Program first("vcs");
    const auto level = first.option("level", "", 1);
    tarv::Command& log = first.verb("log", "");
    tarv::Program second(static_cast<tarv::Program&&>(first));
    const auto count = log.option("count", "", 2);
    log.does([] {});
    EXPECT_EQ(parseLine(second, {"log", "--level=3", "--count=4"}), "ok");
    EXPECT_EQ(*level + *count, 7);
    EXPECT_EQ(parseLine(first, {}), "2 out of memory\n");
    tarv::Program third("x");
    third = static_cast<tarv::Program&&>(second);
    EXPECT_EQ(parseLine(third, {"log", "--level=4"}), "ok");
    EXPECT_EQ(*level, 4);
}

TEST(TypedActions, OneActionAndWhatGoesWithIt) {
    tarv::Program tar("tar");
    const auto extract = tar.action("extract,x", "");
    const auto list = tar.action("list,t", "");
    const auto verbose = tar.flag("verbose", "");
    tar.option<std::string>("directory,C", "").goesWith(extract).required();
    tar.positional<std::string>("file", "");
    const auto wrongTar = [](const std::string& message) {
        return "2 tar: " + message + "\nTry 'tar --help'.\n";
    };
    EXPECT_EQ(parseLine(tar, {"--extract", "-C", "d", "a"}), "ok");
    EXPECT_TRUE(extract.given() && *extract && !list.given());
    EXPECT_EQ(parseLine(tar, {"-t", "--verbose"}), "ok");
    EXPECT_TRUE(*list && *verbose && !*extract);
    EXPECT_EQ(parseLine(tar, {"-t", "--list"}), "ok");
    EXPECT_EQ(parseLine(tar, {"-t", "-x"}), wrongTar("actions '--list' and '--extract' exclude each other"));
    EXPECT_EQ(parseLine(tar, {"-t", "-C=d"}),
              wrongTar("option '--directory' does not go with action '--list'"));
    EXPECT_EQ(parseLine(tar, {"-x"}), wrongTar("option '--directory' is required"));
    EXPECT_EQ(parseLine(tar, {"a"}), wrongTar("an action is missing"));
    EXPECT_EQ(parseLine(tar, {}), wrongTar("an action is missing"));
}

} // namespace
