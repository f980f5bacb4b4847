#pragma once

#include "tarv_3_3/EventHandler.h"
#include "tarv_3_3/IOption.h"
#include "tarv_3_3/IParseResult.h"
#include "tarv_3_3/export.h"
#include "tarv_3_3/status.h"
#include "tarv_3_3/variant.h"

namespace tarv_3_3 {

/// The flags of `createParser`; combine them with `|`. Other bits have no effect.
enum ParserFlag : int {
    /// An argument that nothing takes is an error, unless a handler returns false for it from
    /// `onUknownArgument`. Without the flag it is dropped.
    flagRejectUnknown = 0x02,
    /// Plain arguments, those behind "--", are also offered to the positional option.
    flagPlainArePositional = 0x04,
    /// An argument that begins with '-' is never positional; a mistyped option is then unknown
    /// instead of being a file name. Does not hold behind "--".
    flagDashIsNotPositional = 0x08,
    /// Everything behind the first positional argument is positional, options and "--" included.
    flagPositionalTakesRest = 0x10,
    /// New declarations do not split their values into lists; see `IOption::tokenize`.
    flagNoLists = 0x20
};

/// Holds the declarations of a program's options, and parses command lines. Made by `createParser`, owned by
/// the host, released with `destroy`. For example:
///
///     tarv_3_3::IParser* parser = nullptr;
///     if (tarv_3_3::createParser(&parser, tarv_3_3::flagRejectUnknown) != tarv_3_3::parseOk) {
///         return 2;
///     }
///     parser->option("level,l", "How much to say.", tarv_3_3::vtInt32).defaultValue(1);
///     parser->option("file", "What to read.", tarv_3_3::vtString).positional();
///     tarv_3_3::IParseResult* result = nullptr;
///     parser->createResult(&result);
///     if (parser->parseArgsVector(argc, argv, result) != tarv_3_3::parseOk) {
///         std::fprintf(stderr, "%s\n", parser->getErrorDesc());
///     } else if (result->present("level")) {
///         const int level = tarv_3_3::getLastValue(result, "level").value.get<std::int32_t>();
///         // ...
///     }
///     result->destroy();
///     parser->destroy();
///
/// A parser and the results that it parses into are used by one thread at a time. Several parsers may work on
/// several threads at once, each with results of its own. They share the counter of positions, which
/// stay unique in the process and ascend in each parse, and the switch of the trace: every stream, option
/// file and command line with arguments sets it for all of them.
///
/// Every `const char*` that a parser returns stays valid until the parser is destroyed.
///
/// It is an `EventHandler` itself: its events go to the registered handlers. Hosts do not call them.
class TARV_API IParser : public EventHandler {
public:
    /// Deletes the parser. Its results live on.
    virtual void destroy() = 0;

    /// Makes an empty result, which the host releases with `IParseResult::destroy`. Returns 0.
    /// Throws `std::bad_alloc` when there is no memory.
    virtual int createResult(IParseResult** result) = 0;

    /// Declares an option.
    ///
    /// `names` are one to three, separated by commas, without dashes; the first is the option's
    /// name in messages, help and events. A third one has at most two bytes. The declaration is
    /// refused if there are more, or if one of the names is taken; a switch (kind `vtBool`) also
    /// takes "no-" in front of each of its names. Null is refused as well. On a command line every
    /// word of a name (words are separated by '-') may be cut short, as long as one name fits best.
    ///
    /// `type` is the kind of its values: `vtBool` makes a switch, `vtNull` an option that takes no
    /// value, every other kind one that requires a value. Numbers are written as in the classic
    /// locale, and nothing but blanks may stand around them; `vtUInt64` takes hexadecimal digits too
    /// (0x1f, 1fh) and ignores what follows the number. A minus makes unsigned kinds wrap around.
    ///
    /// `topic` is the help topic, "name" or "name:title"; the first title given to a name stays.
    /// The topic "tarv_hidden" is left out of help, unless it is asked for. A null topic or
    /// description counts as the empty text.
    ///
    /// For example, with what a command line may then hold:
    ///
    ///     parser->option("output-file,o", "", vtString);  // --output-file=x, --out-f x, -o x
    ///     parser->option("verbose,v", "", vtBool);        // --verbose, -v, --no-verbose
    ///     parser->option("quiet", "", vtNull);            // --quiet
    ///     parser->option("sizes", "", vtInt32);           // --sizes=1,2,3, which are three values
    ///
    /// Returns the new declaration to be refined, valid until the next one. A refused one has `m_status`
    /// `declarationRefused`. Throws `std::bad_alloc` when there is no memory. A name that is taken is also
    /// written to the trace: exceptions come through if the host lets the stream of the trace throw them.
    virtual IOption& option(const char* names, const char* description, das_variant_type_t type,
                            const char* topic = "") = 0;

    /// Declares an action: a verb, given with dashes like any option, of which a command line holds
    /// at most one. Where actions are declared, a command line that gives options or positional
    /// arguments must name one; if any option has a default, so must every one with arguments.
    virtual IOption& action(const char* names, const char* description, das_variant_type_t type,
                            const char* topic = "") = 0;

    /// Declares an option that goes only with the actions that `tags` names, separated by commas.
    /// An option declared with `option` goes with all of them. For example:
    ///
    ///     parser->action("build,b", "", vtNull);
    ///     parser->action("clean", "", vtNull);
    ///     parser->modifier("jobs,j", "build", "", vtInt32);  // --build --jobs=4, not --clean --jobs=4
    virtual IOption& modifier(const char* names, const char* tags, const char* description,
                              das_variant_type_t type, const char* topic = "") = 0;

    /// Whether `name` is, exactly, one of the names of an action (`isAction`) or of an option or
    /// modifier (not `isAction`), and declared under the topic named `topic`; a null topic stands
    /// for any. False for a null name.
    virtual bool isOptionDeclared(const char* name, bool isAction, const char* topic) = 0;

    /// Records the declared defaults in `result`, then parses `argv[1]` to `argv[argc - 1]` into
    /// it. `argc` below 2 is a command line without arguments. Returns a `ParseStatus`; null among
    /// the arguments is `parseException`.
    ///
    /// What was stored before a failure stays in the result. A result may receive several parses:
    /// entries add up, and every parse checks all of them. A null result parses for the status,
    /// the message and the events alone; any other must come from `createResult`.
    virtual int parseArgsVector(int argc, const char* const* argv, IParseResult* result) = 0;

    /// Parses `text`, one argument a line, into `result`, without recording defaults. Lines that
    /// are blank or begin with ';' or '#' are comments; leading white space and a carriage return
    /// at the end do not count; nothing else is special, blanks and quotes included. A null text is
    /// empty, and a text that is just "-1" is read as "?". Returns a `ParseStatus`.
    virtual int parseStream(const char* text, IParseResult* result) = 0;

    /// The message of the last failure, "" before any. A successful parse leaves it as it is.
    virtual const char* getErrorDesc() = 0;

    /// Help: the names of the actions, four blanks in front of each, or, where none is declared,
    /// all options under their topics. With `hidden`, what is under the topic "tarv_hidden", and
    /// only that. Descriptions end before column 80, titles before column 81, as far as names allow.
    /// Every topic has its heading, also where nothing stands under it. An option without a
    /// description is left out, unless its names and values fill a line of their own.
    virtual const char* getDescription(bool hidden = false) = 0;

    /// Help for the option or action that has exactly the name `topic`; for a name that is not
    /// declared, a text that says so and goes on as `getDescription(hidden)`, which is also what
    /// null yields.
    virtual const char* getDescription(const char* topic, bool hidden = false) = 0;

    /// Help for the options that share a tag with `action`; "" when there are none, and the text
    /// that says so when `action` is not declared. Null yields `getDescription(hidden)`.
    virtual const char* getActionModifiersDescription(const char* action, bool hidden = false) = 0;

    /// Help for the options without tags, which go with every action; "" when there are none.
    virtual const char* getGlobalModifiersDescription(bool hidden = false) = 0;

    /// Registers a handler, which stays the host's. False when it is registered already.
    /// Handlers are called in the order of their addresses; null is registered and never called.
    virtual bool addHandler(EventHandler* handler) = 0;

    /// Removes a handler; false when it is not registered. Remove it before it is destroyed.
    virtual bool removeHandler(EventHandler* handler) = 0;

    /// Declares the string option "option-file". After a command line, a parse reads every file that it names
    /// with this option, in order: one argument a line, as for `parseStream`, up to the first zero byte. A
    /// file may name further files. Every further parse into the same result reads all of its files again.
    ///
    /// A handler must not query the same result meanwhile. The names of the files are read from the result
    /// with `IParseResult::next`, and a query starts another iteration: the remaining values of the option
    /// that the handler asked for would then be read as files.
    ///
    /// Hosts that let strangers write option files must not use this. A file that names itself, also through
    /// other files, is read until memory is exhausted. In a chain of files, each of which names the next one
    /// twice, every file doubles the work.
    ///
    /// Always returns true.
    virtual bool addOptionFileOption(const char* description, const char* topic = "") = 0;

    virtual ~IParser();

protected:
    IParser() = default;
    IParser(const IParser&) = delete;
    IParser& operator=(const IParser&) = delete;
};

/// Makes a parser with a combination of `ParserFlag` bits and stores it in `*parser`, which must
/// not be null. Returns `parseOk`, or `parseException` with `*parser` untouched when memory is
/// exhausted.
TARV_API int createParser(IParser** parser, int flags = 0);

} // namespace tarv_3_3
