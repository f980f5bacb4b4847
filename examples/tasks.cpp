#include <cstdio>

#include "tasks.h"

int main(int argc, char** argv) {
    Tasks tasks;
    tasks.add.does([&] {
        std::printf("add '%s' to %s", tasks.title->c_str(), tasks.file->c_str());
        for (const std::string& tag : *tasks.tags) {
            std::printf(", %s", tag.c_str());
        }
        std::puts(*tasks.priority == Priority::at_once ? ", at once" : "");
    });
    tasks.list.does([&] {
        std::printf("list %d of %s%s\n", *tasks.count, tasks.file->c_str(), *tasks.all ? ", all" : "");
    });
    return tasks.program.run(argc, argv);
}
