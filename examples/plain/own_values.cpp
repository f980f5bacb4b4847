#include <tarv_3_3/completion.h>
#include <tarv_3_3/description.h>
#include <tarv_3_3/tarv.h>

#include <cstdio>
#include <cstring>
#include <fstream>
#include <string>

namespace tarv = tarv_3_3;

namespace {

void declare(tarv::IParser& parser) {
    parser.option("branch,b", "The branch to check out.", tarv::vtString).tokenize(0);
    parser.option("target,t", "Where to.", tarv::vtString).tokenize(0);
    tarv::annotate(&parser, "target", "complete", "directory");
}

/// Offers the branches that are there now: the lines of a file, each a name and what is said of it.
bool offerBranches(void* context, const char* option, const char*, tarv::CandidateSink& sink) {
    if (std::strcmp(option, "branch") != 0) {
        return false;
    }
    std::ifstream file(static_cast<const char*>(context));
    for (std::string name, text; file >> name && std::getline(file >> std::ws, text);) {
        sink.add(name.c_str(), text.c_str());
    }
    return true;
}

} // namespace

int main(int argc, char** argv) {
    tarv::IParser* parser = nullptr;
    tarv::IParseResult* result = nullptr;
    if (tarv::createParser(&parser, tarv::flagRejectUnknown) != tarv::parseOk) {
        return 1;
    }
    declare(*parser);
    char branches[] = "branches";
    if (tarv::answerCompletion(parser, argc, argv, offerBranches, branches)) {
        parser->destroy();
        return 0;
    }
    parser->createResult(&result);
    const int status = parser->parseArgsVector(argc, argv, result);
    if (status == tarv::parseOk) {
        const char* branch = tarv::getLastValue(result, "branch").text;
        std::printf("checking out '%s'\n", branch != nullptr ? branch : "");
    } else {
        std::fprintf(stderr, "own_values: %s\n", parser->getErrorDesc());
    }
    result->destroy();
    parser->destroy();
    return status;
}
