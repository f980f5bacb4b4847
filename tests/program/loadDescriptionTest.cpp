#include "model/loadDescription.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "support/TemporaryDirectory.h"

namespace tarv_program {
namespace {

constexpr char description[] =
    R"({"format": "tarv-description", "version": "1.0", "flags": [], "topics": [], "rules": [], "checks": []})";

class LoadDescriptionTest : public testing::Test {
protected:
    std::string program(const std::string& name, const std::string& script) const {
        const std::string path = directory.write(name, "#!/bin/sh\n" + script + "\n");
        std::filesystem::permissions(path, std::filesystem::perms::owner_all);
        return path;
    }

    static std::string failure(const std::string& source, const Limits& limits = Limits()) {
        try {
            loadDescription(source, limits);
        } catch (const Failure& failure) {
            return failure.what();
        }
        return "read";
    }

    TemporaryDirectory directory;
};

TEST_F(LoadDescriptionTest, ReadsAFileWithoutRunningIt) {
    const std::string path = directory.write("tool.json", std::string("\n ") + description);
    std::filesystem::permissions(path, std::filesystem::perms::owner_all);
    EXPECT_EQ(loadDescription(path).names, std::vector<std::string>{"tool"});
    EXPECT_EQ(loadJson(path), std::string("\n ") + description);
}

TEST_F(LoadDescriptionTest, AsksAProgramWithOneArgumentAndNoInput) {
    const std::string path =
        program("tool", std::string("cat; [ $# = 1 ] && [ $1 = tarvoption=describe ] && echo '") +
                            description + "'; echo lost >&2");
    EXPECT_EQ(loadDescription(path).names, std::vector<std::string>{"tool"});
}

TEST_F(LoadDescriptionTest, RefusesWhatIsNoAnswer) {
    const std::string path = directory.pathOf("tool");
    const struct {
        const char* script;
        const char* expected;
    } rows[] = {
        {"echo hello", ": is no description, and does not answer tarvoption=describe with one"},
        {"echo '{}'", ": has no member 'format'"},
        {"echo '{'; exit 3", ": ended with exit code 3"},
        {"kill -9 $$", ": ended by signal 9"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.script);
        program("tool", row.script);
        EXPECT_EQ(failure(path), path + row.expected);
    }
}

TEST_F(LoadDescriptionTest, TellsWhatAProgramComplainsOfOnRequest) {
    const std::string path = directory.pathOf("tool");
    const struct {
        const char* script;
        const char* hidden;
        const char* told;
    } rows[] = {
        {"echo 2:5: bad >&2; echo more >&2; exit 1", ": ended with exit code 1", ": 2:5: bad"},
        {"printf bad >&2; exit 1", ": ended with exit code 1", ": bad"},
        {"exit 1", ": ended with exit code 1", ": ended with exit code 1"},
        {"echo bad; kill -9 $$", ": ended by signal 9", ": ended by signal 9"},
    };
    const auto failureWith = [&](Complaints complaints) {
        try {
            return outputOf({path}, Limits(), "", complaints);
        } catch (const Failure& failure) {
            return std::string(failure.what());
        }
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.script);
        program("tool", row.script);
        EXPECT_EQ(failureWith(Complaints::areHidden), path + row.hidden);
        EXPECT_EQ(failureWith(Complaints::areTold), path + row.told);
    }
    program("tool", "echo said; echo lost >&2");
    EXPECT_EQ(failureWith(Complaints::areHidden), "said\n");
}

TEST_F(LoadDescriptionTest, KillsAProgramThatRunsOnWithAllItsChildren) {
    const std::string path =
        program("tool", "(sleep 1; echo x >" + directory.pathOf("left") + ") & sleep 60");
    Limits limits;
    limits.time = std::chrono::milliseconds(200);
    EXPECT_EQ(failure(path, limits), path + ": takes too long");
    EXPECT_EQ(failure(program("closing", "exec >&-; sleep 60"), limits),
              directory.pathOf("closing") + ": takes too long");
    outputOf({"sleep", "1.2"}, Limits());
    EXPECT_FALSE(std::filesystem::exists(directory.pathOf("left")));
}

TEST_F(LoadDescriptionTest, StopsAProgramThatPrintsWithoutEnd) {
    const std::string path = program("tool", "yes");
    Limits limits;
    limits.bytes = 1000000;
    EXPECT_EQ(failure(path, limits), path + ": prints more than 1000000 bytes");
}

TEST_F(LoadDescriptionTest, SaysThatThereIsNoSuchProgram) {
    EXPECT_EQ(failure(directory.pathOf("none")), directory.pathOf("none") + ": No such file or directory");
    EXPECT_EQ(failure(directory.write("plain", "text")), directory.pathOf("plain") + ": Permission denied");
}

TEST_F(LoadDescriptionTest, NamesACommandLineByTheNameOfItsFile) {
    EXPECT_EQ(programName("old/seek.json"), "seek");
    EXPECT_EQ(programName("/usr/bin/seek"), "seek");
    EXPECT_EQ(programName("seek-2.0"), "seek-2.0");
}

} // namespace
} // namespace tarv_program
