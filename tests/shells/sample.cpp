// A program with completion whose answers are canned, for typing at in real shells. Run as itself, it
// prints its arguments in a form that no shell prints: "RAN:", each argument in hexadecimal digits behind
// a comma, and ";".

#include <cstdio>
#include <string>
#include <vector>

#include "completion/request.h"

namespace {

using Texts = std::vector<std::string>;

struct Option {
    std::string name;
    const char* description;
    Texts values;
    /// Between the values of a list; 0: there is one value.
    char separator;
    /// A `CompletionFiles`.
    int files;
};

const std::vector<Option> options = {
    {"--max-count=", "Stop behind so many.", {}, 0, 0},
    {"--max-depth=", "Go down so far.", {}, 0, 0},
    {"--min-size=", "Leave smaller ones out.", {}, 0, 0},
    {"--mode=", "How to go about it.", {"careful", "carefree", "fast"}, 0, 0},
    {"--title=", "What stands above.", {"my day", "my dog", "it's $HOME", "plain"}, 0, 0},
    {"--link=", "Where it lies.", {"ftp://mirror", "http://first", "http://second"}, 0, 0},
    {"--sizes=", "Which sizes.", {"8", "16", "1600", "32"}, ',', 0},
    {"--input=", "What to read.", {}, 0, tarv_3_3::completeFiles},
    {"--layers=", "What to put together.", {}, ',', tarv_3_3::completeFiles},
    {"--target=", "Where to write.", {}, 0, tarv_3_3::completeDirectories},
    {"--targets=", "Where to write copies.", {}, ',', tarv_3_3::completeDirectories},
    {"--verbose", "Say more.", {}, 0, 0},
};

bool beginsWith(const std::string& text, const std::string& start) {
    return text.compare(0, start.size(), start) == 0;
}

Texts wordsOf(const std::string& name) {
    Texts words(1);
    for (const char byte : name) {
        if (byte == '-') {
            words.emplace_back();
        } else {
            words.back() += byte;
        }
    }
    return words;
}

bool isAbbreviation(const std::string& typed, const std::string& name) {
    const Texts cut = wordsOf(typed);
    const Texts whole = wordsOf(name.substr(0, name.find('=')));
    for (std::size_t i = 0; i < cut.size(); ++i) {
        if (i >= whole.size() || !beginsWith(whole[i], cut[i])) {
            return false;
        }
    }
    return true;
}

class Sample final : public tarv_3_3::Answerer {
public:
    const tarv_3_3::Completion* complete(int count, const char* const* words) override {
        const std::string word = words[count - 1];
        const std::size_t equals = word.find('=');
        m_answer = {sizeof m_answer, sizeof(tarv_3_3::Candidate), 0, 0, 0, nullptr, nullptr};
        m_common = word;
        if (isBehindMarker(count, words)) {
            m_answer.files = tarv_3_3::completeFiles;
        } else if (const Option* const option = find(words[count - 2])) {
            offerValues(*option, word, 0);
        } else if (!beginsWith(word, "-")) {
            m_answer.files = tarv_3_3::completeFiles;
        } else if (equals == std::string::npos) {
            offerNames(word);
        } else if (const Option* const assigned = find(word.substr(0, equals))) {
            offerValues(*assigned, word, equals + 1);
        }
        return finish();
    }

    const char* describeAsJson() override { return "{}"; }

private:
    static bool isBehindMarker(int count, const char* const* words) {
        for (int i = 1; i + 1 < count; ++i) {
            if (std::string(words[i]) == "--") {
                return true;
            }
        }
        return false;
    }

    /// The first option of that name that takes a value.
    static const Option* find(const std::string& name) {
        for (const Option& option : options) {
            if (beginsWith(name, "--") && isAbbreviation(name, option.name) && option.name.back() == '=') {
                return &option;
            }
        }
        return nullptr;
    }

    void add(const std::string& text, const char* description) {
        m_texts.push_back(text);
        m_descriptions.push_back(description);
    }

    void offerNames(const std::string& word) {
        for (const Option& option : options) {
            if (isAbbreviation(word == "-" ? "--" : word, option.name)) {
                add(option.name, option.description);
            }
        }
        if (word == "--ma-") {
            m_common = "--max-";
        } else {
            lengthenCommon();
        }
    }

    void offerValues(const Option& option, const std::string& word, std::size_t offset) {
        const std::size_t comma = option.separator != 0 ? word.rfind(option.separator) : std::string::npos;
        const std::size_t start = comma == std::string::npos || comma < offset ? offset : comma + 1;
        m_answer.files = option.files;
        m_answer.fileOffset = option.files != 0 ? static_cast<unsigned>(start) : 0;
        for (const std::string& value : option.values) {
            if (beginsWith(value, word.substr(start))) {
                add(word.substr(0, start) + value, "");
            }
        }
        lengthenCommon();
    }

    void lengthenCommon() {
        if (m_texts.empty()) {
            return;
        }
        std::string shared = m_texts.front();
        for (const std::string& text : m_texts) {
            while (!beginsWith(text, shared)) {
                shared.pop_back();
            }
        }
        m_common = beginsWith(shared, m_common) ? shared : m_common;
    }

    const tarv_3_3::Completion* finish() {
        for (std::size_t i = 0; i < m_texts.size(); ++i) {
            m_candidates.push_back({m_texts[i].c_str(), m_descriptions[i]});
        }
        m_answer.candidateCount = static_cast<unsigned>(m_candidates.size());
        m_answer.candidates = m_candidates.data();
        m_answer.common = m_common.c_str();
        return &m_answer;
    }

    tarv_3_3::Completion m_answer;
    std::string m_common;
    Texts m_texts;
    std::vector<const char*> m_descriptions;
    std::vector<tarv_3_3::Candidate> m_candidates;
};

} // namespace

int main(int argc, char** argv) {
    Sample sample;
    if (tarv_3_3::answerRequest(argc, argv, sample)) {
        return 0;
    }
    std::printf("RAN:");
    for (int i = 1; i < argc; ++i) {
        std::printf(",");
        for (const char byte : std::string(argv[i])) {
            std::printf("%02x", static_cast<unsigned>(static_cast<unsigned char>(byte)));
        }
    }
    std::printf(";\n");
}
