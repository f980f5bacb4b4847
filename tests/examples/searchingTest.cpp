#include "searching.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <new>
#include <string>

#include "support/TemporaryDirectory.h"

// A machine with little memory, whatever this one has.
void* operator new(std::size_t size) {
    constexpr std::size_t most = 100'000'000;
    void* const block = size <= most ? std::malloc(size) : nullptr;
    return block != nullptr ? block : throw std::bad_alloc();
}

void operator delete(void* block) noexcept {
    std::free(block);
}

void operator delete(void* block, std::size_t) noexcept {
    std::free(block);
}

namespace seek {
namespace {

/// What a job prints, complains about and ends with.
struct Outcome {
    std::string output;
    std::string complaints;
    ExitCode exitCode;
};

Outcome outcomeOf(const Job& job) {
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    const ExitCode exitCode = run(job);
    return {testing::internal::GetCapturedStdout(), testing::internal::GetCapturedStderr(), exitCode};
}

/// The job for a folder that holds a file of a gigabyte before another one.
Job jobFor(const TemporaryDirectory& directory, Action action) {
    std::filesystem::resize_file(directory.write("a huge file", ""), 1'000'000'000);
    directory.write("poem", "over the hill\n");
    Job job;
    job.action = action;
    job.pattern = "hill";
    job.paths = {directory.pathOf("")};
    return job;
}

std::string contentsOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

TEST(Run, SearchesTheOtherFilesWhereOneIsTooLargeForTheMemory) {
    const TemporaryDirectory directory;
    const Outcome outcome = outcomeOf(jobFor(directory, Action::search));
    EXPECT_EQ(outcome.output, directory.pathOf("poem") + ":1:over the hill\n");
    EXPECT_EQ(outcome.complaints, "seek: " + directory.pathOf("a huge file") + ": Not enough memory\n");
    EXPECT_EQ(outcome.exitCode, failed);
}

TEST(Run, ReplacesInTheOtherFilesWhereOneIsTooLargeForTheMemory) {
    const TemporaryDirectory directory;
    Job job = jobFor(directory, Action::replace);
    job.inPlace = true;
    job.replacement = "dune";
    const Outcome outcome = outcomeOf(job);
    EXPECT_EQ(outcome.complaints, "seek: " + directory.pathOf("a huge file") + ": Not enough memory\n");
    EXPECT_EQ(outcome.exitCode, failed);
    EXPECT_EQ(contentsOf(directory.pathOf("poem")), "over the dune\n");
    EXPECT_EQ(std::filesystem::file_size(directory.pathOf("a huge file")), 1'000'000'000U);
}

TEST(Run, LeavesAFileWhoseNewTextIsTooLargeForTheMemory) {
    const TemporaryDirectory directory;
    const std::string path = directory.write("lines", std::string(10'000, '\n'));
    directory.write("poem", "over the hill\n");
    Job job;
    job.action = Action::replace;
    job.inPlace = true;
    job.pattern = "\n";
    job.replacement = std::string(50'000, 'x');
    job.paths = {directory.pathOf("")};
    const Outcome outcome = outcomeOf(job);
    EXPECT_EQ(outcome.complaints, "seek: " + path + ": Not enough memory\n");
    EXPECT_EQ(outcome.exitCode, failed);
    EXPECT_EQ(contentsOf(path), std::string(10'000, '\n'));
    EXPECT_EQ(contentsOf(directory.pathOf("poem")), "over the hill" + job.replacement);
}

} // namespace
} // namespace seek
