/// argtable2. Every entry of the table is allocated for the greatest number of values it may have;
/// a list takes as many as the workload may give. It has no separator within a value: the host splits
/// lists.

#include "adapters/candidates.h"

#include <argtable2.h>

#include <cstdio>
#include <cstdlib>

namespace bench {

namespace {

class Argtable2 final : public Library {
public:
    ~Argtable2() override { arg_freetable(m_table.data(), m_table.size()); }

    void declare(const std::vector<Option>& options) override {
        for (const Option& option : options)
            m_table.push_back(make(option));
        m_table.push_back(arg_end(20));
        m_options = &options;
        setDefaults();
        if (arg_nullcheck(m_table.data()) != 0)
            fail("no memory");
    }

    void parse(int argc, char** argv) override {
        if (arg_parse(argc, argv, m_table.data()) != 0)
            fail("refused");
    }

    void read(const std::vector<Option>& options, Answer& answer) override {
        for (std::size_t i = 0; i < options.size(); ++i) {
            void* entry = m_table[i];
            const std::size_t slot = options[i].slot;
            switch (options[i].kind) {
            case Kind::Switch:
                answer.switches[slot] = static_cast<arg_lit*>(entry)->count > 0;
                break;
            case Kind::Integer: {
                const arg_int& found = *static_cast<arg_int*>(entry);
                answer.integers[slot] = found.count > 0 || options[i].hasDefault ? found.ival[0] : 0;
                break;
            }
            case Kind::Number: {
                const arg_dbl& found = *static_cast<arg_dbl*>(entry);
                answer.numbers[slot] = found.count > 0 || options[i].hasDefault ? found.dval[0] : 0;
                break;
            }
            case Kind::Text: {
                const arg_str& found = *static_cast<arg_str*>(entry);
                if (found.count > 0 || options[i].hasDefault)
                    answer.texts[slot] = found.sval[0];
                break;
            }
            case Kind::List: {
                const arg_str& found = *static_cast<arg_str*>(entry);
                for (int k = 0; k < found.count; ++k)
                    splitAtCommas(found.sval[k], answer.lists[slot]);
                break;
            }
            case Kind::Positional: {
                const arg_str& found = *static_cast<arg_str*>(entry);
                answer.lists[slot].assign(found.sval, found.sval + found.count);
                break;
            }
            }
        }
    }

    /// `arg_parse` resets the counts itself; defaults are what stands in the entries before it.
    void forget() override { setDefaults(); }

    std::string help() override {
        char* text = nullptr;
        std::size_t length = 0;
        std::FILE* const file = open_memstream(&text, &length);
        arg_print_glossary(file, m_table.data(), "  %-25s %s\n");
        std::fclose(file);
        const std::string help(text, length);
        std::free(text);
        return help;
    }

private:
    void setDefaults() {
        for (std::size_t i = 0; i < m_options->size(); ++i) {
            const Option& option = (*m_options)[i];
            if (!option.hasDefault)
                continue;
            if (option.kind == Kind::Integer)
                static_cast<arg_int*>(m_table[i])->ival[0] = defaultInteger;
            else if (option.kind == Kind::Number)
                static_cast<arg_dbl*>(m_table[i])->dval[0] = defaultNumber;
            else if (option.kind == Kind::Text)
                static_cast<arg_str*>(m_table[i])->sval[0] = defaultText;
        }
    }

    static void* make(const Option& option) {
        const char* letter = option.alias ? option.declared.c_str() : nullptr;
        const char* name = option.name.c_str();
        const char* text = option.description.c_str();
        const int atMost = static_cast<int>(option.atMost);
        switch (option.kind) {
        case Kind::Switch:
            return arg_lit0(letter, name, text);
        case Kind::Integer:
            return arg_int0(letter, name, "<number>", text);
        case Kind::Number:
            return arg_dbl0(letter, name, "<number>", text);
        case Kind::Text:
            return arg_str0(letter, name, "<text>", text);
        case Kind::List:
            return arg_strn(letter, name, "<text>", 0, atMost, text);
        default:
            return arg_strn(nullptr, nullptr, "<input>", 0, atMost, text);
        }
    }

    const std::vector<Option>* m_options = nullptr;
    std::vector<void*> m_table;
};

std::string aliasAlone(const Option& option) {
    return std::string(option.alias ? 1 : 0, option.alias);
}

} // namespace

const Candidate argtable2Candidate = {"argtable2", {}, aliasAlone, make<Argtable2>};

} // namespace bench
