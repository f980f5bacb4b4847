#pragma once

#include <cstddef>
#include <string_view>

#include "result/Entries.h"
#include "tarv_3_3/Value.h"

namespace tarv_3_3 {

class Garbage;

namespace internal {

/// An iteration over what a result has under one name. Every query by a name begins another one.
///
/// Its cursors are indexes of lists that a further parse may lengthen, so it may go on after one. A parse may
/// also give the name another list, a shorter one, where two options share the name: a cursor may lie behind
/// its end.
class Iteration {
public:
    /// The texts that it gives out are kept by `garbage`. Both must outlive it.
    Iteration(const Entries& entries, Garbage& garbage) : m_entries(entries), m_garbage(garbage) {}

    /// Goes to the first occurrence of `name` at a position in [lo, hi); where the name was not given, to its
    /// default, wherever that is. Returns whether there is one.
    bool find(std::string_view name, int lo, int hi);

    /// The default that `find` went to, null when it went to an occurrence or found nothing.
    const Entries::Default* foundDefault() const;

    /// `find`, and what it found: the default, or what `next` gives.
    Value first(std::string_view name, int lo, int hi);

    /// The next value; of an option without values, the next occurrence, which has no text and the null kind.
    /// `valueMissing` behind the last one. A default is given only when it is due.
    Value next();

    /// The position of the next occurrence, `noPosition` behind the last one. Takes no notice of the range.
    int nextPosition();

    /// Makes the next call of `next` give the default that `find` went to.
    void makeDefaultDue() {
        m_lowerBound = noPosition;
        m_upperBound = noPosition;
    }

private:
    /// A range that begins and ends where no occurrence is stands for this, also when a host asks for it.
    bool isDefaultDue() const { return m_lowerBound == noPosition && m_upperBound == noPosition; }
    bool hasEntry() const { return m_entry != Entries::noEntry; }
    const Entries::Group& group() const { return m_entries[m_entry].group(); }
    Value value(const char* text, const variant_t& typed, int position);
    Value nextValue();
    Value nextOccurrence();

    const Entries& m_entries;
    Garbage& m_garbage;
    /// The index of the entry; `noEntry` when the last query found nothing.
    std::size_t m_entry = Entries::noEntry;
    ///@{
    /// Indexes of the next value and the next occurrence.
    std::size_t m_value = 0;
    std::size_t m_occurrence = 0;
    ///@}
    int m_lowerBound = 0;
    int m_upperBound = noPosition;
};

} // namespace internal

} // namespace tarv_3_3
