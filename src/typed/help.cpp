#include "typed/help.h"

#include <algorithm>

#include "typed/columns.h"
#include "typed/optionHelp.h"
#include "typed/positionals.h"

namespace tarv_3_3::typed::engine {

namespace {

constexpr std::size_t indent = 2;
constexpr std::size_t gap = 2;
/// What is longer has its text on the next line.
constexpr std::size_t longestLeft = 28;

struct Row {
    std::string left;
    std::string right;
    /// Of what stands left.
    std::size_t columns;
};

struct Section {
    std::string heading;
    std::vector<Row> rows;
};

/// Puts help together, one section after the other.
class HelpWriter {
public:
    HelpWriter(const Command& command, const HelpStyle& style) : m_command(command), m_style(style) {}

    std::string write() {
        appendUsage();
        if (!m_command.text.empty()) {
            appendLines(m_command.text);
        }
        addArguments();
        addVerbs();
        addOptions(m_command, "Options");
        addLastResort();
        for (const Command* above = m_command.parent; above != nullptr; above = above->parent) {
            addOptions(*above, "Options of " + above->name());
        }
        appendSections();
        appendRules();
        if (!m_command.verbs.empty()) {
            appendParagraph("Try '" + helpOfVerb() + "' to read more about a verb.");
        }
        return m_help;
    }

private:
    std::string bold(const std::string& heading) const {
        return m_style.isBold ? "\033[1m" + heading + "\033[0m" : heading;
    }

    std::string helpOfVerb() const {
        const bool isHelpDeclared =
            std::any_of(m_command.verbs.begin(), m_command.verbs.end(), [](const auto& verb) {
                return std::find(verb->names.begin(), verb->names.end(), "help") != verb->names.end();
            });
        return m_command.parent == nullptr && !isHelpDeclared ? m_command.name() + " help VERB"
                                                              : m_command.path() + " VERB --help";
    }

    void appendUsage() {
        std::string usage = m_command.path() + (m_command.hasActions() ? " ACTION" : "") + " [OPTION]...";
        if (!m_command.verbs.empty()) {
            usage += m_command.body == nullptr ? " VERB [ARGUMENT]..." : " [VERB [ARGUMENT]...]";
        }
        for (const Option* option : positionalsOf(m_command)) {
            usage += " " + argumentSynopsis(*option);
        }
        constexpr std::size_t label = 7;
        std::string front = bold("Usage:") + " ";
        for (const std::string_view line : wrapColumns(usage, m_style.width - label)) {
            m_help.append(front).append(line).append("\n");
            front.assign(label, ' ');
        }
    }

    void appendLines(const std::string& text) {
        for (const std::string_view line : wrapColumns(text, m_style.width)) {
            m_help.append(line).append("\n");
        }
    }

    void appendParagraph(const std::string& text) {
        m_help += "\n";
        appendLines(text);
    }

    Section& section(const std::string& heading) {
        const auto found = std::find_if(m_sections.begin(), m_sections.end(),
                                        [&](const Section& known) { return known.heading == heading; });
        return found != m_sections.end() ? *found : m_sections.emplace_back(Section{heading, {}});
    }

    void addRow(const std::string& heading, std::string left, std::string right) {
        const std::size_t columns = columnsOf(left);
        section(heading).rows.push_back({std::move(left), std::move(right), columns});
    }

    void addArguments() {
        for (const Option* option : positionalsOf(m_command)) {
            std::string text = optionText(*option);
            if (!text.empty() && !option->isHidden) {
                addRow("Arguments", argumentSynopsis(*option), std::move(text));
            }
        }
    }

    void addVerbs() {
        for (const std::unique_ptr<Command>& verb : m_command.verbs) {
            std::string names;
            for (const std::string& name : verb->names) {
                names.append(names.empty() ? "" : ", ").append(name);
            }
            addRow("Verbs", std::move(names), verb->text);
        }
    }

    void addOptions(const Command& command, const std::string& heading) {
        for (const std::unique_ptr<Option>& option : command.options) {
            if (!option->isPositional() && !option->isHidden) {
                const std::string& topic = option->topic.empty() ? heading : option->topic;
                addRow(option->role == roleAction && option->topic.empty() ? "Actions" : topic,
                       optionSynopsis(*option), optionText(*option));
            }
        }
    }

    // "--help" and "--version", as far as their names are not the host's.
    void addLastResort() {
        std::vector<std::string> names;
        for (const char* name : {"help", "h"}) {
            if (m_command.findOption(name) == nullptr) {
                names.emplace_back(name);
            }
        }
        if (!names.empty()) {
            addRow("Options", namesSynopsis(names), "Show this help.");
        }
        if (m_command.program().hasVersion && m_command.findOption("version") == nullptr) {
            addRow("Options", namesSynopsis({"version"}), "Show the version.");
        }
    }

    // All texts begin in one column, behind the widest of what stands before them.
    std::size_t textColumn() const {
        const std::size_t most = std::min(longestLeft, m_style.width / 2);
        std::size_t widest = 0;
        for (const Section& part : m_sections) {
            for (const Row& row : part.rows) {
                widest = row.columns <= most ? std::max(widest, row.columns) : widest;
            }
        }
        return indent + widest + gap;
    }

    void appendSections() {
        const std::size_t column = textColumn();
        for (const Section& part : m_sections) {
            m_help += "\n" + bold(part.heading + ":") + "\n";
            for (const Row& row : part.rows) {
                appendRow(row, column);
            }
        }
    }

    void appendRules() {
        std::string rules;
        for (const Command* command = &m_command; command != nullptr; command = command->parent) {
            for (const GroupRule& rule : command->rules) {
                const std::string text = ruleText(rule);
                rules += text.empty() ? "" : rules.empty() ? text : "\n" + text;
            }
        }
        if (!rules.empty()) {
            appendParagraph(rules);
        }
    }

    void appendRow(const Row& row, std::size_t column) {
        m_help.append(indent, ' ').append(row.left);
        std::size_t at = indent + row.columns;
        const std::size_t width = m_style.width > column ? m_style.width - column : 1;
        for (const std::string_view text : wrapColumns(row.right, width)) {
            if (at + gap > column) {
                m_help += "\n";
                at = 0;
            }
            if (!text.empty()) {
                m_help.append(column - at, ' ').append(text);
            }
            at = column;
        }
        m_help += "\n";
    }

    const Command& m_command;
    const HelpStyle m_style;
    std::vector<Section> m_sections;
    std::string m_help;
};

} // namespace

std::string renderHelp(const Command& command, const HelpStyle& style) {
    return HelpWriter(command, style).write();
}

} // namespace tarv_3_3::typed::engine
