#pragma once

#include <array>
#include <cstddef>
#include <string_view>
#include <vector>

#include "options/OptionDescription.h"
#include "platform/TextMap.h"
#include "tarv_3_3/export.h"
#include "tarv_3_3/variant.h"

namespace tarv_3_3 {

class Garbage;

/// How many names a declaration may have; synonyms do not count.
inline constexpr std::size_t maxNames = 3;

/// Everything that was declared on one parser, in declaration order, and the help topics in order
/// of first use. Declarations are only ever added, so a record's index in `m_options` identifies it
/// for the life of the parser; a reference to a record is good until the next declaration, or, while
/// the table is pinned, until it is released.
class TARV_API RegisteredOptionStorage {
public:
    RegisteredOptionStorage();
    RegisteredOptionStorage(const RegisteredOptionStorage&) = delete;
    RegisteredOptionStorage& operator=(const RegisteredOptionStorage&) = delete;
    ~RegisteredOptionStorage();

    /// Adds a declaration and returns it, or returns the placeholder when the names are refused:
    /// null, more than three, a third one longer than two bytes, or one that is taken already, which
    /// is also written to the trace. The topic is registered either way. Null tags are none; a null
    /// description or topic is empty.
    virtual IOption& option(const char* names, const char* tags, const char* description, bool isAction,
                            das_variant_type_t type, const char* topic);

    /// `option` for an action, which gets its own names as tags.
    virtual IOption& action(const char* names, const char* description, das_variant_type_t type,
                            const char* topic);

    /// `option` for an option that goes with the actions that `tags` names.
    virtual IOption& modifier(const char* names, const char* tags, const char* description,
                              das_variant_type_t type, const char* topic);

    /// Same result as `findOption` over the table, by a look-up in the index of names. Synonyms are found
    /// too, if they were added before the next declaration.
    int find(const internal::HashedText& name, unsigned long& index);

    /// Finds the record that `name` names whole, if there is just one: `name` is one of its names, or it is
    /// a switch and `name` is "no-" and one of its names. Returns false when there is none or more than one,
    /// and also where the index cannot rule out a second one.
    bool findOnly(const internal::HashedText& name, std::size_t& index);

    /// The index of the first record that has exactly the name `name`; the number of records when none has.
    /// A name that is there is looked up in the index, any other is compared with all names.
    TARV_HIDDEN std::size_t indexOfExactName(const internal::HashedText& name);

    /// While a pin exists, no record moves in memory, even if options are declared. A parse needs one, since
    /// its handlers may declare. Pins nest.
    class Pin {
    public:
        explicit Pin(RegisteredOptionStorage& storage);
        Pin(const Pin&) = delete;
        Pin& operator=(const Pin&) = delete;
        ~Pin();

    private:
        RegisteredOptionStorage& m_storage;
    };

    /// Memory of the lists of names, the descriptions and the indexes. First of the members, so it outlives
    /// them.
    internal::ArenaWithRoom<6144> m_memory;
    /// Whether an action was declared.
    bool m_hasActions = false;
    /// The list separator of new declarations.
    char m_defaultTokenizer = ',';
    std::vector<OptionDescription> m_options;
    std::vector<Topic> m_topics;
    /// Not owned: the parser's. Set before the first declaration.
    Garbage* m_garbage = nullptr;
    /// What a refused declaration yields.
    OptionDescription m_invalidOption;

private:
    /// The index of no record.
    static constexpr auto nowhere = static_cast<std::size_t>(-1);

    /// Which records have a name.
    struct Owners {
        /// The index of the first record that has it.
        std::size_t first = nowhere;
        /// The index of the first switch that has it, and so its "no-" form as well.
        std::size_t firstSwitch = nowhere;
        /// More than one record has the name, or one has it twice.
        bool isRepeated = false;
    };
    using Index = internal::TextMap<Owners>;
    using NameEntries = std::array<Index::Entry*, maxNames>;

    struct TopicIndex {
        std::size_t index = nowhere;
    };

    TARV_HIDDEN bool isTaken(const Names& names, NameEntries& entries);
    TARV_HIDDEN std::size_t indexOf(std::string_view name, const Owners& owners) const;
    TARV_HIDDEN void learnName(Owners& owners);
    TARV_HIDDEN bool hasNewSynonyms() const;
    TARV_HIDDEN void learnSynonyms();
    TARV_HIDDEN void makeRoom();
    TARV_HIDDEN const Topic& registerTopic(std::string_view topic);
    TARV_HIDDEN IOption& refuse();

    /// The index: every name of every record. Of the last record it has the first `m_learntNames` names,
    /// since the host may add synonyms to it until the next declaration.
    Index m_names;
    std::size_t m_learntNames = 0;
    /// The indexes of the topics in `m_topics`, by name.
    internal::TextMap<TopicIndex> m_topicNames;
    int m_pins = 0;
    /// Tables that a larger one has replaced while they were pinned.
    std::vector<std::vector<OptionDescription>> m_outgrown;
};

/// Whether a declaration may have these names: 0 yes, 1 no. At most three, a third one at most two
/// bytes long; nothing else is checked.
TARV_API int validateName(const Names& names);

} // namespace tarv_3_3
