// Searches for texts that cost a map of texts more than random ones do: what somebody finds who has the
// sources and a key, but not the key of the process that is to be slowed down.
//
//     search_collisions SECONDS
//
// Up to half of the processor time goes into 100,000 texts that fall into one slot with one key; the rest
// into families of regular texts, bred for what they cost with that key. Both are then hashed with other
// keys. Prints what they cost, to random texts; the exit status is 1 when something costs more than 1.5 times
// as much.

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <random>
#include <string>
#include <vector>

#include "platform/hashOf.h"

namespace {

using tarv_3_3::internal::HashKey;
using tarv_3_3::internal::hashOf;
using tarv_3_3::internal::makeHashKey;
using Random = std::mt19937_64;

constexpr std::size_t familySize = 100000;
/// What a map of so many texts has, of which a quarter stays free.
constexpr std::size_t slotCount = std::size_t(1) << 18;
constexpr std::uint64_t knownKey = 0;
constexpr std::uint64_t otherKeys = 16;
constexpr double bar = 1.5;
/// Where counting stops: so many slots for so many texts are too many in any case.
constexpr std::uint64_t mostProbes = 100 * familySize;

HashKey keyNumber(std::uint64_t number) {
    Random random(number);
    const std::uint64_t seed[] = {random(), random()};
    return makeHashKey(seed);
}

/// How many slots searches for all added texts look at.
class Probes {
public:
    void add(std::size_t hash) {
        std::size_t slot = hash % slotCount;
        for (++m_count; m_isTaken[slot] && m_count < mostProbes; ++m_count) {
            slot = (slot + 1) % slotCount;
        }
        m_isTaken[slot] = true;
    }

    double count() const { return double(m_count); }

private:
    std::vector<bool> m_isTaken = std::vector<bool>(slotCount);
    std::uint64_t m_count = 0;
};

/// Texts of equal bytes around a number that grows by steps. No two are equal.
struct Family {
    std::size_t before;
    std::size_t width; ///< Of the number, in bytes.
    std::size_t behind;
    unsigned char fill;
    std::uint64_t first;
    std::uint64_t step; ///< Odd.
    unsigned turn;      ///< By how many bits the number is rotated.

    explicit Family(Random& random)
        : before(random() % 80), width(3 + random() % 6), behind(random() % 80),
          fill(static_cast<unsigned char>(random())), first(random()), step(random() >> random() % 64 | 1),
          turn(static_cast<unsigned>(random() % 64)) {}

    /// The same with one thing of another family.
    Family with(const Family& other, Random& random) const {
        Family bred = *this;
        switch (random() % 7) {
        case 0:
            bred.before = other.before;
            break;
        case 1:
            bred.width = other.width;
            break;
        case 2:
            bred.behind = other.behind;
            break;
        case 3:
            bred.fill = other.fill;
            break;
        case 4:
            bred.first = other.first;
            break;
        case 5:
            bred.step = other.step;
            break;
        default:
            bred.turn = other.turn;
            break;
        }
        return bred;
    }

    double cost(const HashKey& key) const {
        const std::size_t bits = 8 * width;
        const std::uint64_t mask = ~std::uint64_t(0) >> (64 - bits);
        const std::size_t up = turn % bits;
        std::string text(before + width + behind, static_cast<char>(fill));
        Probes probes;
        for (std::uint64_t i = 0; i < familySize; ++i) {
            const std::uint64_t number = (first + i * step) & mask;
            const std::uint64_t turned = up == 0 ? number : (number << up | number >> (bits - up)) & mask;
            for (std::size_t byte = 0; byte < width; ++byte) {
                text[before + byte] = static_cast<char>(turned >> 8 * byte);
            }
            probes.add(hashOf(text, key));
        }
        return probes.count();
    }
};

std::string textOf(std::uint64_t number) {
    return std::string(reinterpret_cast<const char*>(&number), sizeof number);
}

double costOfRandomTexts(const HashKey& key, std::size_t count) {
    Random random(count);
    Probes probes;
    for (std::size_t i = 0; i < count; ++i) {
        probes.add(hashOf(textOf(random()), key));
    }
    return probes.count();
}

bool isOver(std::clock_t end) {
    return std::clock() >= end;
}

/// The most that `cost` says of another key, to that of as many random texts.
template <class Cost>
double worstElsewhere(Cost cost, std::size_t count) {
    double worst = 0;
    for (std::uint64_t number = knownKey + 1; number <= knownKey + otherKeys; ++number) {
        const HashKey key = keyNumber(number);
        worst = std::max(worst, cost(key) / costOfRandomTexts(key, count));
    }
    return worst;
}

/// A family that costs much with the known key: one that no change of one thing has made worse for long.
Family breed(Random& random, std::clock_t end, std::uint64_t& tried) {
    const HashKey known = keyNumber(knownKey);
    Family worst(random);
    double worstCost = worst.cost(known);
    for (int failures = 0; failures < 200 && !isOver(end); ++failures) {
        const Family bred = worst.with(Family(random), random);
        const double cost = bred.cost(known);
        ++tried;
        if (cost > worstCost) {
            worst = bred;
            worstCost = cost;
            failures = 0;
        }
    }
    return worst;
}

double searchFamilies(std::clock_t end) {
    Random random(1);
    std::uint64_t tried = 0;
    double worst = 0;
    while (!isOver(end)) {
        const Family family = breed(random, end, tried);
        worst =
            std::max(worst, worstElsewhere([&](const HashKey& key) { return family.cost(key); }, familySize));
    }
    std::printf("%llu families: the worst of them costs %.3f times random texts\n",
                static_cast<unsigned long long>(tried), worst);
    return worst;
}

double searchSlot(std::clock_t end) {
    const HashKey known = keyNumber(knownKey);
    std::vector<std::string> found;
    std::uint64_t tried = 0;
    for (; found.size() < familySize && (tried % 1024 != 0 || !isOver(end)); ++tried) {
        const std::string text = textOf(tried);
        if (hashOf(text, known) % slotCount == 0) {
            found.push_back(text);
        }
    }
    const auto cost = [&](const HashKey& key) {
        Probes probes;
        for (const std::string& text : found) {
            probes.add(hashOf(text, key));
        }
        return probes.count();
    };
    const double worst = worstElsewhere(cost, found.size());
    std::printf("%zu texts of one slot, of %llu tried: they cost %.3f times random texts\n", found.size(),
                static_cast<unsigned long long>(tried), worst);
    return worst;
}

} // namespace

int main(int argc, char** argv) {
    const double seconds = argc > 1 ? std::atof(argv[1]) : 1;
    const auto end = static_cast<std::clock_t>(seconds * double(CLOCKS_PER_SEC));
    const double slot = searchSlot(end / 2);
    const double family = searchFamilies(end);
    return slot <= bar && family <= bar ? EXIT_SUCCESS : EXIT_FAILURE;
}
