#include "completion/request.h"

#include <cstdio>
#include <exception>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "completion/answer.h"
#include "completion/question.h"
#include "completion/script.h"

namespace tarv_3_3 {

namespace {

constexpr std::string_view answerPrefix = "tarvoption=complete=";
constexpr std::string_view scriptPrefix = "tarvoption=completion=";
constexpr std::string_view describeRequest = "tarvoption=describe";

bool beginsWith(std::string_view text, std::string_view start) {
    return text.substr(0, start.size()) == start;
}

Shell shellOf(std::string_view name) {
    return name == "bash"   ? Shell::bash
           : name == "zsh"  ? Shell::zsh
           : name == "fish" ? Shell::fish
                            : Shell::unknown;
}

void print(std::string_view text) {
    std::fwrite(text.data(), 1, text.size(), stdout);
    std::fflush(stdout);
}

void printScript(Shell shell, const char* path) {
    const std::string script = makeScript(shell, path);
    if (script.empty()) {
        std::fputs(noScript, stderr);
    }
    print(script);
}

void printAnswer(Shell shell, Answerer& answerer) {
    if (shell == Shell::unknown) {
        return;
    }
    const std::optional<Question> question = readQuestion(stdin, shell);
    if (!question) {
        return;
    }
    std::vector<const char*> words;
    for (const std::string& word : question->words) {
        words.push_back(word.c_str());
    }
    const Completion* const completion = answerer.complete(static_cast<int>(words.size()), words.data());
    if (completion != nullptr) {
        print(makeAnswer(*question, *completion));
    }
}

void printDescription(Answerer& answerer) {
    const char* const description = answerer.describeAsJson();
    if (description != nullptr) {
        print(description);
    }
}

} // namespace

Request recognizeRequest(int argc, const char* const* argv) {
    const std::string_view argument = argc == 2 && argv != nullptr && argv[1] != nullptr ? argv[1] : "";
    if (argument == describeRequest) {
        return {Request::Kind::description, Shell::unknown};
    }
    if (beginsWith(argument, answerPrefix)) {
        return {Request::Kind::answer, shellOf(argument.substr(answerPrefix.size()))};
    }
    if (beginsWith(argument, scriptPrefix)) {
        return {Request::Kind::script, shellOf(argument.substr(scriptPrefix.size()))};
    }
    return {Request::Kind::none, Shell::unknown};
}

bool answerRequest(int argc, const char* const* argv, Answerer& answerer) {
    const Request request = recognizeRequest(argc, argv);
    try {
        switch (request.kind) {
        case Request::Kind::none:
            break;
        case Request::Kind::script:
            printScript(request.shell, argv[0]);
            break;
        case Request::Kind::answer:
            printAnswer(request.shell, answerer);
            break;
        case Request::Kind::description:
            printDescription(answerer);
            break;
        }
    } catch (const std::exception&) {
        // Memory is exhausted. No part of an answer has been printed.
    }
    return request.kind != Request::Kind::none;
}

} // namespace tarv_3_3
