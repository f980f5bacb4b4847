#pragma once

#include <string>

namespace tarv_3_3 {

class BasicParser;
class ParseResult;

/// Checks the rules of actions over everything that a result has stored: at most one action, and each option
/// given shares a tag with it or has none. Returns `parseOk`, or `parseFailed` with a text in `message`. For
/// a stored name that is not declared, returns what `findOption` returns then.
int checkStoredOptions(BasicParser& parser, const ParseResult& result, std::string& message);

} // namespace tarv_3_3
