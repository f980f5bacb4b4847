#pragma once

#include <list>
#include <string>
#include <utility>
#include <vector>

#include "typed/Option.h"

namespace tarv_3_3::typed::engine {

/// One text that is being made a value, and what is said of it.
struct Taking {
    Option* option = nullptr;
    /// The place of the element in its list.
    unsigned long place = 0;
    /// Whether a value may be cut short, which it may on the command line alone.
    bool mayBeCut = false;
    /// Where texts are kept that outlive the parse.
    std::list<std::string>* keptTexts = nullptr;
    bool isRefused = false;
    /// Why; empty when there is no more to say than that.
    std::string reason;
    /// A value that was completed.
    std::string whole;
    /// What a completer offers, with its description.
    std::vector<std::pair<std::string, std::string>> candidates;
    bool isOutOfMemory = false;
};

/// Whether `text` is one value of the option, as far as the library can tell: all but what is code of the
/// host.
bool isValue(Taking& taking, const char* text);

} // namespace tarv_3_3::typed::engine
