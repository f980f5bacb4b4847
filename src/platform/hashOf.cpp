#include "platform/hashOf.h"

#include <sys/auxv.h>

#include <atomic>
#include <cstring>

namespace tarv_3_3::internal {

namespace {

__extension__ using DoubleWord = unsigned __int128;

struct Product {
    std::uint64_t low;
    std::uint64_t high;
};

Product multiply(std::uint64_t left, std::uint64_t right) {
    const DoubleWord product = DoubleWord(left) * right;
    return {static_cast<std::uint64_t>(product), static_cast<std::uint64_t>(product >> 64)};
}

// Combines both halves of a product: the low bits of the low half depend on few bits of the factors.
std::uint64_t mix(std::uint64_t left, std::uint64_t right) {
    const Product product = multiply(left, right);
    return product.low ^ product.high;
}

template <class Word>
std::uint64_t load(const char* bytes) {
    Word word;
    std::memcpy(&word, bytes, sizeof word);
    return word;
}

struct TwoWords {
    std::uint64_t front;
    std::uint64_t back;
};

// Loads up to 16 bytes. Some may be loaded twice.
TwoWords loadShort(const char* bytes, std::size_t size) {
    if (size >= 8) {
        return {load<std::uint64_t>(bytes), load<std::uint64_t>(bytes + size - 8)};
    }
    if (size >= 4) {
        return {load<std::uint32_t>(bytes), load<std::uint32_t>(bytes + size - 4)};
    }
    std::uint64_t word = 0;
    for (std::size_t i = 0; i < size; ++i) {
        word = word << 8 | static_cast<unsigned char>(bytes[i]);
    }
    return {word, 0};
}

// The kernel gives 16 random bytes to every process. Reading them needs no system call. Every call in a
// process gives the same key.
HashKey makeProcessKey() {
    static const char somewhere = 0;
    const unsigned long randomBytes = getauxval(AT_RANDOM);
    std::uint64_t seed[2] = {reinterpret_cast<std::uintptr_t>(&somewhere), 0};
    if (randomBytes != 0) {
        // The kernel gives their address as an integer.
        // NOLINTNEXTLINE(performance-no-int-to-ptr)
        std::memcpy(seed, reinterpret_cast<const void*>(randomBytes), sizeof seed);
    }
    return makeHashKey(seed);
}

HashKey keptKey;
std::atomic_flag isKeyKept = ATOMIC_FLAG_INIT;
/// The key of the process; null before the first hash.
std::atomic<const HashKey*> processKey{nullptr};

// The first thread stores the key. Threads that get here at the same time compute the same key and use their
// own copy. (With a static local variable, the dynamic linker would have two more symbols to look up.)
// Not inlined, so that the fast path of `hashOf` need not save registers for it.
[[gnu::cold, gnu::noinline]] std::size_t makeKeyAndHash(std::string_view text) {
    const HashKey key = makeProcessKey();
    if (!isKeyKept.test_and_set(std::memory_order_relaxed)) {
        keptKey = key;
        processKey.store(&keptKey, std::memory_order_release);
    }
    return hashOf(text, key);
}

} // namespace

// These bytes also guard the stack of the process, so the key must not reveal them.
HashKey makeHashKey(const void* seed) {
    std::uint64_t words[2];
    std::memcpy(words, seed, sizeof words);
    HashKey key;
    // The first digits of pi: constants that nobody chose.
    constexpr std::uint64_t digits[] = {0x243F6A8885A308D3, 0x13198A2E03707344, 0xA4093822299F31D0,
                                        0x082EFA98EC4E6C89, 0x452821E638D01377};
    const std::uint64_t* digit = digits;
    for (std::uint64_t& word : key.words) {
        word = mix(words[0] ^ digit[0], words[1] ^ digit[1]);
        ++digit;
    }
    return key;
}

// Each factor of a product depends on the key, directly or through an earlier product. If an attacker knew a
// factor, texts could be chosen that make it zero, and so the product, whatever the key is.
std::size_t hashOf(std::string_view text, const HashKey& key) {
    const char* bytes = text.data();
    std::size_t left = text.size();
    std::uint64_t state = key.words[1];
    for (; left > 16; left -= 16, bytes += 16) {
        state = mix(load<std::uint64_t>(bytes) ^ key.words[0], load<std::uint64_t>(bytes + 8) ^ state);
    }
    const TwoWords last = loadShort(bytes, left);
    const Product product = multiply(last.front ^ key.words[0], last.back ^ state);
    return mix(product.low ^ key.words[2] ^ text.size(), product.high ^ key.words[3]);
}

std::size_t hashOf(std::string_view text) {
    const HashKey* const key = processKey.load(std::memory_order_acquire);
    return key != nullptr ? hashOf(text, *key) : makeKeyAndHash(text);
}

} // namespace tarv_3_3::internal
