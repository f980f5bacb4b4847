#pragma once

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

namespace tarv_3_3::typed::engine {

struct Command;
struct Option;

/// Finds the options of one command, the positional ones not among them, by their whole names.
class OptionNames {
public:
    /// Knows the names of all that was declared so far.
    void learn(const std::vector<std::unique_ptr<Option>>& options);

    /// The option with this name, which is not negated; null when there is none.
    Option* find(std::string_view name) const;

    /// Whether a name stands twice, or is the "no-" form of a switch among them.
    bool isAnyTwice() const { return m_isAnyTwice; }

    /// The names that begin with "no-".
    const std::vector<std::string_view>& negativeNames() const { return m_negativeNames; }

private:
    struct Slot {
        std::size_t hash;
        Option* option;
    };

    void makeRoom(std::size_t names);
    void add(Option& option, std::string_view name);

    /// At most half of the slots are in use; their number is a power of two.
    std::vector<Slot> m_slots;
    std::vector<std::string_view> m_negativeNames;
    std::size_t m_learned = 0;
    bool m_isAnyTwice = false;
};

/// Whether no name of a command is that of another option of it or of the commands above, also behind "no-".
bool areNamesUnique(const Command& command);

/// The option of a command, or of those above it, that is given by a name as it was typed, which may be
/// the "no-" form of a switch; null unless it is exactly one.
Option* findWhole(const Command& command, std::string_view typed);

} // namespace tarv_3_3::typed::engine
