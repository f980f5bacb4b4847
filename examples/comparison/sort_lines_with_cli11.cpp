#include <CLI/CLI.hpp>

#include <map>

#include "lines.h"

using lines::Order;

int main(int argc, char** argv) {
    const std::map<std::string, Order> orders = {{"text", Order::text},
                                                 {"general-numeric", Order::general_numeric},
                                                 {"human-numeric", Order::human_numeric},
                                                 {"month", Order::month},
                                                 {"numeric", Order::numeric},
                                                 {"random", Order::random},
                                                 {"version", Order::version}};
    CLI::App tool("Sorts the lines of text files, or of standard input.", "sort_lines");
    tool.set_help_flag("--help", "Show this help.");
    tool.set_version_flag("--version", "sort_lines 1.0");
    lines::Job job;
    tool.add_flag("-b,--ignore-leading-blanks", job.ignoreLeadingBlanks, "Ignore leading blanks.")
        ->group("Order");
    tool.add_flag("-d,--dictionary-order", job.dictionaryOrder, "Only blanks, letters and digits.")
        ->group("Order");
    tool.add_flag("-f,--ignore-case", job.ignoreCase, "Lower case is upper case.")->group("Order");
    tool.add_flag("-i,--ignore-nonprinting", job.ignoreNonprinting, "Only what can be printed.")
        ->group("Order");
    tool.add_flag("-r,--reverse", job.reverse, "The other way round.")->group("Order");
    CLI::Option* order = tool.add_option("--sort", job.order, "Sort by this.")
                             ->capture_default_str()
                             ->transform(CLI::CheckedTransformer(orders))
                             ->group("Order");
    struct Letter {
        const char* names;
        std::string text;
        Order order;
        CLI::Option* flag;
    } letters[] = {{"-g,--general-numeric-sort", "By general numbers.", Order::general_numeric, nullptr},
                   {"-h,--human-numeric-sort", "By numbers as 2K and 1G.", Order::human_numeric, nullptr},
                   {"-M,--month-sort", "By months.", Order::month, nullptr},
                   {"-n,--numeric-sort", "By numbers.", Order::numeric, nullptr},
                   {"-R,--random-sort", "By chance.", Order::random, nullptr},
                   {"-V,--version-sort", "By versions.", Order::version, nullptr}};
    for (Letter& letter : letters) {
        letter.flag = tool.add_flag(letter.names, letter.text)->group("Order")->excludes(order);
        for (const Letter* other = letters; other != &letter; ++other) {
            letter.flag->excludes(other->flag);
        }
    }
    tool.add_option_function<std::vector<std::string>>(
            "-k,--key",
            [&](const std::vector<std::string>& texts) {
                for (const std::string& text : texts) {
                    lines::Key key;
                    if (!fromText(text.c_str(), key)) {
                        throw CLI::ValidationError("--key", text + " is no key");
                    }
                    job.keys.push_back(key);
                }
            },
            "Fields to sort by, as in 2,3.")
        ->expected(1, CLI::detail::expected_max_vector_size)
        ->allow_extra_args(false)
        ->type_name("FIRST[,LAST]");
    tool.add_option("-t,--field-separator", job.separator, "What stands between fields.");
    CLI::Option* check = tool.add_flag("-c,--check", job.check, "Only look whether it is sorted.");
    tool.add_option("-o,--output", job.output, "Write here.")->excludes(check);
    tool.add_flag("-m,--merge", job.merge, "Merge what is sorted already.");
    tool.add_flag("-s,--stable", job.stable, "Leave equal lines in their order.");
    tool.add_flag("-u,--unique", job.unique, "One of equal lines only.");
    tool.add_flag("-z,--zero-terminated", job.zeroTerminated, "Lines end in a zero byte.");
    tool.add_flag("--debug", job.debug, "Show what is compared.");
    CLI::Option* filesFrom = tool.add_option("--files0-from", job.filesFrom, "Read the names of files here.");
    tool.add_option("--random-source", job.randomSource, "Take chance from here.");
    tool.add_option("--compress-program", job.compressProgram, "Compresses temporary files.");
    tool.add_option("-S,--buffer-size", job.bufferSize, "How much memory to take.")
        ->transform(CLI::AsSizeValue(true));
    tool.add_option("-T,--temporary-directory", job.temporaryDirectories, "For temporary files.")
        ->allow_extra_args(false);
    tool.add_option("--batch-size", job.batchSize, "How many to merge at a time.")
        ->capture_default_str()
        ->check(CLI::Range(2, 1024));
    tool.add_option("--parallel", job.parallel, "How many sorts at a time.")
        ->capture_default_str()
        ->check(CLI::Range(1, 256));
    tool.add_option("file", job.files, "What to sort.")->excludes(filesFrom);
    try {
        tool.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return tool.exit(error) == 0 ? 0 : 2;
    }
    for (const Letter& letter : letters) {
        job.order = letter.flag->count() != 0 ? letter.order : job.order;
    }
    lines::sort(job);
    return 0;
}
