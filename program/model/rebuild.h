#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <tarv_3_3/tarv.h>

#include "model/CommandLine.h"

namespace tarv_program {

struct Destroy {
    template <class Object>
    void operator()(Object* object) const {
        object->destroy();
    }
};

using Parser = std::unique_ptr<tarv_3_3::IParser, Destroy>;
using Result = std::unique_ptr<tarv_3_3::IParseResult, Destroy>;

/// What a rebuilt parser does with the option "option-file" where the description says that its values
/// are read: questions about a command line must not open what it names.
enum class OptionFiles { areRead, areOnlyDeclared };

/// Declares to a new parser what a description says: the same options with the same rules. What is code of
/// the program, its event handlers for one, is not there. Throws `Failure` with the place of what cannot
/// be declared, such as a default of another kind.
///
/// The options have the places that they have in the description. Those that arguments fill by their order
/// are declared as options called `slotName`, which take one value each time; arguments without a name go to
/// one more option behind all others.
Parser rebuild(const CommandLine& line, OptionFiles files = OptionFiles::areOnlyDeclared);

/// The name that the rebuilt parser knows an option by whose name nobody types; see `rebuild`.
std::string slotName(std::size_t place);

/// A value as the kind has it; none where the text is not one.
std::optional<tarv_3_3::variant_t> valueOf(tarv_3_3::das_variant_type_t kind, const std::string& text);

/// A new result of a parser.
Result createResult(tarv_3_3::IParser& parser);

} // namespace tarv_program
