// sort_lines has the options of GNU sort, with their joined letters: -rnk 2,3. What it does is in
// comparison/lines.h.

#include <tarv_3_3/typed.h>

#include "comparison/lines.h"

namespace tarv = tarv_3_3::typed;
using lines::Order;
using lines::Path;

int main(int argc, char** argv) {
    tarv::Program tool("sort_lines", "1.0", "Sorts the lines of text files, or of standard input.");
    tool.joinLetters();
    lines::Job job;
    tool.bind("ignore-leading-blanks,b", job.ignoreLeadingBlanks, "Ignore leading blanks.").topic("Order");
    tool.bind("dictionary-order,d", job.dictionaryOrder, "Only blanks, letters and digits.").topic("Order");
    tool.bind("ignore-case,f", job.ignoreCase, "Lower case is upper case.").topic("Order");
    tool.bind("ignore-nonprinting,i", job.ignoreNonprinting, "Only what can be printed.").topic("Order");
    tool.bind("reverse,r", job.reverse, "The other way round.").topic("Order");
    auto order = tool.bind("sort", job.order, "Sort by this.").topic("Order");
    const struct {
        tarv::Handle<bool> flag;
        Order order;
    } letters[] = {
        {tool.flag("general-numeric-sort,g", "By general numbers.").topic("Order"), Order::general_numeric},
        {tool.flag("human-numeric-sort,h", "By numbers as 2K and 1G.").topic("Order"), Order::human_numeric},
        {tool.flag("month-sort,M", "By months.").topic("Order"), Order::month},
        {tool.flag("numeric-sort,n", "By numbers.").topic("Order"), Order::numeric},
        {tool.flag("random-sort,R", "By chance.").topic("Order"), Order::random},
        {tool.flag("version-sort,V", "By versions.").topic("Order"), Order::version},
    };
    tool.atMostOne(order, letters[0].flag, letters[1].flag, letters[2].flag, letters[3].flag, letters[4].flag,
                   letters[5].flag);
    tool.bind("key,k", job.keys, "Fields to sort by, as in 2,3.").separator('\0').value("FIRST[,LAST]");
    tool.bind("field-separator,t", job.separator, "What stands between fields.");
    auto check = tool.bind("check,c", job.check, "Only look whether it is sorted.");
    auto output = tool.bind("output,o", job.output, "Write here.");
    tool.atMostOne(check, output);
    tool.bind("merge,m", job.merge, "Merge what is sorted already.");
    tool.bind("stable,s", job.stable, "Leave equal lines in their order.");
    tool.bind("unique,u", job.unique, "One of equal lines only.");
    tool.bind("zero-terminated,z", job.zeroTerminated, "Lines end in a zero byte.");
    tool.bind("debug", job.debug, "Show what is compared.");
    auto filesFrom = tool.bind("files0-from", job.filesFrom, "Read the names of files here.");
    tool.bind("random-source", job.randomSource, "Take chance from here.");
    tool.bind("compress-program", job.compressProgram, "Compresses temporary files.");
    auto buffer = tool.option<tarv::Size>("buffer-size,S", "How much memory to take.");
    tool.bind("temporary-directory,T", job.temporaryDirectories, "For temporary files.").separator('\0');
    tool.bind("batch-size", job.batchSize, "How many to merge at a time.").range(2, 1024);
    tool.bind("parallel", job.parallel, "How many sorts at a time.").range(1, 256);
    auto files = tool.positional<std::vector<Path>>("file", "What to sort.");
    tool.atMostOne(filesFrom, files);
    return tool.run(argc, argv, [&] {
        for (const auto& letter : letters) {
            job.order = *letter.flag ? letter.order : job.order;
        }
        job.bufferSize = *buffer;
        job.files = *files;
        lines::sort(job);
    });
}
