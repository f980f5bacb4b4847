#include "model/Slots.h"

#include <algorithm>

namespace tarv_program {

Slots::Slots(const CommandLine& line) : m_line(line) {
    for (std::size_t place = 0; place < line.options.size(); ++place) {
        if (line.options[place].isSlot()) {
            m_places.push_back(place);
        }
    }
}

std::vector<std::size_t> Slots::shares(std::size_t count) const {
    std::vector<std::size_t> all;
    for (const std::size_t place : m_places) {
        all.push_back(std::min<std::size_t>(m_line.options[place].count->least, count));
        count -= all.back();
    }
    for (std::size_t i = 0; i < m_places.size(); ++i) {
        const std::optional<unsigned long> most = m_line.options[m_places[i]].count->most;
        const std::size_t room = most ? *most - std::min<std::size_t>(*most, all[i]) : count;
        const std::size_t more = std::min(room, count);
        all[i] += more;
        count -= more;
    }
    return all;
}

std::vector<std::size_t> Slots::placesOf(std::size_t count) const {
    std::vector<std::size_t> all;
    const std::vector<std::size_t> each = shares(count);
    for (std::size_t i = 0; i < m_places.size(); ++i) {
        all.insert(all.end(), each[i], m_places[i]);
    }
    all.resize(count, nowhere);
    return all;
}

std::string Slots::complaint(std::size_t count) const {
    const std::vector<std::size_t> each = shares(count);
    std::size_t taken = 0;
    for (std::size_t i = 0; i < m_places.size(); ++i) {
        const Option& option = m_line.options[m_places[i]];
        const unsigned long least = option.count->least;
        if (each[i] < least) {
            return "argument " + option.shownName() +
                   (least == 1 ? " is missing" : " is needed at least " + std::to_string(least) + " times");
        }
        taken += each[i];
    }
    return taken < count ? "there are too many arguments" : "";
}

} // namespace tarv_program
