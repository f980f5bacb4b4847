// Does one thing with so many arguments, values, names or declarations, while a tool counts the instructions.
//   growth             lists the things
//   growth NAME COUNT

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include "tarv_3_3/completion.h"
#include "tarv_3_3/description.h"
#include "tarv_3_3/explain.h"
#include "tarv_3_3/tarv.h"
#include "tarv_3_3/typed.h"

using namespace tarv_3_3;

namespace {

void demand(bool condition) {
    if (!condition) {
        std::abort();
    }
}

std::string numbered(const char* text, std::size_t number) {
    return text + std::to_string(number);
}

struct Session {
    explicit Session(int flags = 0) {
        demand(createParser(&parser, flags) == parseOk);
        demand(parser->createResult(&result) == 0);
    }
    ~Session() {
        result->destroy();
        parser->destroy();
    }
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    void parse(const std::vector<std::string>& arguments) {
        const std::vector<const char*> argv = line(arguments);
        demand(parser->parseArgsVector(static_cast<int>(argv.size()), argv.data(), result) == parseOk);
    }

    static std::vector<const char*> line(const std::vector<std::string>& arguments) {
        std::vector<const char*> argv = {"program"};
        for (const std::string& argument : arguments) {
            argv.push_back(argument.c_str());
        }
        return argv;
    }

    IParser* parser = nullptr;
    IParseResult* result = nullptr;
};

std::vector<std::string> manyOf(const char* text, std::size_t count) {
    std::vector<std::string> all;
    for (std::size_t i = 0; i < count; ++i) {
        all.push_back(numbered(text, i));
    }
    return all;
}

std::string joined(const std::vector<std::string>& texts, char separator) {
    std::string all;
    for (const std::string& text : texts) {
        all += text + separator;
    }
    all.pop_back();
    return all;
}

void declareMany(IParser* parser, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        parser->option(numbered("option-", i).c_str(), "What it does.", vtString,
                       numbered("topic-", i).c_str());
    }
}

// What is declared.

void declareOptionsOfManyTopics(std::size_t count) {
    Session session;
    declareMany(session.parser, count);
}

void declareSynonyms(std::size_t count) {
    Session session;
    IOption& option = session.parser->option("option", "", vtString);
    for (const std::string& name : manyOf("synonym-", count)) {
        option.synonym(name.c_str());
    }
}

void repeatASynonym(std::size_t count) {
    Session session;
    IOption& option = session.parser->option("option", "", vtString);
    for (std::size_t i = 0; i < count; ++i) {
        option.synonym("synonym");
    }
}

void allowValues(std::size_t count) {
    Session session;
    IOption& option = session.parser->option("option", "", vtString);
    for (const std::string& value : manyOf("value-", count)) {
        option.allowValue(value.c_str());
    }
}

void tagAModifier(std::size_t count) {
    Session session;
    session.parser->modifier("option", joined(manyOf("tag-", count), ',').c_str(), "", vtString);
}

void askAboutManyOptions(std::size_t count) {
    Session session;
    declareMany(session.parser, count);
    for (const std::string& name : manyOf("option-", count)) {
        demand(session.parser->isOptionDeclared(name.c_str(), false, nullptr));
    }
}

void annotateManyOptions(std::size_t count) {
    Session session;
    declareMany(session.parser, count);
    for (const std::string& name : manyOf("option-", count)) {
        demand(annotate(session.parser, name.c_str(), "complete", "file") == remarkStored);
    }
}

void relateManyOptions(std::size_t count) {
    Session session;
    declareMany(session.parser, count);
    const std::vector<std::string> names = manyOf("option-", count);
    for (std::size_t i = 1; i < count; ++i) {
        demand(addRule(session.parser, ruleNeeds, (names[i] + ",option-0").c_str()) == remarkStored);
    }
    demand(addRule(session.parser, ruleAtMostOne, joined(names, ',').c_str()) == remarkStored);
    demand(checkRules(session.parser, session.result) == parseOk);
}

// What is parsed.

void giveAnOptionAgain(std::size_t count) {
    Session session;
    session.parser->option("option", "", vtInt32);
    session.parse(manyOf("--option=", count));
}

void giveOptionsThatShareASynonym(std::size_t count) {
    Session session;
    session.parser->option("first", "", vtInt32).synonym("both");
    session.parser->option("second", "", vtInt32).synonym("both");
    std::vector<std::string> arguments;
    for (std::size_t i = 0; i < count / 2; ++i) {
        arguments.push_back(numbered("--first=", i));
        arguments.push_back(numbered("--second=", i));
    }
    session.parse(arguments);
}

void giveManyOptions(std::size_t count) {
    Session session;
    declareMany(session.parser, count);
    std::vector<std::string> arguments;
    for (const std::string& name : manyOf("--option-", count)) {
        arguments.push_back(name + "=value");
    }
    session.parse(arguments);
}

void giveAListOfNumbers(std::size_t count) {
    Session session;
    session.parser->option("option", "", vtInt32);
    session.parse({"--option=" + joined(manyOf("", count), ',')});
}

void giveAListOfTexts(std::size_t count) {
    Session session;
    session.parser->option("option", "", vtString);
    session.parse({"--option=" + joined(manyOf("a text of some length ", count), ',')});
}

void parseLines(std::size_t count) {
    Session session;
    session.parser->option("option", "", vtString);
    const std::string lines = joined(manyOf("--option=a text of some length ", count), '\n');
    demand(session.parser->parseStream(lines.c_str(), session.result) == parseOk);
}

void failAgain(std::size_t count) {
    Session session;
    session.parser->option("option", "", vtInt32);
    for (const std::string& argument : manyOf("--option=text", count)) {
        demand(session.parser->parseStream(argument.c_str(), session.result) != parseOk);
        demand(*session.parser->getErrorDesc() != '\0');
    }
}

// What is asked.

void askForEveryPosition(std::size_t count) {
    Session session(flagPlainArePositional);
    session.parser->option("files", "", vtString).positional();
    session.parse(manyOf("file", count));
    std::vector<int> positions;
    demand(session.result->present("files"));
    for (int at = session.result->nextPosition(); at != noPosition; at = session.result->nextPosition()) {
        positions.push_back(at);
    }
    demand(positions.size() == count);
    for (const int at : positions) {
        demand(session.result->present("files", at, at + 1));
        demand(session.result->get("files", at, at + 1).position >= at);
    }
}

void iterateOverValues(std::size_t count) {
    Session session;
    session.parser->option("option", "", vtInt32);
    session.parse(manyOf("--option=", count));
    std::size_t found = 0;
    for (Value value = session.result->get("option"); value.text != nullptr;
         value = session.result->next("option")) {
        ++found;
    }
    demand(found == count);
}

void iterateOverPlainArguments(std::size_t count) {
    Session session;
    std::vector<std::string> arguments = manyOf("file", count);
    arguments.insert(arguments.begin(), "--");
    session.parse(arguments);
    const char* text = nullptr;
    std::size_t found = 0;
    for (int status = session.result->getFirstArgument(&text); status == valueFound;
         status = session.result->getNextArgument(&text)) {
        ++found;
    }
    demand(found == count);
}

// What is shown.

void showHelpOfManyTopics(std::size_t count) {
    Session session;
    declareMany(session.parser, count);
    demand(*session.parser->getDescription() != '\0');
}

void showHelpOfManyWords(std::size_t count) {
    Session session;
    session.parser->option("option", joined(manyOf("word", count), ' ').c_str(), vtString);
    demand(*session.parser->getDescription() != '\0');
}

void showHelpOfManySynonyms(std::size_t count) {
    Session session;
    IOption& option = session.parser->option("option", "What it does.", vtString);
    for (const std::string& name : manyOf("synonym-", count)) {
        option.synonym(name.c_str());
    }
    demand(*session.parser->getDescription("option") != '\0');
}

void describeManyOptions(std::size_t count) {
    Session session;
    declareMany(session.parser, count);
    demand(*describeAsJson(session.parser) != '\0');
}

void offerManyOptions(std::size_t count) {
    Session session;
    declareMany(session.parser, count);
    const char* const words[] = {"program", "--op"};
    const Completion* const offered = complete(session.parser, 2, words);
    demand(offered->candidateCount == count);
    release(offered);
}

// Texts of which an outsider knows that std::hash<std::string> is the same for all. The second of two words
// is made to fit the first: every step of that hash can be undone.
std::vector<std::string> chosenTexts(std::size_t count) {
    constexpr std::uint64_t factor = 0xC6A4A7935BD1E995;
    std::uint64_t inverse = 1;
    for (int i = 0; i < 6; ++i) {
        inverse *= 2 - factor * inverse;
    }
    const auto fold = [](std::uint64_t word) { return word ^ word >> 47; };
    std::vector<std::string> texts;
    for (std::uint64_t number = 1; texts.size() < count; ++number) {
        const std::uint64_t first = number * 0x0123456789ABCDEF;
        const std::uint64_t start = 0xC70F6907 ^ 16 * factor;
        const std::uint64_t before = (start ^ fold(first * factor) * factor) * factor;
        const std::uint64_t second = fold((before ^ 0x1234) * inverse) * inverse;
        std::string text(16, '\0');
        std::memcpy(&text[0], &first, 8);
        std::memcpy(&text[8], &second, 8);
        if (text.find('\0') == std::string::npos && text.find(',') == std::string::npos) {
            demand(texts.empty() || std::hash<std::string>()(text) == std::hash<std::string>()(texts[0]));
            texts.push_back(text);
        }
    }
    return texts;
}

void completeAListOfChosenTexts(std::size_t count) {
    Session session;
    session.parser->option("option", "", vtString);
    const std::string word = "--option=" + joined(chosenTexts(count), ',') + ",v";
    const char* const words[] = {"program", word.c_str()};
    const Completion* const offered = complete(session.parser, 2, words);
    demand(offered->files == completeFiles && offered->fileOffset == word.size() - 1);
    release(offered);
}

void explainManyArguments(std::size_t count) {
    Session session;
    session.parser->option("option", "", vtInt32);
    const std::vector<std::string> arguments = manyOf("--opt=", count);
    const std::vector<const char*> argv = Session::line(arguments);
    const Explanation* const explanation =
        explain(session.parser, static_cast<int>(argv.size()), argv.data());
    demand(explanation->argumentCount >= count);
    release(explanation);
}

void explainANameThatRepeats(std::size_t count) {
    Session session;
    declareMany(session.parser, count);
    session.parser->option("level", "", vtInt32);
    const std::vector<std::string> arguments = manyOf("--lev=", count);
    const std::vector<const char*> argv = Session::line(arguments);
    const Explanation* const explanation =
        explain(session.parser, static_cast<int>(argv.size()), argv.data());
    demand(explanation->argumentCount >= count);
    release(explanation);
}

// The typed face.

void takeManyFiles(std::size_t count) {
    typed::Program tool("tool");
    auto files = tool.rest<std::vector<std::string>>("file", "The files.");
    const std::vector<std::string> arguments = manyOf("file", count);
    const std::vector<const char*> argv = Session::line(arguments);
    demand(tool.parse(static_cast<int>(argv.size()), argv.data()).errors()[0] == '\0');
    demand(files->size() == count);
}

void takeAListOfManyNumbers(std::size_t count) {
    typed::Program tool("tool");
    auto numbers = tool.option<std::vector<int>>("number,n", "Numbers.");
    const std::string argument = "--number=" + joined(manyOf("", count), ',');
    const char* const argv[] = {"tool", argument.c_str()};
    demand(tool.parse(2, argv).errors()[0] == '\0');
    demand(numbers->size() == count);
}

void giveATypedOptionAgain(std::size_t count) {
    typed::Program tool("tool");
    auto level = tool.option("level,l", "A number.", 3).range(0, 1000000);
    const std::vector<std::string> arguments = manyOf("--level=", count);
    const std::vector<const char*> argv = Session::line(arguments);
    demand(tool.parse(static_cast<int>(argv.size()), argv.data()).errors()[0] == '\0');
    demand(*level == static_cast<int>(count) - 1);
}

void showTypedHelp(std::size_t count) {
    typed::Program tool("tool");
    for (const std::string& name : manyOf("option-", count)) {
        tool.option(name.c_str(), "What it does.", 3);
    }
    const char* const argv[] = {"tool", "--help"};
    demand(tool.parse(2, argv).output()[0] != '\0');
}

// It shows that what grows with the square is found.
void compareEveryPair(std::size_t count) {
    const std::vector<std::string> texts = manyOf("text", count);
    std::size_t same = 0;
    for (const std::string& left : texts) {
        for (const std::string& right : texts) {
            same += left == right ? 1U : 0U;
        }
    }
    demand(same == count);
}

struct Thing {
    const char* name;
    void (*act)(std::size_t count);
};

constexpr Thing things[] = {
    {"declareOptionsOfManyTopics", declareOptionsOfManyTopics},
    {"declareSynonyms", declareSynonyms},
    {"repeatASynonym", repeatASynonym},
    {"allowValues", allowValues},
    {"tagAModifier", tagAModifier},
    {"askAboutManyOptions", askAboutManyOptions},
    {"annotateManyOptions", annotateManyOptions},
    {"relateManyOptions", relateManyOptions},
    {"giveAnOptionAgain", giveAnOptionAgain},
    {"giveOptionsThatShareASynonym", giveOptionsThatShareASynonym},
    {"giveManyOptions", giveManyOptions},
    {"giveAListOfNumbers", giveAListOfNumbers},
    {"giveAListOfTexts", giveAListOfTexts},
    {"parseLines", parseLines},
    {"failAgain", failAgain},
    {"askForEveryPosition", askForEveryPosition},
    {"iterateOverValues", iterateOverValues},
    {"iterateOverPlainArguments", iterateOverPlainArguments},
    {"showHelpOfManyTopics", showHelpOfManyTopics},
    {"showHelpOfManyWords", showHelpOfManyWords},
    {"showHelpOfManySynonyms", showHelpOfManySynonyms},
    {"describeManyOptions", describeManyOptions},
    {"offerManyOptions", offerManyOptions},
    {"completeAListOfChosenTexts", completeAListOfChosenTexts},
    {"explainManyArguments", explainManyArguments},
    {"explainANameThatRepeats", explainANameThatRepeats},
    {"takeManyFiles", takeManyFiles},
    {"takeAListOfManyNumbers", takeAListOfManyNumbers},
    {"giveATypedOptionAgain", giveATypedOptionAgain},
    {"showTypedHelp", showTypedHelp},
    {"compareEveryPair", compareEveryPair},
};

} // namespace

int main(int argc, char** argv) {
    for (const Thing& thing : things) {
        if (argc < 3) {
            std::puts(thing.name);
        } else if (std::strcmp(argv[1], thing.name) == 0) {
            thing.act(std::strtoul(argv[2], nullptr, 10));
            return 0;
        }
    }
    return argc < 3 ? 0 : 1;
}
