#include "adapters/candidates.h"
#include "adapters/notation.h"

#include "tarv_3_3/tarv.h"

namespace bench {

namespace {

namespace tarv = tarv_3_3;

struct Destroy {
    template <class T>
    void operator()(T* object) const {
        object->destroy();
    }
};

class Tarv final : public Library {
public:
    void declare(const std::vector<Option>& options) override {
        // Unknown options are errors, as they are with the other libraries.
        const int flags = tarv::flagRejectUnknown | tarv::flagDashIsNotPositional | tarv::flagNoLists;
        tarv::IParser* parser = nullptr;
        if (tarv::createParser(&parser, flags) != tarv::parseOk)
            fail("no parser");
        m_parser.reset(parser);
        for (const Option& option : options) {
            tarv::IOption& declared =
                m_parser->option(option.declared.c_str(), option.description.c_str(), typeOf(option.kind));
            if (declared.m_status != tarv::declarationStored)
                fail("refused: " + option.declared);
            if (option.kind == Kind::List)
                declared.tokenize(',');
            else if (option.kind == Kind::Positional)
                declared.positional();
            if (option.hasDefault)
                declared.defaultValue(defaultOf(option.kind));
        }
    }

    void watch() override { m_parser->addHandler(&m_watcher); }

    void parse(int argc, char** argv) override {
        tarv::IParseResult* result = nullptr;
        m_parser->createResult(&result);
        m_result.reset(result);
        if (m_parser->parseArgsVector(argc, argv, result) != tarv::parseOk)
            fail(m_parser->getErrorDesc());
    }

    void read(const std::vector<Option>& options, Answer& answer) override {
        for (const Option& option : options) {
            const char* name = option.name.c_str();
            const tarv::Value found = m_result->get(name);
            if (found.status != tarv::valueFound) {
                if (option.isOnAtFirst)
                    answer.switches[option.slot] = true;
                continue;
            }
            switch (option.kind) {
            case Kind::Switch:
                answer.switches[option.slot] = found.value.get<bool>();
                break;
            case Kind::Integer:
                answer.integers[option.slot] = found.value.get<int32_t>();
                break;
            case Kind::Number:
                answer.numbers[option.slot] = found.value.get<double>();
                break;
            case Kind::Text:
                answer.texts[option.slot] = found.text;
                break;
            case Kind::List:
            case Kind::Positional:
                readList(name, found, answer.lists[option.slot]);
                break;
            }
        }
    }

    void forget() override { m_result.reset(); }

    std::string help() override { return m_parser->getDescription(); }

private:
    static tarv::das_variant_type_t typeOf(Kind kind) {
        switch (kind) {
        case Kind::Switch:
            return tarv::vtBool;
        case Kind::Integer:
            return tarv::vtInt32;
        case Kind::Number:
            return tarv::vtDouble;
        default:
            return tarv::vtString;
        }
    }

    static tarv::variant_t defaultOf(Kind kind) {
        switch (kind) {
        case Kind::Switch:
            return false;
        case Kind::Integer:
            return int32_t{defaultInteger};
        case Kind::Number:
            return defaultNumber;
        default:
            return defaultText;
        }
    }

    void readList(const char* name, tarv::Value value, std::vector<std::string_view>& list) {
        for (; value.text != nullptr; value = m_result->next(name))
            list.push_back(value.text);
    }

    /// Accepts everything, as the class that it derives from does.
    struct Watcher final : tarv::EventHandler {};

    Watcher m_watcher;
    std::unique_ptr<tarv::IParser, Destroy> m_parser;
    std::unique_ptr<tarv::IParseResult, Destroy> m_result;
};

} // namespace

const Candidate tarvCandidate = {
    "tarv", {}, nameAndAlias, make<Tarv>, takesBack | collects | helps | negates | abbreviates | watches};

} // namespace bench
