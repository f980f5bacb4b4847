#pragma once

#include "tarv_3_3/Value.h"
#include "tarv_3_3/export.h"
#include "tarv_3_3/status.h"

namespace tarv_3_3 {

/// What one or more parses found. Made by `IParser::createResult`, owned by the host, released
/// with `destroy`; it does not need its parser any more.
///
/// Used by one thread at a time, queries included, since they change the iteration and keep texts. Results
/// of one parser may be read on different threads.
///
/// Queries take any of an option's names, exactly: no abbreviation, no "no-" form, no dashes.
/// Every text handed out stays valid until the result is destroyed.
///
/// `lo` and `hi` restrict a query to position indices. Positions come from one counter of the
/// whole process, so only their order means anything: ask for the position of one thing, and for
/// what stands before or behind it.
///
/// A result remembers one iteration. Each `get` and `present` starts a new one, which `next` and
/// `nextPosition` go on with; iterations over two options cannot be interleaved.
class TARV_API IParseResult {
public:
    /// Deletes the result, and every text that it handed out. Like every virtual function, it must not be
    /// called through a null pointer.
    virtual void destroy() = 0;

    /// Whether the option occurred at a position in [lo, hi), or was not given and has a default. A
    /// switch occurs in its "no-" form as well; its value tells.
    /// A following `next` yields the first value in the range, or that default, once.
    /// A null name is never present; asking for it ends an earlier iteration, too.
    virtual bool present(const char* name, int lo = 0, int hi = noPosition) = 0;

    /// The first value of an option that occurred at a position in [lo, hi). An option that was
    /// not given yields its default, whatever the range. An option that takes no value, or was
    /// given an empty one, yields a null text, the null kind and the position of its occurrence.
    /// Status `valueMissing` when there is nothing, or when `name` is null.
    virtual Value get(const char* name, int lo = 0, int hi = noPosition) = 0;

    /// The next value of the option that the last `get` or `present` asked for; `name` is not used.
    /// A value whose position equals the upper bound still counts here. An option without values
    /// yields its remaining occurrences, whatever the range. Status `valueMissing` at the end.
    virtual Value next(const char* name) = 0;

    /// The position of the next occurrence of that option, whatever the range; `noPosition` at the
    /// end, or when the last query found no such option. Behind a `get` that yielded a value it
    /// starts at the occurrence found; it goes on independently of `next`.
    virtual int nextPosition() = 0;

    /// Sets `*text` to the first of the plain arguments, the ones behind "--", and returns
    /// `valueFound`; `valueMissing`, with `*text` untouched, when there is none. `text` must not be
    /// null. May throw `std::bad_alloc`.
    virtual int getFirstArgument(const char** text) = 0;

    /// The same for the plain argument behind the last one; `valueMissing` also before any
    /// `getFirstArgument`. May throw `std::bad_alloc`.
    virtual int getNextArgument(const char** text) = 0;

    virtual ~IParseResult();

protected:
    IParseResult() = default;
    IParseResult(const IParseResult&) = delete;
    IParseResult& operator=(const IParseResult&) = delete;
};

/// The last value of an option in a range, found with `get` and `next`, whose bounds hold: the
/// usual question where a later option overrides an earlier one. An empty `Value` when there is
/// none, or when `result` or `name` is null.
TARV_API Value getLastValue(IParseResult* result, const char* name, int lo = 0, int hi = noPosition);

} // namespace tarv_3_3
