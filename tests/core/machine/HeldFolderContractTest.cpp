// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// Held folders, links and pipes on every file system, the one in memory as well as the real one.

#include "core/machine/FileSystemContract.h"

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

template <typename Disc> class HeldFolderContract : public FileSystemContract<Disc> {
};

TYPED_TEST_SUITE(HeldFolderContract, Discs);

#define ON_EACH_DISC(name) TYPED_TEST(HeldFolderContract, name)

ON_EACH_DISC(BelowAHeldFolderNoLinkIsFollowed)
{
    for (const QString &folder : {u"held"_s, u"out"_s, u"out/sub"_s, u"held/d"_s})
        this->MakeFolder(folder);
    for (const QString &file : {u"out/f"_s, u"held/g"_s})
        this->Put(file);
    this->disc.Link(this->At(u"held/link"_s), this->At(u"out"_s));
    const auto hold = this->files.Hold(this->At(u"held"_s));
    constexpr auto refused = FailureNumber::PathFileAccessError;
    EXPECT_EQ(NumberOf(this->files.TryMakeFolder(this->At(u"held/link/new"_s))), refused);
    EXPECT_FALSE(this->files.MadeAtOnce(this->At(u"held/link/new"_s)));
    EXPECT_EQ(NumberOf(this->files.TryRemoveFolder(this->At(u"held/link/sub"_s))), refused);
    EXPECT_EQ(NumberThrownBy([&] { this->files.RemoveFile(this->At(u"held/link/f"_s)); }), refused);
    EXPECT_EQ(this->RenameFails(u"held/link/f"_s, u"held/f"_s), refused);
    EXPECT_EQ(this->RenameFails(u"held/g"_s, u"held/link/g"_s), refused);
    EXPECT_EQ(NumberThrownBy([&] { this->files.List(this->At(u"held/link/sub"_s)); }), refused);
    EXPECT_EQ(NumberThrownBy([&] { this->files.Read(this->At(u"held/link/sub"_s)); }), refused);
    EXPECT_EQ(NumberThrownBy([&] { ReplaceContents(this->files, this->At(u"held/link/f"_s), "y"); }),
              refused);
    EXPECT_EQ(NumberThrownBy([&] { this->files.SetReadOnly(this->At(u"held/link/f"_s), true); }), refused);
    EXPECT_FALSE(this->files.Status(this->At(u"held/link/f"_s), Links::Follow));
    for (const OpenFor purpose : {OpenFor::Reading, OpenFor::Streaming, OpenFor::Writing, OpenFor::Appending,
                                  OpenFor::Changing, OpenFor::Creating})
        EXPECT_EQ(this->OpenFails(u"held/link/f"_s, purpose), refused);
    EXPECT_EQ(this->Names(u"out"_s), (QStringList{u"f"_s, u"sub"_s}));
    EXPECT_EQ(this->Names(u"held"_s), (QStringList{u"d"_s, u"g"_s, u"link"_s}));
}

ON_EACH_DISC(ALinkAtTheEndBelowAHeldFolderIsItself)
{
    this->MakeFolder(u"held"_s);
    this->MakeFolder(u"out"_s);
    this->Put(u"f"_s, "precious");
    this->disc.Link(this->At(u"held/file"_s), this->At(u"f"_s));
    this->disc.Link(this->At(u"held/folder"_s), this->At(u"out"_s));
    const auto hold = this->files.Hold(this->At(u"held/"_s));
    for (const OpenFor purpose :
         {OpenFor::Reading, OpenFor::Streaming, OpenFor::Writing, OpenFor::Appending, OpenFor::Changing})
        EXPECT_EQ(this->OpenFails(u"held/file"_s, purpose), FailureNumber::PathFileAccessError);
    EXPECT_EQ(NumberThrownBy([&] { ReplaceContents(this->files, this->At(u"held/file"_s), "y"); }),
              FailureNumber::PathFileAccessError);
    EXPECT_EQ(NumberThrownBy([&] { this->files.List(this->At(u"held/folder"_s)); }),
              FailureNumber::PathNotFound);
    EXPECT_EQ(this->files.Status(this->At(u"held/file"_s), Links::Keep)->kind, EntryKind::Link);
    EXPECT_EQ(this->files.Status(this->At(u"held/file"_s), Links::Follow)->length, 8);
    EXPECT_EQ(this->files.LinkTarget(this->At(u"held/file"_s)), this->At(u"f"_s));
    this->files.RemoveFile(this->At(u"held/file"_s));
    EXPECT_EQ(this->Bytes(u"f"_s), "precious");
}

ON_EACH_DISC(BelowAHeldFolderStepsWorkAsEver)
{
    this->MakeFolder(u"real"_s);
    this->disc.Link(this->At(u"named"_s), this->At(u"real"_s));
    const auto hold = this->files.Hold(this->At(u"named"_s));
    this->MakeFolder(u"named/a"_s);
    this->MakeFolder(u"named//a//b"_s);
    this->Put(u"named/a/b/f"_s, "1");
    this->files.Rename(this->At(u"named/a/b/f"_s), this->At(u"named/g"_s));
    EXPECT_EQ(this->Names(u"real"_s), (QStringList{u"a"_s, u"g"_s}));
    EXPECT_EQ(this->Names(u"named/a"_s), QStringList{u"b"_s});
    EXPECT_EQ(this->RenameFails(u"named/none"_s, u"named/h"_s), FailureNumber::FileNotFound);
    EXPECT_EQ(this->RenameFails(u"named/none/f"_s, u"named/h"_s), FailureNumber::PathNotFound);
    EXPECT_EQ(this->OpenFails(u"named/none"_s, OpenFor::Reading), FailureNumber::FileNotFound);
    EXPECT_EQ(this->OpenFails(u"named/none/f"_s, OpenFor::Reading), FailureNumber::PathNotFound);
    EXPECT_EQ(this->OpenFails(u"named/g/f"_s, OpenFor::Reading), FailureNumber::PathNotFound);
    EXPECT_EQ(NumberOf(this->files.TryRemoveFolder(this->At(u"named/a"_s))),
              FailureNumber::PathFileAccessError);
    EXPECT_FALSE(this->files.TryRemoveFolder(this->At(u"named/a/b/"_s)));
    ReplaceContents(this->files, this->At(u"named/g"_s), "2");
    ReplaceContents(this->files, this->At(u"named/a/new"_s), "3");
    EXPECT_EQ(this->Bytes(u"real/g"_s), "2");
    EXPECT_EQ(this->Bytes(u"real/a/new"_s), "3");
    this->files.SetReadOnly(this->At(u"named/g"_s), true);
    EXPECT_TRUE(this->files.Status(this->At(u"real/g"_s), Links::Keep)->readOnly);
}

ON_EACH_DISC(NothingGoesUpFromAHeldFolder)
{
    this->MakeFolder(u"held"_s);
    this->MakeFolder(u"held/a"_s);
    const auto hold = this->files.Hold(this->At(u"held"_s));
    for (const QString &path : {u"held/../out"_s, u"held/a/../../out"_s, u"held/a/../b"_s})
        EXPECT_EQ(NumberOf(this->files.TryMakeFolder(this->At(path))), FailureNumber::PathFileAccessError);
    EXPECT_EQ(NumberThrownBy([&] { this->files.List(this->At(u"held/.."_s)); }),
              FailureNumber::PathFileAccessError);
    // Dots are no harm in a name.
    this->MakeFolder(u"held/..a"_s);
    this->MakeFolder(u"held/a..b"_s);
    EXPECT_EQ(this->Names(u"held"_s), (QStringList{u"..a"_s, u"a"_s, u"a..b"_s}));
}

ON_EACH_DISC(AFolderMayBeHeldBeforeItIsThere)
{
    const auto hold = this->files.Hold(this->At(u"later"_s));
    EXPECT_EQ(NumberOf(this->files.TryMakeFolder(this->At(u"later/a"_s))), FailureNumber::PathNotFound);
    EXPECT_EQ(this->OpenFails(u"later/f"_s, OpenFor::Writing), FailureNumber::PathNotFound);
    for (int time = 0; time < 2; ++time) {
        this->MakeFolder(u"later"_s);
        this->MakeFolder(u"later/a"_s);
        EXPECT_FALSE(this->files.TryRemoveFolder(this->At(u"later/a"_s)));
        EXPECT_FALSE(this->files.TryRemoveFolder(this->At(u"later"_s)));
    }
}

ON_EACH_DISC(TheInnermostHoldCountsAndEndsWithItsLife)
{
    for (const QString &folder : {u"a"_s, u"a/real"_s})
        this->MakeFolder(folder);
    this->disc.Link(this->At(u"a/named"_s), this->At(u"a/real"_s));
    const auto outer = this->files.Hold(this->At(u"a"_s));
    const auto sameAgain = this->files.Hold(this->At(u"a"_s));
    EXPECT_EQ(NumberOf(this->files.TryMakeFolder(this->At(u"a/named/x"_s))),
              FailureNumber::PathFileAccessError);
    {
        // Somebody named this one too.
        const auto inner = this->files.Hold(this->At(u"a/named"_s));
        this->MakeFolder(u"a/named/x"_s);
    }
    EXPECT_EQ(NumberOf(this->files.TryMakeFolder(this->At(u"a/named/y"_s))),
              FailureNumber::PathFileAccessError);
    EXPECT_EQ(this->Names(u"a/real"_s), QStringList{u"x"_s});
}

ON_EACH_DISC(ChangingRefusesALink)
{
    this->Put(u"f"_s, "precious");
    this->disc.Link(this->At(u"link"_s), this->At(u"f"_s));
    this->disc.Link(this->At(u"lost"_s), this->At(u"none"_s));
    for (const QString &name : {u"link"_s, u"lost"_s}) {
        EXPECT_EQ(
            NumberThrownBy([&] { this->files.Open(this->At(name), OpenFor::Changing, Sharing::Exclusive); }),
            FailureNumber::PathFileAccessError);
    }
    EXPECT_FALSE(this->IsThere(u"none"_s));
}

ON_EACH_DISC(APipeIsNoFile)
{
    this->disc.Pipe(this->At(u"pipe"_s));
    for (const OpenFor purpose : {OpenFor::Reading, OpenFor::Changing})
        EXPECT_EQ(this->OpenFails(u"pipe"_s, purpose), FailureNumber::PathFileAccessError);
    EXPECT_EQ(NumberThrownBy([&] { ReadWhole(this->files, this->At(u"pipe"_s), 1 << 20, OpenFor::Reading); }),
              FailureNumber::PathFileAccessError);
    // Where nobody reads, the system itself refuses who would write.
    for (const OpenFor purpose : {OpenFor::Writing, OpenFor::Appending})
        EXPECT_TRUE(this->OpenFails(u"pipe"_s, purpose));
    EXPECT_EQ(NumberThrownBy([&] { ReplaceContents(this->files, this->At(u"pipe"_s), "x"); }),
              FailureNumber::PathFileAccessError);
    EXPECT_EQ(this->files.Status(this->At(u"pipe"_s), Links::Keep)->kind, EntryKind::Other);
}

ON_EACH_DISC(LinksAreMadeAndRead)
{
    this->files.MakeLink(this->At(u"link"_s), u"some where"_s);
    EXPECT_EQ(this->files.LinkTarget(this->At(u"link"_s)), u"some where"_s);
    EXPECT_EQ(NumberThrownBy([&] { this->files.MakeLink(this->At(u"link"_s), u"x"_s); }),
              FailureNumber::FileAlreadyExists);
    this->Put(u"f"_s);
    EXPECT_EQ(NumberThrownBy([&] { this->files.LinkTarget(this->At(u"f"_s)); }),
              FailureNumber::PathFileAccessError);
    EXPECT_EQ(NumberThrownBy([&] { this->files.LinkTarget(this->At(u"none"_s)); }),
              FailureNumber::FileNotFound);
}

} // namespace
