#pragma once

#include <string>
#include <tarv_3_3/typed.h>
#include <vector>

namespace tarv = tarv_3_3::typed;

enum class Priority { low, normal, at_once };

/// The command line of tasks.
struct Tasks {
    using Texts = std::vector<std::string>;

    tarv::Program program{"tasks", "1.0", "Keeps a list of tasks."};
    tarv::Handle<tarv::Text> file = program.option("file", "Where they are kept.", "tasks.txt").env("TASKS");

    tarv::Command& add = program.verb("add", "Add a task.");
    tarv::Handle<tarv::Text> title = add.positional<tarv::Text>("title", "What is to be done.").required();
    tarv::Handle<Priority> priority = add.option("priority,p", "How much it hurries.", Priority::normal);
    tarv::Handle<Texts> tags = add.option<Texts>("tag,t", "What it is about.");

    tarv::Command& list = program.verb("list", "Show the tasks.");
    tarv::Handle<int> count = list.option("max-count,n", "Show no more than this many.", 10).range(1, 99);
    tarv::Handle<bool> all = list.flag("all,a", "Show those that are done as well.");
};
