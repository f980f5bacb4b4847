#pragma once

#include <cstddef>
#include <string_view>

#include "result/Entries.h"
#include "tarv_3_3/Value.h"

namespace tarv_3_3 {

class Garbage;

namespace internal {

/// An iteration over what a result has under one name. Every query by name begins a new one.
///
/// Its cursors are indexes, so it can go on after a further parse, which may lengthen the lists. Where two
/// options share the name, a parse may also replace its list by a shorter one. So a cursor may lie behind the
/// end of a list.
class Iteration {
public:
    /// The texts that it gives out are kept by `garbage`. Both must outlive it.
    Iteration(const Entries& entries, Garbage& garbage) : m_entries(entries), m_garbage(garbage) {}

    /// Goes to the first occurrence of `name` at a position in [lo, hi). If the name was not given, goes to
    /// its default, whatever its position. Returns whether there is one of these.
    bool find(std::string_view name, int lo, int hi);

    /// The default that `find` went to, null when it went to an occurrence or found nothing.
    const Entries::Default* foundDefault() const;

    /// `find`, and what it found: the default, or what `next` gives.
    Value first(std::string_view name, int lo, int hi);

    /// The next value. If the option has no values, its next occurrence, without a text and of the null kind.
    /// `valueMissing` behind the last one. A default is returned only after `makeDefaultDue`.
    Value next();

    /// The position of the next occurrence, also outside the range; `noPosition` behind the last one.
    int nextPosition();

    /// Ends the iteration, as a query that finds nothing does.
    void end() { m_entry = Entries::noEntry; }

    /// Makes the next call of `next` return the default that `find` went to.
    void makeDefaultDue() {
        m_lowerBound = noPosition;
        m_upperBound = noPosition;
    }

private:
    /// The range [noPosition, noPosition) marks that a default is due. A host that asks for that range gets
    /// the default once more, too.
    bool isDefaultDue() const { return m_lowerBound == noPosition && m_upperBound == noPosition; }
    bool hasEntry() const { return m_entry != Entries::noEntry; }
    const Entries::Group& group() const { return m_entries[m_entry].group(); }
    Value value(const char* text, const variant_t& typed, int position);
    /// Not inlined, so that `next` needs no stack for it.
    [[gnu::noinline]] Value nextDefault(const Entries::Default& found);
    Value nextValue();
    Value nextOccurrence();

    const Entries& m_entries;
    Garbage& m_garbage;
    /// The index of the entry; `noEntry` when the last query found nothing.
    std::size_t m_entry = Entries::noEntry;
    ///@{
    /// The indexes of the next value and of the next occurrence.
    std::size_t m_value = 0;
    std::size_t m_occurrence = 0;
    ///@}
    int m_lowerBound = 0;
    int m_upperBound = noPosition;
};

} // namespace internal

} // namespace tarv_3_3
