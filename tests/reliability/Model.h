#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "tarv_3_3/tarv.h"

/// The rules of recognition and of queries once more, as plainly as possible and with no regard to
/// speed: what the library is compared with. Nothing in here comes from the library but the kinds
/// of values.
namespace model {

struct Option {
    std::vector<std::string> names;
    bool isAction = false;
    tarv_3_3::das_variant_type_t kind = tarv_3_3::vtNull;
    std::set<std::string> tags;
    /// 0 for no lists.
    char separator = ',';
    bool positional = false;
    /// As texts that convert to the kind, written as help would write them.
    std::vector<std::string> allowed;
    /// The same; empty for none.
    std::string defaultText;
};

struct Value {
    std::string text;
    int position;
};

struct Entry {
    std::vector<int> positions;
    std::vector<Value> values;
    std::string defaultText;
    int defaultPosition = 0;
};

/// What a parse leaves behind. Positions count from 1.
struct Outcome {
    int status = 0;
    std::string message;
    std::vector<std::string> events;
    std::map<std::string, Entry> entries;
    std::vector<std::string> plain;
};

/// Whether the option's names are free in the table, in their negated forms as well.
bool mayDeclare(const std::vector<Option>& table, const std::vector<std::string>& names);

/// A command line. A handler refuses the value "vv", and takes the blame for unknown arguments that
/// hold "known".
Outcome parse(const std::vector<Option>& table, int flags, std::vector<std::string> arguments);

/// The answers to the queries about one name in a range, as a line.
std::string query(const Outcome& outcome, const std::string& name, int lo, int hi);

} // namespace model
