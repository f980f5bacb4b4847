#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tarv_3_3::internal {

/// What a hash depends on besides the text.
struct HashKey {
    std::uint64_t words[4];
};

/// The key that `seed`, 16 bytes, stands for.
HashKey makeHashKey(const void* seed);

/// The same for equal texts, and seldom for others: which others depends on all of the key.
std::size_t hashOf(std::string_view text, const HashKey& key);

/// With the key of the process, which an outsider cannot know. Nothing that can be observed may depend on it.
std::size_t hashOf(std::string_view text);

/// A text and its hash with the key of the process.
struct HashedText {
    template <class Text>
    HashedText(const Text& plainText) : text(plainText), hash(hashOf(text)) {}
    HashedText(std::string_view knownText, std::size_t knownHash) : text(knownText), hash(knownHash) {}

    std::string_view text;
    std::size_t hash;
};

} // namespace tarv_3_3::internal
