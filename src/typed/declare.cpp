#include <algorithm>
#include <cstring>
#include <memory>

#include "typed/Work.h"
#include "typed/enumerators.h"
#include "typed/guarded.h"
#include "typed/messages.h"
#include "typed/plainValues.h"

namespace tarv_3_3::typed::engine {

namespace {

// The state goes with the option even where the option cannot be made.
struct StateOwner {
    ~StateOwner() {
        if (state != nullptr) {
            state->shape->destroy(state);
        }
    }
    State* state;
};

std::vector<std::string> choicesOf(const Shape& shape) {
    std::vector<std::string> choices;
    if (shape.spelling != nullptr) {
        return enumeratorNames(shape.spelling);
    }
    for (int place = 0; shape.choiceAt != nullptr && shape.choiceAt(place) != nullptr; ++place) {
        choices.emplace_back(shape.choiceAt(place));
    }
    return choices;
}

std::unique_ptr<Option> makeOption(Command& command, int role, const char* names, const char* description,
                                   const Shape& shape) {
    auto option = std::make_unique<Option>();
    option->owner = &command;
    option->role = role;
    option->names = namesOf(names);
    option->text = description != nullptr ? description : "";
    option->choices = choicesOf(shape);
    option->separator = role == roleOption && shape.holds == holdsMany ? ',' : '\0';
    option->most = shape.holds == holdsMany ? 0 : 1;
    option->completeAs = shape.isPath != 0 ? "file" : "";
    return option;
}

// What grows by a constant moves its elements again and again.
void makeRoomForOne(std::vector<std::unique_ptr<Option>>& options) {
    if (options.size() == options.capacity()) {
        options.reserve(std::max<std::size_t>(2 * options.size(), 16));
    }
}

} // namespace

Command* createProgram(const char* name, const char* version, const char* description) noexcept {
    try {
        auto program = std::make_unique<Command>(nullptr, "", description);
        program->names.front() = name != nullptr ? name : "";
        program->hasVersion = version != nullptr;
        program->version = version != nullptr ? version : "";
        program->outOfMemory = program->name() + ": " + messages::outOfMemory + "\n";
        return program.release();
    } catch (const std::exception&) {
        return nullptr;
    }
}

void destroy(Command* program) noexcept {
    delete program;
}

Command* addVerb(Command* parent, const char* names, const char* description) noexcept {
    Command* added = nullptr;
    guarded(parent, [&] {
        parent->verbs.push_back(std::make_unique<Command>(parent, names, description));
        added = parent->verbs.back().get();
    });
    return added;
}

void* faceOf(Command* command) noexcept {
    return &command->face;
}

void setBody(Command* command, Body* body) noexcept {
    if (command == nullptr) {
        if (body != nullptr) {
            body->destroy(body);
        }
        return;
    }
    if (command->body != nullptr) {
        command->body->destroy(command->body);
    }
    command->body = body;
    if (body == nullptr) {
        command->program().isOutOfMemory = true;
    }
}

bool addOption(Command* command, int role, const char* names, const char* description, State* state,
               unsigned initialIsDefault) noexcept {
    if (state == nullptr) {
        if (command != nullptr) {
            command->program().isOutOfMemory = true;
        }
        return false;
    }
    StateOwner owner{state};
    guarded(command, [&] {
        makeRoomForOne(command->options);
        std::unique_ptr<Option> option = makeOption(*command, role, names, description, *state->shape);
        option->hasDefault = initialIsDefault != 0;
        option->state = owner.state;
        owner.state->option = option.get();
        owner.state = nullptr;
        command->options.push_back(std::move(option));
    });
    return owner.state == nullptr;
}

State* addPlain(Command* command, int role, const char* names, const char* description, const Shape* shape,
                const void* initial, void* variable) noexcept {
    State* added = nullptr;
    guarded(command, [&] {
        makeRoomForOne(command->options);
        std::unique_ptr<Option> option = makeOption(*command, role, names, description, *shape);
        option->hasDefault = initial != nullptr && variable == nullptr;
        option->state = &option->plainState;
        option->state->shape = shape;
        option->state->option = option.get();
        option->state->target = variable != nullptr ? variable : option->own.bytes;
        if (initial != nullptr) {
            std::memcpy(option->initial.bytes, initial, shape->valueSize);
            showPlainDefault(*option);
        }
        storePlain(*option, option->initial);
        added = option->state;
        command->options.push_back(std::move(option));
    });
    return added;
}

void addRule(Command* command, int kind, unsigned count, Option* const* options) noexcept {
    guarded(command, [&] {
        std::vector<Option*> list(options, options + count);
        command->rules.push_back({kind, std::move(list)});
    });
}

void setJoinLetters(Command* program) noexcept {
    guarded(program, [&] { program->joinsLetters = true; });
}

void setSettingsFile(Command* program, const char* path) noexcept {
    guarded(program, [&] { program->settingsFile = path != nullptr ? path : ""; });
}

void setSettingsOption(Command* program, Option* option) noexcept {
    guarded(program, [&] { program->settingsOption = option; });
}

} // namespace tarv_3_3::typed::engine
