#pragma once

#include "tarv_3_3/export.h"

/// What the templates of `tarv_3_3/typed.h` ask of the library. Hosts use that header.
///
/// Nothing here throws, and every text is copied. A null command or option is what an exhausted memory
/// left behind: everything accepts it, and does nothing. The library calls no code of the host; where it
/// needs some, it answers with a `Step`, which the template takes in the host's own frame.
namespace tarv_3_3::typed::engine {

/// A program or a verb.
struct Command;
/// What was declared of an option.
struct Option;
/// The text that is being made a value.
struct Taking;

/// What values are made of.
enum Kind : int {
    kindSwitch = 0,
    kindCounter = 1,
    kindSigned = 2,
    kindUnsigned = 3,
    kindReal = 4,
    kindText = 5,
    kindByte = 6,
    kindChoice = 7,
    kindSize = 8,
    kindDuration = 9,
    /// A type of the host, which reads it itself.
    kindForeign = 10
};

/// How many values an option holds.
enum Holds : int { holdsOne = 0, holdsOptional = 1, holdsMany = 2 };

/// The rules over several options; the numbers of `RuleKind`.
enum Rule : int { atMostOne = 1, atLeastOne = 2, exactlyOne = 3, allOrNone = 4 };

enum Role : int { roleOption = 0, rolePositional = 1, roleRest = 2, roleAction = 3 };

/// What is done with a value that was read.
enum TakeMode : int { takeCheck = 0, takeFirst = 1, takeNext = 2 };

struct State;

/// What the library knows of a type. Fields are only ever added, at the end.
struct Shape {
    unsigned size;
    int kind;
    int holds;
    /// Of whole numbers.
    long long least;
    unsigned long long most;
    /// Of durations: seconds in a unit, as a fraction.
    long long periodNumerator;
    long long periodDenominator;
    unsigned isFloat;
    unsigned isPath;
    /// Of an enumeration: its values as the compiler spells them, or null; then `choiceAt` says the names
    /// one after the other, and null behind the last.
    const char* spelling;
    const char* (*choiceAt)(int place);
    ///@{
    /// The host's own code, for the templates; the library calls `destroy` alone.
    void (*restore)(State*);
    bool (*take)(State*, Taking*, const char* text, int mode);
    void (*destroy)(State*);
    ///@}
    /// The bytes of a value that the library makes and stores by itself, see `addPlain`; the host then has no
    /// code of its own for it. Else 0.
    unsigned valueSize;
};

/// Code of the host's that an option keeps: a check or a completer. The library ends it.
struct Owned {
    Owned* next;
    void (*destroy)(Owned*);
};

/// What a handle points to. The library writes all but the first fields.
struct State {
    const Shape* shape;
    /// Null when there was no memory for it.
    Option* option;
    /// The checks in their order, and the completer; null where there are none.
    Owned* checks;
    Owned* completer;
    int given;
    int count;
    int source;
    /// Of each occurrence, its index in `argv`, or -1.
    const int* positions;
    /// The value.
    void* target;
};

/// What a command runs.
struct Body {
    int (*call)(Body*);
    void (*destroy)(Body*);
};

enum StepKind : int { stepRestore = 0, stepTake = 1, stepComplete = 2, stepCheck = 3 };

/// What the host's code is needed for next. Fields are only ever added, at the end; the host says in
/// `size` how many it knows.
struct Step {
    unsigned size;
    int kind;
    State* state;
    Taking* taking;
    const char* text;
    int mode;
    /// What the checks are asked about.
    const void* value;
};

/// What became of a command line. The texts belong to the program, until the next parse.
struct Result {
    int isDone;
    int exitCode;
    const char* output;
    const char* errors;
    /// Null unless the program goes on and the command has one.
    Body* body;
};

enum Purpose : int { purposeParse = 0, purposeRun = 1 };

TARV_API Command* createProgram(const char* name, const char* version, const char* description) noexcept;
TARV_API void destroy(Command* program) noexcept;
TARV_API Command* addVerb(Command* parent, const char* names, const char* description) noexcept;
/// Room for a pointer, which lives as long as the command: what stands for it in the host.
TARV_API void* faceOf(Command* command) noexcept;
/// Takes `body` over, also where it cannot be kept; null stands for one that there was no memory for.
TARV_API void setBody(Command* command, Body* body) noexcept;
/// Takes `state` over, and ends it with `Shape::destroy`; false when it had to be ended at once. Null stands
/// for one that there was no memory for. `initialIsDefault` says whether a default was given, which is then
/// shown with `addDefault...`.
TARV_API bool addOption(Command* command, int role, const char* names, const char* description, State* state,
                        unsigned initialIsDefault) noexcept;
/// The same for a value that the library makes, with a shape that says its `valueSize`. `initial` is null for
/// none; `variable` is where the value goes, null for memory of the library's. Null when there is none left.
TARV_API State* addPlain(Command* command, int role, const char* names, const char* description,
                         const Shape* shape, const void* initial, void* variable) noexcept;
TARV_API void addRule(Command* command, int kind, unsigned count, Option* const* options) noexcept;
TARV_API void setJoinLetters(Command* program) noexcept;
TARV_API void setSettingsFile(Command* program, const char* path) noexcept;
TARV_API void setSettingsOption(Command* program, Option* option) noexcept;

///@{
/// One element of the initial value, as help shows it.
TARV_API void addDefaultSigned(Option* option, long long value) noexcept;
TARV_API void addDefaultUnsigned(Option* option, unsigned long long value) noexcept;
TARV_API void addDefaultReal(Option* option, double value) noexcept;
TARV_API void addDefaultText(Option* option, const char* text, unsigned long length) noexcept;
///@}

enum Refinement : int {
    refineRequired = 0,
    refineEnvironment = 1,
    refineTopic = 2,
    refineHidden = 3,
    refineSeparator = 4,
    refineMayBeEmpty = 5,
    refineDeprecated = 6,
    refineValueName = 7,
    refineCompleteAs = 8,
    refineChoice = 9
};

/// `text` is what the refinement says; "" where it says nothing more.
TARV_API void refine(Option* option, int refinement, const char* text) noexcept;
TARV_API void addChoiceSigned(Option* option, long long value) noexcept;
TARV_API void addChoiceReal(Option* option, double value) noexcept;
TARV_API void setTimes(Option* option, unsigned least, unsigned most) noexcept;
TARV_API void setRangeSigned(Option* option, long long low, long long high) noexcept;
TARV_API void setRangeUnsigned(Option* option, unsigned long long low, unsigned long long high) noexcept;
TARV_API void setRangeReal(Option* option, double low, double high) noexcept;
TARV_API void addNeed(Option* option, Option* other) noexcept;
TARV_API void addAction(Option* option, Option* action) noexcept;
/// The name of the choice at a place, which lives as long as the program; "" where there is none.
TARV_API const char* choiceName(const Option* option, int place) noexcept;
/// Keeps what a check asks for, and returns the copy.
TARV_API const char* addCheck(Option* option, const char* must) noexcept;
/// Notes that memory was exhausted while something was declared.
TARV_API void failMemory(Option* option) noexcept;

///@{
/// Reads a value. False, or null, when it is none, which is noted.
TARV_API bool readSwitch(Taking* taking, const char* text, bool* value) noexcept;
TARV_API bool readSigned(Taking* taking, const char* text, long long* value) noexcept;
TARV_API bool readUnsigned(Taking* taking, const char* text, unsigned long long* value) noexcept;
TARV_API bool readReal(Taking* taking, const char* text, double* value) noexcept;
TARV_API bool readChoice(Taking* taking, const char* text, int* place) noexcept;
/// `keep` asks for a copy that lives as long as the program.
TARV_API const char* readText(Taking* taking, const char* text, bool keep) noexcept;
///@}
/// The place of an element in its list, from 0 on, and how many the list takes in all.
TARV_API unsigned long placeOfElement(const Taking* taking, unsigned long* count) noexcept;
/// Notes that the value is refused, because it must be `must`; null when there is no more to say. False.
TARV_API bool refuse(Taking* taking, const char* must) noexcept;
TARV_API void offer(Taking* taking, const char* value, const char* description) noexcept;

/// Begins a parse; `next` then says what to do, until it returns false. `accepted` is what the last step
/// returned.
TARV_API void begin(Command* program, int argc, const char* const* argv, int purpose);
TARV_API bool next(Command* program, bool accepted, Step* step);
TARV_API const Result* result(Command* program);
/// Prints what there is to print, and returns the exit code.
TARV_API int print(Command* program);
/// What the programmer did wrong, a line each.
TARV_API const char* problems(Command* program);

} // namespace tarv_3_3::typed::engine
