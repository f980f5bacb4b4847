#include <algorithm>
#include <exception>
#include <memory>
#include <string>

#include "completion/Admission.h"
#include "completion/KeptCompletion.h"
#include "completion/NameOffer.h"
#include "completion/ValueOffer.h"
#include "completion/request.h"
#include "description/declarationFacts.h"
#include "parser/BasicParser.h"
#include "parser/commandLine.h"
#include "reading/Reader.h"
#include "recognition/tokenSyntax.h"
#include "tarv_3_3/completion.h"
#include "tarv_3_3/description.h"

namespace tarv_3_3 {

namespace {

/// Looks at the words in front of the cursor, then offers what may stand there.
class Completer {
public:
    Completer(BasicParser& parser, const std::string& word, const HostValues& host)
        : m_parser(parser), m_word(word), m_host(host), m_reader(parser), m_admission(parser),
          m_kept(std::make_unique<KeptCompletion>(word)) {}

    std::unique_ptr<KeptCompletion> answer(const std::vector<std::string>& before) {
        for (std::size_t i = 0; i < before.size(); ++i) {
            const std::string& next = i + 1 < before.size() ? before[i + 1] : m_word;
            const ReadArgument read = m_reader.look(before[i], &next);
            m_reader.pass(read);
            m_admission.add(read);
            m_isRefused = read.source == ValueSource::nextLooksLikeOption;
        }
        m_admission.settle();
        offer();
        return std::move(m_kept);
    }

private:
    void offer() {
        const ReadArgument read = m_reader.look(m_word, nullptr);
        const bool isBehindMarker = read.role == ArgumentRole::plain;
        const bool canBeNamed =
            read.role != ArgumentRole::value && !isBehindMarker && !isRestPositional(read);
        if (m_isRefused) {
            return;
        }
        if (canBeNamed && dashLength(m_word) != 0) {
            offerNamed(read);
        } else if (read.index != ReadArgument::nowhere) {
            offerValues(read.index, 0);
        } else if (isBehindMarker) {
            m_kept->addFiles(completeFiles, 0);
        }
        const bool isNothingOffered = m_kept->candidateCount == 0 && m_kept->files == completeNoFiles;
        if (canBeNamed && m_word.empty() && isNothingOffered) {
            NameOffer(m_parser, m_reader, m_admission, m_word, read).addTo(*m_kept);
        }
    }

    // Whether all further arguments are positional, which even "--" is then.
    bool isRestPositional(const ReadArgument& read) {
        return read.role == ArgumentRole::positional &&
               m_reader.look(std::string(endMarkerText), nullptr).role == ArgumentRole::positional;
    }

    void offerNamed(const ReadArgument& read) {
        if (!read.token.hasValue) {
            NameOffer(m_parser, m_reader, m_admission, m_word, read).addTo(*m_kept);
        } else if (read.role == ArgumentRole::named) {
            const das_variant_type_t kind = m_parser.registry().m_options[read.index].m_type;
            if (kind != vtNull && kind != vtBool) {
                offerValues(read.index, read.token.valueStart);
            }
        }
    }

    void offerValues(std::size_t index, std::size_t offset) {
        if (m_admission.mayStand(index)) {
            ValueOffer(m_parser, m_reader, index, m_word, offset).addTo(*m_kept, m_host);
        }
    }

    BasicParser& m_parser;
    const std::string& m_word;
    const HostValues& m_host;
    Reader m_reader;
    Admission m_admission;
    std::unique_ptr<KeptCompletion> m_kept;
    /// Whether the argument before the cursor is refused, whatever the word at the cursor is.
    bool m_isRefused = false;
};

std::unique_ptr<KeptCompletion> completeOwn(BasicParser& parser, int count, const char* const* words,
                                            const HostValues& host) {
    const std::vector<std::string> before(words + 1, words + count - 1);
    const std::string word = words[count - 1];
    return Completer(parser, word, host).answer(before);
}

class ParserAnswerer final : public Answerer {
public:
    ParserAnswerer(IParser* parser, const HostValues& host) : m_parser(parser), m_host(host) {}

    const Completion* complete(int count, const char* const* words) override {
        m_completion.reset(tarv_3_3::complete(m_parser, count, words, m_host.complete, m_host.context));
        return m_completion.get();
    }

    const char* describeAsJson() override { return tarv_3_3::describeAsJson(m_parser); }

private:
    struct Release {
        void operator()(const Completion* completion) const { release(completion); }
    };

    IParser* m_parser;
    HostValues m_host;
    std::unique_ptr<const Completion, Release> m_completion;
};

} // namespace

const Completion* complete(IParser* parser, int count, const char* const* words, ValueCompleter completer,
                           void* context) {
    BasicParser* const own = internal::ownParser(parser);
    if (own == nullptr || count < 2 || words == nullptr ||
        std::find(words, words + count, nullptr) != words + count) {
        return nullptr;
    }
    try {
        return completeOwn(*own, count, words, {completer, context}).release();
    } catch (const std::exception&) {
        return nullptr;
    }
}

void release(const Completion* completion) {
    delete static_cast<const KeptCompletion*>(completion);
}

bool answerCompletion(IParser* parser, int argc, const char* const* argv, ValueCompleter completer,
                      void* context) {
    ParserAnswerer answerer(parser, {completer, context});
    return answerRequest(argc, argv, answerer);
}

} // namespace tarv_3_3
