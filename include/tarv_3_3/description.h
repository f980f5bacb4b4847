#pragma once

#include "tarv_3_3/IParseResult.h"
#include "tarv_3_3/IParser.h"
#include "tarv_3_3/export.h"

/// Describes what was declared on a parser, for manual pages, completion, other programs and checks of
/// scripts. Also adds notes, checks rules over several options, and suggests what a user may have meant.
///
/// A parser or a result that is null, or was not made by this library, is refused by every function
/// here. None of them throws.
namespace tarv_3_3 {

/// `Declaration::role`.
enum DeclarationRole : int {
    roleAction = 0,
    /// Options and modifiers; a modifier is an option with tags.
    roleOption = 1
};

/// `Declaration::isPositional`.
enum PositionalUse : unsigned {
    positionalNot = 0,
    /// The option that takes arguments without a name.
    positionalFilled = 1,
    /// Declared as positional after that one. It is never filled, and help does not show it either.
    positionalUnused = 2
};

/// The kind of a rule: what it asks of the options that it names.
enum RuleKind : int {
    /// Each of them is given.
    ruleRequired = 0,
    /// No two of them are given.
    ruleAtMostOne = 1,
    /// One of them is given, or more.
    ruleAtLeastOne = 2,
    /// One of them is given, and no other.
    ruleExactlyOne = 3,
    /// All of them are given, or none.
    ruleAllOrNone = 4,
    /// Where the first is given, so are all others.
    ruleNeeds = 5
};

/// What `annotate` and `addRule` return.
enum RemarkStatus : int {
    remarkStored = 0,
    /// Nothing was stored, because an argument is not as it must be.
    remarkRefused = 1,
    /// Nothing was stored, because memory is exhausted.
    remarkException = 3
};

/// A note that `annotate` added to a declaration. Gets no further fields within 3.3.
struct Note {
    /// The key.
    const char* key;
    /// The text under that key.
    const char* value;
};

/// A rule that `addRule` added. Gets no further fields within 3.3.
struct Rule {
    /// A `RuleKind`; skip one that you do not know.
    int kind;
    /// The primary names of the declarations, in the order in which the rule names them.
    const char* const* names;
    /// How many there are.
    unsigned nameCount;
};

/// One option, modifier or action. Lists and texts belong to the description that it is part of; no
/// text is null but `defaultText`. Fields are only ever added, at the end: step from one declaration
/// to the next with `declarationAt`.
///
/// A name or tag that holds a zero byte, which no argument can, ends there.
struct Declaration {
    /// A `DeclarationRole`.
    int role;
    /// A `das_variant_type_t`.
    int kind;
    /// Without dashes; the primary name first, synonyms last.
    const char* const* names;
    /// 0 for a positional option that was declared without a name.
    unsigned nameCount;
    /// 1 for a switch: "no-" may stand in front of each name.
    unsigned isNegatable;
    /// A `PositionalUse`.
    unsigned isPositional;
    /// 1 under the topic "tarv_hidden".
    unsigned isHidden;
    /// The description.
    const char* text;
    /// The name of the help topic, "" for none.
    const char* topic;
    /// The title of the help topic, "" for none.
    const char* topicTitle;
    /// Sorted by their bytes. An action goes with the options that share a tag with it or have none.
    const char* const* tags;
    /// How many there are.
    unsigned tagCount;
    /// The allowed values as they are typed, in the order declared; none when every value is allowed.
    const char* const* allowed;
    /// How many there are.
    unsigned allowedCount;
    /// The character at which values are split into a list, 0 when they are not.
    int separator;
    /// The default as it would be typed, null for none. An empty one is none to queries and help, but
    /// counts where actions are declared; see `IParser::action`.
    const char* defaultText;
    /// The notes that `annotate` added, in the order in which the keys were first used.
    const Note* notes;
    /// How many there are.
    unsigned noteCount;
};

/// Everything that was declared on a parser up to some time. Fields are only ever added, at the end.
struct Description {
    /// The size of this record in bytes. A field that lies behind it is not there.
    unsigned size;
    /// The bytes from one declaration to the next. A field of `Declaration` that lies behind it is not
    /// there.
    unsigned stride;
    /// The flags that the parser was created with.
    int flags;
    /// How many declarations there are.
    unsigned declarationCount;
    /// In the order declared; refused ones are not among them. See `declarationAt`.
    const Declaration* declarations;
    /// How many rules there are.
    unsigned ruleCount;
    /// In the order added.
    const Rule* rules;
    /// 1 if the values of "option-file" are read as option files; see `IParser::addOptionFileOption`.
    unsigned readsOptionFiles;
    /// 1 if event handlers are registered: they may refuse values and excuse unknown arguments.
    unsigned asksHandlers;
};

/// The declaration at an index below `declarationCount`, also where the library knows more fields than
/// the host was built with.
inline const Declaration& declarationAt(const Description& description, unsigned index) {
    const char* const first = reinterpret_cast<const char*>(description.declarations);
    return *reinterpret_cast<const Declaration*>(first +
                                                 static_cast<unsigned long>(index) * description.stride);
}

/// Describes what is declared on `parser` now. The description is a copy: later declarations do not change
/// it, and it may outlive its parser. The caller ends it with `release`. Null when memory is exhausted.
///
/// Like help, it calls the assertion handler for a default or an allowed value of another kind than its
/// option's.
TARV_API const Description* describe(IParser* parser);

/// Ends a description, with every text and list of it. Null is ignored.
TARV_API void release(const Description* description);

/// Adds a note to the declaration that has exactly the name `name`; to the first, if a synonym repeats it.
/// Notes are part of descriptions; parsing does not use them. `value` replaces the note under the same key,
/// if there is one. All texts are copied. Returns a `RemarkStatus`.
///
/// Keys with a dot in them are the host's own, such as "seek.icon"; any text may stand under them. Keys
/// without a dot are the library's, so a misspelt one is refused. There are:
///
/// - "complete": what a shell completes a value to; "file", "directory" or "none", others are refused.
/// - "environment": the name of the environment variable that the host reads.
/// - "required": "1" if the host insists on the option, other values are refused. The library insists
///   on nothing for it; for that, see `addRule`.
/// - "value": what help calls the value, as "FILE".
/// - "deprecated": what to use instead, "" for nothing.
/// - "range": the least and the greatest number that the host accepts, as "1..99", "1.." or "..99".
///
/// An empty key, an unknown name and a null argument are refused.
TARV_API int annotate(IParser* parser, const char* name, const char* key, const char* value);

/// Adds a rule over the declarations that `names` holds, separated by commas as in
/// `IParser::modifier`. Each may be any of a declaration's names, exactly, but not its "no-" form.
/// `ruleRequired` takes one name or more, every other kind two or more. Refused are other numbers of
/// names, one that is not declared yet, two of the same declaration, an unknown kind and a null argument.
/// Returns a `RemarkStatus`.
///
/// Rules hold where the host asks, with `checkRules`. They are part of every description.
TARV_API int addRule(IParser* parser, int kind, const char* names);

/// Checks the rules of `parser`, in the order added, against what is stored in `result`. The usual place
/// is behind a successful parse, and behind the answer to "--help".
///
/// An option counts as given when it occurred, also in an option file; its default does not count. A
/// switch that was turned off (by its "no-" form or the value 0) counts as not given; if it occurred more
/// than once, the last time decides.
///
/// Returns `parseOk`, or `parseFailed` when a rule is broken: the parser's `getErrorDesc` then tells
/// which, the first of them, in one sentence for the user. `parseException` when memory is exhausted or
/// an argument is refused; the last message then stays. Iterations over the result are not disturbed.
TARV_API int checkRules(IParser* parser, IParseResult* result);

/// Everything that was declared, annotated and ruled, as JSON; `share/tarv/description.schema.json` is
/// its schema. The text is UTF-8, whatever bytes were declared, without control characters but line feeds;
/// it is kept by the parser. Null when memory is exhausted.
TARV_API const char* describeAsJson(IParser* parser);

/// Suggests what the user may have meant by an argument that the parse did not take, in a sentence such as
/// "Did you mean '--max-count'?", kept by the parser. `argument` is as it was typed, with its dashes; a
/// value in it is not looked at. Null when nothing is near, when the argument is null or does not begin
/// with a dash, when it names an option as it is, and when memory is exhausted.
///
/// Names are compared word by word, each of which may be cut short, so "--m-cuont" is near too. Several
/// letters behind one dash are taken apart: for "-vl3" it says "Did you mean '-v -l=3'?". Hidden and
/// positional options are not named. What is repeated of the argument is fit for a terminal: quotes,
/// backslashes, control characters and bytes that are no UTF-8 are shown as "\x1b".
TARV_API const char* suggest(IParser* parser, const char* argument);

} // namespace tarv_3_3
