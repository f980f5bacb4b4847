#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace tarv_program {

/// A word of a script, without its quotes. What the shell puts in place of something, such as a variable, is
/// not known; a letter stands for it.
struct Word {
    static constexpr auto none = static_cast<std::size_t>(-1);

    /// Whether the bytes from `begin` on are known, up to `end`, and stand in the script one after the other.
    bool isContiguous(std::size_t begin, std::size_t end) const;

    std::string text;
    /// Where each byte of it stands in the script; `none` for what is not known.
    std::vector<std::size_t> offsets;
    /// The first byte that is not known, or `none`.
    std::size_t firstUnknown = none;
    /// Where the word begins, from 1 on, in lines and bytes.
    std::size_t line = 0;
    std::size_t column = 0;
    std::size_t offset = 0;
};

/// A simple command: its words, without assignments and redirections.
using Call = std::vector<Word>;

/// All commands of a script, in the order of their first words, wherever they stand: in functions, pipes,
/// substitutions and here-documents. `tree` is the syntax tree of the script as shfmt writes it. Throws
/// `Failure` when it is not one.
std::vector<Call> readCalls(const std::string& tree, const std::string& script);

/// The name of the command that a word runs, without the folders in front of it.
std::string commandName(const Word& word);

/// The places of the words that name commands: the first, and those behind commands that run others, such as
/// sudo, env and xargs.
std::vector<std::size_t> commandPlaces(const Call& call);

/// The syntax tree of a script that stands in an argument, as for `readCalls`; "" where there is none.
using TreeOf = std::function<std::string(const std::string& script)>;

/// The commands that a command is given to run in other ways: those behind -exec of find, and those of a
/// script behind -c of a shell, if it is known as a whole. Their words stand where they stand in `script`,
/// the one that `call` is from. A word of which nobody says where it stands has the place of the argument
/// that it is in.
std::vector<Call> innerCalls(const Call& call, const std::string& script, const TreeOf& treeOf);

/// The place of the word that runs `program`, by its name or any path that ends in it, also behind commands
/// that run others; the number of words when none does.
std::size_t programPlace(const Call& call, const std::string& program);

} // namespace tarv_program
