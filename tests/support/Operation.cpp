// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "support/Operation.h"

namespace tressel {

using namespace Qt::StringLiterals;

QString OperationName(Operation operation)
{
    switch (operation) {
    case Operation::Status:
        return u"Status"_s;
    case Operation::List:
        return u"List"_s;
    case Operation::ReadFolder:
        return u"ReadFolder"_s;
    case Operation::MakeFolder:
        return u"MakeFolder"_s;
    case Operation::RemoveFolder:
        return u"RemoveFolder"_s;
    case Operation::RemoveFile:
        return u"RemoveFile"_s;
    case Operation::Rename:
        return u"Rename"_s;
    case Operation::OpenForReading:
        return u"OpenForReading"_s;
    case Operation::OpenForWriting:
        return u"OpenForWriting"_s;
    case Operation::ReadBytes:
        return u"ReadBytes"_s;
    case Operation::WriteBytes:
        return u"WriteBytes"_s;
    case Operation::ResizeFile:
        return u"ResizeFile"_s;
    case Operation::FlushFile:
        return u"FlushFile"_s;
    case Operation::FlushFolder:
        return u"FlushFolder"_s;
    case Operation::CloseFile:
        return u"CloseFile"_s;
    case Operation::Replace:
        return u"Replace"_s;
    case Operation::CommitFile:
        return u"CommitFile"_s;
    case Operation::LinkTarget:
        return u"LinkTarget"_s;
    case Operation::MakeLink:
        return u"MakeLink"_s;
    case Operation::SetReadOnly:
        return u"SetReadOnly"_s;
    case Operation::VolumeLabel:
        return u"VolumeLabel"_s;
    case Operation::FreeSpace:
        return u"FreeSpace"_s;
    }
    return {};
}

} // namespace tressel
