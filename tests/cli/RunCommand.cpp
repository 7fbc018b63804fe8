// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "RunCommand.h"

#include <array>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <pty.h>
#include <sched.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace tressel {

namespace fs = std::filesystem;

namespace {

void Replace(int descriptor, const fs::path &path, int flags)
{
    dup2(open(path.c_str(), flags, 0666), descriptor);
}

/// What takes one of the program's two outputs: a file or a terminal.
class Sink {
public:
    Sink(fs::path filePath, bool isTerminal)
        : path(std::move(filePath))
    {
        if (isTerminal && openpty(&terminal, &programSide, nullptr, nullptr, nullptr) != 0)
            std::abort();
    }
    ~Sink()
    {
        close(terminal);
        close(programSide);
    }
    Sink(const Sink &) = delete;
    Sink &operator=(const Sink &) = delete;

    /// In the program.
    void PutAt(int descriptor) const
    {
        if (programSide >= 0)
            dup2(programSide, descriptor);
        else
            Replace(descriptor, path, O_WRONLY | O_CREAT | O_TRUNC);
    }
    /// What came, once the program has gone.
    std::string Taken()
    {
        if (terminal < 0)
            return CommandPlace::Contents(path);
        close(std::exchange(programSide, -1));
        std::string text;
        std::array<char, 4096> piece;
        for (ssize_t length; (length = read(terminal, piece.data(), piece.size())) > 0;)
            text.append(piece.data(), static_cast<size_t>(length));
        return text;
    }

private:
    fs::path path;
    int terminal = -1;
    int programSide = -1;
};

/// Leaves the process to be waited for, so that its number stays its own.
bool HasEnded(pid_t process)
{
    siginfo_t ended = {};
    return waitid(P_PID, static_cast<id_t>(process), &ended, WEXITED | WNOHANG | WNOWAIT) != 0
        || ended.si_pid == process;
}

/// Opened before any rights are given up: nobody may enter the folder that it is built in.
const int programFile = open(TRESSEL_CLI, O_RDONLY | O_CLOEXEC);

[[noreturn]] void BecomeProgram(const std::vector<std::string> &arguments)
{
    std::vector<char *> words{const_cast<char *>(TRESSEL_CLI)};
    for (const std::string &argument : arguments)
        words.push_back(const_cast<char *>(argument.c_str()));
    words.push_back(nullptr);
    fexecve(programFile, words.data(), environ);
    _exit(98);
}

} // namespace

CommandPlace::CommandPlace()
{
    fs::create_directories(folder / "home");
}

Outcome CommandPlace::RunCli(const std::vector<std::string> &arguments, uid_t asUser) const
{
    Sink out(standardOutput.empty() ? folder / "stdout" : fs::path(standardOutput), outIsTerminal);
    Sink err(folder / "stderr", errIsTerminal);
    const pid_t child = fork();
    if (child == 0) {
        Replace(STDIN_FILENO, standardInput, O_RDONLY);
        if (outputDescriptor >= 0)
            dup2(outputDescriptor, STDOUT_FILENO);
        else
            out.PutAt(STDOUT_FILENO);
        err.PutAt(STDERR_FILENO);
        if (!MakeReady(asUser))
            _exit(99);
        BecomeProgram(arguments);
    }
    if (!interruptAfter.empty() || interruptWhen) {
        running = child;
        const auto isTime = [this] { return interruptWhen ? interruptWhen() : fs::exists(interruptAfter); };
        while (!isTime() && !HasEnded(child))
            sched_yield();
        kill(child, interruptWith);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status),
            standardOutput.empty() ? out.Taken() : std::string(), err.Taken()};
}

bool CommandPlace::MakeReady(uid_t asUser) const
{
    for (const int descriptor : closed)
        close(descriptor);
    for (const int number : ignored)
        std::signal(number, SIG_IGN);
    const rlimit limit{longestFile, longestFile};
    if (longestFile != RLIM_INFINITY && setrlimit(RLIMIT_FSIZE, &limit) != 0)
        return false;
    if (chdir(workingFolder.c_str()) != 0 || (asUser != 0 && setuid(asUser) != 0))
        return false;
    for (const char *name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME"})
        setenv(name, (folder / "home").c_str(), 1);
    return true;
}

fs::path CommandPlace::Put(const std::string &name, const std::string &contents) const
{
    std::ofstream(folder / name, std::ios::binary) << contents;
    return folder / name;
}

std::string CommandPlace::Contents(const fs::path &path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::set<std::string> CommandPlace::Below(const std::string &name) const
{
    std::set<std::string> paths;
    for (const auto &entry : fs::recursive_directory_iterator(folder / name))
        paths.insert(entry.path().lexically_relative(folder / name).string());
    return paths;
}

} // namespace tressel
