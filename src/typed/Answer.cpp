#include "typed/Answer.h"

#include <cstdio>

#include "completion/answer.h"
#include "completion/script.h"
#include "typed/describe.h"

namespace tarv_3_3::typed::engine {

Answer::Answer(Command& program, const Request& request, const char* path) {
    switch (request.kind) {
    case Request::Kind::script:
        m_output = makeScript(request.shell, path);
        m_errors = m_output.empty() ? noScript : "";
        break;
    case Request::Kind::description:
        m_output = describeProgram(program);
        break;
    default:
        m_question = readQuestion(stdin, request.shell);
        break;
    }
    if (m_question && request.shell != Shell::unknown) {
        m_completer = std::make_unique<ProgramCompleter>(program, m_question->words);
    }
}

// The host's completer is asked in the middle, if the word at the cursor is a value of its option.
bool Answer::next(bool /*accepted*/, Step& step) {
    if (m_completer == nullptr) {
        return false;
    }
    if (m_isAsked) {
        m_completer->offer(std::move(m_taking.candidates));
    }
    const Completion* const completion = m_completer->answer();
    Option* const asked = m_completer->asked();
    if (!m_isAsked && asked != nullptr) {
        m_isAsked = true;
        m_taking.option = asked;
        step.kind = stepComplete;
        step.state = asked->state;
        step.taking = &m_taking;
        step.text = m_completer->askedWord().c_str();
        return true;
    }
    if (completion != nullptr) {
        m_output = makeAnswer(*m_question, *completion);
    }
    m_completer.reset();
    return false;
}

Result Answer::result() {
    return {1, 0, m_output.c_str(), m_errors.c_str(), nullptr};
}

} // namespace tarv_3_3::typed::engine
