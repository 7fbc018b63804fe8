// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/posix/PosixShell.h"

#include "machine/posix/Descriptor.h"
#include "machine/posix/DetachedStart.h"
#include "support/EnvironmentVariable.h"
#include "support/TemporaryFolder.h"
#include "support/Text.h"

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <fstream>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 20'000; // milliseconds until a program that was started must have spoken

/// A desktop in which a shell stands for every program: what is opened is a script, which tells its own
/// name through a pipe.
class PosixShellTest : public testing::Test {
protected:
    PosixShellTest()
    {
        EXPECT_EQ(mkdir(folder.Native("bin").constData(), 0755), 0);
        EXPECT_EQ(mkfifo(folder.Native("pipe").constData(), 0600), 0);
        // Open at both ends, so that neither side waits for the other.
        pipe = Descriptor(open(folder.Native("pipe").constData(), O_RDWR | O_NONBLOCK | O_CLOEXEC));
        EXPECT_TRUE(pipe.IsOpen());
    }
    void Install(const QByteArray &program)
    {
        ASSERT_EQ(symlink("/bin/sh", folder.Native("bin/" + program).constData()), 0);
    }
    void PutScript(const QByteArray &name)
    {
        std::ofstream(folder.Native(name).constData())
            << "echo \"$0\" > '" << folder.Native("pipe").constData() << "'\n";
    }
    QByteArray Heard()
    {
        pollfd watched{pipe.Number(), POLLIN, 0};
        std::array<char, 4096> bytes{};
        const ssize_t got =
            poll(&watched, 1, patience) > 0 ? read(pipe.Number(), bytes.data(), bytes.size()) : 0;
        return QByteArray(bytes.data(), std::max<ssize_t>(got, 0)).trimmed();
    }
    QString At(const QString &name) { return folder.Path() + u'/' + name; }

    TemporaryFolder folder;
    EnvironmentVariable path{"PATH", folder.Native("bin")};
    Descriptor pipe;
    PosixShell shell;
};

TEST_F(PosixShellTest, OpensAFileWhoseNameAShellWouldTakeApart)
{
    Install("xdg-open");
    PutScript("a b; $(x) 'q'.txt");
    EXPECT_TRUE(shell.Open(At(u"a b; $(x) 'q'.txt"_s), {}));
    EXPECT_EQ(Heard(), folder.Native("a b; $(x) 'q'.txt"));
}

TEST_F(PosixShellTest, TakesARelativePathFromTheFolder)
{
    Install("xdg-open");
    PutScript("-n");
    EXPECT_TRUE(shell.Open(u"-n"_s, folder.Path()));
    EXPECT_EQ(Heard(), folder.Native("-n"));
}

TEST_F(PosixShellTest, OpensNothingThatIsNotThere)
{
    Install("xdg-open");
    EXPECT_FALSE(shell.Open(At(u"none"_s), {}));
    EXPECT_FALSE(shell.Open(u"none"_s, folder.Path()));
    EXPECT_FALSE(shell.Open(QString(), folder.Path()));
    EXPECT_FALSE(shell.Open(u"C:\\none"_s, folder.Path()));
    EXPECT_FALSE(shell.EditText(At(u"none"_s)));
    EXPECT_FALSE(shell.EditText(QString()));
    EXPECT_FALSE(shell.BrowseFolder(At(u"none"_s)));
    EXPECT_TRUE(shell.Open(u"https://example.org/"_s, folder.Path()));
}

TEST_F(PosixShellTest, OpensNothingWithoutADesktop)
{
    PutScript("f");
    EXPECT_FALSE(shell.Open(At(u"f"_s), {}));
    EXPECT_FALSE(shell.EditText(At(u"f"_s)));
    EXPECT_FALSE(shell.BrowseFolder(folder.Path()));
}

TEST_F(PosixShellTest, EditsWithAnEditorBeforeTheDesktop)
{
    Install("mousepad");
    PutScript("f");
    EXPECT_TRUE(shell.EditText(At(u"f"_s)));
    EXPECT_EQ(Heard(), folder.Native("f"));
}

TEST_F(PosixShellTest, BrowsesFoldersOnly)
{
    Install("xdg-open");
    PutScript("f");
    EXPECT_TRUE(shell.BrowseFolder(folder.Path()));
    EXPECT_FALSE(shell.BrowseFolder(At(u"f"_s)));
}

TEST_F(PosixShellTest, CommandsAreProgramsInWholePathsOnly)
{
    Install("here");
    EXPECT_EQ(FindCommand("here"), folder.Native("bin/here"));
    ASSERT_EQ(mkdir(folder.Native("bin/folder").constData(), 0755), 0);
    EXPECT_EQ(FindCommand("folder"), QByteArray());
    const EnvironmentVariable relative("PATH", ":.:bin");
    EXPECT_EQ(FindCommand("here"), QByteArray());
}

TEST_F(PosixShellTest, TellsThatAProgramCannotBeStarted)
{
    PutScript("f");
    EXPECT_FALSE(StartDetached({folder.Native("f")}));
    EXPECT_FALSE(StartDetached({folder.Native("none")}));
}

} // namespace
