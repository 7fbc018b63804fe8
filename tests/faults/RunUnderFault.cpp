// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "RunUnderFault.h"

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tressel::faults {

namespace fs = std::filesystem;

namespace {

/// A run that takes longer hangs.
constexpr unsigned mostSeconds = 30;

std::string ContentsOf(const fs::path &path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void PutAt(int descriptor, const fs::path &path, int flags)
{
    constexpr mode_t rights = 0644;
    dup2(open(path.c_str(), flags, rights), descriptor);
}

} // namespace

Bench::Bench()
{
    fs::create_directories(folder / "home");
    fs::permissions(folder / "home", fs::perms::owner_all);
    const fs::path path = folder / "plan";
    std::ofstream(path).close();
    fs::resize_file(path, sizeof(FaultPlan));
    const int file = open(path.c_str(), O_RDWR | O_CLOEXEC);
    void *memory = mmap(nullptr, sizeof(FaultPlan), PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
    close(file);
    if (memory == MAP_FAILED)
        std::abort();
    plan = new (memory) FaultPlan{};
}

Bench::~Bench()
{
    munmap(plan, sizeof(FaultPlan));
}

void Bench::SetPlan(const Case &subject, const Fault &fault, int number)
{
    const fs::path struck = subject.subject == Subject::WindowTool ? disc / workedIn : root;
    std::snprintf(plan->root.data(), plan->root.size(), "%s", struck.c_str());
    plan->kind = fault.kind;
    plan->number = number;
    plan->outcome = fault.outcome;
    plan->lasts = fault.lasts;
    plan->inStarted = subject.subject == Subject::Reader;
    plan->isOldSystem = subject.subject == Subject::OldSystem;
    plan->calls = 0;
    plan->struck = false;
}

Run Bench::RunCase(const Case &subject, const Fault &fault, int number)
{
    fs::remove_all(root);
    fs::create_directories(disc);
    subject.setUp(disc);
    Run run;
    run.before = TreeOf(disc);
    SetPlan(subject, fault, number);
    const pid_t child = fork();
    if (child == 0)
        BecomeProgram(subject);
    int status = 0;
    waitpid(child, &status, 0);
    run.status = WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
    run.now = TreeOf(disc);
    run.out = ContentsOf(root / "out");
    run.err = ContentsOf(folder / "err");
    run.metFault = plan->struck;
    if (run.metFault)
        run.where = std::string(plan->call.data()) + " "
            + fs::path(plan->path.data()).lexically_relative(root).string();
    return run;
}

std::string Bench::FirstWordOf(const Case &subject) const
{
    switch (subject.subject) {
    case Subject::CommandLine:
    case Subject::OldSystem:
    case Subject::Reader:
        return TRESSEL_CLI;
    case Subject::ListSave:
        return TRESSEL_LIST_SAVE;
    case Subject::Window:
    case Subject::WindowTool:
        return TRESSEL_WINDOW;
    }
    return {};
}

void Bench::BecomeProgram(const Case &subject) const
{
    PutAt(STDIN_FILENO, "/dev/null", O_RDONLY);
    PutAt(STDOUT_FILENO, root / "out", O_WRONLY | O_CREAT);
    PutAt(STDERR_FILENO, folder / "err", O_WRONLY | O_CREAT | O_TRUNC);
    for (const char *name : {"HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"})
        setenv(name, (folder / "home").c_str(), 1);
    setenv("XDG_CONFIG_HOME", (disc / "config").c_str(), 1);
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    setenv("CANBERRA_DRIVER", "null", 1);
    setenv(planVariable, (folder / "plan").c_str(), 1);
    setenv("LD_PRELOAD", TRESSEL_FAULT_LIBRARY, 1);
    std::vector<std::string> words{FirstWordOf(subject)};
    for (const std::string &word : subject.words)
        words.push_back(word.starts_with('@') ? disc.string() + word.substr(1) : word);
    std::vector<char *> arguments;
    std::ranges::transform(words, std::back_inserter(arguments),
                           [](std::string &word) { return word.data(); });
    arguments.push_back(nullptr);
    alarm(mostSeconds);
    execv(arguments[0], arguments.data());
    _exit(99);
}

} // namespace tressel::faults
