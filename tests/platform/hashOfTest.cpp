#include "platform/hashOf.h"

#include <gtest/gtest.h>
#include <sys/auxv.h>

#include <array>
#include <functional>
#include <random>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "platform/TextMap.h"
#include "support/roundsOf.h"

namespace tarv_3_3::internal {
namespace {

/// A key that is the same in every run.
HashKey keyNumber(unsigned number) {
    std::mt19937_64 random(number);
    const std::uint64_t seed[] = {random(), random()};
    return makeHashKey(seed);
}

const HashKey someKey = keyNumber(1);

/// In how many of the first `slots` places of a table the texts begin to look for theirs.
std::size_t placesOf(const std::vector<std::string>& texts, std::size_t slots) {
    std::set<std::size_t> places;
    for (const std::string& text : texts) {
        places.insert(hashOf(text, someKey) % slots);
    }
    return places.size();
}

// By chance 1024 texts would begin in about 647 of 1024 places.
TEST(HashOf, SpreadsTextsThatDifferInOneOrTwoBytesAnywhere) {
    for (const std::size_t size : {2U, 3U, 4U, 7U, 8U, 9U, 12U, 16U, 17U, 24U, 25U, 40U}) {
        for (std::size_t place = 0; place + 2 <= size; ++place) {
            SCOPED_TRACE(std::to_string(size) + " bytes, differing at " + std::to_string(place));
            std::vector<std::string> texts;
            for (int i = 0; i < 1024; ++i) {
                std::string text(size, 'x');
                text[place] = static_cast<char>('A' + i / 32);
                text[place + 1] = static_cast<char>('A' + i % 32);
                texts.push_back(text);
            }
            EXPECT_GT(placesOf(texts, 1024), 512U);
        }
    }
}

TEST(HashOf, LooksAtNoByteInFrontOfATextOrBehindIt) {
    for (std::size_t size = 0; size <= 40; ++size) {
        SCOPED_TRACE(size);
        const std::string text(size, 'x');
        const std::string one = "1234567890123456" + text + "12345678";
        const std::string other = "abcdefghabcdefgh" + text + "abcdefgh";
        EXPECT_EQ(hashOf(std::string_view(one).substr(16, size)),
                  hashOf(std::string_view(other).substr(16, size)));
    }
}

TEST(HashOf, DependsOnEveryWordOfTheKey) {
    for (const char* const text : {"", "text", "a text of 17 byte"}) {
        for (std::size_t i = 0; i < 4; ++i) {
            SCOPED_TRACE(std::string(text) + " word " + std::to_string(i));
            HashKey other = someKey;
            other.words[i] ^= 1;
            EXPECT_NE(hashOf(text, other), hashOf(text, someKey));
        }
    }
}

TEST(HashOf, HasAKeyThatDependsOnEveryBitOfTheSeed) {
    std::array<unsigned char, 16> seed = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16};
    const std::size_t hash = hashOf("text", makeHashKey(seed.data()));
    for (std::size_t bit = 0; bit < 128; ++bit) {
        std::array<unsigned char, 16> other = seed;
        other[bit / 8] ^= static_cast<unsigned char>(1U << bit % 8);
        EXPECT_NE(hashOf("text", makeHashKey(other.data())), hash) << bit;
    }
}

TEST(HashOf, HasAKeyOfTheRandomBytesThatTheKernelGaveTheProcess) {
    // NOLINTNEXTLINE(performance-no-int-to-ptr)
    const void* const randomBytes = reinterpret_cast<const void*>(getauxval(AT_RANDOM));
    ASSERT_NE(randomBytes, nullptr);
    EXPECT_EQ(hashOf("text"), hashOf("text", makeHashKey(randomBytes)));
}

TEST(HashOf, IsTheSameInTheWholeProcess) {
    const std::size_t hash = hashOf("text");
    EXPECT_EQ(hashOf(std::string("text")), hash);
    EXPECT_EQ(HashedText("text").hash, hash);
}

// What a family of texts costs in a map of the library, as slots that are looked at beyond the first one of
// every search. The texts stand in the map under their numbers, so that long ones take no memory there.
constexpr std::size_t familySize = 100000;

class Cost {
public:
    explicit Cost(const HashKey& key) : m_key(key) {}

    void add(std::string_view text) {
        m_map.insert({std::to_string(m_size), hashOf(text, m_key)});
        ++m_size;
    }

    std::size_t size() const { return m_size; }
    std::size_t probes() const { return m_size + m_map.distances(); }

private:
    struct NoValue {};

    const HashKey& m_key;
    ArenaWithRoom<256> m_memory;
    TextMap<NoValue> m_map{m_memory};
    std::size_t m_size = 0;
};

/// Overwrites `size` bytes of `text`, from `place` on, with those of `number`.
void put(std::string& text, std::size_t place, std::uint64_t number, std::size_t size) {
    for (std::size_t i = 0; i < size; ++i) {
        text[place + i] = static_cast<char>(number >> 8 * i);
    }
}

std::string withPrefix(std::size_t prefix, std::uint64_t number) {
    std::string text(prefix + 8, 'x');
    put(text, prefix, number, 8);
    return text;
}

std::string withEnd(std::size_t end, std::uint64_t number) {
    std::string text(end + 8, 'x');
    put(text, 0, number, 8);
    return text;
}

// All of a family differ in one bit from the same text.
std::string withOneBit(std::uint64_t number) {
    std::string text(familySize / 8, 'x');
    text[number / 8] = static_cast<char>(text[number / 8] ^ 1 << number % 8);
    return text;
}

// Each number stands for three bits that are turned, in ascending order; the others for no text.
std::string withBits(std::size_t size, std::uint64_t number) {
    std::string text(size, 'x');
    const std::uint64_t bits = 8 * size;
    for (std::uint64_t above = bits; number != 0; number /= bits) {
        const std::uint64_t bit = number % bits;
        if (bit >= above) {
            return {};
        }
        above = bit;
        text[bit / 8] = static_cast<char>(text[bit / 8] ^ 1 << bit % 8);
    }
    return text;
}

// A hash without a key: the folded product with a known factor. Two words for which the second is made to fit
// the first had one hash, without a search.
std::uint64_t knownMix(std::uint64_t word) {
    __extension__ using DoubleWord = unsigned __int128;
    const DoubleWord product = DoubleWord(word) * 0x9E3779B97F4A7C15;
    return static_cast<std::uint64_t>(product) ^ static_cast<std::uint64_t>(product >> 64);
}

std::string writtenDown(std::uint64_t number) {
    std::string text(16, '\0');
    put(text, 0, number, 8);
    put(text, 8, knownMix(16 ^ number) ^ 0x0123456789ABCDEF, 8);
    return text;
}

// Words that make a product small or zero where a factor is known: zero, and powers of two.
std::string likeZero(std::size_t words, std::uint64_t number) {
    std::string text(8 * words, '\0');
    for (std::size_t i = 0; i < words; ++i, number /= 65) {
        const std::uint64_t choice = number % 65;
        put(text, 8 * i, choice == 0 ? 0 : std::uint64_t(1) << (choice - 1), 8);
    }
    return text;
}

struct Family {
    const char* name;
    std::function<std::string(std::uint64_t)> text;
};

const Family families[] = {
    {"written down for a hash without a key", writtenDown},
    {"8 bytes in common in front", [](std::uint64_t i) { return withPrefix(8, i); }},
    {"64 bytes in common in front", [](std::uint64_t i) { return withPrefix(64, i); }},
    {"8 bytes in common at the end", [](std::uint64_t i) { return withEnd(8, i); }},
    {"64 bytes in common at the end", [](std::uint64_t i) { return withEnd(64, i); }},
    {"high bits of a word alone", [](std::uint64_t i) { return withEnd(0, i << 40); }},
    {"one bit turned in 12,500 bytes", withOneBit},
    {"bits turned in 16 bytes", [](std::uint64_t i) { return withBits(16, i); }},
    {"bits turned in 48 bytes", [](std::uint64_t i) { return withBits(48, i); }},
    {"words like zero, three", [](std::uint64_t i) { return likeZero(3, i); }},
    {"words like zero, four", [](std::uint64_t i) { return likeZero(4, i); }},
    {"words like zero, eight", [](std::uint64_t i) { return likeZero(8, i); }},
    {"digits", [](std::uint64_t i) { return std::to_string(i); }},
};

std::string randomText(std::mt19937_64& random) {
    return withEnd(0, random());
}

TEST(HashOf, CostsAChosenFamilyOfTextsWhatRandomOnesCost) {
    const std::size_t count = roundsOf(familySize);
    for (const Family& family : families) {
        SCOPED_TRACE(family.name);
        std::mt19937_64 random(77);
        Cost chosen(someKey);
        Cost atRandom(someKey);
        for (std::uint64_t i = 0; chosen.size() < count; ++i) {
            const std::string text = family.text(i);
            if (!text.empty()) {
                chosen.add(text);
                atRandom.add(randomText(random));
            }
        }
        EXPECT_LE(chosen.probes(), atRandom.probes() * 3 / 2);
    }
}

// A factor that a known word makes zero would hide all that stands in front of it.
TEST(HashOf, LetsNoKnownWordHideWhatStandsInFrontOfIt) {
    const std::uint64_t knownWords[] = {0,
                                        ~std::uint64_t(0),
                                        0x9E3779B97F4A7C15,
                                        0x243F6A8885A308D3,
                                        0x13198A2E03707344,
                                        0xA4093822299F31D0,
                                        0x082EFA98EC4E6C89,
                                        0x452821E638D01377};
    for (const std::uint64_t known : knownWords) {
        for (std::size_t place = 8; place <= 48; place += 8) {
            SCOPED_TRACE(std::to_string(known) + " at " + std::to_string(place));
            std::set<std::size_t> hashes;
            for (std::uint64_t number = 0; number < 100; ++number) {
                std::string text(56, 'x');
                put(text, 0, number, 8);
                put(text, place, known, 8);
                hashes.insert(hashOf(text, someKey));
            }
            EXPECT_EQ(hashes.size(), 100U);
        }
    }
}

// One text is written over: to build each anew would take longer than to hash it.
TEST(HashOf, CostsLongTextsWithAPrefixInCommonWhatRandomOnesCost) {
    constexpr std::size_t prefix = 4096;
    std::mt19937_64 random(77);
    Cost chosen(someKey);
    Cost atRandom(someKey);
    std::string text(prefix + 8, 'x');
    const std::size_t count = roundsOf(familySize);
    for (std::uint64_t i = 0; i < count; ++i) {
        put(text, prefix, i, 8);
        chosen.add(text);
        atRandom.add(randomText(random));
    }
    EXPECT_LE(chosen.probes(), atRandom.probes() * 3 / 2);
}

TEST(HashOf, CostsTextsThatDifferInLengthAloneWhatRandomOnesCost) {
    const std::size_t count = roundsOf(familySize);
    for (const char byte : {'\0', 'x'}) {
        SCOPED_TRACE(byte);
        const std::string longest(count, byte);
        std::mt19937_64 random(77);
        Cost chosen(someKey);
        Cost atRandom(someKey);
        for (std::size_t size = 0; size < count; ++size) {
            chosen.add(std::string_view(longest).substr(0, size));
            atRandom.add(randomText(random));
        }
        EXPECT_LE(chosen.probes(), atRandom.probes() * 3 / 2);
    }
}

} // namespace
} // namespace tarv_3_3::internal
