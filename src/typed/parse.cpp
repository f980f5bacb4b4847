#include <cstdio>
#include <memory>

#include "mero_2_16/assertion.h"
#include "typed/Session.h"
#include "typed/guarded.h"
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

} // namespace

void begin(Command* program, int argc, const char* const* argv, int purpose) {
    guarded(program, [&] {
        tellProblems(*program);
        program->session = std::make_unique<Session>(*program, argc, argv, purpose);
        program->session->read();
    });
}

bool next(Command* program, bool accepted, Step* step) {
    bool isLeft = false;
    guarded(program, [&] {
        isLeft =
            !program->isOutOfMemory && program->session != nullptr && program->session->next(accepted, *step);
    });
    return isLeft;
}

const Result* result(Command* program) {
    if (program == nullptr) {
        return &noMemory;
    }
    program->result = noMemory;
    program->result.errors = program->outOfMemory.c_str();
    guarded(program, [&] {
        if (!program->isOutOfMemory && program->session != nullptr) {
            program->result = program->session->result();
        }
    });
    return &program->result;
}

int print(Command* program) {
    const Result& result = program != nullptr ? program->result : noMemory;
    std::fputs(result.errors, stderr);
    if (*result.output == '\0') {
        return result.exitCode;
    }
    const bool isWritten = std::fputs(result.output, stdout) >= 0 && std::fflush(stdout) == 0;
    return isWritten ? result.exitCode : cannotWrite;
}

const char* problems(Command* program) {
    guarded(program, [&] {
        program->problems.clear();
        for (const std::string& problem : findProblems(*program)) {
            program->problems += problem + "\n";
        }
    });
    return program != nullptr ? program->problems.c_str() : "";
}

} // namespace tarv_3_3::typed::engine
