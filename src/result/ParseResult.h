#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/Arena.h"
#include "result/Entries.h"
#include "tarv_3_3/IParseResult.h"
#include "tarv_3_3/export.h"
#include "tarv_3_3/internal/Garbage.h"
#include "tarv_3_3/internal/IResultCollector.h"
#include "tarv_3_3/internal/OptionData.h"

namespace tarv_3_3 {

/// The one concrete result. Parses put options, defaults and plain arguments into it; nothing is
/// ever removed. Hosts query it through `IParseResult`.
///
/// The cursors of an iteration are places in lists that a further parse may lengthen, so a host may
/// go on iterating after one. A parse may also replace a list by a shorter one, where two options share
/// a name: a cursor may lie behind its end.
class TARV_API ParseResult : public IParseResult, public IResultCollector {
public:
    ParseResult();
    ~ParseResult() override;

    int store(const OptionDescription& option, const OptionData& data) override;

    /// Records the default of every option that has one, under each of its names; each of them
    /// takes a position index. An option of the null kind has none. Returns 0 and leaves `errorText`
    /// alone.
    int applyDefault(std::vector<OptionDescription>& options, std::string& errorText);

    /// Notes that a parser, known by a number of its own, is about to store what it has declared.
    void noteParser(std::uint64_t number);

    /// Whether all that is stored comes from that parser.
    bool isOnlyFrom(std::uint64_t number) const { return m_parser == number; }

    /// Adds an argument that stood behind "--".
    void storePlainArgument(const std::string& argument, int position);

    /// What is stored, apart from plain arguments.
    const Entries& entries() const { return m_entries; }

    void destroy() override;
    bool present(const char* name, int lo, int hi) override;
    Value get(const char* name, int lo, int hi) override;
    Value next(const char* name) override;
    int nextPosition() override;
    int getFirstArgument(const char** text) override;
    int getNextArgument(const char** text) override;

    /// The queries behind the virtual ones. They return a `ValueStatus`; on `valueFound`, `*text`
    /// is a text kept by this result, or as it was when the option takes no value, and so is
    /// `value`. A null `text` asks for the presence alone.
    int get(const std::string& name, char** text, variant_t& value, int lo, int hi, int& position);
    int next(const std::string& name, char** text, variant_t& value, int& position);
    int getFirstArgument(std::string& text);
    int getNextArgument(std::string& text);

private:
    TARV_HIDDEN int startIteration(std::string_view name, char** text, variant_t& value, int lo, int hi,
                                   int& position);
    TARV_HIDDEN int findFirst(std::string_view name, char** text, variant_t& value, int lo, int hi,
                              int& position);
    TARV_HIDDEN int continueIteration(char** text, variant_t& value, int& position);
    const Entries::Entry& current() const { return m_entries[m_current]; }
    TARV_HIDDEN void yieldDefault(const Entries::Default& found, char** text, variant_t& value,
                                  int& position);
    TARV_HIDDEN int nextValue(const Entries::Group& group, char** text, variant_t& value, int& position);
    TARV_HIDDEN int nextOccurrence(const Entries::Group& group, int& position);
    TARV_HIDDEN static bool isDefaulted(const Entries::Entry& entry);
    TARV_HIDDEN char* keep(const char* text);

    /// Holds the entries and their lists, which only go with the result.
    internal::ArenaWithRoom<6144> m_memory;
    Entries m_entries;
    /// Places in the lists of the current entry.
    std::size_t m_valuesCursor = 0;
    std::size_t m_positionsCursor = 0;
    int m_lowerBound = 0;
    int m_upperBound = noPosition;
    /// The place of the current entry; `nowhere` when the last query found nothing.
    std::size_t m_current = Entries::noEntry;
    Garbage m_garbage;
    /// What stood behind "--", with its position indices.
    std::vector<std::pair<std::string, int>> m_freeArguments;
    std::size_t m_freeArgumentCursor;
    /// The number of the only parser that has stored something here; `severalParsers` for more than one, or
    /// when somebody else stored the first entry.
    std::uint64_t m_parser = 0;
};

} // namespace tarv_3_3
