#include "compare/LineQuestion.h"

#include <new>
#include <set>

#include <tarv_3_3/description.h>
#include <tarv_3_3/explain.h>

namespace tarv_program {

using namespace tarv_3_3;

namespace {

// Of what was given only, since a query yields the defaults of all others as well.
void addValues(LineAnswer& answer, const Side& side, IParseResult& result, const std::set<int>& given) {
    for (const int index : given) {
        const auto place = static_cast<std::size_t>(index);
        const std::string name = side.option(place).primaryName();
        for (Value value = result.get(name.c_str()); value.status == valueFound;
             value = result.next(name.c_str())) {
            answer.values[place].emplace_back(value.text != nullptr ? value.text : "");
        }
    }
    const char* text = nullptr;
    for (int status = result.getFirstArgument(&text); status == valueFound;
         status = result.getNextArgument(&text)) {
        answer.plain.emplace_back(text);
    }
}

std::set<int> placesGiven(IParser& parser, const std::vector<const char*>& argv) {
    const Explanation* const explanation = explain(&parser, static_cast<int>(argv.size()), argv.data());
    if (explanation == nullptr) {
        throw std::bad_alloc();
    }
    std::set<int> places;
    for (unsigned i = 0; i < explanation->argumentCount; ++i) {
        if (explainedAt(*explanation, i).place >= 0) {
            places.insert(explainedAt(*explanation, i).place);
        }
    }
    release(explanation);
    return places;
}

} // namespace

LineAnswer askLine(const Side& side, const std::vector<std::string>& arguments, Wanted wanted) {
    std::vector<const char*> argv(1, "");
    for (const std::string& argument : arguments) {
        argv.push_back(argument.c_str());
    }
    LineAnswer answer;
    const Result result = createResult(side.parser());
    const bool isParsed =
        side.parser().parseArgsVector(static_cast<int>(argv.size()), argv.data(), result.get()) == parseOk;
    answer.isAccepted = isParsed && checkRules(&side.parser(), result.get()) == parseOk;
    if (!answer.isAccepted) {
        answer.message = side.parser().getErrorDesc();
    } else if (wanted == Wanted::values) {
        addValues(answer, side, *result, placesGiven(side.parser(), argv));
    }
    return answer;
}

} // namespace tarv_program
