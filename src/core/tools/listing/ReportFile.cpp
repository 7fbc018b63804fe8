// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/listing/ReportFile.h"

#include "base/Pictures.h"
#include "base/Steps.h"
#include "base/Text.h"
#include "machine/Clock.h"
#include "machine/Paths.h"

namespace tressel {

using namespace Qt::StringLiterals;

ReportFile::ReportFile(FileSystem &fileSystem, const Clock &systemClock)
    : files(fileSystem)
    , clock(systemClock)
{
}

QString ReportFile::Path() const
{
    return ReportFolder + files.Separator() + Name();
}

QString ReportFile::ShownPath() const
{
    return JoinPath(files, ReportFolder, Name());
}

void ReportFile::NextReportFile(const QString &source, const QStringList &header)
{
    QString VolumeLabel;
    Steps steps;
    // Only a root has a label; a folder deeper down has none.
    if (IsDriveRoot(files, source))
        steps.Do([&] { VolumeLabel = UpToNul(files.VolumeLabel(source)); });
    // A disc can't take the report.
    if (VolumeLabel.startsWith("CD"_L1, Qt::CaseInsensitive))
        ReportFolder = OnDriveC(files, u"C:"_s);

    try {
        const auto hold = files.Hold(ReportFolder);
        files.Open(Path(), OpenFor::Changing)->Close();
        ++ReportNumber;
        const auto writer = Create();
        for (const QString &line : header)
            writer->WriteLine(line);
        writer->Close();
    } catch (const Failure &failure) {
        if (failure.number == FailureNumber::FileNotFound)
            ReportNumber = 1;
    }
}

std::unique_ptr<LineWriter> ReportFile::Create() const
{
    const auto hold = files.Hold(ReportFolder);
    try {
        return std::make_unique<LineWriter>(files, Path(), OpenFor::Writing, NameBytes::Raw);
    } catch (const Failure &failure) {
        if (failure.number == FailureNumber::PathFileAccessError)
            throw Failure(FailureNumber::PermissionDenied);
        throw;
    }
}

std::unique_ptr<LineWriter> ReportFile::OpenToAppend() const
{
    const auto hold = files.Hold(ReportFolder);
    const QString path = Path();
    if (!FileExists(files, path))
        throw Failure(FailureNumber::FileNotFound);
    return std::make_unique<LineWriter>(files, path, OpenFor::Appending, NameBytes::Raw);
}

QString ReportFile::Name() const
{
    return u"List-"_s + FormatPicture(ReportNumber, u"0#"_s) + u' ' + clock.Now().date().toString(Qt::ISODate)
        + u".txt"_s;
}

} // namespace tressel
