#include <cerrno>
#include <cstdio>
#include <cstring>
#include <exception>
#include <memory>

#include "mero_2_16/assertion.h"
#include "typed/Answer.h"
#include "typed/Session.h"
#include "typed/messages.h"
#include "typed/problems.h"

namespace tarv_3_3::typed::engine {

namespace {

constexpr int wrongUsage = 2;
constexpr int cannotWrite = 1;

constexpr Result noMemory = {1, wrongUsage, "", "out of memory\n", nullptr};

// Every line of it once, before the first command line is looked at.
void tellProblems(Command& program) {
    if (program.isProblemTold) {
        return;
    }
    program.isProblemTold = true;
    for (const std::string& problem : findProblems(program)) {
        MERO_2_16::report_assertion(program.keptTexts.emplace_back(problem).c_str(), __FILE__, __LINE__);
    }
}

// What cannot be done without memory leaves the program as it was declared.
template <class Act>
void attempt(Command* program, Act act) {
    if (program == nullptr || program->isOutOfMemory || program->hasParseFailed) {
        return;
    }
    try {
        act();
    } catch (const std::exception&) {
        program->hasParseFailed = true;
    }
}

std::unique_ptr<Work> makeWork(Command& program, int argc, const char* const* argv, int purpose) {
    const Request request = recognizeRequest(argc, argv);
    if (request.kind != Request::Kind::none) {
        return std::make_unique<Answer>(program, request, argv[0]);
    }
    auto session = std::make_unique<Session>(program, argc, argv, purpose);
    session->read();
    return session;
}

} // namespace

void begin(Command* program, int argc, const char* const* argv, int purpose) {
    if (program != nullptr) {
        program->hasParseFailed = false;
        program->work.reset();
    }
    attempt(program, [&] {
        tellProblems(*program);
        program->work = makeWork(*program, argc, argv, purpose);
    });
}

bool next(Command* program, bool accepted, Step* step) {
    bool isLeft = false;
    attempt(program, [&] { isLeft = program->work->next(accepted, *step); });
    return isLeft;
}

const Result* result(Command* program) {
    if (program == nullptr) {
        return &noMemory;
    }
    program->result = noMemory;
    program->result.errors = program->outOfMemory.c_str();
    attempt(program, [&] { program->result = program->work->result(); });
    return &program->result;
}

int print(Command* program) {
    const Result& known = program != nullptr ? program->result : noMemory;
    std::fputs(known.errors, stderr);
    if (*known.output == '\0') {
        return known.exitCode;
    }
    if (std::fputs(known.output, stdout) >= 0 && std::fflush(stdout) == 0) {
        return known.exitCode;
    }
    const char* const reason = std::strerror(errno);
    std::fprintf(stderr, "%s: %s: %s\n", program->name().c_str(), messages::cannotWrite, reason);
    return cannotWrite;
}

const char* problems(Command* program) {
    attempt(program, [&] {
        program->problems.clear();
        for (const std::string& problem : findProblems(*program)) {
            program->problems += problem + "\n";
        }
    });
    return program != nullptr ? program->problems.c_str() : "";
}

} // namespace tarv_3_3::typed::engine
