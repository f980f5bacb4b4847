#pragma once

#include <memory>
#include <string>
#include <vector>

#include "reading/Reader.h"
#include "typed/CommandLine.h"
#include "typed/levelParser.h"

namespace tarv_3_3::typed::engine {

/// What is done about names that are cut short: what the variable TARV_ABBREVIATIONS says.
enum class Abbreviations { areTaken, areTold, areRefused };

/// Reads the arguments of a command line: which option, verb or positional argument each one is. What the
/// parse would refuse although everybody expects it is mended here. It goes on behind errors, since help
/// may be asked for behind one.
class LineReader {
public:
    LineReader(Command& program, CommandLine& line);

    void read();

    ///@{
    /// Where the line has got to, for completion: the option whose value comes next, or null; whether
    /// names are over, or words name verbs alone; the words that are positional arguments.
    const Option* awaiting() const { return m_awaiting; }
    bool isBehindMarker() const { return m_isBehindMarker || m_isInRest; }
    bool isBehindHelp() const { return m_isHelpVerb; }
    const std::vector<std::size_t>& words() const { return m_words; }
    ///@}

    /// Reads all arguments but the last, as far as that depends on them alone.
    void readUpToLast();
    ///@{
    /// Whether the last argument, which is not read yet, is of joined letters, and reads these; false when
    /// one of them is unknown.
    bool isLastOfLetters() const;
    bool readLastLetters();
    ///@}

private:
    void readArgument(std::size_t place);
    void readWord(std::size_t place);
    void readName(std::size_t place);
    bool readWholeName(std::size_t place);
    void readNamed(std::size_t place, const Option& option, const ReadArgument& read);
    void readValue(std::size_t place, const Option& option, const ReadArgument& read);
    void readUnfit(std::size_t place, const ReadArgument& read);
    bool readRepeatedLetter(std::size_t place, const ReadArgument& read);
    bool areLetters(const std::string& argument) const;
    bool readLetters(std::size_t place);
    std::size_t readLetter(std::size_t place, std::size_t from, std::size_t length);
    void takeNextValue(std::size_t place, const Option& option, const std::string& typed);
    void add(const Option& option, std::size_t place, const char* text);
    void noteAbbreviation(const std::string& typed, const std::string& whole);
    void enterVerb(std::size_t place);
    void refuseVerb(std::string complaint, std::string advice);
    std::vector<std::string> verbNamesFor(const std::string& word) const;
    void enter(Command& command);
    LevelParser& level();
    bool isNumberWord(const std::string& argument) const;
    bool isValueOf(const Option& option, const std::string& argument) const;
    void finish();
    void checkFront();

    /// An option cut short in front of a verb, which must be unique with the options of the verb, too.
    struct Front {
        std::size_t place;
        const Option* option;
        std::string argument;
    };

    Command& m_program;
    CommandLine& m_line;
    const SpaceClassifier m_spaces;
    /// Whether no name stands for two options, so that a whole one is found without a parser.
    bool m_areNamesUnique = false;
    ///@{
    /// Made when a name is not whole.
    LevelParser m_level;
    std::unique_ptr<Reader> m_reader;
    ///@}
    std::vector<std::size_t> m_words;
    std::vector<Front> m_front;
    const Option* m_awaiting = nullptr;
    std::size_t m_end;
    std::size_t m_next = 1;
    bool m_isBehindMarker = false;
    /// Behind the first word of a command with a rest.
    bool m_isInRest = false;
    /// Behind "help", words name verbs alone.
    bool m_isHelpVerb = false;
    /// Whether that help is shown: all of them do name verbs, and nothing else was asked for in front.
    bool m_isHelpWished = false;
    /// Behind a verb that nobody knows.
    bool m_isLost = false;
    const Abbreviations m_abbreviations;
};

} // namespace tarv_3_3::typed::engine
