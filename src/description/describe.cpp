#include <deque>
#include <exception>
#include <memory>
#include <utility>
#include <vector>

#include "description/declarationFacts.h"
#include "parser/BasicParser.h"
#include "parser/Remarks.h"
#include "recognition/PositionalOptionsParser.h"
#include "tarv_3_3/description.h"
#include "tarv_3_3/internal/Garbage.h"

namespace tarv_3_3 {

namespace {

using internal::typedText;

/// A description and what it points to.
struct KeptDescription : Description {
    Garbage texts;
    std::deque<std::vector<const char*>> lists;
    std::deque<std::vector<Note>> noteLists;
    std::vector<Declaration> declarationList;
    std::vector<Rule> ruleList;

    const char* keep(const std::string& text) { return texts.init(text.c_str()); }

    template <class Elements, class TextOf>
    const char* const* keepList(const Elements& elements, unsigned& count, TextOf textOf) {
        std::vector<const char*>& list = lists.emplace_back();
        for (const auto& element : elements) {
            list.push_back(keep(textOf(element)));
        }
        count = static_cast<unsigned>(list.size());
        return list.data();
    }
};

const std::string& itself(const std::string& text) {
    return text;
}

PositionalUse positionalUse(const OptionDescription& option, bool isFilled) {
    if (!option.m_positional) {
        return positionalNot;
    }
    return isFilled ? positionalFilled : positionalUnused;
}

Declaration describeOne(KeptDescription& kept, const OptionDescription& option, bool isFilled) {
    Declaration record = {};
    record.role = option.m_kind == Action ? roleAction : roleOption;
    record.kind = option.m_type;
    record.names = kept.keepList(option.m_names, record.nameCount, itself);
    record.isNegatable = option.m_type == vtBool ? 1 : 0;
    record.isPositional = positionalUse(option, isFilled);
    record.isHidden = internal::isHidden(option) ? 1 : 0;
    record.text = kept.texts.init(option.m_description.c_str());
    record.topic = kept.keep(option.m_topic.first);
    record.topicTitle = kept.keep(option.m_topic.second);
    record.tags = kept.keepList(option.m_tags, record.tagCount, itself);
    record.allowed = kept.keepList(option.m_allowedValues, record.allowedCount,
                                   [&](const variant_t& value) { return typedText(option, value); });
    record.separator = static_cast<unsigned char>(option.m_tokenizer);
    const std::optional<std::string> defaultText = internal::typedDefault(option);
    record.defaultText = defaultText ? kept.keep(*defaultText) : nullptr;
    return record;
}

void addNotes(KeptDescription& kept, Declaration& record, const internal::Remarks::Notes& notes) {
    std::vector<Note>& list = kept.noteLists.emplace_back();
    for (const auto& [key, value] : notes) {
        list.push_back({kept.keep(key), kept.keep(value)});
    }
    record.notes = list.data();
    record.noteCount = static_cast<unsigned>(list.size());
}

void addRemarks(KeptDescription& kept, const internal::Remarks& remarks,
                const std::vector<OptionDescription>& options) {
    for (std::size_t index = 0; index < remarks.notes.size(); ++index) {
        addNotes(kept, kept.declarationList[index], remarks.notes[index]);
    }
    for (const internal::Remarks::Rule& rule : remarks.rules) {
        Rule record = {rule.kind, nullptr, 0};
        record.names = kept.keepList(rule.indexes, record.nameCount,
                                     [&](std::size_t index) { return options[index].primaryName(); });
        kept.ruleList.push_back(record);
    }
}

std::unique_ptr<KeptDescription> describeAll(const BasicParser& parser) {
    auto kept = std::make_unique<KeptDescription>();
    const std::vector<OptionDescription>& options = parser.registry().m_options;
    const std::size_t filled = positionalIndex(options);
    for (std::size_t index = 0; index < options.size(); ++index) {
        kept->declarationList.push_back(describeOne(*kept, options[index], index == filled));
    }
    if (parser.remarks() != nullptr) {
        addRemarks(*kept, *parser.remarks(), options);
    }
    kept->size = sizeof(Description);
    kept->stride = sizeof(Declaration);
    kept->flags = parser.flags();
    kept->declarationCount = static_cast<unsigned>(kept->declarationList.size());
    kept->declarations = kept->declarationList.data();
    kept->ruleCount = static_cast<unsigned>(kept->ruleList.size());
    kept->rules = kept->ruleList.data();
    kept->readsOptionFiles = parser.readsOptionFiles() ? 1 : 0;
    kept->asksHandlers = parser.asksHandlers() ? 1 : 0;
    return kept;
}

} // namespace

const Description* describe(IParser* parser) {
    const BasicParser* const own = internal::ownParser(parser);
    if (own == nullptr) {
        return nullptr;
    }
    try {
        return describeAll(*own).release();
    } catch (const std::exception&) {
        return nullptr;
    }
}

void release(const Description* description) {
    delete static_cast<const KeptDescription*>(description);
}

} // namespace tarv_3_3
