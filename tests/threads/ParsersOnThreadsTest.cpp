#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <functional>
#include <iostream>
#include <set>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include "api/CommandLine.h"
#include "tarv_3_3/internal/log.h"

namespace {

constexpr int threadCount = 4;
constexpr int rounds = 100;

/// Runs `work` on several threads, which all begin at the same time.
void onThreads(const std::function<void(int)>& work) {
    std::atomic<int> waiting{threadCount};
    std::vector<std::thread> threads;
    for (int thread = 0; thread < threadCount; ++thread) {
        threads.emplace_back([&work, &waiting, thread] {
            --waiting;
            while (waiting != 0) {
                std::this_thread::yield();
            }
            work(thread);
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
}

void declare(tarv_3_3::IParser& parser) {
    parser.option("list,l", "A list.", tarv_3_3::vtInt32);
    parser.option("level", "One of two.", tarv_3_3::vtString)
        .allowValue("low")
        .allowValue("high")
        .defaultValue("low");
    parser.option("color", "A switch.", tarv_3_3::vtBool).synonym("colour");
    parser.option("list", "A duplicate, which is traced.", tarv_3_3::vtInt32);
}

/// What a parse of `--list=1,2 --no-color --li 3 -- plain` takes, in the order in which it takes them:
/// the default of `level`, each occurrence before its values.
std::vector<int> positionsTaken(tarv_3_3::IParseResult& result) {
    std::vector<int> positions{result.get("level").position};
    const int first = result.get("list").position;
    const int second = result.next("list").position;
    const int third = result.next("list").position;
    result.present("list");
    positions.insert(positions.end(), {result.nextPosition(), first, second});
    const int thirdOccurrence = result.nextPosition();
    const int color = result.get("color").position;
    positions.insert(positions.end(), {result.nextPosition(), color, thirdOccurrence, third});
    return positions;
}

TEST(ParsersOnThreads, AllFindWhatEachWouldFindAlone) {
    std::atomic<int> wrong{0};
    onThreads([&](int thread) {
        for (int round = 0; round < rounds; ++round) {
            CommandLine line(tarv_3_3::flagRejectUnknown);
            declare(*line.parser);
            const std::string value = std::to_string(thread * rounds + round);
            const std::string argument = "--list=1," + value;
            const int status = line.parse({argument.c_str(), "—no-color", "--lev", "h", "--", "plain"});
            wrong += status == 0 ? 0 : 1;
            wrong += line.values("list") == "[1][" + value + "]" ? 0 : 1;
            wrong += line.values("level") == "[high]" ? 0 : 1;
            wrong += line.values("color") == "[0]" ? 0 : 1;
            wrong += line.plainArguments() == "[plain]" ? 0 : 1;
            wrong += line.parse({"--other"}) == 2 ? 0 : 1;
            wrong += line.error() == "Unknown option: --other" ? 0 : 1;
        }
    });
    EXPECT_EQ(wrong, 0);
}

TEST(ParsersOnThreads, TakePositionsThatAscendInEachParseAndOccurOnce) {
    std::vector<int> taken[threadCount];
    onThreads([&](int thread) {
        for (int round = 0; round < rounds; ++round) {
            CommandLine line;
            declare(*line.parser);
            line.parse({"--list=1,2", "--no-color", "--li", "3"});
            const std::vector<int> positions = positionsTaken(*line.result);
            taken[thread].insert(taken[thread].end(), positions.begin(), positions.end());
        }
    });
    std::set<int> all;
    for (const std::vector<int>& positions : taken) {
        ASSERT_EQ(positions.size(), rounds * 8U);
        EXPECT_TRUE(std::is_sorted(positions.begin(), positions.end()));
        all.insert(positions.begin(), positions.end());
    }
    EXPECT_EQ(all.size(), threadCount * rounds * 8U);
}

// Where each test has a process of its own these are the first lines that it traces.
TEST(ParsersOnThreads, TraceTheirFirstLinesAtOnce) {
    std::set<std::ostream*> streams[threadCount];
    onThreads([&](int thread) {
        for (int round = 0; round < rounds; ++round) {
            CommandLine line;
            declare(*line.parser);
            line.parse({"--list=1", "other"});
            streams[thread].insert(&tarv_3_3::internal::tarvLog());
        }
    });
    for (const std::set<std::ostream*>& seen : streams) {
        EXPECT_EQ(seen, std::set<std::ostream*>{&tarv_3_3::internal::tarvLog()});
    }
    EXPECT_TRUE(tarv_3_3::internal::tarvLog().fail());
}

/// Returns how many there are.
int expectWholeLines(const std::string& text) {
    std::istringstream lines(text);
    int count = 0;
    for (std::string line; std::getline(lines, line);) {
        const bool isOneOfThese = line == "ignoring other" || line == "ignoring another" ||
                                  line == "PositionalOptionsParser: recognizing argument 'other'" ||
                                  line == "PositionalOptionsParser: recognizing argument 'another'" ||
                                  line == "AbbreviationParser: recognizing argument 'other'" ||
                                  line == "AbbreviationParser: recognizing argument 'another'";
        EXPECT_TRUE(isOneOfThese) << line;
        ++count;
    }
    return count;
}

TEST(ParsersOnThreads, WriteWholeLinesToStandardOutput) {
    std::ostringstream text;
    std::streambuf* const output = std::cout.rdbuf(text.rdbuf());
    onThreads([](int thread) {
        const char* const argument = thread % 2 == 0 ? "other" : "another";
        for (int round = 0; round < rounds; ++round) {
            CommandLine().parse({"tarvoption=tarvlogenable=1", argument});
        }
    });
    std::cout.rdbuf(output);
    EXPECT_EQ(expectWholeLines(text.str()), 3 * threadCount * rounds);
    CommandLine().parse({"this switches the trace off"});
}

TEST(ParsersOnThreads, SwitchTheTraceForEachOtherAndWriteWholeLines) {
    std::ostringstream text;
    std::streambuf* const output = std::cout.rdbuf(text.rdbuf());
    onThreads([](int thread) {
        for (int round = 0; round < rounds; ++round) {
            if (thread % 2 == 0) {
                CommandLine().parse({"tarvoption=tarvlogenable=1", "other"});
            } else {
                CommandLine().parse({"another"});
            }
        }
    });
    std::cout.rdbuf(output);
    expectWholeLines(text.str());
    CommandLine().parse({"this switches the trace off"});
}

TEST(ParsersOnThreads, WriteWholeLinesToABufferOfTheHost) {
    std::ostringstream text;
    std::ostream& log = tarv_3_3::internal::tarvLog();
    std::streambuf* const own = log.rdbuf(text.rdbuf());
    onThreads([](int thread) {
        for (int round = 0; round < rounds; ++round) {
            CommandLine().parse({thread % 2 == 0 ? "other" : "another"});
        }
    });
    log.rdbuf(own);
    EXPECT_EQ(expectWholeLines(text.str()), 3 * threadCount * rounds);
}

TEST(ParsersOnThreads, LeaveResultsThatAreReadOnOtherThreads) {
    CommandLine lines[threadCount];
    for (CommandLine& line : lines) {
        declare(*line.parser);
        line.parse({"--list=1,2", "--level=high"});
        line.parser->destroy();
        line.parser = nullptr;
    }
    std::atomic<int> wrong{0};
    onThreads([&](int thread) {
        for (int round = 0; round < rounds; ++round) {
            wrong += lines[thread].values("list") == "[1][2]" ? 0 : 1;
            wrong += lines[thread].values("level") == "[high]" ? 0 : 1;
        }
    });
    EXPECT_EQ(wrong, 0);
}

} // namespace
