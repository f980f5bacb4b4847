#include <tarv_3_3/tarv.h>

#include <cstdio>
#include <string>

namespace tarv = tarv_3_3;

namespace {

/// Keeps what was wrong, in the words of this program.
class Complaints final : private tarv::EventHandler {
public:
    void addTo(tarv::IParser& parser) { parser.addHandler(this); }
    void removeFrom(tarv::IParser& parser) { parser.removeHandler(this); }

    const std::string& text() const { return m_text; }

private:
    bool onValueParse(const char* name, const tarv::Value& value) override {
        if (std::string(name) == "copies" && value.value.get<int>() < 1) {
            m_text = std::string("cannot print ") + value.text + " copies; ask for one or more";
            return false;
        }
        return true;
    }

    /// The parser drops the argument; `text` tells the host that there was one.
    bool onUknownArgument(const char* argument) override {
        m_text = std::string("what is ") + argument + "?";
        return false;
    }

    std::string m_text;
};

} // namespace

int main(int argc, char** argv) {
    tarv::IParser* parser = nullptr;
    if (tarv::createParser(&parser, tarv::flagRejectUnknown) != tarv::parseOk) {
        return 1;
    }
    parser->option("copies,c", "How many copies to print.", tarv::vtInt32).defaultValue(1);
    Complaints complaints;
    complaints.addTo(*parser);
    tarv::IParseResult* result = nullptr;
    parser->createResult(&result);

    const int status = parser->parseArgsVector(argc, argv, result);
    int exitCode = 2;
    if (!complaints.text().empty()) {
        std::fprintf(stderr, "own_wording: %s\n", complaints.text().c_str());
    } else if (status != tarv::parseOk) {
        std::fprintf(stderr, "own_wording: bad command line (%s)\n", parser->getErrorDesc());
    } else {
        std::printf("%d copies\n", tarv::getLastValue(result, "copies").value.get<int>());
        exitCode = 0;
    }
    result->destroy();
    complaints.removeFrom(*parser);
    parser->destroy();
    return exitCode;
}
