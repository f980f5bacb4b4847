#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/Arena.h"
#include "result/Entries.h"
#include "result/Iteration.h"
#include "tarv_3_3/IParseResult.h"
#include "tarv_3_3/export.h"
#include "tarv_3_3/internal/Garbage.h"
#include "tarv_3_3/internal/IResultCollector.h"
#include "tarv_3_3/internal/OptionData.h"

namespace tarv_3_3 {

/// The one concrete result. Parses put options, defaults and plain arguments into it; nothing is
/// ever removed. Hosts query it through `IParseResult`; a host may go on iterating after a further parse.
class TARV_API ParseResult : public IParseResult, public IResultCollector {
public:
    ParseResult();
    ~ParseResult() override;

    int store(const OptionDescription& option, const OptionData& data) override;

    /// Records the default of every option that has one, under each of its names; each of them
    /// takes a position index. An option of the null kind has none. Returns 0 and leaves `message`
    /// alone.
    int applyDefault(std::vector<OptionDescription>& options, std::string& message);

    /// To be called before a parser stores something. `number` identifies the parser.
    void noteParser(std::uint64_t number);

    /// Whether everything stored comes from the parser with that number.
    bool isOnlyFrom(std::uint64_t number) const { return m_parser == number; }

    /// Adds an argument that stood behind "--".
    void storePlainArgument(const std::string& argument, int position);

    /// What is stored, apart from plain arguments.
    const internal::Entries& entries() const { return m_entries; }

    void destroy() override;
    bool present(const char* name, int lo, int hi) override;
    Value get(const char* name, int lo, int hi) override;
    Value next(const char* name) override;
    int nextPosition() override;
    int getFirstArgument(const char** text) override;
    int getNextArgument(const char** text) override;

    /// The same queries with other parameters. They return a `ValueStatus`. On `valueFound`, `*text` is a
    /// text that this result keeps, and `value` the converted value; both stay as they were when the option
    /// takes no value. For `get`, a null `text` asks for the presence only.
    int get(const std::string& name, char** text, variant_t& value, int lo, int hi, int& position);
    int next(const std::string& name, char** text, variant_t& value, int& position);
    int getFirstArgument(std::string& text);
    int getNextArgument(std::string& text);

private:
    TARV_HIDDEN Value first(std::string_view name, int lo, int hi);

    /// Memory of the entries and their lists. It is freed with the result.
    internal::ArenaWithRoom<6144> m_memory;
    internal::Entries m_entries;
    internal::Iteration m_iteration;
    Garbage m_garbage;
    /// What stood behind "--", with its position indices.
    std::vector<std::pair<std::string, int>> m_freeArguments;
    std::size_t m_freeArgumentCursor;
    // Numbers that no parser has.
    static constexpr auto noParser = static_cast<std::uint64_t>(-1);
    static constexpr auto severalParsers = static_cast<std::uint64_t>(-2);
    /// The number of the parser that stored everything here. `severalParsers` if there were several, or if
    /// an entry was stored before the first call of `noteParser`.
    std::uint64_t m_parser = noParser;
};

} // namespace tarv_3_3
