#pragma once

#include <memory>
#include <optional>
#include <string>

#include "completion/question.h"
#include "completion/request.h"
#include "typed/Taking.h"
#include "typed/Work.h"
#include "typed/complete.h"

namespace tarv_3_3::typed::engine {

/// Answers what a shell asks of the program, or who wants its description.
class Answer : public Work {
public:
    Answer(Command& program, const Request& request, const char* path);

    bool next(bool accepted, Step& step) override;
    Result result() override;

private:
    std::unique_ptr<ProgramCompleter> m_completer;
    std::optional<Question> m_question;
    Taking m_taking;
    bool m_isAsked = false;
    std::string m_output;
    std::string m_errors;
};

} // namespace tarv_3_3::typed::engine
