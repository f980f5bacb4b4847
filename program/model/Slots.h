#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "model/CommandLine.h"

namespace tarv_program {

/// The options of a command line that arguments without a name fill by their order, each with its count; and
/// which argument goes to which of them, as programs with such options have it.
class Slots {
public:
    static constexpr auto nowhere = static_cast<std::size_t>(-1);

    explicit Slots(const CommandLine& line);

    /// Their places among the options.
    const std::vector<std::size_t>& places() const { return m_places; }
    /// The place that each of `count` arguments goes to: each option has what it needs first, then what it
    /// may have, in their order. `nowhere` for what is left.
    std::vector<std::size_t> placesOf(std::size_t count) const;
    /// What is wrong with that many arguments; "" for nothing.
    std::string complaint(std::size_t count) const;

private:
    std::vector<std::size_t> shares(std::size_t count) const;

    const CommandLine& m_line;
    std::vector<std::size_t> m_places;
};

} // namespace tarv_program
