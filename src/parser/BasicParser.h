#pragma once

#include <cstdint>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "options/RegisteredOptionStorage.h"
#include "tarv_3_3/IParser.h"
#include "tarv_3_3/export.h"
#include "tarv_3_3/internal/Garbage.h"

namespace tarv_3_3 {

class IArgumentParser;
class ParseResult;

namespace internal {
enum class Listeners;
struct Remarks;
} // namespace internal

/// The one concrete parser. Its sources: BasicParser.cpp (declarations, events, errors),
/// BasicParserParsing.cpp (parsing of a command line), BasicParserStreams.cpp (streams and option files),
/// help/BasicParserHelp.cpp.
class TARV_API BasicParser : public IParser {
public:
    /// `flags` are `ParserFlag` bits.
    explicit BasicParser(int flags);

    bool onOptionParse(const char* name) override;
    bool onValueParse(const char* name, const Value& value) override;
    bool onUknownArgument(const char* argument) override;

    void destroy() override;
    int createResult(IParseResult** result) override;
    IOption& option(const char* names, const char* description, das_variant_type_t type,
                    const char* topic) override;
    IOption& action(const char* names, const char* description, das_variant_type_t type,
                    const char* topic) override;
    IOption& modifier(const char* names, const char* tags, const char* description, das_variant_type_t type,
                      const char* topic) override;
    bool isOptionDeclared(const char* name, bool isAction, const char* topic) override;
    int parseArgsVector(int argc, const char* const* argv, IParseResult* result) override;
    int parseStream(const char* text, IParseResult* result) override;
    const char* getErrorDesc() override;
    const char* getDescription(bool hidden) override;
    const char* getDescription(const char* topic, bool hidden) override;
    const char* getActionModifiersDescription(const char* action, bool hidden) override;
    const char* getGlobalModifiersDescription(bool hidden) override;
    bool addHandler(EventHandler* handler) override;
    bool removeHandler(EventHandler* handler) override;
    bool addOptionFileOption(const char* description, const char* topic) override;
    ~BasicParser() override;

    /// Parses `arguments` into `result`: both phases, with the plain arguments and the option files
    /// between them. What was consumed is removed from `arguments`.
    virtual int parseVector(std::vector<std::string>& arguments, IParseResult* result);

    /// Recognizes and removes the arguments before `endMarker`. The marker and what follows it stay.
    virtual int parse_phase_one(const std::string& endMarker, std::vector<std::string>& arguments,
                                IParseResult* result, std::string& message);

    /// Checks everything stored in `result`: at most one action, and only options that go with it.
    virtual int parse_phase_two(const std::string& endMarker, std::vector<std::string>& arguments,
                                IParseResult* result, std::string& message);

    void setLastError(const std::string& text);

    /// Appends the arguments that `text` holds, one a line.
    void parseStreamToArgs(const char* text, std::vector<std::string>& arguments);

    /// Removes `endMarker` and everything behind it from `arguments`, and stores what stood behind
    /// it as plain arguments; under `flagPlainArePositional` each is also parsed as positional.
    int collectNonparsingArguments(std::string endMarker, std::vector<std::string>& arguments,
                                   ParseResult* result, std::string& message);

    /// Whether the two sets share an element.
    bool isIntersected(const std::set<std::string>& a, const std::set<std::string>& b) const;

    /// `isOptionDeclared` over the given declarations.
    bool isOptionDeclared(const char* name, bool isAction, const char* topic,
                          const std::vector<OptionDescription>& options) const;

    /// Renders help for `options` under `topics`. Kept by the parser. When memory is exhausted the
    /// last error is set, and its text returned.
    const char* getDescription(std::vector<Topic> topics, const std::vector<OptionDescription>& options,
                               bool hidden);

    /// Appends the options that share a tag with the action at `actionIndex`.
    void findActionModifiers(unsigned long actionIndex, std::vector<OptionDescription>& out);

    std::vector<OptionDescription> getGlobalActions() const;

    /// The options that have no tags.
    std::vector<OptionDescription> getGlobalModifiers() const;

    ///@{
    /// What was declared on this parser, for descriptions and completion.
    const RegisteredOptionStorage& registry() const { return m_registry; }
    RegisteredOptionStorage& registry() { return m_registry; }
    int flags() const { return m_flags; }
    bool readsOptionFiles() const { return m_optionFileDeclared; }
    bool asksHandlers() const;
    ///@}

    /// The notes and rules of the host; null when there are none.
    const internal::Remarks* remarks() const { return m_remarks.get(); }

    /// The same, to be added to. Made at the first call.
    internal::Remarks& ownRemarks();

    /// Keeps a text as long as the parser lives.
    const char* keep(const std::string& text) { return m_garbage.init(text.c_str()); }

private:
    template <class Call>
    void forEachHandler(Call call);

    TARV_HIDDEN internal::Listeners listeners() const;
    TARV_HIDDEN int parseArguments(int argc, const char* const* argv, IParseResult* result);
    TARV_HIDDEN int parseUpToMarker(const std::string& endMarker, std::vector<std::string>& arguments,
                                    IParseResult* result);
    TARV_HIDDEN int dropUnknown(const std::string& argument, std::string& message, std::size_t& consumed);
    TARV_HIDDEN int parseAsPositional(const std::string& argument, ParseResult* result, std::string& message);
    TARV_HIDDEN int readOptionFiles(const std::string& endMarker, IParseResult* result);
    TARV_HIDDEN const char* describeUnknown(const char* name, bool hidden);

    RegisteredOptionStorage m_registry;
    Garbage m_garbage;
    std::string m_lastError;
    int m_flags;
    /// Not owned; called in the order of their addresses.
    std::set<EventHandler*> m_handlers;
    bool m_optionFileDeclared = false;
    /// Identifies the parser in this process. Unlike an address, it is never used again.
    std::uint64_t m_number;
    std::unique_ptr<internal::Remarks> m_remarks;
};

} // namespace tarv_3_3
