#pragma once

#include <optional>
#include <string>
#include <vector>

#include "model/rebuild.h"

namespace tarv_program {

/// What the command line of a verb gave.
class Arguments {
public:
    Arguments(tarv_3_3::IParser& parser, tarv_3_3::IParseResult& result)
        : m_parser(parser), m_result(result) {}

    bool isGiven(const char* name) const { return m_result.present(name); }
    std::optional<std::string> value(const char* name) const;
    std::vector<std::string> values(const char* name) const;
    /// Behind "--".
    std::vector<std::string> plain() const;

    tarv_3_3::IParser& parser() const { return m_parser; }

private:
    tarv_3_3::IParser& m_parser;
    tarv_3_3::IParseResult& m_result;
};

} // namespace tarv_program
