// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "support/StartedProgram.h"
#include "support/Text.h"

#include <gtest/gtest.h>

namespace tressel {

/// Where the tests' list file is.
inline const QString listPath = QStringLiteral("C:\\Lists\\names.txt");
inline const QString waiting = QStringLiteral("Read list Wait...");

/// The started program with what a list file does in it.
class TextList : public testing::Test, protected StartedProgram {
protected:
    const QStringList &Entries() { return Area().LstItem.Items(); }

    void Load(const QByteArray &contents, const QString &path = listPath)
    {
        machine.files.PutFile(path, contents);
        machine.dialogs.ExpectOpenFile(path);
        Form().textLists.btnGBLoadFile.UserClicks();
    }
    bool HasFlags(bool report, bool textFile, bool fileList)
    {
        const Session &session = application.session;
        return session.ListFromReport == report && session.ListFromTextFile == textFile
            && session.ListFromFileList == fileList;
    }
};

} // namespace tressel
