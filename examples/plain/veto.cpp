#include <tarv_3_3/tarv.h>

#include <cstdio>
#include <string>

namespace tarv = tarv_3_3;

namespace {

/// Accepts only ports that a program may open without privileges.
class PortRange final : private tarv::EventHandler {
public:
    void addTo(tarv::IParser& parser) { parser.addHandler(this); }
    void removeFrom(tarv::IParser& parser) { parser.removeHandler(this); }

private:
    bool onValueParse(const char* name, const tarv::Value& value) override {
        if (std::string(name) != "port") {
            return true;
        }
        const unsigned port = value.value.get<unsigned>();
        return 1024 <= port && port <= 65535;
    }
};

} // namespace

int main(int argc, char** argv) {
    tarv::IParser* parser = nullptr;
    if (tarv::createParser(&parser, tarv::flagRejectUnknown) != tarv::parseOk) {
        return 1;
    }
    parser->option("port,p", "The port to listen on, from 1024.", tarv::vtUInt32).tokenize(0);
    PortRange portRange;
    portRange.addTo(*parser);
    tarv::IParseResult* result = nullptr;
    parser->createResult(&result);

    const int status = parser->parseArgsVector(argc, argv, result);
    if (status == tarv::parseOk) {
        const tarv::Value port = tarv::getLastValue(result, "port");
        std::printf("listen on %s\n", port.status == tarv::valueFound ? port.text : "any port");
    } else {
        std::fprintf(stderr, "veto: %s\n", parser->getErrorDesc());
    }
    result->destroy();
    portRange.removeFrom(*parser);
    parser->destroy();
    return status;
}
