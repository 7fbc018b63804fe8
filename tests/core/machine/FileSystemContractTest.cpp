// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// What every file system does, the one in memory as well as the real one.

#include "core/machine/FileSystemContract.h"

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

TYPED_TEST_SUITE(FileSystemContract, Discs);

#define ON_EACH_DISC(name) TYPED_TEST(FileSystemContract, name)

ON_EACH_DISC(MakesOneFolderAndTellsWhyNot)
{
    EXPECT_EQ(NumberOf(this->files.TryMakeFolder(this->At(u"a"_s))), std::nullopt);
    EXPECT_EQ(NumberOf(this->files.TryMakeFolder(this->At(u"a"_s))), FailureNumber::PathFileAccessError);
    EXPECT_EQ(NumberOf(this->files.TryMakeFolder(this->At(u"a/"_s))), FailureNumber::PathFileAccessError);
    EXPECT_EQ(NumberOf(this->files.TryMakeFolder(this->At(u"none/b"_s))), FailureNumber::PathNotFound);
    EXPECT_EQ(NumberOf(this->files.TryMakeFolder(QString())), FailureNumber::BadFileName);
    EXPECT_EQ(NumberOf(this->files.TryMakeFolder(this->At(QString(u"a\0b"_s)))),
              FailureNumber::InvalidProcedureCall);
    EXPECT_EQ(NumberOf(this->files.TryMakeFolder(this->At(QString(256, u'x')))),
              FailureNumber::PathFileAccessError);
    this->Put(u"f"_s);
    EXPECT_EQ(NumberOf(this->files.TryMakeFolder(this->At(u"f"_s))), FailureNumber::PathFileAccessError);
    EXPECT_EQ(NumberOf(this->files.TryMakeFolder(this->At(u"f/b"_s))), FailureNumber::PathNotFound);
    EXPECT_EQ(this->Names(QString()), (QStringList{u"a"_s, u"f"_s}));
}

ON_EACH_DISC(ListsGiveTheLengthsOfFilesIfAsked)
{
    this->Put(u"f"_s, "12345");
    this->MakeFolder(u"g"_s);
    this->disc.Link(this->At(u"h"_s), this->At(u"f"_s));
    const auto lengths = [](const QList<FolderEntry> &entries) {
        QList<qint64> all;
        for (const FolderEntry &entry : entries)
            all += entry.length;
        return all;
    };
    EXPECT_EQ(lengths(this->files.List(this->disc.root, Lengths::Wanted)), (QList<qint64>{5, 0, 0}));
    EXPECT_EQ(lengths(this->files.List(this->disc.root)), (QList<qint64>{0, 0, 0}));
    const auto reader = this->files.Read(this->disc.root, Lengths::Wanted);
    qint64 total = 0;
    while (const auto entry = reader->Next())
        total += entry->length;
    EXPECT_EQ(total, 5);
}

ON_EACH_DISC(ToleratesDoubledAndClosingSeparators)
{
    EXPECT_FALSE(this->files.TryMakeFolder(this->At(u"/a/"_s)));
    EXPECT_FALSE(this->files.TryMakeFolder(this->At(u"a//b"_s)));
    EXPECT_TRUE(this->IsThere(u"a/b//"_s));
    EXPECT_EQ(this->Names(u"a//"_s), QStringList{u"b"_s});
    EXPECT_FALSE(this->files.TryRemoveFolder(this->At(u"a/b/"_s)));
    EXPECT_FALSE(this->IsThere(u"a/b"_s));
}

ON_EACH_DISC(RemovesOneEmptyFolderAndNothingElse)
{
    this->MakeFolder(u"a"_s);
    this->MakeFolder(u"a/b"_s);
    this->Put(u"f"_s);
    this->disc.Link(this->At(u"link"_s), this->At(u"a/b"_s));
    EXPECT_EQ(NumberOf(this->files.TryRemoveFolder(this->At(u"a"_s))), FailureNumber::PathFileAccessError);
    EXPECT_EQ(NumberOf(this->files.TryRemoveFolder(this->At(u"f"_s))), FailureNumber::PathFileAccessError);
    EXPECT_EQ(NumberOf(this->files.TryRemoveFolder(this->At(u"link"_s))), FailureNumber::PathFileAccessError);
    EXPECT_EQ(NumberOf(this->files.TryRemoveFolder(this->At(u"link/"_s))),
              FailureNumber::PathFileAccessError);
    EXPECT_EQ(NumberOf(this->files.TryRemoveFolder(this->At(u"none"_s))), FailureNumber::PathNotFound);
    EXPECT_EQ(NumberOf(this->files.TryRemoveFolder(this->At(u"f/b"_s))), FailureNumber::PathNotFound);
    EXPECT_EQ(NumberOf(this->files.TryRemoveFolder(QString())), FailureNumber::BadFileName);
    EXPECT_EQ(NumberOf(this->files.TryRemoveFolder(this->At(u"a/b"_s))), std::nullopt);
    EXPECT_EQ(this->Names(QString()), (QStringList{u"a"_s, u"f"_s, u"link"_s}));
    EXPECT_EQ(this->Names(u"a"_s), QStringList());
}

ON_EACH_DISC(RemovesFilesAndLinksButNoFolder)
{
    this->MakeFolder(u"a"_s);
    this->Put(u"a/f"_s);
    this->disc.Link(this->At(u"link"_s), this->At(u"a/f"_s));
    const auto remove = [this](const QString &path) {
        return NumberThrownBy([&] { this->files.RemoveFile(this->At(path)); });
    };
    EXPECT_EQ(remove(u"link"_s), std::nullopt);
    EXPECT_TRUE(this->IsThere(u"a/f"_s));
    EXPECT_EQ(remove(u"a"_s), FailureNumber::PathFileAccessError);
    EXPECT_EQ(remove(u"link"_s), FailureNumber::FileNotFound);
    EXPECT_EQ(remove(u"none/f"_s), FailureNumber::PathNotFound);
    EXPECT_EQ(remove(u"a/f/g"_s), FailureNumber::PathNotFound);
    EXPECT_EQ(NumberThrownBy([&] { this->files.RemoveFile(QString()); }), FailureNumber::BadFileName);
    EXPECT_EQ(remove(u"a/f"_s), std::nullopt);
    EXPECT_EQ(this->Names(u"a"_s), QStringList());
}

ON_EACH_DISC(StatusTellsWhatIsThere)
{
    this->MakeFolder(u"a"_s);
    this->Put(u"f"_s, "12345");
    this->disc.Link(this->At(u"link"_s), this->At(u"f"_s));
    this->disc.Link(this->At(u"lost"_s), this->At(u"none"_s));
    EXPECT_EQ(this->files.Status(this->At(u"a"_s), Links::Follow)->kind, EntryKind::Folder);
    EXPECT_EQ(this->files.Status(this->At(u"a"_s), Links::Follow)->length, 0);
    EXPECT_EQ(this->files.Status(this->At(u"f"_s), Links::Keep)->kind, EntryKind::File);
    EXPECT_EQ(this->files.Status(this->At(u"f"_s), Links::Keep)->length, 5);
    EXPECT_TRUE(this->files.Status(this->At(u"f"_s), Links::Keep)->modified.isValid());
    EXPECT_EQ(this->files.Status(this->At(u"link"_s), Links::Keep)->kind, EntryKind::Link);
    EXPECT_EQ(this->files.Status(this->At(u"link"_s), Links::Follow)->length, 5);
    EXPECT_EQ(this->files.Status(this->At(u"lost"_s), Links::Keep)->kind, EntryKind::Link);
    EXPECT_FALSE(this->files.Status(this->At(u"lost"_s), Links::Follow));
    EXPECT_FALSE(this->files.Status(this->At(u"f/x"_s), Links::Keep));
    EXPECT_FALSE(this->files.Status(QString(), Links::Keep));
    EXPECT_FALSE(this->files.Status(this->At(QString(300, u'x')), Links::Keep));
    EXPECT_TRUE(FolderExists(this->files, this->disc.root));
    EXPECT_TRUE(FileExists(this->files, this->At(u"link"_s)));
}

ON_EACH_DISC(ListsEverythingSortedWithoutRegardToCase)
{
    for (const QString &name : {u"b"_s, u"A2"_s, u"a1"_s, u"C"_s, u"\u00E4"_s, u".hidden"_s})
        this->Put(name);
    this->MakeFolder(u"Ab"_s);
    this->disc.Hide(this->At(u".hidden"_s));
    this->disc.Link(this->At(u"c2"_s), this->At(u"Ab"_s));
    EXPECT_EQ(this->Names(QString()),
              (QStringList{u".hidden"_s, u"a1"_s, u"A2"_s, u"Ab"_s, u"b"_s, u"C"_s, u"c2"_s, u"\u00E4"_s}));
    const QList<FolderEntry> entries = this->files.List(this->disc.root);
    ASSERT_EQ(entries.size(), 8);
    EXPECT_TRUE(entries.at(0).hidden);
    EXPECT_FALSE(entries.at(1).hidden);
    EXPECT_EQ(entries.at(1).kind, EntryKind::File);
    EXPECT_EQ(entries.at(3).kind, EntryKind::Folder);
    EXPECT_EQ(entries.at(6).kind, EntryKind::Link);
    EXPECT_TRUE(this->files.Status(this->At(u".hidden"_s), Links::Keep)->hidden);
}

ON_EACH_DISC(ListsTheFolderThatALinkNames)
{
    this->MakeFolder(u"a"_s);
    this->Put(u"a/f"_s);
    this->disc.Link(this->At(u"link"_s), this->At(u"a"_s));
    EXPECT_EQ(this->Names(u"link"_s), QStringList{u"f"_s});
}

ON_EACH_DISC(ListingFailsWithoutAFolder)
{
    this->Put(u"f"_s);
    const auto list = [this](const QString &path) { return NumberThrownBy([&] { this->files.List(path); }); };
    const auto read = [this](const QString &path) { return NumberThrownBy([&] { this->files.Read(path); }); };
    for (const QString &path : {u"none"_s, u"f"_s, u"none/b"_s, u"f/b"_s}) {
        EXPECT_EQ(list(this->At(path)), FailureNumber::PathNotFound) << qPrintable(path);
        EXPECT_EQ(read(this->At(path)), FailureNumber::PathNotFound) << qPrintable(path);
    }
    EXPECT_EQ(list(QString()), FailureNumber::BadFileName);
    EXPECT_EQ(read(QString()), FailureNumber::BadFileName);
}

ON_EACH_DISC(ReadsAFolderEntryByEntry)
{
    for (const QString &name : {u"b"_s, u"a"_s, u"c"_s})
        this->Put(name);
    const auto reader = this->files.Read(this->disc.root);
    QStringList names;
    while (const auto entry = reader->Next())
        names += entry->name;
    names.sort();
    EXPECT_EQ(names, (QStringList{u"a"_s, u"b"_s, u"c"_s}));
    EXPECT_FALSE(reader->Next());
}

ON_EACH_DISC(RenamesFilesFoldersAndLinks)
{
    this->MakeFolder(u"a"_s);
    this->MakeFolder(u"d"_s);
    this->Put(u"a/f"_s, "1");
    this->disc.Link(this->At(u"link"_s), this->At(u"a"_s));
    this->files.Rename(this->At(u"a/f"_s), this->At(u"d/g"_s));
    this->files.Rename(this->At(u"d"_s), this->At(u"e"_s));
    this->files.Rename(this->At(u"link"_s), this->At(u"link2"_s));
    EXPECT_EQ(this->Names(QString()), (QStringList{u"a"_s, u"e"_s, u"link2"_s}));
    EXPECT_EQ(this->Bytes(u"e/g"_s), "1");
    EXPECT_EQ(this->files.Status(this->At(u"link2"_s), Links::Keep)->kind, EntryKind::Link);
    EXPECT_TRUE(FolderExists(this->files, this->At(u"a"_s)));
}

ON_EACH_DISC(RenameNeverOverwrites)
{
    this->MakeFolder(u"a"_s);
    this->MakeFolder(u"empty"_s);
    this->Put(u"f"_s, "1");
    this->Put(u"g"_s, "2");
    this->disc.Link(this->At(u"lost"_s), this->At(u"none"_s));
    EXPECT_EQ(this->RenameFails(u"f"_s, u"g"_s), FailureNumber::FileAlreadyExists);
    EXPECT_EQ(this->RenameFails(u"f"_s, u"a"_s), FailureNumber::FileAlreadyExists);
    EXPECT_EQ(this->RenameFails(u"a"_s, u"empty"_s), FailureNumber::FileAlreadyExists);
    EXPECT_EQ(this->RenameFails(u"a"_s, u"f"_s), FailureNumber::FileAlreadyExists);
    EXPECT_EQ(this->RenameFails(u"f"_s, u"lost"_s), FailureNumber::FileAlreadyExists);
    EXPECT_EQ(this->RenameFails(u"f"_s, u"f"_s), FailureNumber::FileAlreadyExists);
    EXPECT_EQ(this->Bytes(u"f"_s), "1");
    EXPECT_EQ(this->Bytes(u"g"_s), "2");
}

ON_EACH_DISC(RenameTellsWhatIsMissing)
{
    this->MakeFolder(u"a"_s);
    this->Put(u"f"_s);
    EXPECT_EQ(this->RenameFails(u"none"_s, u"g"_s), FailureNumber::FileNotFound);
    EXPECT_EQ(this->RenameFails(u"none/f"_s, u"g"_s), FailureNumber::PathNotFound);
    EXPECT_EQ(this->RenameFails(u"f"_s, u"none/g"_s), FailureNumber::PathNotFound);
    EXPECT_EQ(this->RenameFails(u"f"_s, QString()), FailureNumber::BadFileName);
    EXPECT_EQ(this->RenameFails(u"f"_s, u"a/"_s), FailureNumber::BadFileName);
    EXPECT_EQ(this->RenameFails(u"a"_s, u"a/b"_s), FailureNumber::InvalidProcedureCall);
    EXPECT_EQ(this->RenameFails(u"f"_s, QString(256, u'x')), FailureNumber::PathFileAccessError);
    EXPECT_EQ(NumberThrownBy([&] { this->files.Rename(QString(), this->At(u"g"_s)); }),
              FailureNumber::BadFileName);
    EXPECT_EQ(NumberThrownBy([&] { this->files.Rename(this->At(u"f"_s), QString()); }),
              FailureNumber::BadFileName);
    EXPECT_TRUE(this->IsThere(u"f"_s));
}

ON_EACH_DISC(OpensForEachPurpose)
{
    this->Put(u"f"_s, "abc");
    {
        const auto file = this->files.Open(this->At(u"f"_s), OpenFor::Appending);
        EXPECT_EQ(file->Position(), 3);
        file->Write("de");
    }
    EXPECT_EQ(this->Bytes(u"f"_s), "abcde");
    {
        const auto file = this->files.Open(this->At(u"f"_s), OpenFor::Changing);
        EXPECT_EQ(file->Read(2), "ab");
        file->Write("XY");
        EXPECT_EQ(file->Position(), 4);
        file->Seek(0);
        EXPECT_EQ(file->Read(100), "abXYe");
        EXPECT_EQ(file->Length(), 5);
        file->Flush();
    }
    this->files.Open(this->At(u"f"_s), OpenFor::Writing);
    EXPECT_EQ(this->Bytes(u"f"_s), "");
    this->files.Open(this->At(u"new"_s), OpenFor::Creating)->Write("n");
    EXPECT_EQ(this->Bytes(u"new"_s), "n");
    this->files.Open(this->At(u"appended"_s), OpenFor::Appending)->Write("a");
    EXPECT_EQ(this->Bytes(u"appended"_s), "a");
}

ON_EACH_DISC(OpenTellsWhyNot)
{
    this->MakeFolder(u"a"_s);
    this->Put(u"f"_s);
    for (const OpenFor purpose : {OpenFor::Reading, OpenFor::Changing})
        EXPECT_EQ(this->OpenFails(u"none"_s, purpose), FailureNumber::FileNotFound);
    for (const OpenFor purpose :
         {OpenFor::Reading, OpenFor::Writing, OpenFor::Appending, OpenFor::Changing, OpenFor::Creating}) {
        EXPECT_EQ(this->OpenFails(u"none/f"_s, purpose), FailureNumber::PathNotFound);
        EXPECT_EQ(this->OpenFails(u"f/g"_s, purpose), FailureNumber::PathNotFound);
        const bool isNew = purpose == OpenFor::Creating;
        EXPECT_EQ(this->OpenFails(u"a"_s, purpose),
                  isNew ? FailureNumber::FileAlreadyExists : FailureNumber::PathFileAccessError);
        EXPECT_EQ(NumberThrownBy([&] { this->files.Open(QString(), purpose); }), FailureNumber::BadFileName);
    }
    EXPECT_EQ(this->OpenFails(u"f"_s, OpenFor::Creating), FailureNumber::FileAlreadyExists);
    EXPECT_EQ(this->OpenFails(QString(256, u'x'), OpenFor::Writing), FailureNumber::PathFileAccessError);
    EXPECT_EQ(this->Bytes(u"f"_s), "x");
    EXPECT_FALSE(this->IsThere(u"none"_s));
}

ON_EACH_DISC(CreatingNeverGoesThroughALink)
{
    this->disc.Link(this->At(u"lost"_s), this->At(u"target"_s));
    EXPECT_EQ(this->OpenFails(u"lost"_s, OpenFor::Creating), FailureNumber::FileAlreadyExists);
    EXPECT_FALSE(this->IsThere(u"target"_s));
}

ON_EACH_DISC(WritingBehindTheEndLeavesZeros)
{
    const auto file = this->files.Open(this->At(u"f"_s), OpenFor::Writing);
    file->Seek(3);
    file->Write("x");
    EXPECT_EQ(file->Length(), 4);
    EXPECT_EQ(this->Bytes(u"f"_s), QByteArray("\0\0\0x", 4));
}

ON_EACH_DISC(ReadsShortOnlyAtTheEnd)
{
    this->Put(u"f"_s, QByteArray(100'000, 'x'));
    const auto file = this->files.Open(this->At(u"f"_s), OpenFor::Reading);
    EXPECT_EQ(file->Read(0), "");
    EXPECT_EQ(file->Read(99'999).size(), 99'999);
    EXPECT_EQ(file->Read(99'999), "x");
    EXPECT_EQ(file->Read(1), "");
    file->Seek(200'000);
    EXPECT_EQ(file->Read(1), "");
}

ON_EACH_DISC(AnOpenFileRefusesWhatItCannotDo)
{
    this->Put(u"f"_s);
    const auto reading = this->files.Open(this->At(u"f"_s), OpenFor::Reading);
    EXPECT_EQ(NumberThrownBy([&] { reading->Write("y"); }), FailureNumber::BadFileName);
    EXPECT_EQ(NumberThrownBy([&] { reading->Read(-1); }), FailureNumber::InvalidProcedureCall);
    EXPECT_EQ(NumberThrownBy([&] { reading->Seek(-1); }), FailureNumber::InvalidProcedureCall);
    const auto writing = this->files.Open(this->At(u"g"_s), OpenFor::Writing);
    EXPECT_EQ(NumberThrownBy([&] { writing->Read(1); }), FailureNumber::BadFileName);
    writing->Close();
    writing->Close();
    EXPECT_EQ(NumberThrownBy([&] { writing->Write("y"); }), FailureNumber::BadFileName);
    EXPECT_EQ(NumberThrownBy([&] { writing->Length(); }), FailureNumber::BadFileName);
    EXPECT_EQ(NumberThrownBy([&] { writing->Position(); }), FailureNumber::BadFileName);
    EXPECT_EQ(NumberThrownBy([&] { writing->Flush(); }), FailureNumber::BadFileName);
}

ON_EACH_DISC(OneAtATimeHoldsAFileAlone)
{
    this->Put(u"f"_s, "abc");
    auto first = this->files.Open(this->At(u"f"_s), OpenFor::Changing, Sharing::Exclusive);
    for (const OpenFor purpose : {OpenFor::Reading, OpenFor::Writing, OpenFor::Changing}) {
        EXPECT_EQ(NumberThrownBy([&] { this->files.Open(this->At(u"f"_s), purpose, Sharing::Exclusive); }),
                  FailureNumber::PermissionDenied);
    }
    EXPECT_EQ(this->Bytes(u"f"_s), "abc");
    first.reset();
    EXPECT_EQ(this->files.Open(this->At(u"f"_s), OpenFor::Changing, Sharing::Exclusive)->Length(), 3);
    this->files.Open(this->At(u"f"_s), OpenFor::Writing, Sharing::Exclusive);
    EXPECT_EQ(this->Bytes(u"f"_s), "");
}

ON_EACH_DISC(ReplacesContentsThroughALinkOrMakesTheFile)
{
    this->MakeFolder(u"a"_s);
    this->Put(u"a/f"_s, "old");
    this->disc.Link(this->At(u"link"_s), this->At(u"a/f"_s));
    this->disc.Link(this->At(u"lost"_s), this->At(u"a/g"_s));
    ReplaceContents(this->files, this->At(u"link"_s), "new");
    ReplaceContents(this->files, this->At(u"lost"_s), "found");
    ReplaceContents(this->files, this->At(u"h"_s), "made");
    EXPECT_EQ(this->files.Status(this->At(u"link"_s), Links::Keep)->kind, EntryKind::Link);
    EXPECT_EQ(this->Bytes(u"a/f"_s), "new");
    EXPECT_EQ(this->Bytes(u"a/g"_s), "found");
    EXPECT_EQ(this->Bytes(u"h"_s), "made");
    EXPECT_EQ(this->Names(u"a"_s), (QStringList{u"f"_s, u"g"_s}));
    EXPECT_EQ(NumberThrownBy([&] { ReplaceContents(this->files, this->At(u"a"_s), "x"); }),
              FailureNumber::PathFileAccessError);
    EXPECT_EQ(NumberThrownBy([&] { ReplaceContents(this->files, this->At(u"none/f"_s), "x"); }),
              FailureNumber::PathNotFound);
    EXPECT_EQ(NumberThrownBy([&] { ReplaceContents(this->files, QString(), "x"); }),
              FailureNumber::BadFileName);
    EXPECT_EQ(this->Names(QString()), (QStringList{u"a"_s, u"h"_s, u"link"_s, u"lost"_s}));
}

ON_EACH_DISC(NewContentsComeInPiecesAndAllAtOnce)
{
    this->Put(u"f"_s, "a long old text");
    const auto file = this->files.Replace(this->At(u"f"_s), IfThere::Replace);
    file->Write("new ");
    file->Write("text");
    EXPECT_EQ(this->Bytes(u"f"_s), "a long old text");
    file->Commit();
    EXPECT_EQ(this->Bytes(u"f"_s), "new text");
    EXPECT_EQ(this->Names(QString()), QStringList{u"f"_s});
}

ON_EACH_DISC(NewContentsThatAreGivenUpLeaveNothing)
{
    this->Put(u"f"_s, "old");
    this->disc.Link(this->At(u"lost"_s), this->At(u"target"_s));
    for (const QString &name : {u"f"_s, u"new"_s, u"lost"_s})
        this->files.Replace(this->At(name), IfThere::Replace)->Write("new");
    EXPECT_EQ(this->Bytes(u"f"_s), "old");
    EXPECT_EQ(this->Names(QString()), (QStringList{u"f"_s, u"lost"_s}));
}

ON_EACH_DISC(NewContentsRefuseWhatIsThereIfToldSo)
{
    this->Put(u"f"_s, "old");
    this->MakeFolder(u"a"_s);
    this->disc.Link(this->At(u"lost"_s), this->At(u"target"_s));
    for (const QString &name : {u"f"_s, u"a"_s, u"lost"_s}) {
        EXPECT_EQ(NumberThrownBy([&] { this->files.Replace(this->At(name), IfThere::Refuse); }),
                  FailureNumber::FileAlreadyExists);
    }
    const auto late = this->files.Replace(this->At(u"g"_s), IfThere::Refuse);
    late->Write("late");
    this->Put(u"g"_s, "early");
    EXPECT_EQ(NumberThrownBy([&] { late->Commit(); }), FailureNumber::FileAlreadyExists);
    EXPECT_EQ(this->Bytes(u"g"_s), "early");
    const auto made = this->files.Replace(this->At(u"h"_s), IfThere::Refuse);
    made->Write("made");
    made->Commit();
    EXPECT_EQ(this->Bytes(u"h"_s), "made");
}

ON_EACH_DISC(WriteProtectionIsPutOnAndTakenOff)
{
    this->Put(u"f"_s);
    this->disc.Link(this->At(u"link"_s), this->At(u"f"_s));
    EXPECT_FALSE(this->files.Status(this->At(u"f"_s), Links::Keep)->readOnly);
    this->files.SetReadOnly(this->At(u"link"_s), true);
    EXPECT_FALSE(this->files.Status(this->At(u"f"_s), Links::Keep)->readOnly);
    this->files.SetReadOnly(this->At(u"f"_s), true);
    EXPECT_TRUE(this->files.Status(this->At(u"f"_s), Links::Keep)->readOnly);
    this->files.SetReadOnly(this->At(u"f"_s), false);
    EXPECT_FALSE(this->files.Status(this->At(u"f"_s), Links::Keep)->readOnly);
    EXPECT_EQ(NumberThrownBy([&] { this->files.SetReadOnly(this->At(u"none"_s), true); }),
              FailureNumber::FileNotFound);
    EXPECT_EQ(NumberThrownBy([&] { this->files.SetReadOnly(this->At(u"none/f"_s), true); }),
              FailureNumber::PathNotFound);
}

ON_EACH_DISC(KnowsItsVolumes)
{
    const QList<Volume> volumes = this->files.Volumes();
    ASSERT_FALSE(volumes.isEmpty());
    EXPECT_TRUE(FolderExists(this->files, volumes.first().root));
    EXPECT_TRUE(volumes.first().root.endsWith(this->files.Separator()));
    EXPECT_TRUE(this->disc.root.startsWith(DriveOf(this->files, this->disc.root)));
    EXPECT_EQ(NumberThrownBy([&] { this->files.VolumeLabel(this->At(u"none/at/all"_s)); }), std::nullopt);
    EXPECT_GT(this->files.FreeSpace(this->disc.root), 0);
    EXPECT_GT(this->files.FreeSpace(this->At(u"none/at/all"_s)), 0);
}

} // namespace
