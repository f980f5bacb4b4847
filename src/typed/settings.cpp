#include <cerrno>
#include <optional>
#include <string_view>
#include <unordered_set>

#include <unistd.h>

#include "description/terminalText.h"
#include "parser/BasicParser.h"
#include "platform/load_file.h"
#include "recognition/SpaceClassifier.h"
#include "recognition/tokenSyntax.h"
#include "typed/layers.h"
#include "typed/messages.h"

namespace tarv_3_3::typed::engine {

namespace {

constexpr std::string_view negation = "no-";

/// What a line of a settings file names.
struct Setting {
    Option* option = nullptr;
    bool isNegated = false;
};

Setting findOwn(const Command& command, std::string_view name) {
    for (const std::unique_ptr<Option>& option : command.options) {
        if (option->isPositional()) {
            continue;
        }
        if (option->hasName(name)) {
            return {option.get(), false};
        }
        const bool isNegated = name.substr(0, negation.size()) == negation && option->isSwitch();
        if (isNegated && option->hasName(name.substr(negation.size()))) {
            return {option.get(), true};
        }
    }
    return {};
}

// Commands nest only as deep as the host declares them.
// NOLINTBEGIN(misc-no-recursion)
// "max-count" of this command, or "log.max-count" of its verb. Names are whole.
Setting findSetting(const Command& command, std::string_view name) {
    const Setting own = findOwn(command, name);
    const std::size_t dot = name.find('.');
    if (own.option != nullptr || dot == std::string_view::npos) {
        return own;
    }
    const Command* const verb = command.findVerb(name.substr(0, dot));
    return verb != nullptr ? findSetting(*verb, name.substr(dot + 1)) : Setting();
}

// NOLINTEND(misc-no-recursion)

/// Reads one file.
class SettingsReader {
public:
    SettingsReader(Command& program, CommandLine& line, std::string path)
        : m_program(program), m_line(line), m_path(std::move(path)), m_parser(0) {
        for (const Occurrence& occurrence : line.occurrences) {
            m_given.insert(occurrence.option);
        }
    }

    bool read() {
        std::string contents;
        if (!MERO_2_16::system::load_file(m_path, contents)) {
            return false;
        }
        std::string_view rest = contents;
        for (int number = 1; !rest.empty(); ++number) {
            const std::string_view text = rest.substr(0, rest.find('\n'));
            rest.remove_prefix(std::min(text.size() + 1, rest.size()));
            readLine(std::string(text), number);
        }
        return true;
    }

private:
    // Its syntax is that of a line of an option file; the line feed keeps "-1" from being the text that
    // the stream reads otherwise.
    void readLine(const std::string& text, int number) {
        std::vector<std::string> arguments;
        m_parser.parseStreamToArgs((text + "\n").c_str(), arguments);
        if (!arguments.empty()) {
            m_line.settings.push_back({m_path, number, arguments.front()});
            readSetting(m_line.settings.back());
        }
    }

    void readSetting(const SettingsLine& line) {
        const bool hasDashes = dashLength(line.text) != 0;
        const std::string argument = (hasDashes ? "" : "--") + line.text;
        const Token token = splitToken(argument, SpaceClassifier());
        const std::string_view name = token.nameIn(argument);
        const Setting setting = findSetting(m_program, name);
        if (setting.option == nullptr || setting.option == m_program.settingsOption) {
            complain(line, messages::unknownSetting(internal::terminalText(name)));
            return;
        }
        const bool isValueNeeded = setting.option->takesValue() && !token.hasValue;
        const bool isValueRefused = setting.isNegated || setting.option->role == roleAction;
        if (isValueNeeded || (isValueRefused && token.hasValue)) {
            complain(line, isValueNeeded ? messages::settingNeedsValue(std::string(name))
                                         : messages::takesNoValue(internal::terminalText(line.text),
                                                                  std::string(name)));
            return;
        }
        add(setting, line,
            token.hasValue      ? std::string(token.valueIn(argument))
            : setting.isNegated ? "0"
                                : "1");
    }

    void add(const Setting& setting, const SettingsLine& line, std::string text) {
        if (text.empty() && !setting.option->mayBeEmpty) {
            complain(line, messages::isEmpty);
            return;
        }
        Occurrence occurrence;
        occurrence.option = setting.option;
        occurrence.source = fromFile;
        occurrence.text = m_line.keep(std::move(text));
        occurrence.line = &line;
        occurrence.isOnlyChecked =
            m_given.count(setting.option) != 0 || !m_line.chosen->isWithin(*setting.option->owner);
        m_line.occurrences.push_back(occurrence);
    }

    void complain(const SettingsLine& line, const std::string& message) {
        m_line.complain(internal::terminalText(line.file) + ":" + std::to_string(line.number) + ": " +
                        message);
    }

    Command& m_program;
    CommandLine& m_line;
    const std::string m_path;
    BasicParser m_parser;
    /// What somebody stronger gives.
    std::unordered_set<const Option*> m_given;
};

bool isMissing(const std::string& path) {
    return access(path.c_str(), F_OK) != 0 && errno == ENOENT;
}

std::optional<std::string> namedFile(const Command& program, const CommandLine& line) {
    std::optional<std::string> path;
    for (const Occurrence& occurrence : line.occurrences) {
        if (occurrence.option == program.settingsOption) {
            path = occurrence.text;
        }
    }
    return path;
}

} // namespace

void readSettings(Command& program, CommandLine& line) {
    const std::optional<std::string> named = namedFile(program, line);
    if (named && !SettingsReader(program, line, *named).read()) {
        line.complain(messages::cannotRead(internal::terminalText(*named)));
    }
    const std::string& path = program.settingsFile;
    if (!path.empty() && !isMissing(path) && !SettingsReader(program, line, path).read()) {
        line.complain(messages::cannotRead(internal::terminalText(path)));
    }
}

} // namespace tarv_3_3::typed::engine
