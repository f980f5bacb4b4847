#include <CLI/CLI.hpp>

#include <map>

#include "versions.h"

using versions::Decorate;
using versions::Path;

int main(int argc, char** argv) {
    CLI::App vcs("Tracks versions of files.", "vcs");
    vcs.set_version_flag("--version", "vcs 1.0");
    vcs.require_subcommand(1);
    vcs.fallthrough();
    Path repository = ".vcs";
    vcs.add_option("--git-dir", repository, "The repository.")->capture_default_str()->envname("VCS_DIR");
    int verbosity = 0;
    vcs.add_flag("-v,--verbose", verbosity, "Say more; may be repeated.");

    CLI::App* init = vcs.add_subcommand("init", "Begin a repository.");
    bool bare = false;
    init->add_flag("--bare", bare, "Without files to work on.");
    init->callback([&] { versions::init(repository, bare); });

    CLI::App* add = vcs.add_subcommand("add", "Track files.");
    std::vector<Path> files;
    add->add_option("file", files, "What to track.")->required();
    bool force = false;
    add->add_flag("-f,--force", force, "Also files that are ignored.");
    add->callback([&] { versions::add(repository, files, force); });

    CLI::App* commit = vcs.add_subcommand("commit", "Record what was added.")->alias("ci");
    std::string message;
    commit->add_option("-m,--message", message, "What was changed.")->required();
    bool amend = false;
    commit->add_flag("--amend", amend, "Take the place of the last commit.");
    commit->callback([&] { versions::commit(repository, message, amend); });

    CLI::App* log = vcs.add_subcommand("log", "Show the history.");
    int count = 0;
    log->add_option("-n,--max-count", count, "Show no more than this many.")->check(CLI::Range(1, 1000000));
    const std::map<std::string, Decorate> decorates = {
        {"no", Decorate::no}, {"brief", Decorate::brief}, {"full", Decorate::full}};
    Decorate decorate = Decorate::no;
    log->add_option("--decorate", decorate, "Name branches.")
        ->capture_default_str()
        ->transform(CLI::CheckedTransformer(decorates));
    bool isOneline = false;
    CLI::Option* oneline = log->add_flag("--oneline", isOneline, "One line each.");
    bool isGraph = false;
    log->add_flag("--graph", isGraph, "Draw the branches.")->excludes(oneline);
    log->callback([&] { versions::log(repository, count, decorate, isOneline, isGraph, verbosity); });

    CLI::App* push = vcs.add_subcommand("push", "Send branches elsewhere.");
    std::string remote = "origin";
    push->add_option("remote", remote, "Where to.")->capture_default_str();
    std::vector<std::string> branches;
    push->add_option("-b,--branch", branches, "What to send.")->required()->delimiter(',');
    int jobs = 4;
    push->add_option("-j,--jobs", jobs, "How many at a time.")
        ->capture_default_str()
        ->check(CLI::Range(1, 64))
        ->envname("VCS_JOBS");
    push->callback([&] { versions::push(repository, remote, branches, jobs); });

    try {
        vcs.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return vcs.exit(error) == 0 ? 0 : 2;
    }
    return 0;
}
