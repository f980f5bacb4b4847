#include <cstring>

#include "reliability/AllocationScenario.h"
#include "tarv_3_3/completion.h"
#include "tarv_3_3/description.h"
#include "tarv_3_3/explain.h"

using namespace tarv_3_3;

namespace {

constexpr char longValue[] = "a value that is longer than a short string";

void declared(Subject& session) {
    open(session);
    session.parser->action("build-the-whole-project,build", "Builds.", vtNull);
    session.parser->option("output-file,o", "Where the output goes.", vtString)
        .defaultValue("a default of some length");
    session.parser->modifier("jobs,j", "build", "How many at a time.", vtInt32).allowValue(1).allowValue(2);
}

void remarked(Subject& session) {
    declared(session);
    annotate(session.parser, "jobs", "range", "1..2");
    annotate(session.parser, "jobs", "host.remark", longValue);
    addRule(session.parser, ruleNeeds, "build,output-file,jobs");
    parse(session, {"--build", "--jobs=1"});
}

std::string json(Subject& session) {
    return describeAsJson(session.parser);
}

constexpr char declaredJson[] = R"({"format": "tarv-description", "version": "1.1",
"flags": [],
"topics": [
{"name": ""}],
"declarations": [
{"role": "action", "kind": "none", "names": ["build-the-whole-project", "build"], "text": "Builds.", "tags": ["build", "build-the-whole-project"], "separator": ","},
{"role": "option", "kind": "string", "names": ["output-file", "o"], "text": "Where the output goes.", "separator": ",", "default": "a default of some length"},
{"role": "option", "kind": "int32", "names": ["jobs", "j"], "text": "How many at a time.", "tags": ["build"], "allowed": ["1", "2"], "separator": ",")";

const std::string remarkedJson =
    std::string(declaredJson) + R"(, "notes": {"range": "1..2", "host.remark": ")" + longValue + R"("}}],
"rules": [
{"kind": "needs", "names": ["build-the-whole-project", "output-file", "jobs"]}],
"checks": []}
)";

const std::string withoutRemarksJson = std::string(declaredJson) + R"(}],
"rules": [],
"checks": []}
)";

const std::string annotatedJson = std::string(declaredJson) + R"(, "notes": {"host.remark": ")" + longValue +
                                  R"("}}],
"rules": [],
"checks": []}
)";

const std::string ruledJson = std::string(declaredJson) + R"(}],
"rules": [
{"kind": "atMostOne", "names": ["output-file", "jobs", "build-the-whole-project"]}],
"checks": []}
)";

int keep(Subject& session, const char* text) {
    session.text = text;
    return text != nullptr ? 0 : 3;
}

std::string keptText(Subject& session) {
    return session.text != nullptr ? session.text : "";
}

bool offerLongValue(void*, const char*, const char*, CandidateSink& sink) {
    sink.add(longValue, "A value of the host's, with a long description.");
    return true;
}

/// 0 when exactly `expected` is offered behind "--build", 3 when there is no answer.
int completeWith(Subject& session, const char* word, const char* expected) {
    const char* const words[] = {"tool", "--build", word};
    const Completion* const completion = complete(session.parser, 3, words, offerLongValue);
    if (completion == nullptr) {
        return 3;
    }
    const bool isExpected =
        completion->candidateCount == 1 && std::strcmp(completion->candidates[0].text, expected) == 0;
    release(completion);
    return isExpected ? 0 : 4;
}

} // namespace

std::vector<Scenario> descriptionScenarios() {
    return {
        {"Describe", Failure::query, remarked,
         [](Subject& s) {
             const Description* const description = describe(s.parser);
             const bool isWhole = description != nullptr && description->ruleCount == 1 &&
                                  declarationAt(*description, 2).noteCount == 2;
             release(description);
             return isWhole ? 0 : 3;
         },
         0, json, remarkedJson.c_str()},
        {"DescribeAsJson", Failure::query, remarked,
         [](Subject& s) { return keep(s, describeAsJson(s.parser)); }, 0, keptText, remarkedJson.c_str()},
        {"Annotate", Failure::query, declared,
         [](Subject& s) { return annotate(s.parser, "jobs", "host.remark", longValue); }, 0, json,
         annotatedJson.c_str()},
        {"AddRule", Failure::query, declared,
         [](Subject& s) {
             // Once it is there, it is not to be there again.
             const Description* const description = describe(s.parser);
             const bool isThere = description != nullptr && description->ruleCount == 1;
             release(description);
             return isThere ? 0
                            : addRule(s.parser, ruleAtMostOne, "output-file,jobs,build-the-whole-project");
         },
         0, json, ruledJson.c_str()},
        {"CheckRules", Failure::query, remarked, [](Subject& s) { return checkRules(s.parser, s.result); }, 2,
         [](Subject& s) { return std::string(s.parser->getErrorDesc()); },
         "Action 'build-the-whole-project' needs option 'output-file'"},
        {"Suggest", Failure::query, declared,
         [](Subject& s) { return keep(s, suggest(s.parser, "--output-flie")); }, 0, keptText,
         "Did you mean '--output-file'?"},
        {"SuggestLetters", Failure::query, declared,
         [](Subject& s) { return keep(s, suggest(s.parser, "-oa-long-name-of-a-file-for-the-output")); }, 0,
         keptText, "Did you mean '-o=a-long-name-of-a-file-for-the-output'?"},
        {"Explain", Failure::query, declared,
         [](Subject& s) {
             const char* const argv[] = {"tool", "--outp=a value that is longer than a short string", "--jo"};
             const Explanation* const explanation = explain(s.parser, 3, argv);
             const bool isWhole = explanation != nullptr && explanation->argumentCount == 2 &&
                                  explainedAt(*explanation, 1).isAbbreviated == 1;
             release(explanation);
             return isWhole ? 0 : 3;
         },
         0, json, withoutRemarksJson.c_str()},
        {"CompleteName", Failure::query, declared,
         [](Subject& s) { return completeWith(s, "--o-f", "--output-file="); }, 0, keptText, ""},
        {"CompleteValue", Failure::query, declared,
         [](Subject& s) {
             return completeWith(s, "--output-file=a piece of some length,a value",
                                 "--output-file=a piece of some length,a value that is longer than a short "
                                 "string");
         },
         0, keptText, ""},
    };
}
