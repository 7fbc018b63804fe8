// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "support/WatchedDisc.h"

#include <utility>

namespace tressel {

namespace {

class WatchedFile : public OpenFile {
public:
    WatchedFile(WatchedDisc &theDisc, QString thePath, std::unique_ptr<OpenFile> theFile)
        : disc(theDisc)
        , path(std::move(thePath))
        , file(std::move(theFile))
    {
    }

    QByteArray Read(qint64 maximum) override { return file->Read(maximum); }
    qint64 ReadInto(std::span<char> room) override { return file->ReadInto(room); }
    void Write(const QByteArray &bytes) override
    {
        disc.before({Operation::WriteBytes, path, bytes.size()});
        file->Write(bytes);
    }
    qint64 TakeFrom(OpenFile &source, qint64 maximum) override
    {
        if (!disc.hasShortWay)
            return 0;
        disc.before({Operation::WriteBytes, path, maximum});
        return file->TakeFrom(Behind(source), maximum);
    }
    qint64 Position() const override { return file->Position(); }
    void Seek(qint64 position) override { file->Seek(position); }
    qint64 Length() const override { return file->Length(); }
    void Resize(qint64 length) override
    {
        disc.before({Operation::ResizeFile, path, length});
        file->Resize(length);
    }
    void Flush() override
    {
        disc.before({Operation::FlushFile, path, 0});
        file->Flush();
    }
    void Close() override
    {
        disc.before({Operation::CloseFile, path, 0});
        file->Close();
    }
    void ForgetCached() override { file->ForgetCached(); }
    std::optional<QList<Extent>> Extents() const override { return file->Extents(); }
    bool IsInJournal() const override { return file->IsInJournal(); }
    void TakeAttributesOf(const OpenFile &other) override { file->TakeAttributesOf(other); }

    /// The disc's own file, where a watched one is given.
    static OpenFile &Behind(OpenFile &given)
    {
        auto *watched = dynamic_cast<WatchedFile *>(&given);
        return watched ? *watched->file : given;
    }

private:
    WatchedDisc &disc;
    QString path;
    std::unique_ptr<OpenFile> file;
};

class WatchedReplacingFile : public ReplacingFile {
public:
    WatchedReplacingFile(WatchedDisc &theDisc, QString thePath, std::unique_ptr<ReplacingFile> theFile)
        : disc(theDisc)
        , path(std::move(thePath))
        , file(std::move(theFile))
    {
    }

    void Write(const QByteArray &bytes) override
    {
        disc.before({Operation::WriteBytes, path, bytes.size()});
        file->Write(bytes);
    }
    qint64 TakeFrom(OpenFile &source, qint64 maximum) override
    {
        if (!disc.hasShortWay)
            return 0;
        disc.before({Operation::WriteBytes, path, maximum});
        return file->TakeFrom(WatchedFile::Behind(source), maximum);
    }
    void Commit() override
    {
        disc.before({Operation::CommitFile, path, 0});
        file->Commit();
    }

private:
    WatchedDisc &disc;
    QString path;
    std::unique_ptr<ReplacingFile> file;
};

} // namespace

std::unique_ptr<OpenFile> WatchedDisc::Open(const QString &path, OpenFor purpose, Sharing sharing)
{
    return std::make_unique<WatchedFile>(*this, path, PosixFileSystem::Open(path, purpose, sharing));
}

std::unique_ptr<ReplacingFile> WatchedDisc::Replace(const QString &path, IfThere ifThere)
{
    return std::make_unique<WatchedReplacingFile>(*this, path, PosixFileSystem::Replace(path, ifThere));
}

void WatchedDisc::RemoveFile(const QString &path)
{
    before({Operation::RemoveFile, path, 0});
    PosixFileSystem::RemoveFile(path);
}

} // namespace tressel
