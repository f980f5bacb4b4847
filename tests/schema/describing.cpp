// Prints descriptions for check_schema.py, each as one line of JSON in front of one that shows what went in:
// the texts of all declarations in the order declared, in hexadecimal.

#include <cstdio>
#include <random>
#include <string>
#include <vector>

#include "tarv_3_3/description.h"
#include "tarv_3_3/tarv.h"
#include "tarv_3_3/typed.h"

namespace tarv = tarv_3_3;

namespace {

void printHexadecimal(const std::string& text) {
    for (const char byte : text) {
        std::printf("%02x", static_cast<unsigned>(static_cast<unsigned char>(byte)));
    }
}

void print(const char* json, const std::vector<std::string>& texts) {
    for (const char* byte = json; *byte != '\0'; ++byte) {
        std::putchar(*byte == '\n' ? ' ' : *byte);
    }
    std::printf("\n");
    for (const std::string& text : texts) {
        printHexadecimal(text);
        std::printf(" ");
    }
    std::printf("\n");
}

void print(tarv::IParser& parser, const std::vector<std::string>& texts) {
    print(tarv::describeAsJson(&parser), texts);
}

/// Every byte but zero, then pieces from which broken characters and look-alikes of the escape are made.
std::vector<std::string> makeTexts() {
    std::vector<std::string> texts(1);
    for (int byte = 1; byte < 256; ++byte) {
        texts.emplace_back(1, static_cast<char>(byte));
        texts[0] += static_cast<char>(byte);
    }
    const std::vector<std::string> pieces = {"\xEF", "\xBF", "\xBD",     "\xEF\xBF\xBD", "F",    "0",
                                             "\\u",  "\"",   "\xC2",     "\x9B",         "\xED", "\xA0",
                                             "a",    "\n",   "\xF0\x9F", "\x98",         "\x80"};
    std::mt19937 random(1);
    for (int i = 0; i < 500; ++i) {
        std::string text;
        for (auto left = random() % 10; left != 0; --left) {
            text += pieces[random() % pieces.size()];
        }
        texts.push_back(text);
    }
    return texts;
}

void printTexts() {
    tarv::IParser* parser = nullptr;
    tarv::createParser(&parser, 0);
    const std::vector<std::string> texts = makeTexts();
    for (std::size_t i = 0; i < texts.size(); ++i) {
        parser->option(("o" + std::to_string(i)).c_str(), texts[i].c_str(), tarv::vtString);
    }
    print(*parser, texts);
    parser->destroy();
}

struct IdleHandler : tarv::EventHandler {};

void printEverything() {
    tarv::IParser* parser = nullptr;
    tarv::createParser(&parser, 0x3e);
    parser->action("build,b", "Builds.", tarv::vtNull, "main:What to do");
    parser->modifier("jobs", "build", "How many.", tarv::vtInt32).allowValue(1).allowValue(2).defaultValue(1);
    parser->option("color", "Colour.", tarv::vtBool, "tarv_hidden").synonym("colour").tokenize(',');
    parser->option("ratio", "Ratio.", tarv::vtDouble).defaultValue(0.1).tokenize('\xFF');
    parser->option("", "Files.", tarv::vtString).positional();
    parser->option("rest", "Rest.", tarv::vtString).positional();
    parser->option("a", "a", tarv::vtUInt32);
    parser->option("c", "c", tarv::vtInt64);
    parser->option("d,", "d", tarv::vtUInt64);
    parser->addOptionFileOption("Reads more.");
    for (const char* note : {"environment", "value", "deprecated", "range", "host.\xFF\x1B"}) {
        tarv::annotate(parser, "jobs", note, note);
    }
    tarv::annotate(parser, "jobs", "complete", "directory");
    tarv::annotate(parser, "jobs", "required", "1");
    for (int kind = tarv::ruleRequired; kind <= tarv::ruleNeeds; ++kind) {
        tarv::addRule(parser, kind, "jobs,color");
    }
    IdleHandler handler;
    parser->addHandler(&handler);
    print(*parser,
          {"Builds.", "How many.", "Colour.", "Ratio.", "Files.", "Rest.", "a", "c", "d", "Reads more."});
    parser->removeHandler(&handler);
    parser->destroy();
}

void printNothing() {
    tarv::IParser* parser = nullptr;
    tarv::createParser(&parser, 0);
    print(*parser, {});
    parser->destroy();
}

enum class Paper { a4, letter };

/// A program with all that descriptions of programs have and those of parsers have not.
void printProgram() {
    namespace typed = tarv::typed;
    typed::Program program("vcs\xFF", "1.0", "Tracks.");
    const auto user = program.option<std::string>("user", "User.").env("VCS_USER").mayBeEmpty();
    program.joinLetters().settingsFile("/etc/vcs").settingsOption("config", "Settings.");
    typed::Command& printing = program.verb("print,p", "Prints.");
    printing.option<std::vector<int>>("page", "")
        .range(1, 9)
        .check("even", [](int) { return true; })
        .needs(user);
    printing.option("paper", "", Paper::a4).topic("Looks").deprecated("");
    printing.positional<std::vector<std::string>>("file", "").times(1, 3);
    program.verb("run", "").rest<std::vector<std::string>>("command", "");
    const char* const argv[] = {"vcs", "tarvoption=describe"};
    print(program.parse(2, argv).output(), {"User.", "Settings."});
}

} // namespace

int main() {
    printNothing();
    printEverything();
    printTexts();
    printProgram();
    return 0;
}
