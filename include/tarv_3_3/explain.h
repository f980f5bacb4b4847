#pragma once

#include "tarv_3_3/export.h"

/// Tells what each argument of a command line means, for programs that explain or check command lines
/// without running them.

namespace tarv_3_3 {

class IParser;

/// What an argument is.
enum ExplainedRole : int {
    /// The first argument, which switches the trace on.
    explainedTraceSwitch = 0,
    /// An option or an action by its name.
    explainedNamed = 1,
    /// The value of the named option in front of it.
    explainedValue = 2,
    /// A value of the positional option.
    explainedPositional = 3,
    /// "--".
    explainedEndMarker = 4,
    /// Behind the end marker; a positional one as well where `place` says so.
    explainedPlain = 5,
    /// Nothing takes it.
    explainedUnknown = 6,
    /// A parse refuses it: its name fits, but is empty or begins with a third dash.
    explainedMisnamed = 7,
    /// It fits several names equally well: its candidates.
    explainedAmbiguous = 8
};

/// Where a named option gets its value from, or why it gets none.
enum ExplainedSource : int {
    /// It takes no value.
    sourceNone = 0,
    /// A switch: from its name, "no-" or not.
    sourceName = 1,
    /// From the same argument.
    sourceSameArgument = 2,
    /// From the argument behind it.
    sourceNextArgument = 3,
    // From here on, the argument is refused.
    /// It takes none, and the argument has one.
    sourceUnwanted = 4,
    /// A switch, and the argument has a value.
    sourceUnwantedBySwitch = 5,
    /// There is no next argument.
    sourceMissing = 6,
    /// The next argument is empty.
    sourceNextIsEmpty = 7,
    /// The next argument begins with a dash.
    sourceNextLooksLikeOption = 8
};

/// One argument. Texts belong to the explanation that it is part of. Fields are only ever added, at the
/// end: step from one argument to the next with `explainedAt`.
struct ExplainedArgument {
    /// An `ExplainedRole`.
    int role;
    /// The index of its declaration among those of `describe`; -1 when it belongs to none.
    int place;
    /// The whole name that a named argument stands for, with its "no-"; "" for other roles.
    const char* name;
    ///@{
    /// The byte offsets of name and value in an argument that begins with a dash.
    unsigned nameStart;
    unsigned nameEnd;
    unsigned valueStart;
    ///@}
    /// 1 for a name that is cut short.
    unsigned isAbbreviated;
    /// 1 for a name that turns a switch off.
    unsigned isNegated;
    /// 1 where a parse ends with an error. Values are not validated for this, and handlers are not asked.
    unsigned isRefused;
    /// An `ExplainedSource`, for a named argument.
    int source;
    /// The names that an ambiguous argument fits, in the order declared.
    const char* const* candidates;
    /// How many there are.
    unsigned candidateCount;
};

/// The arguments of a command line. Fields are only ever added, at the end.
struct Explanation {
    /// The size of this record in bytes.
    unsigned size;
    /// The size of an `ExplainedArgument` in bytes.
    unsigned stride;
    /// How many `arguments` there are.
    unsigned argumentCount;
    /// See `explainedAt`.
    const ExplainedArgument* arguments;
};

/// The argument at an index below `argumentCount`, also where the library knows more fields than the host was
/// built with.
inline const ExplainedArgument& explainedAt(const Explanation& explanation, unsigned index) {
    const char* const first = reinterpret_cast<const char*>(explanation.arguments);
    return *reinterpret_cast<const ExplainedArgument*>(first + static_cast<unsigned long>(index) *
                                                                   explanation.stride);
}

/// Tells what `argv[1]` to `argv[argc - 1]` mean to `parser`, also those behind one that a parse refuses. It
/// uses the rules of a parse, but stores nothing, reads no option files and calls no handlers. The caller
/// owns the explanation and ends it with `release`. Null when memory is exhausted, when an argument is null,
/// or when `parser` was not made by `createParser`. Never throws.
TARV_API const Explanation* explain(IParser* parser, int argc, const char* const* argv);

/// Ends what `explain` returned; null is ignored.
TARV_API void release(const Explanation* explanation);

} // namespace tarv_3_3
