#include "model/CommandLine.h"

namespace tarv_program {

const std::string* Option::note(std::string_view key) const {
    for (const Note& note : notes) {
        if (note.first == key) {
            return &note.second;
        }
    }
    return nullptr;
}

} // namespace tarv_program
