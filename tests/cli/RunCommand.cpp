// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "RunCommand.h"

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <sched.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tressel {

namespace fs = std::filesystem;

namespace {

void Replace(int descriptor, const fs::path &path)
{
    dup2(open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666), descriptor);
}

[[noreturn]] void BecomeProgram(const std::vector<std::string> &arguments)
{
    std::vector<char *> words{const_cast<char *>(TRESSEL_CLI)};
    for (const std::string &argument : arguments)
        words.push_back(const_cast<char *>(argument.c_str()));
    words.push_back(nullptr);
    execv(TRESSEL_CLI, words.data());
    _exit(98);
}

} // namespace

CommandPlace::CommandPlace()
{
    fs::create_directories(folder / "home");
}

Outcome CommandPlace::RunCli(const std::vector<std::string> &arguments, uid_t asUser) const
{
    const fs::path out = standardOutput.empty() ? folder / "stdout" : fs::path(standardOutput);
    const fs::path err = folder / "stderr";
    const pid_t child = fork();
    if (child == 0) {
        Replace(STDOUT_FILENO, out);
        Replace(STDERR_FILENO, err);
        if (asUser != 0 && setuid(asUser) != 0)
            _exit(99);
        for (const char *name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME"})
            setenv(name, (folder / "home").c_str(), 1);
        BecomeProgram(arguments);
    }
    if (!interruptAfter.empty()) {
        while (!fs::exists(interruptAfter) && waitpid(child, nullptr, WNOHANG) == 0)
            sched_yield();
        kill(child, SIGINT);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status),
            standardOutput.empty() ? Contents(out) : std::string(), Contents(err)};
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
