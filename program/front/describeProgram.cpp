#include <nlohmann/json.hpp>

#include <tarv_3_3/description.h>

#include "front/Verb.h"
#include "version.h"

namespace tarv_program {

using Json = nlohmann::ordered_json;

namespace {

Json countOf(const Verb& verb) {
    Json count = {{"least", verb.least}};
    if (verb.most != Verb::anyNumber) {
        count["most"] = verb.most;
    }
    return count;
}

} // namespace

std::string describeProgram(const std::vector<Verb>& verbs, tarv_3_3::IParser& root) {
    Json all = Json::parse(describeAsJson(&root));
    // The verb is what follows in "verbs".
    all["declarations"].erase(0);
    all["program"] = {
        {"name", "tarv"}, {"version", version}, {"text", "Looks at the command lines of programs."}};
    all["verbs"] = Json::array();
    for (const Verb& verb : verbs) {
        Json one = {{"names", {verb.name}}, {"text", verb.text}};
        const Json described = Json::parse(describeAsJson(parserOf(verb).get()));
        for (const auto& [name, value] : described.items()) {
            if (name != "format" && name != "version") {
                one[name] = value;
            }
        }
        for (Json& option : one["declarations"]) {
            if (option.contains("positional")) {
                option["count"] = countOf(verb);
            }
        }
        all["verbs"].push_back(one);
    }
    return all.dump(1) + "\n";
}

} // namespace tarv_program
