#include "typed/lastResort.h"

#include "recognition/nameMatching.h"

namespace tarv_3_3::typed::engine {

namespace {

bool fits(std::string_view typed, std::string_view name) {
    return scoreName(typed, name).sameWordCount;
}

} // namespace

Wish wishOf(std::string_view name, const Command& program) {
    return name.empty()                                  ? Wish::none
           : fits(name, "help")                          ? Wish::help
           : program.hasVersion && fits(name, "version") ? Wish::version
                                                         : Wish::none;
}

} // namespace tarv_3_3::typed::engine
