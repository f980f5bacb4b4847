#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace tarv_3_3::internal {

/// The secret that a hash depends on besides the text.
struct HashKey {
    std::uint64_t words[4];
};

/// Derives a key from the 16 bytes at `seed`.
HashKey makeHashKey(const void* seed);

/// The hash of `text`. Which texts collide depends on the whole key.
std::size_t hashOf(std::string_view text, const HashKey& key);

/// The hash with the key of the process, which is random. Nothing that a host can observe may depend on it.
std::size_t hashOf(std::string_view text);

/// For the hash tables of the standard library. Their own hash of texts has no key.
struct TextHash {
    std::size_t operator()(const std::string& text) const { return hashOf(text); }
};

/// A text and its hash with the key of the process.
struct HashedText {
    template <class Text>
    HashedText(const Text& plainText) : text(plainText), hash(hashOf(text)) {}
    HashedText(std::string_view knownText, std::size_t knownHash) : text(knownText), hash(knownHash) {}

    std::string_view text;
    std::size_t hash;
};

} // namespace tarv_3_3::internal
