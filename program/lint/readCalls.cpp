#include <algorithm>

#include <nlohmann/json.hpp>

#include "lint/Call.h"
#include "model/CommandLine.h"

namespace tarv_program {

namespace {

using Json = nlohmann::json;

[[noreturn]] void refuse() {
    throw Failure("shfmt answers with something else than a syntax tree");
}

std::string typeOf(const Json& node) {
    const auto type = node.is_object() ? node.find("Type") : node.end();
    return node.is_object() && type != node.end() && type->is_string() ? type->get<std::string>() : "";
}

std::size_t numberIn(const Json& node, const char* place, const char* member) {
    const auto found = node.find(place);
    if (found == node.end() || !found->is_object() || !found->contains(member) ||
        !(*found)[member].is_number_unsigned()) {
        refuse();
    }
    return (*found)[member].get<std::size_t>();
}

std::string valueOf(const Json& node) {
    const auto value = node.find("Value");
    // An empty text is left out.
    if (value == node.end()) {
        return "";
    }
    if (!value->is_string()) {
        refuse();
    }
    return value->get<std::string>();
}

const Json& listIn(const Json& node, const char* member) {
    static const Json empty = Json::array();
    const auto list = node.find(member);
    if (list == node.end() || list->is_null()) {
        return empty;
    }
    if (!list->is_array()) {
        refuse();
    }
    return *list;
}

/// Puts a word together of its parts.
class WordReader {
public:
    explicit WordReader(const std::string& script) : m_script(script) {}

    Word read(const Json& node) {
        if (!node.is_object()) {
            refuse();
        }
        m_word.offset = numberIn(node, "Pos", "Offset");
        m_word.line = numberIn(node, "Pos", "Line");
        m_word.column = numberIn(node, "Pos", "Col");
        for (const Json& part : listIn(node, "Parts")) {
            addPart(part);
        }
        hideUnknownName();
        return m_word;
    }

private:
    void addPart(const Json& part) {
        const std::string type = typeOf(part);
        if (type == "Lit") {
            addLiteral(valueOf(part), numberIn(part, "ValuePos", "Offset"), false);
        } else if (type == "SglQuoted") {
            const bool hasDollar = part.contains("Dollar") && part["Dollar"] == true;
            if (hasDollar && valueOf(part).find('\\') != std::string::npos) {
                addUnknown();
            } else {
                addBytes(valueOf(part), numberIn(part, "Left", "Offset") + (hasDollar ? 2 : 1));
            }
        } else if (type == "DblQuoted") {
            for (const Json& inner : listIn(part, "Parts")) {
                if (typeOf(inner) == "Lit") {
                    addLiteral(valueOf(inner), numberIn(inner, "ValuePos", "Offset"), true);
                } else {
                    addUnknown();
                }
            }
        } else {
            addUnknown();
        }
    }

    // What stands in the script, backslashes included, is what shfmt calls a literal, but for line ends that
    // a backslash takes out.
    void addLiteral(const std::string& source, std::size_t offset, bool isQuoted) {
        if (m_script.compare(std::min(offset, m_script.size()), source.size(), source) != 0) {
            addUnknownOffsets(source);
            return;
        }
        for (std::size_t i = 0; i < source.size(); ++i) {
            const bool isEscape =
                source[i] == '\\' && i + 1 < source.size() &&
                (!isQuoted || std::string("$`\"\\").find(source[i + 1]) != std::string::npos);
            i += isEscape ? 1 : 0;
            add(source[i], offset + i);
        }
    }

    void addBytes(const std::string& bytes, std::size_t offset) {
        if (m_script.compare(std::min(offset, m_script.size()), bytes.size(), bytes) != 0) {
            addUnknownOffsets(bytes);
            return;
        }
        for (std::size_t i = 0; i < bytes.size(); ++i) {
            add(bytes[i], offset + i);
        }
    }

    // Known text that cannot be mended, since nobody says where its bytes stand.
    void addUnknownOffsets(const std::string& text) {
        for (const char byte : text) {
            add(byte, Word::none);
        }
    }

    void addUnknown() {
        m_word.firstUnknown = std::min(m_word.firstUnknown, m_word.text.size());
        add('x', Word::none);
    }

    void add(char byte, std::size_t offset) {
        m_word.text += byte;
        m_word.offsets.push_back(offset);
    }

    // An option whose name is not known may be any; nothing can be said of it.
    void hideUnknownName() {
        const bool isKnown = m_word.firstUnknown == Word::none || m_word.text.front() != '-' ||
                             m_word.text.find('=') < m_word.firstUnknown;
        if (!isKnown) {
            m_word.text = "x";
            m_word.offsets = {Word::none};
            m_word.firstUnknown = 0;
        }
    }

    const std::string& m_script;
    Word m_word;
};

} // namespace

bool Word::isContiguous(std::size_t begin, std::size_t end) const {
    for (std::size_t i = begin; i < end; ++i) {
        if (i >= offsets.size() || offsets[i] == none || offsets[i] != offsets[begin] + (i - begin)) {
            return false;
        }
    }
    return begin < end;
}

std::vector<Call> readCalls(const std::string& tree, const std::string& script) {
    const Json root = Json::parse(tree, nullptr, false);
    if (root.is_discarded() || typeOf(root) != "File") {
        refuse();
    }
    std::vector<Call> calls;
    // Not by recursion: whoever wrote the script decides how deep the tree is.
    std::vector<const Json*> left = {&root};
    while (!left.empty()) {
        const Json& node = *left.back();
        left.pop_back();
        if (typeOf(node) == "CallExpr") {
            Call call;
            for (const Json& word : listIn(node, "Args")) {
                call.push_back(WordReader(script).read(word));
            }
            if (!call.empty()) {
                calls.push_back(call);
            }
        }
        if (node.is_structured()) {
            for (const Json& child : node) {
                left.push_back(&child);
            }
        }
    }
    std::sort(calls.begin(), calls.end(),
              [](const Call& one, const Call& other) { return one.front().offset < other.front().offset; });
    return calls;
}

} // namespace tarv_program
