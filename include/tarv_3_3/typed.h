#pragma once

#include <new>

#include "tarv_3_3/internal/typedEngine.h"
#include "tarv_3_3/internal/typedRefinements.h"
#include "tarv_3_3/internal/typedValues.h"

/// Command lines declared with the types of C++. Start here.
///
///     namespace tarv = tarv_3_3::typed;
///
///     int main(int argc, char** argv) {
///         tarv::Program tool("pack", "1.0", "Packs files.");
///         auto level = tool.option("level,l", "How hard to try.", 2).range(0, 9);
///         auto files = tool.positional<std::vector<std::string>>("file", "What to pack.").required();
///         return tool.run(argc, argv, [=] { return pack(*files, *level); });
///     }
///
/// Types: `bool`; every integer, `char` (one byte of text), `float` and `double`; enumerations; texts
/// (whatever is made of a `const char*`: `std::string`, `std::string_view`, `std::filesystem::path`;
/// a literal as default makes it a `Text`); `Size`; durations of `std::chrono`; a type of the host's beside
/// which a `bool fromText(const char*, T&)` is found; a `std::optional` of these; every container of these
/// with `push_back` or `insert`. Nothing else compiles. This header includes no header of these types. A
/// container that has `data()` as well is made with the number of its elements, like a vector, and the
/// elements are then assigned.
///
/// A `bool fromText(const char*, T&, const char*& must)` says as well what a text must be that it refuses, as
/// in "must be two numbers": it makes `must` "two numbers", a text that lives until the next call, or leaves
/// it null. It is taken where both are found.
///
/// Names are without dashes, the whole one first, separated by commas: "max-count,n". Every text is
/// copied. Mistakes in declarations are found at the first parse, before the command line is looked at:
/// see `Program::problems`. Without memory a declaration yields a handle that holds a `T()`, and the
/// parse ends with exit code 2.
///
/// Nothing here throws by itself. What conversions, checks, completers and bodies of the host throw
/// reaches the caller of `run` or `parse`; the program may be used again. A program belongs to one thread
/// at a time.
namespace tarv_3_3::typed {

inline namespace v1 {

class Command;

/// Where a value comes from, the weakest first.
enum class Source { initial, file, environment, commandLine };

/// Takes what a completer offers.
class Candidates {
public:
    /// Offers a value, if it begins with the word asked for; both texts are copied.
    void add(const char* value, const char* description = "") const {
        engine::offer(m_taking, value, description);
    }

    /// @cond
    explicit Candidates(engine::Taking* taking) : m_taking(taking) {}

private:
    engine::Taking* m_taking;
    /// @endcond
};

/// An option that was declared: reads its value, and refines it as long as nothing was parsed. A pointer,
/// good as long as the program; a default-constructed one holds a `T()` that nobody gives.
///
/// Refinements return the handle, so that they chain.
template <class T>
class Handle {
public:
    /// What a list or an optional holds; else the type itself.
    using Element = typename values::ElementOf<T>::Type;

    /// One that holds a `T()`.
    Handle() = default;

    ///@{
    /// The value: the last one given, all elements of a list, or the initial one. What is given to a list
    /// takes the place of its initial elements. Nothing is taken behind the first mistake on the command
    /// line; a list that was filled in part then holds its initial elements again.
    const T& operator*() const {
        return m_state != nullptr ? *static_cast<const T*>(m_state->target) : nothing();
    }
    const T* operator->() const { return &**this; }
    ///@}

    /// Whether somebody gave it: the command line, the environment or a settings file. A switch that was
    /// turned off is given as well, but counts as not given in every rule.
    bool given() const { return m_state != nullptr && m_state->given != 0; }
    /// How often it was given by the source that counts.
    int count() const { return m_state != nullptr ? m_state->count : 0; }
    /// Who gave it.
    Source source() const {
        return m_state != nullptr ? static_cast<Source>(m_state->source) : Source::initial;
    }
    ///@{
    /// The index in `argv` of the last occurrence, or of the one with that number, from 0 on. -1 when
    /// there is none, or when it is not from the command line.
    int position() const { return position(count() - 1); }
    int position(int occurrence) const {
        return 0 <= occurrence && occurrence < count() ? m_state->positions[occurrence] : -1;
    }
    ///@}

    /// What a value of the enumeration is called on the command line, where it may be another value than the
    /// option's; "" for one without a name. The text lives as long as the program.
    const char* nameOf(const Element& value) const {
        static_assert(__is_enum(Element) && !values::isForeign<Element>,
                      "tarv: nameOf() is for enumerations");
        return engine::choiceName(option(), values::placeOf(value));
    }

    /// It must be given, and cannot have a default.
    Handle required() const { return refine(engine::refineRequired); }

#if defined(__clang__)
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wgcc-compat"
#endif
    /// Numbers, sizes and durations from `low` to `high`, both included; each element of a list.
    template <class Low, class High>
    [[gnu::always_inline]] Handle range(Low low, High high) const
        TARV_REFUSE_BOUNDS_IF((values::areOutside<Element>(low, high))) {
        static_assert(values::isNumber<Element>, "tarv: range() is for numbers, sizes and durations");
        values::setRange<Element>(option(), low, high);
        return *this;
    }
#if defined(__clang__)
#pragma clang diagnostic pop
#endif

    /// Only these values, which shells offer. Of a text, a beginning that fits only one stands for it on the
    /// command line.
    template <class... Choices>
    Handle oneOf(const Choices&... choices) const {
        static_assert(values::isText<Element> || values::isArithmetic<Element>,
                      "tarv: oneOf() is for texts and numbers");
        (values::addChoice<Element>(option(), choices), ...);
        return *this;
    }

    /// Refuses other values with "must be" and `must`, as in `check("even", isEven)`. `accepts` is given each
    /// element, and returns a bool; it is called while the command line is parsed.
    template <class F>
    Handle check(const char* must, F accepts) const {
        static_assert(values::isCallable<bool, const F&, void(const Element&)>,
                      "tarv: a check takes the type of the option's elements, and returns a bool");
        values::addCheck<Element>(m_state, must, accepts);
        return *this;
    }

    /// An environment variable that it is read from when the command line does not give it. An empty
    /// variable counts as unset; a switch reads 1, true, yes, on or their contraries, a counter a number.
    /// Of a positional list it is one argument.
    Handle env(const char* variable) const {
        return refine(engine::refineEnvironment, variable);
    }
    /// The heading in help under which it stands.
    Handle topic(const char* title) const {
        return refine(engine::refineTopic, title);
    }
    /// Left out of help, suggestions and, unless its name is begun, of completion.
    Handle hidden() const {
        return refine(engine::refineHidden);
    }
    /// What separates the elements of an option's list, ',' at first; '\0' for nothing. A positional list
    /// has each argument as one element.
    Handle separator(char character) const {
        static_assert(values::isList<T>, "tarv: separator() is for lists");
        const char text[] = {character, '\0'};
        return refine(engine::refineSeparator, text);
    }
    /// Takes an empty text as its value, which is refused otherwise.
    Handle mayBeEmpty() const {
        static_assert(values::isText<Element>, "tarv: mayBeEmpty() is for texts");
        return refine(engine::refineMayBeEmpty);
    }
    /// Where this one is given, that one must be given, too.
    template <class U>
    Handle needs(Handle<U> other) const {
        engine::addNeed(option(), other.option());
        return *this;
    }
    /// Goes with these actions, and with no others.
    template <class... Actions>
    Handle goesWith(Handle<Actions>... actions) const {
        (engine::addAction(option(), actions.option()), ...);
        return *this;
    }
    /// Whoever gives it reads on standard error what to use instead; "" for nothing.
    Handle deprecated(const char* instead) const {
        return refine(engine::refineDeprecated, instead);
    }
    /// What help calls the value, as "FILE".
    Handle value(const char* name) const {
        return refine(engine::refineValueName, name);
    }
    /// What shells complete: "file", "directory" or "none".
    Handle completeAs(const char* what) const {
        return refine(engine::refineCompleteAs, what);
    }
    /// Offers the values that `completer` adds: a `void(const char* word, Candidates&)`, of which the
    /// word is what was typed of the value so far. It is called when a shell asks.
    template <class F>
    Handle completeWith(F completer) const {
        static_assert(values::isCallable<void, const F&, void(const char*, Candidates&)>,
                      "tarv: a completer takes a const char* and a Candidates&");
        values::setCompleter<Candidates>(m_state, completer);
        return *this;
    }
    /// How many arguments a positional list takes; `most` 0 for any number.
    Handle times(unsigned least, unsigned most = 0) const {
        static_assert(values::isList<T>, "tarv: times() is for lists");
        engine::setTimes(option(), least, most);
        return *this;
    }

    /// @cond
    explicit Handle(engine::State* state) : m_state(state) {}
    engine::Option* option() const {
        return m_state != nullptr ? m_state->option : nullptr;
    }

private:
    Handle refine(int refinement, const char* text = "") const {
        engine::refine(option(), refinement, text);
        return *this;
    }
    static const T& nothing() {
        static const T value{};
        return value;
    }

    engine::State* m_state = nullptr;
    /// @endcond
};

/// What a program, or one of its verbs, takes and does. Never copied: hold a verb by reference, which is
/// good as long as the program.
class Command {
public:
    /// @cond
    // Cannot be called. Unlike a deleted one, it says what to do instead.
    __attribute__((unavailable("tarv: hold a verb by reference, as in auto& log = program.verb(...)")))
    Command(const Command&)
        : m_record(nullptr) {}
    /// @endcond
    Command& operator=(const Command&) = delete;

    /// An option without a default: it holds a `T()` until it is given. A `bool` makes a switch.
    template <class T>
    Handle<T> option(const char* names, const char* description) {
        return add<T>(engine::roleOption, names, description);
    }
    /// An option with a default, which is of its type.
    template <class T, class Held = values::HeldFor<T>>
    Handle<Held> option(const char* names, const char* description, T initial) {
        return addWithDefault<Held>(engine::roleOption, names, description, Held(static_cast<T&&>(initial)));
    }
    // Templates, as all that names a type: a host compiles only what it uses.
    /// A switch, which is turned off by "no-" in front of its name.
    template <class T = bool>
    Handle<T> flag(const char* names, const char* description) {
        return add<T>(engine::roleOption, names, description);
    }
    /// Counts how often it is given: "-vvv" is three times.
    template <class T = int>
    Handle<T> counter(const char* names, const char* description) {
        return Handle<T>(engine::addPlain(m_record, engine::roleOption, names, description,
                                          &values::shapeForCounter<T>, nullptr, nullptr));
    }
    /// An option whose values go into `variable`. What it holds now is what it holds again at the beginning
    /// of every parse. It lives at every parse, and when the handle is read; the destructor of the program
    /// does not touch it.
    template <class T>
    Handle<T> bind(const char* names, T& variable, const char* description) {
        return addBound<T>(engine::roleOption, names, description, variable);
    }
    /// The same for an argument without a name.
    template <class T>
    Handle<T> bindPositional(const char* name, T& variable, const char* description) {
        return addBound<T>(engine::rolePositional, name, description, variable);
    }
    ///@{
    /// An argument without a name. Several are filled in their order, required ones first; one of them
    /// may be a list, which takes what the others leave: "cp SOURCE... DEST".
    template <class T>
    Handle<T> positional(const char* name, const char* description) {
        return add<T>(engine::rolePositional, name, description);
    }
    template <class T, class Held = values::HeldFor<T>>
    Handle<Held> positional(const char* name, const char* description, T initial) {
        return addWithDefault<Held>(engine::rolePositional, name, description,
                                    Held(static_cast<T&&>(initial)));
    }
    ///@}
    /// Everything from the first argument without a name on, whatever it looks like: for programs that
    /// run others.
    template <class T>
    Handle<T> rest(const char* name, const char* description) {
        static_assert(values::isList<T>, "tarv: rest() is for lists");
        return add<T>(engine::roleRest, name, description);
    }
    /// One of several things that the command does, of which a command line names one: "tar --list". A
    /// program has actions or verbs, not both.
    template <class T = bool>
    Handle<T> action(const char* names, const char* description) {
        return add<T>(engine::roleAction, names, description);
    }

    /// A verb, as "log" of "vcs log": the first argument without a name, which may be cut short. It has
    /// options of its own, and all of those above it, which may stand in front of it as well. A command
    /// with verbs has no arguments without a name.
    Command& verb(const char* names, const char* description) {
        engine::Command* const record = engine::addVerb(m_record, names, description);
        return record != nullptr ? *new (engine::faceOf(record)) Command(record) : nothing();
    }

    /// What `Program::run` does when the command line names this command: returns the exit code, or
    /// nothing for 0. The body is kept: capture handles by value. Where one command has a body, every verb
    /// without verbs of its own has one.
    template <class F>
    Command& does(F body) {
        using Returned = decltype(values::given<F&>()());
        static_assert(values::isSame<Returned, void> || values::isSame<Returned, int>,
                      "tarv: a body returns an int, the exit code, or nothing");
        engine::setBody(m_record, values::makeBody(body));
        return *this;
    }

    ///@{
    /// Rules over several options of this command and of those above it. Where sources contradict each
    /// other the stronger one wins: what the command line excludes counts as not given when only the
    /// environment or a settings file gave it.
    template <class... T>
    Command& atMostOne(Handle<T>... options) {
        return rule(engine::atMostOne, options.option()...);
    }
    template <class... T>
    Command& atLeastOne(Handle<T>... options) {
        return rule(engine::atLeastOne, options.option()...);
    }
    template <class... T>
    Command& exactlyOne(Handle<T>... options) {
        return rule(engine::exactlyOne, options.option()...);
    }
    template <class... T>
    Command& allOrNone(Handle<T>... options) {
        return rule(engine::allOrNone, options.option()...);
    }
    ///@}

    /// @cond
protected:
    explicit Command(engine::Command* record) : m_record(record) {}
    ~Command() = default;

    engine::Command* m_record;

private:
    template <class T>
    [[gnu::cold]] Handle<T> add(int role, const char* names, const char* description) {
        if constexpr (values::isPlain<T>()) {
            return Handle<T>(addPlain<T>(role, names, description, nullptr, nullptr));
        } else {
            auto* const slot = new (std::nothrow) values::Slot<T>(values::shapeFor<T>);
            return Handle<T>(keep(role, names, description, slot, false));
        }
    }
    template <class T>
    [[gnu::cold]] Handle<T> addWithDefault(int role, const char* names, const char* description, T initial) {
        if constexpr (values::isPlain<T>()) {
            return Handle<T>(addPlain<T>(role, names, description, &initial, nullptr));
        } else {
            using Slot = values::InitialSlot<T>;
            auto* const slot = new (std::nothrow) Slot(values::shapeFor<T, Slot>, initial);
            return showDefault<T>(keep(role, names, description, slot, true));
        }
    }
    template <class T>
    [[gnu::cold]] Handle<T> addBound(int role, const char* names, const char* description, T& variable) {
        if constexpr (values::isPlain<T>()) {
            return Handle<T>(addPlain<T>(role, names, description, &variable, &variable));
        } else {
            using Slot = values::BoundSlot<T>;
            auto* const slot = new (std::nothrow) Slot(values::shapeFor<T, Slot>, variable);
            return showDefault<T>(keep(role, names, description, slot, false));
        }
    }
    template <class T>
    engine::State* addPlain(int role, const char* names, const char* description, const T* initial,
                            T* variable) {
        return engine::addPlain(m_record, role, names, description, &values::shapeFor<T>, initial, variable);
    }
    engine::State* keep(int role, const char* names, const char* description, engine::State* state,
                        bool isDefault) {
        return engine::addOption(m_record, role, names, description, state, isDefault ? 1 : 0) ? state
                                                                                               : nullptr;
    }
    template <class T>
    static Handle<T> showDefault(engine::State* state) {
        if (state != nullptr) {
            values::showDefault(state->option, static_cast<values::BoundSlot<T>*>(state)->initial);
        }
        return Handle<T>(state);
    }
    template <class... Options>
    Command& rule(int kind, Options... options) {
        engine::Option* const list[] = {options...};
        engine::addRule(m_record, kind, sizeof...(options), list);
        return *this;
    }
    static Command& nothing() {
        static Command command(static_cast<engine::Command*>(nullptr));
        return command;
    }
    /// @endcond
};

/// What became of a command line in a test. The texts belong to the program, until its next parse.
class Outcome {
public:
    /// Whether the program goes on: the command line was right, and asked for no help.
    bool goesOn() const { return m_result.isDone == 0; }
    /// What `run` would return; 0 when the program goes on.
    int exitCode() const { return m_result.exitCode; }
    ///@{
    /// What `run` would print in a pipe. Help is 80 columns wide, unless the variable COLUMNS says otherwise.
    const char* output() const { return m_result.output; }
    const char* errors() const { return m_result.errors; }
    ///@}

    /// @cond
    explicit Outcome(const engine::Result& result) : m_result(result) {}

private:
    engine::Result m_result;
    /// @endcond
};

/// A command line: what it may hold, what it held, and what is done then. It moves; handles and verbs
/// go with it.
///
/// Where nothing that was declared fits, "--help", "-h" and, with a version, "--version" are known by
/// themselves, also cut short, and with verbs "help VERB". They win over every mistake on the command line,
/// with one exception: "help WORD" is refused where WORD is no verb.
///
/// Requests of shells are answered, too: "tarvoption=completion=bash" and the others of
/// `tarv_3_3/completion.h`.
///
/// What surprises most is mended: a number with a minus is the value of an option that takes numbers; a
/// lone "-" is a value; "--title=" has an empty value; only lists are split at commas. Where arguments
/// without a name are numbers, "-5" is one of them unless an option has that name.
///
/// With "tarvoption=tarvlogenable=1" as the first argument, standard error says what each argument is. With
/// TARV_ABBREVIATIONS=warn or =error in the environment, names that are cut short are warned of or refused.
class Program : public Command {
public:
    /// The name is the one in messages. A null version is none.
    explicit Program(const char* name, const char* version = nullptr, const char* description = "")
        : Command(engine::createProgram(name, version, description)) {}
    ///@{
    /// The constructor takes the declarations over; the other one then ends every parse as without memory.
    /// The assignment exchanges the declarations of both.
    Program(Program&& other) noexcept : Command(other.m_record) { other.m_record = nullptr; }
    Program& operator=(Program&& other) noexcept {
        engine::Command* const record = m_record;
        m_record = other.m_record;
        other.m_record = record;
        return *this;
    }
    ///@}
    ~Program() { engine::destroy(m_record); }

    /// One dash means letters only, joined as in "-vl3" and "-in"; "-l=3" stays what it is.
    Program& joinLetters() {
        engine::setJoinLetters(m_record);
        return *this;
    }
    /// A file of settings. It may be missing, and is weaker than the environment. A line is an option or an
    /// action as on the command line, its dashes left out or not, by its whole name: "max-count=5"; one for a
    /// verb is "log.max-count=5". Lines that are blank or begin with '#' or ';' are comments. All lines are
    /// checked.
    Program& settingsFile(const char* path) {
        engine::setSettingsFile(m_record, path);
        return *this;
    }
    /// An option that names one more file of settings. That file must exist, and is stronger than the one of
    /// `settingsFile`.
    template <class T = Text>
    Handle<T> settingsOption(const char* names, const char* description) {
        static_assert(values::isText<T>, "tarv: the name of a settings file is a text or a path");
        Handle<T> made = option<T>(names, description).value("FILE").completeAs("file");
        engine::setSettingsOption(m_record, made.option());
        return made;
    }

    /// Parses, prints what there is to say, and does what the command line asks for. Returns the exit
    /// code: that of the body; 0 for help, 1 when it cannot be written; 2 for a wrong command line.
    int run(int argc, const char* const* argv) {
        const engine::Result* const result = drive(argc, argv, engine::purposeRun);
        const int exitCode = engine::print(m_record);
        return result->body == nullptr || result->isDone != 0 ? exitCode : result->body->call(result->body);
    }
    /// The same, with a body for the program itself.
    template <class F>
    int run(int argc, const char* const* argv, F body) {
        does(static_cast<F&&>(body));
        return run(argc, argv);
    }

    /// Parses and does nothing more: for tests of a host. Bodies do not run, nothing is printed.
    Outcome parse(int argc, const char* const* argv) {
        return Outcome(*drive(argc, argv, engine::purposeParse));
    }

    /// What is wrong with the declarations, a line each; "" when nothing is. The first parse tells the
    /// assertion handler of each line.
    const char* problems() { return engine::problems(m_record); }

    /// @cond
private:
    const engine::Result* drive(int argc, const char* const* argv, int purpose) {
        engine::begin(m_record, argc, argv, purpose);
        engine::Step step = {sizeof(engine::Step), 0, nullptr, nullptr, nullptr, 0, nullptr};
        for (bool accepted = true; engine::next(m_record, accepted, &step);) {
            accepted = values::perform(step);
        }
        return engine::result(m_record);
    }
    /// @endcond
};

} // namespace v1

} // namespace tarv_3_3::typed
