#pragma once

#include <cstdint>
#include <string_view>

#include "recognition/ArgumentSpan.h"
#include "recognition/IArgumentParser.h"
#include "recognition/NameMatcher.h"
#include "recognition/singleSteps.h"
#include "recognition/valueSource.h"

namespace tarv_3_3 {

class RegisteredOptionStorage;

/// Recognizes named options, each word of a name abbreviated to any prefix.
///
/// What the candidates are and how they score: `nameMatching.h`. The highest score wins. Equal ones are an
/// ambiguity, also between two names of one option.
class TARV_API AbbreviationParser : public IArgumentParser {
public:
    AbbreviationParser(EventHandler* handler, Garbage* garbage, unsigned int flags);
    TARV_HIDDEN AbbreviationParser(EventHandler* handler, Garbage* garbage, unsigned int flags,
                                   internal::Binding& binding);
    ~AbbreviationParser() override;

    /// Takes an argument that begins with a dash and names a declared option, or several equally
    /// well, which `parse` then reports.
    int recognize(std::vector<std::string>& args, std::vector<OptionDescription>& options,
                  std::string& message) override;

    /// Binds the argument that the last `recognize` took, with its value from the same argument or
    /// from the next one.
    int parse(std::vector<std::string>& args, IResultCollector* collector,
              std::vector<OptionDescription>& options, unsigned long& index, std::string& message) override;

    int getPriority() override;

    ///@{
    /// As `recognize` and `parse`, for the options of a registry. Removes no argument, but adds the number of
    /// those that it used up to `consumed`.
    TARV_HIDDEN bool takes(const std::string& argument, RegisteredOptionStorage& registry);
    TARV_HIDDEN int bind(internal::ArgumentSpan left, IResultCollector* collector,
                         const std::vector<OptionDescription>& options, std::string& message,
                         std::size_t& consumed);
    ///@}

    ///@{
    /// The steps of matching one by one, for tools and tests; see `singleSteps.h`. No parse calls them.

    /// A candidate that matched.
    struct NameMatch {
        /// Whether it has exactly as many words as the typed name.
        bool m_sameWordCount;
        /// Above 0 in every match that `makeNameMatch` appends.
        std::int32_t m_score;
        DecomposedName m_candidate;
    };

    /// Appends every candidate name, in the order of the table.
    void makeOptionNamesList(std::vector<OptionDescription>& options, std::vector<DecomposedName>& names);

    /// Appends a match for every candidate whose words begin with the words of `typed`, as far as
    /// these go.
    void makeNameMatch(std::vector<NameMatch>& matches, const DecomposedName& typed,
                       const std::vector<DecomposedName>& candidates);

    /// Keeps the best matches for `parse`. Returns 0 with the one best candidate in `best`, 1 when
    /// there is none, 2 when there are several, with a message in `message`.
    int findBest(const std::vector<NameMatch>& matches, DecomposedName& best, std::string& message);
    ///@}

private:
    TARV_HIDDEN NameOutcome look(const std::string& argument, const std::vector<OptionDescription>& options,
                                 RegisteredOptionStorage* registry, std::string& message);
    TARV_HIDDEN NameOutcome tellOutcome(std::string& message) const;
    TARV_HIDDEN std::string inArgument(std::string argument);
    TARV_HIDDEN int findValue(const OptionDescription& option, internal::ArgumentSpan left,
                              std::string_view& value, std::size_t& used, std::string& message);
    TARV_HIDDEN int refuseValue(ValueSource source, const OptionDescription& option,
                                internal::ArgumentSpan left, std::string& message);

    /// Holds what the last `recognize` found.
    NameMatcher m_matcher;
};

} // namespace tarv_3_3
