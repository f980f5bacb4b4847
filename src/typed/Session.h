#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "typed/CommandLine.h"
#include "typed/Taking.h"
#include "typed/Work.h"

namespace tarv_3_3::typed::engine {

/// One parse: what is read of the command line, what the host's code has to do, and what is said in the
/// end.
class Session : public Work {
public:
    Session(Command& program, int argc, const char* const* argv, int purpose);

    /// Reads the line, the environment and the settings.
    void read();

    bool next(bool accepted, Step& step) override;

    Result result() override;

private:
    bool nextRestore(Step& step);
    bool nextTake(Step& step);
    bool nextUndo(Step& step);
    void startTake(Step& step);
    bool takePlain(Step& step);
    bool findTake();
    const char* nextPiece();
    void judge(bool accepted);
    void finish();
    void sayTrace();
    void sayAll();

    Command& m_program;
    const int m_purpose;
    CommandLine m_line;

    /// What is restored first, and how far that has got.
    std::vector<Option*> m_all;
    std::size_t m_restored = 0;
    /// The same at the end, of lists that did not get all of their elements.
    std::size_t m_undone = 0;
    /// Between them occurrences are taken, of a list piece by piece.
    std::size_t m_taken = 0;
    std::string_view m_rest;
    std::string m_piece;
    bool m_isWithin = false;
    bool m_isTaking = false;
    bool m_isFinished = false;
    Taking m_taking;
    /// Of a plain option, what was made and is not yet stored.
    PlainValue m_value;

    std::string m_output;
    std::string m_errors;
};

} // namespace tarv_3_3::typed::engine
