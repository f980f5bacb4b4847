#include "options/split.h"

#include <utility>
#include <vector>

#include "options/Names.h"

namespace tarv_3_3 {

template <class Words>
result_t split(std::string text, Words& pieces) {
    std::size_t start = 0;
    std::size_t comma = text.find(',');
    while (comma != std::string::npos) {
        pieces.emplace_back(text, start, comma - start);
        start = comma + 1;
        comma = text.find(',', start + 1);
    }
    if (start == text.size() && !text.empty()) {
        pieces.emplace_back(1, '\0');
    } else if (start > 0) {
        pieces.emplace_back(text, start);
    } else if (!text.empty()) {
        pieces.emplace_back(std::move(text));
    }
    return 0;
}

template result_t split<std::vector<std::string>>(std::string text, std::vector<std::string>& pieces);
template result_t split<Names>(std::string text, Names& pieces);

} // namespace tarv_3_3
