// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// Runs on the real disc while somebody else keeps putting links in the places of folders, and the folders
// back.

#include "RunCommand.h"

#include <atomic>
#include <cstdio>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <thread>

namespace {

using namespace tressel;
namespace fs = std::filesystem;

constexpr int folderCount = 20;

/// Folders "w/N/inner", in whose places links to "far" come and go, where somebody else's "inner" is.
class SwapProcess : public testing::Test, protected CommandPlace {
protected:
    SwapProcess()
    {
        fs::create_directories(folder / "far/inner/empty");
        Put("far/secret", "of somebody else");
        Put("far/inner/secret", "of somebody else");
        fs::create_directories(folder / "links");
        for (int number = 0; number < folderCount; ++number) {
            const std::string name = std::to_string(number);
            fs::create_directories(folder / "w" / name / "inner");
            Put("w/" + name + "/inner/own", "");
            fs::create_directory_symlink(folder / "far", folder / "links" / name);
        }
        swapper = std::thread([this] {
            while (!isOver)
                SwapAll();
        });
    }
    ~SwapProcess() override
    {
        isOver = true;
        swapper.join();
    }

    void SwapAll()
    {
        for (int number = 0; number < folderCount; ++number) {
            const std::string name = std::to_string(number);
            const fs::path place = folder / "w" / name;
            const fs::path link = folder / "links" / name;
            if (renameat2(AT_FDCWD, place.c_str(), AT_FDCWD, link.c_str(), RENAME_EXCHANGE) == 0)
                ++swaps;
        }
    }

    std::atomic<int> swaps = 0;

private:
    std::atomic<bool> isOver = false;
    std::thread swapper;
};

TEST_F(SwapProcess, NothingFromOutsideIsInAReport)
{
    constexpr int reports = 100;
    int withOwn = 0;
    for (int report = 0; report < reports; ++report) {
        const int before = swaps;
        const Outcome outcome = RunCli({"report", folder / "w"});
        ASSERT_EQ(outcome.out.find("secret"), std::string::npos) << outcome.out;
        withOwn += swaps > before && outcome.out.find("own") != std::string::npos ? 1 : 0;
    }
    // Else nobody came between, or nothing was walked.
    EXPECT_GT(withOwn, 0);
}

TEST_F(SwapProcess, NothingOutsideIsRemoved)
{
    constexpr int runs = 50;
    const int before = swaps;
    for (int run = 0; run < runs; ++run) {
        fs::create_directories(folder / "w/more/empty");
        RunCli({"empty", "remove", "--cascade", folder / "w"});
        const Outcome outcome = RunCli({"series", "delete", "--in", folder / "w", "--base", "", "--sub",
                                        "inner\\empty", "--from", "1", "--to", "19", "--digits", "1"});
        ASSERT_NE(outcome.status, 2) << outcome.err;
        ASSERT_EQ(Below("far"), (std::set<std::string>{"inner", "inner/empty", "inner/secret", "secret"}));
    }
    EXPECT_GT(swaps, before);
}

} // namespace
