#pragma once

#include "tarv_3_3/export.h"
#include "tarv_3_3/status.h"
#include "tarv_3_3/variant.h"

namespace tarv_3_3 {

/// A declaration being refined. Every builder returns the same declaration, so that calls chain:
///
///     parser->option("level,l", "How much to print.", vtInt32).allowValue(1).allowValue(2).defaultValue(1);
///
/// The reference is valid until the next declaration on the same parser; finish the chain first.
/// A refused declaration yields a placeholder: its `m_status` is `declarationRefused`, its builders
/// work and have no effect on any parse.
class TARV_API IOption {
public:
    /// A `DeclarationStatus`.
    int m_status = declarationStored;

    /// One more name. Taken as it is: not split at commas, not checked against other names.
    /// Null is ignored.
    virtual IOption& synonym(const char* name) = 0;

    /// One more allowed value; without any, every value of the kind is accepted. The value should
    /// be of the declared kind, which is not checked; a string option also accepts an unambiguous
    /// prefix and completes it. Switches list splitting back on (at ',') if it was off, so call
    /// `tokenize(0)` after this one where a value must not be split.
    virtual IOption& allowValue(const variant_t& value) = 0;

    /// What queries yield while the option is not given; replaces an earlier default. The value
    /// must be of the declared kind, 1.0 for `vtDouble` and 1U for `vtUInt32`: the kind is not
    /// checked here, and `parseArgsVector` and help render it, which calls the assertion handler for
    /// another kind. To queries and help an empty text is no default. Where actions are declared, a
    /// default counts as an option given: see `IParser::action`.
    virtual IOption& defaultValue(const variant_t& value) = 0;

    /// The character at which a value is split into a list, 0 for never; ',' at first, unless the
    /// parser was created with `flagNoLists`.
    virtual IOption& tokenize(char separator) = 0;

    /// Arguments that name no option are values of this one. Only the first positional option of a
    /// parser is ever filled. Help does not show positional options.
    virtual IOption& positional() = 0;

    /// Comma-separated words that tie modifiers to actions: an action accepts a modifier when they
    /// share a tag. An action carries its own names. Null is ignored.
    virtual IOption& tag(const char* tags) = 0;

    virtual ~IOption();

protected:
    ///@{
    /// Declarations are made and copied by the library alone.
    IOption() = default;
    IOption(const IOption&) = default;
    IOption& operator=(const IOption&) = default;
    ///@}
};

} // namespace tarv_3_3
