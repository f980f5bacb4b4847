// vcs, a tool with five verbs: its command line. What the verbs do is in comparison/versions.h.

#include <tarv_3_3/typed.h>

#include "comparison/versions.h"

namespace tarv = tarv_3_3::typed;
using versions::Path;

int main(int argc, char** argv) {
    tarv::Program vcs("vcs", "1.0", "Tracks versions of files.");
    auto repository = vcs.option("git-dir", "The repository.", Path(".vcs")).env("VCS_DIR");
    auto verbosity = vcs.counter("verbose,v", "Say more; may be repeated.");

    auto& init = vcs.verb("init", "Begin a repository.");
    auto bare = init.flag("bare", "Without files to work on.");
    init.does([=] { versions::init(*repository, *bare); });

    auto& add = vcs.verb("add", "Track files.");
    auto files = add.positional<std::vector<Path>>("file", "What to track.").required();
    auto force = add.flag("force,f", "Also files that are ignored.");
    add.does([=] { versions::add(*repository, *files, *force); });

    auto& commit = vcs.verb("commit,ci", "Record what was added.");
    auto message = commit.option<std::string>("message,m", "What was changed.").required();
    auto amend = commit.flag("amend", "Take the place of the last commit.");
    commit.does([=] { versions::commit(*repository, *message, *amend); });

    auto& log = vcs.verb("log", "Show the history.");
    auto count = log.option<int>("max-count,n", "Show no more than this many.").range(1, 1000000);
    auto decorate = log.option("decorate", "Name branches.", versions::Decorate::no);
    auto oneline = log.flag("oneline", "One line each.");
    auto graph = log.flag("graph", "Draw the branches.");
    log.atMostOne(oneline, graph);
    log.does([=] { versions::log(*repository, *count, *decorate, *oneline, *graph, *verbosity); });

    auto& push = vcs.verb("push", "Send branches elsewhere.");
    auto remote = push.positional("remote", "Where to.", std::string("origin"));
    auto branches = push.option<std::vector<std::string>>("branch,b", "What to send.").required();
    auto jobs = push.option("jobs,j", "How many at a time.", 4).range(1, 64).env("VCS_JOBS");
    push.does([=] { versions::push(*repository, *remote, *branches, *jobs); });

    return vcs.run(argc, argv);
}
