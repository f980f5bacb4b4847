#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "tarv_3_3/completion.h"
#include "typed/CommandLine.h"
#include "typed/levelParser.h"

namespace tarv_3_3 {

class KeptCompletion;

namespace typed::engine {

class LineReader;

/// Answers what may stand in place of the last word of a command line.
class ProgramCompleter {
public:
    ProgramCompleter(Command& program, const std::vector<std::string>& words);

    /// Null when there is no telling. Belongs to the completer.
    const Completion* answer();

    ///@{
    /// The option whose values the host's code offers, found by `answer`, and the beginning of the value;
    /// null where there is none. With the host's values, another `answer` is whole.
    Option* asked() const { return m_asked; }
    const std::string& askedWord() const { return m_askedWord; }
    void offer(std::vector<std::pair<std::string, std::string>> candidates);
    ///@}

private:
    struct Release {
        void operator()(const Completion* completion) const { release(completion); }
    };

    void readLine();
    void readLetters(LineReader& reader);
    void declareLevel();
    void declarePositional();
    void declare(Option& option);
    void addRules();
    bool mayLettersStand() const;
    std::unique_ptr<KeptCompletion> completeLetters(const Completion& written) const;
    bool completeValue(const char* name, const char* word, CandidateSink& sink);
    static void offerValue(Option& option, const std::string& value, const std::string& description,
                           CandidateSink& sink);
    void offerVerbs(const std::string& word, CandidateSink& sink) const;

    Command& m_program;
    CommandLine m_line;
    std::unique_ptr<BasicParser> m_parser;
    /// What the parser knows, by primary name.
    std::vector<std::pair<std::string, Option*>> m_known;
    /// The words in front of the cursor, written so that no mend is needed, and the last one.
    std::vector<std::string> m_words;
    std::size_t m_wordCount = 0;
    bool m_isOfLetters = false;
    /// Whether help is asked for, and words are names of verbs.
    bool m_isOfHelp = false;
    ///@{
    /// Of joined letters at the cursor what stands in front of the value of the last one, as it is typed and
    /// as the last one is written out. Empty where a letter is unknown.
    std::string m_letters;
    std::string m_writtenLetters;
    /// How many stand in front of the last one.
    std::size_t m_letterCount = 0;
    ///@}
    Option* m_asked = nullptr;
    std::string m_askedWord;
    std::vector<std::pair<std::string, std::string>> m_candidates;
    std::unique_ptr<const Completion, Release> m_completion;
};

} // namespace typed::engine

} // namespace tarv_3_3
