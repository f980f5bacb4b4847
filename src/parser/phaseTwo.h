#pragma once

#include <string>

namespace tarv_3_3 {

class BasicParser;
class ParseResult;

/// The rules of actions, over all that a result has stored: there is at most one action, and the options that
/// were given share a tag with it or have none. Returns `parseOk`, or `parseFailed` with the message in
/// `message`, or what the look-up of a name that is not declared returns.
int checkStoredOptions(BasicParser& parser, const ParseResult& result, std::string& message);

} // namespace tarv_3_3
