#include <exception>

#include "description/JsonWriter.h"
#include "description/declarationFacts.h"
#include "description/jsonMembers.h"
#include "parser/BasicParser.h"
#include "parser/Remarks.h"
#include "recognition/PositionalOptionsParser.h"
#include "tarv_3_3/description.h"

namespace tarv_3_3 {

namespace {

using internal::JsonWriter;
using internal::writeList;
using internal::writeNotes;
using internal::writeText;
using internal::writeTrue;

const std::string& itself(const std::string& text) {
    return text;
}

void writeTopics(JsonWriter& json, const std::vector<Topic>& topics) {
    json.open('[', "topics");
    for (const Topic& topic : topics) {
        json.breakLine();
        json.open('{');
        json.member("name", topic.first);
        writeText(json, "title", topic.second);
        json.close('}');
    }
    json.close(']');
}

void writePositional(JsonWriter& json, const OptionDescription& option, bool isFilled) {
    if (option.m_positional) {
        json.member("positional", isFilled ? "filled" : "unused");
    }
}

void writeDeclaration(JsonWriter& json, const OptionDescription& option, bool isFilled,
                      const internal::Remarks::Notes& notes) {
    json.breakLine();
    json.open('{');
    json.member("role", option.m_kind == Action ? "action" : "option");
    json.member("kind", internal::kindName(option.m_type));
    writeList(json, "names", option.m_names, itself);
    writeText(json, "text", option.m_description);
    writeText(json, "topic", option.m_topic.first);
    writeList(json, "tags", option.m_tags, itself);
    writeList(json, "allowed", option.m_allowedValues,
              [&](const variant_t& value) { return internal::typedText(option, value); });
    if (option.m_tokenizer != 0) {
        json.member("separator", {&option.m_tokenizer, 1});
    }
    if (const std::optional<std::string> text = internal::typedDefault(option)) {
        json.member("default", *text);
    }
    writeTrue(json, "negatable", option.m_type == vtBool);
    writePositional(json, option, isFilled);
    writeTrue(json, "hidden", internal::isHidden(option));
    writeNotes(json, notes);
    json.close('}');
}

void writeDeclarations(JsonWriter& json, const std::vector<OptionDescription>& options,
                       const internal::Remarks& remarks) {
    const std::size_t filled = positionalIndex(options);
    json.open('[', "declarations");
    for (std::size_t index = 0; index < options.size(); ++index) {
        const bool hasNotes = index < remarks.notes.size();
        writeDeclaration(json, options[index], index == filled,
                         hasNotes ? remarks.notes[index] : internal::Remarks::Notes());
    }
    json.close(']');
}

void writeRules(JsonWriter& json, const std::vector<internal::Remarks::Rule>& rules,
                const std::vector<OptionDescription>& options) {
    json.open('[', "rules");
    for (const internal::Remarks::Rule& rule : rules) {
        json.breakLine();
        json.open('{');
        json.member("kind", internal::ruleName(rule.kind));
        writeList(json, "names", rule.indexes,
                  [&](std::size_t index) { return options[index].primaryName(); });
        json.close('}');
    }
    json.close(']');
}

// Names what the host's own code decides, which a description cannot tell.
void writeChecks(JsonWriter& json, bool asksHandlers) {
    json.open('[', "checks");
    if (asksHandlers) {
        json.open('{');
        json.memberBool("opaque", true);
        json.member("by", "handlers");
        json.close('}');
    }
    json.close(']');
}

std::string write(const BasicParser& parser) {
    const internal::Remarks none{};
    const internal::Remarks& remarks = parser.remarks() != nullptr ? *parser.remarks() : none;
    const RegisteredOptionStorage& registry = parser.registry();
    JsonWriter json;
    json.open('{');
    json.member("format", internal::formatName);
    json.member("version", internal::formatVersion);
    json.breakLine();
    internal::writeFlags(json, parser.flags());
    writeTrue(json, "optionFiles", parser.readsOptionFiles());
    json.breakLine();
    writeTopics(json, registry.m_topics);
    json.breakLine();
    writeDeclarations(json, registry.m_options, remarks);
    json.breakLine();
    writeRules(json, remarks.rules, registry.m_options);
    json.breakLine();
    writeChecks(json, parser.asksHandlers());
    json.close('}');
    return json.text() + "\n";
}

} // namespace

const char* describeAsJson(IParser* parser) {
    BasicParser* const own = internal::ownParser(parser);
    if (own == nullptr) {
        return nullptr;
    }
    try {
        return own->keep(write(*own));
    } catch (const std::exception&) {
        return nullptr;
    }
}

} // namespace tarv_3_3
