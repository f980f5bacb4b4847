#include "model/rebuild.h"

#include <algorithm>
#include <charconv>
#include <new>
#include <string_view>

#include <tarv_3_3/description.h>

#include "model/Slots.h"

namespace tarv_program {

using namespace tarv_3_3;

namespace {

template <class Number>
std::optional<variant_t> numberOf(const std::string& text) {
    Number number{};
    const char* const end = text.data() + text.size();
    const std::from_chars_result read = std::from_chars(text.data(), end, number);
    if (read.ec != std::errc() || read.ptr != end) {
        return std::nullopt;
    }
    return variant_t(number);
}

// What a comma at the end of a list of names makes.
constexpr std::string_view zeroName("\0", 1);

std::string joined(const std::vector<std::string>& names) {
    std::string list;
    for (const std::string& name : names) {
        list.append(&name == &names.front() ? "" : ",").append(name == zeroName ? "" : name);
    }
    return list;
}

// How many of the names have to be declared in one list; the others can be synonyms.
std::size_t declaredTogether(const std::vector<std::string>& names) {
    std::size_t count = names.empty() ? 0 : 1;
    for (std::size_t i = 1; i < names.size() && i < 3; ++i) {
        // An empty list declares no name, so an empty name needs another one.
        if (names[i] == zeroName || (i == 1 && names.front().empty())) {
            count = i + 1;
        }
    }
    return count;
}

/// Declares one command line to one parser.
class Builder {
public:
    Builder(const CommandLine& line, OptionFiles files)
        : m_line(line), m_files(files), m_hasSlots(!Slots(line).places().empty()) {
        IParser* parser = nullptr;
        if (createParser(&parser, line.flags) != parseOk) {
            throw std::bad_alloc();
        }
        m_parser.reset(parser);
    }

    Parser build() {
        for (const Topic& topic : m_line.topics) {
            // Four names are refused, but the topic stays.
            m_parser->option("a,b,c,d", "", vtNull, (topic.name + ":" + topic.title).c_str());
        }
        for (m_place = 0; m_place < m_line.options.size(); ++m_place) {
            declare(m_line.options[m_place]);
        }
        if (m_hasSlots) {
            m_parser->option("", "", vtString).tokenize(0).positional();
        }
        for (const Option& option : m_line.options) {
            annotateOne(option);
        }
        for (std::size_t i = 0; i < m_line.rules.size(); ++i) {
            const Rule& rule = m_line.rules[i];
            if (addRule(m_parser.get(), rule.kind, joined(declaredNames(rule)).c_str()) != remarkStored) {
                throw Failure("rules[" + std::to_string(i) + "]: does not hold of what is declared");
            }
        }
        return std::move(m_parser);
    }

private:
    [[noreturn]] void refuse(const std::string& reason) const {
        throw Failure("declarations[" + std::to_string(m_place) + "]: " + reason);
    }

    void declare(const Option& option) {
        if (option.isSlot()) {
            refine(declareAs(option, slotName(m_place)), option);
            return;
        }
        const bool isOptionFile = m_line.readsOptionFiles && m_files == OptionFiles::areRead &&
                                  option.primaryName() == "option-file" && !option.isAction;
        if (isOptionFile) {
            m_parser->addOptionFileOption(option.text.c_str(), option.topic.c_str());
            return;
        }
        std::size_t declared = declaredTogether(option.names);
        const std::vector<std::string> names(option.names.begin(),
                                             option.names.begin() + static_cast<std::ptrdiff_t>(declared));
        IOption* made = &declareAs(option, joined(names));
        if (made->m_status != declarationStored) {
            // Only synonyms may repeat a name, so it was declared without one.
            declared = 0;
            made = &declareAs(option, "");
        }
        for (std::size_t i = declared; i < option.names.size(); ++i) {
            made->synonym(option.names[i].c_str());
        }
        refine(*made, option);
    }

    IOption& declareAs(const Option& option, const std::string& names) {
        if (option.isAction) {
            return m_parser->action(names.c_str(), option.text.c_str(), option.kind, option.topic.c_str());
        }
        return m_parser->option(names.c_str(), option.text.c_str(), option.kind, option.topic.c_str());
    }

    void refine(IOption& made, const Option& option) const {
        for (const std::string& tag : option.tags) {
            made.tag(tag.c_str());
        }
        for (const std::string& text : option.allowed) {
            made.allowValue(value(option, text));
        }
        made.tokenize(option.isSlot() ? '\0' : option.separator);
        if (option.defaultText && !option.isSlot() && !isListDefault(option)) {
            made.defaultValue(value(option, *option.defaultText));
        }
        if (option.positional != Positional::no && !m_hasSlots) {
            made.positional();
        }
    }

    std::vector<std::string> declaredNames(const Rule& rule) const {
        std::vector<std::string> names;
        for (const std::string& name : rule.names) {
            const Option* const option = owner(name);
            const bool isSlot = option != nullptr && option->isSlot();
            names.push_back(isSlot ? slotName(static_cast<std::size_t>(option - m_line.options.data()))
                                   : name);
        }
        return names;
    }

    // Programs with lists of values have lists as defaults, which no parser knows.
    static bool isListDefault(const Option& option) {
        return option.separator != 0 && option.defaultText->find(option.separator) != std::string::npos &&
               option.kind != vtString;
    }

    variant_t value(const Option& option, const std::string& text) const {
        const std::optional<variant_t> made = valueOf(option.kind, text);
        if (!made) {
            refuse("'" + text + "' is no value of its kind");
        }
        return *made;
    }

    // Under the first name that is no other's as well. What this library does not know is not needed.
    void annotateOne(const Option& option) {
        if (option.isSlot()) {
            return;
        }
        for (const Note& note : option.notes) {
            for (const std::string& name : option.names) {
                if (owner(name) == &option) {
                    annotate(m_parser.get(), name.c_str(), note.first.c_str(), note.second.c_str());
                    break;
                }
            }
        }
    }

    // What is typed goes before what is not.
    const Option* owner(const std::string& name) const {
        const Option* slot = nullptr;
        for (const Option& option : m_line.options) {
            if (std::find(option.names.begin(), option.names.end(), name) == option.names.end()) {
                continue;
            }
            if (!option.isSlot()) {
                return &option;
            }
            slot = slot != nullptr ? slot : &option;
        }
        return slot;
    }

    const CommandLine& m_line;
    const OptionFiles m_files;
    const bool m_hasSlots;
    Parser m_parser;
    std::size_t m_place = 0;
};

} // namespace

Parser rebuild(const CommandLine& line, OptionFiles files) {
    return Builder(line, files).build();
}

std::string slotName(std::size_t place) {
    return "\x01" + std::to_string(place);
}

std::optional<variant_t> valueOf(das_variant_type_t kind, const std::string& text) {
    switch (kind) {
    case vtBool:
        return text == "0" || text == "1" ? std::optional<variant_t>(text == "1") : std::nullopt;
    case vtInt32:
        return numberOf<std::int32_t>(text);
    case vtUInt32:
        return numberOf<std::uint32_t>(text);
    case vtInt64:
        return numberOf<std::int64_t>(text);
    case vtUInt64:
        return numberOf<std::uint64_t>(text);
    case vtDouble:
        return numberOf<double>(text);
    case vtString:
        return variant_t(text.c_str());
    case vtNull:
        break;
    }
    return variant_t();
}

Result createResult(IParser& parser) {
    IParseResult* result = nullptr;
    parser.createResult(&result);
    return Result(result);
}

} // namespace tarv_program
