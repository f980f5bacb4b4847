#pragma once

namespace tarv_3_3 {

/// What `createParser` and the parse operations of `IParser` return. `IParser::getErrorDesc` then has a
/// message for the user, unless the code says below that the last one stays.
enum ParseStatus : int {
    /// The command line was parsed to its end; the last message stays.
    parseOk = 0,
    /// An event handler refused a value. Also when the result holds options that this parser did not
    /// declare; then the last message stays.
    parseVetoed = 1,
    /// The command line breaks a rule: an unknown, ambiguous or incomplete option, a value that
    /// does not convert or is not allowed, actions that do not fit.
    parseFailed = 2,
    /// A standard exception (exhausted memory, a null entry in `argv`) around the parse. The last message
    /// stays.
    parseException = 3,
    /// A standard exception inside the parse.
    parseUnidentified = 4,
    /// An option file could not be read.
    parseFileUnreadable = 6
};

/// `Value::status`, and what the queries of `IParseResult` return.
enum ValueStatus : int {
    /// There is one.
    valueFound = 0,
    /// Nothing found, or nothing left.
    valueMissing = 1,
    /// A standard exception (exhausted memory) during the query.
    valueException = 3
};

/// `IOption::m_status`.
enum DeclarationStatus : int {
    /// The option exists.
    declarationStored = 0,
    /// It does not: see `IParser::option` for the reasons.
    declarationRefused = 1,
    /// A declaration is being made; no host ever sees it.
    declarationInProgress = 3
};

enum : int {
    /// The position that stands for "none", and the upper bound that means "to the end".
    noPosition = 0x7fffffff
};

} // namespace tarv_3_3
