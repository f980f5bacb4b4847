#pragma once

#include <set>
#include <string>
#include <utility>
#include <vector>

#include "options/NameOrder.h"
#include "options/Names.h"
#include "tarv_3_3/IOption.h"
#include "tarv_3_3/export.h"
#include "tarv_3_3/variant.h"

namespace tarv_3_3 {

class Garbage;

enum OptionKind : int {
    Action = 0,
    /// Plain options and modifiers alike.
    Option = 1,
    /// The registry's placeholder for refused declarations.
    Invalid = 2
};

/// A help topic: its name, which identifies it, and its title.
using Topic = std::pair<std::string, std::string>;

/// The record of one declared option, action or modifier. The registry owns all of them by value,
/// and copies or moves them as its table grows; everybody else reads the fields.
class TARV_API OptionDescription : public IOption {
public:
    OptionDescription();
    /// Keeps its names and its description in `memory`, which must outlive it and whatever is moved from it.
    /// A copy does not use `memory`.
    OptionDescription(Names&& names, std::set<std::string>&& tags, const Topic& topic,
                      const char* description, OptionKind kind, das_variant_type_t type, Garbage* garbage,
                      internal::Arena& memory);
    OptionDescription(const OptionDescription&);
    OptionDescription(OptionDescription&&) noexcept;
    OptionDescription& operator=(const OptionDescription&);

    IOption& synonym(const char* name) override;
    IOption& allowValue(const variant_t& value) override;
    IOption& defaultValue(const variant_t& value) override;
    IOption& tokenize(char separator) override;
    IOption& positional() override;
    IOption& tag(const char* tags) override;

    ~OptionDescription() override;

    /// Adds the comma-separated `words` to `tags`; null adds none.
    static void insertTags(std::set<std::string>& tags, const char* words);

    /// The first name; empty when there is none.
    const std::string& primaryName() const { return m_names.empty() ? noName() : m_names.front(); }

    /// Converts `text` to the option's kind and checks it against the allowed values. An
    /// unambiguous prefix of an allowed text is completed in `text` and `value`. On failure returns
    /// false with the whole message in `message`, which success leaves alone. `value` is assigned
    /// either way: null when the text did not convert.
    bool validate(std::string& text, variant_t& value, std::string& message) const;

    /// Whether `validate` accepts every text and leaves it as it is.
    bool takesAnyText() const { return m_type == vtString && m_allowedValues.empty(); }

    /// The value of `text` in the option's kind, null when it does not convert; see conversions.h.
    variant_t fromString(const char* text, Garbage* garbage) const;

    /// `value`, which must be of the option's kind, as text kept by `garbage`. Null for the null
    /// kind.
    const char* toString(Garbage* garbage, variant_t value) const;

    /// The default as a text variant, null where there is no text. Renders it once.
    const variant_t& defaultText();

    /// The kind as help and messages name it.
    std::string getTypeName() const;

    /// Orders by primary name, bytewise; equal names are equivalent.
    bool operator<(const OptionDescription& other) const {
        return NameOrder()(primaryName(), other.primaryName());
    }

    Names m_names;
    /// An action's own names, a modifier's actions, and whatever else was tagged.
    std::set<std::string> m_tags;
    Topic m_topic;
    std::basic_string<char, std::char_traits<char>, internal::ArenaAllocator<char>> m_description;
    bool m_positional = false;
    bool m_hasDefault = false;
    OptionKind m_kind = Invalid;
    /// Separates the elements of a list; 0 when values are never split.
    char m_tokenizer = ',';
    das_variant_type_t m_type = vtNull;
    variant_t m_default;
    /// In the order declared; empty when every value is allowed.
    std::vector<variant_t> m_allowedValues;
    /// Not owned: the parser's.
    Garbage* m_garbage = nullptr;

private:
    /// The result of `defaultText`; null before its first call.
    variant_t m_defaultText;

    TARV_HIDDEN static const std::string& noName();
    TARV_HIDDEN bool acceptAbbreviation(std::string& text, variant_t& value, std::string& message) const;
    TARV_HIDDEN std::string allowedValueList() const;
};

} // namespace tarv_3_3
