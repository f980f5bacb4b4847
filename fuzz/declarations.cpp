#include "Input.h"
#include "oracles.h"

using namespace tarv_3_3;

namespace {

constexpr das_variant_type_t kinds[] = {vtBool,   vtInt32,  vtUInt32, vtInt64,
                                        vtUInt64, vtDouble, vtString, vtNull};

das_variant_type_t kindOf(unsigned char byte) {
    return kinds[byte % 8];
}

// A value of the declared kind: what the text says, or nothing when it says none.
void refine(IOption& option, das_variant_type_t kind, char builder, const std::string& text) {
    const variant_t value = extracted(text, kind);
    switch (builder) {
    case 's':
        option.synonym(text.c_str());
        break;
    case 't':
        option.tag(text.c_str());
        break;
    case 'k':
        option.tokenize(text.empty() ? '\0' : text.front());
        break;
    case 'p':
        option.positional();
        break;
    case 'd':
        if (value.type() == kind && kind != vtNull) {
            option.defaultValue(value);
        }
        break;
    case 'v':
        if (value.type() == kind && kind != vtNull) {
            option.allowValue(value);
        }
        break;
    default:
        break;
    }
}

bool isDeclared(IParser& parser, const std::string& name) {
    return parser.isOptionDeclared(name.c_str(), false, nullptr) ||
           parser.isOptionDeclared(name.c_str(), true, nullptr);
}

// Help in all its forms: texts that end with their last line, and the same when asked again. Names
// that end in a comma have a zero byte for their last one, which also ends the help text.
void askForHelp(IParser& parser, const std::vector<std::string>& names, bool haveZeroByte) {
    for (const bool hidden : {false, true}) {
        const std::string all = parser.getDescription(hidden);
        require(haveZeroByte || all.empty() || all.back() == '\n', "help ends inside a line", all);
        require(all == parser.getDescription(nullptr, hidden), "two helps differ", all);
        parser.getGlobalModifiersDescription(hidden);
        for (const std::string& name : names) {
            parser.getDescription(name.c_str(), hidden);
            parser.getActionModifiersDescription(name.c_str(), hidden);
        }
    }
}

} // namespace

/// Declarations and arguments both from the input. The first byte holds the flags. Then, one a line:
/// `o`, `a` or `m`, a byte for the kind, and names, topic, description and tags, separated by tabs,
/// declare; `s`, `t`, `k`, `p`, `d` or `v` and a text refine what was declared last; any other line
/// ends the declarations, and the arguments follow.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    Input input(bytes, size);
    Parse parse(input.byte() & 0x3e);
    std::vector<std::string> allNames;
    IOption* last = nullptr;
    das_variant_type_t kind = vtNull;
    bool haveZeroByte = false;
    for (std::string line = input.until('\n'); !line.empty() && allNames.size() < 100;
         line = input.until('\n')) {
        Input fields(reinterpret_cast<const std::uint8_t*>(line.data()), line.size());
        const char what = static_cast<char>(fields.byte());
        if (std::string("oam").find(what) == std::string::npos) {
            if (last != nullptr && std::string("stkpdv").find(what) != std::string::npos) {
                const std::string text = fields.until('\n').c_str();
                parse.hasDefaultDouble = parse.hasDefaultDouble || (what == 'd' && kind == vtDouble);
                refine(*last, kind, what, text);
                continue;
            }
            break;
        }
        kind = kindOf(fields.byte());
        const std::string names = fields.until('\t').c_str();
        const std::string topic = fields.until('\t').c_str();
        const std::string description = fields.until('\t').c_str();
        const std::string tags = fields.until('\t').c_str();
        haveZeroByte = haveZeroByte || (!names.empty() && names.back() == ',');
        const bool isTaken =
            !names.empty() && names.find(',') == std::string::npos && isDeclared(*parse.parser, names);
        last = what == 'o'   ? &parse.parser->option(names.c_str(), description.c_str(), kind, topic.c_str())
               : what == 'a' ? &parse.parser->action(names.c_str(), description.c_str(), kind, topic.c_str())
                             : &parse.parser->modifier(names.c_str(), tags.c_str(), description.c_str(), kind,
                                                       topic.c_str());
        require(last->m_status == declarationStored || last->m_status == declarationRefused,
                "status of IOption");
        if (names.empty()) {
            parse.hasNamelessOption = true;
        }
        require(!isTaken || last->m_status == declarationRefused, "a taken name was declared again", names);
        const std::string name = names.substr(0, names.find(','));
        if (last->m_status == declarationStored && !name.empty()) {
            require(parse.parser->isOptionDeclared(name.c_str(), what == 'a', nullptr),
                    "declared, but not found", name);
            allNames.push_back(name);
        }
    }
    requireSameTwice(parse, input.arguments(), allNames);
    askForHelp(*parse.parser, allNames, haveZeroByte);
    return 0;
}
