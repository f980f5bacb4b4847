#pragma once

#include "tarv_3_3/export.h"

/// What a shell may offer when its user presses TAB. A host needs one call, `answerCompletion`, as the
/// first in `main` that looks at the command line; its users then load a script that the program prints
/// itself: `source <(PROGRAM tarvoption=completion=bash)`.

namespace tarv_3_3 {

class IParser;

/// `Completion::files`: what the shell is to add by itself.
enum CompletionFiles : int { completeNoFiles = 0, completeFiles = 1, completeDirectories = 2 };

/// A word that may stand at the cursor. The library makes these records; fields are only ever added at
/// the end, and `Completion::stride` says how far one is from the next.
struct Candidate {
    /// The whole word, without a shell's quotes; never null. If it ends in '=', the user goes on with a
    /// value, and the shell must not add a blank.
    const char* text;
    /// Its description; may be empty, never null.
    const char* description;
};

/// What may stand at the cursor. The library makes these records, and owns all that they point to;
/// fields are only ever added at the end.
struct Completion {
    /// The size of this record in bytes.
    unsigned size;
    /// The size of a `Candidate` in bytes.
    unsigned stride;
    /// A `CompletionFiles`.
    int files;
    /// The byte offset of the file name in the word, for instance behind `--file=`. 0 when `files` is
    /// `completeNoFiles`.
    unsigned fileOffset;
    /// How many `candidates` there are.
    unsigned candidateCount;
    /// Null when there are none.
    const Candidate* candidates;
    /// The word, lengthened as far as all candidates agree: `--max-` for `--m-`, where only
    /// `--max-count=` and `--max-depth=` fit. The word itself when nothing can be added, never null.
    const char* common;
};

/// Takes the values that a host offers.
class CandidateSink {
public:
    /// Offers `value`; both texts are copied. A null `description` is empty. A value that is null, or that
    /// does not begin with the word asked for, is ignored.
    virtual void add(const char* value, const char* description) = 0;

protected:
    ///@{
    /// The library alone makes and destroys them.
    CandidateSink() = default;
    CandidateSink(const CandidateSink&) = default;
    CandidateSink& operator=(const CandidateSink&) = default;
    ~CandidateSink() = default;
    ///@}
};

/// A host's function that offers values for the option with the primary name `option`. `word` is the typed
/// part of the value, or of the last element of a list. Returns whether it knows the option. If not, and the
/// option takes texts, the shell offers files. What it offers comes before the allowed values of the option,
/// and may be some of these, with descriptions. The pointers are valid during the call only.
using ValueCompleter = bool (*)(void* context, const char* option, const char* word, CandidateSink& sink);

/// Tells what may replace the last of `count` words, of which the first is the program. Nothing is stored,
/// and no handlers are called. `completer` may be null; `context` is passed on to it. The caller ends the
/// answer with `release`. Null when memory is exhausted, when `count` is less than 2 or `words` or one of
/// them is null, or when `parser` was not made by `createParser`.
TARV_API const Completion* complete(IParser* parser, int count, const char* const* words,
                                    ValueCompleter completer = nullptr, void* context = nullptr);

/// Ends what `complete` returned; null is ignored.
TARV_API void release(const Completion* completion);

/// If the only argument is one of the requests below, answers it on standard output and returns true; the
/// host then leaves with exit code 0. Call it when all options are declared, before anything is printed or
/// read from standard input.
///
/// - `tarvoption=completion=SHELL` prints the script for `bash`, `zsh` or `fish`.
/// - `tarvoption=complete=SHELL` is what the scripts ask. The words come on standard input, each ended
///   by a zero byte.
/// - `tarvoption=describe` prints the description of all options as JSON.
///
/// In a host that never calls this, the three are arguments like any other. When memory is exhausted,
/// nothing is printed. Never throws.
TARV_API bool answerCompletion(IParser* parser, int argc, const char* const* argv,
                               ValueCompleter completer = nullptr, void* context = nullptr);

} // namespace tarv_3_3
