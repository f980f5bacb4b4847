#include <cstdio>
#include <cstring>

#include "tasks.h"

int main() {
    Tasks tasks;
    if (*tasks.program.problems() != '\0') {
        std::printf("%s", tasks.program.problems());
        return 1;
    }
    int failures = 0;
    const auto expect = [&](bool isRight, const char* what) {
        std::printf("%s: %s\n", isRight ? "right" : "WRONG", what);
        failures += isRight ? 0 : 1;
    };

    const char* const added[] = {"tasks", "add", "rake leaves", "--tag=garden,autumn"};
    expect(tasks.program.parse(4, added).goesOn(), "a task is added");
    expect(*tasks.tags == Tasks::Texts{"garden", "autumn"} && !tasks.priority.given(), "with two tags");

    const char* const none[] = {"tasks", "list", "-n", "0"};
    const tarv::Outcome outcome = tasks.program.parse(4, none);
    expect(outcome.exitCode() == 2, "a list of nothing is refused");
    expect(std::strstr(outcome.errors(), "tasks: -n 0: must be from 1 to 99\n") != nullptr, "and why");
    return failures;
}
