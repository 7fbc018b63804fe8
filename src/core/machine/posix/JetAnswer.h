// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "jet/Wire.h"
#include "machine/Databases.h"
#include "machine/posix/JetProcess.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <string_view>

namespace tressel {

/// What a question is about, for the sentences of its failures.
struct JetQuestion {
    jet::FrameKind kind;
    QString file;
    QString table;
    QStringList fields;
    DatabaseRoad road = DatabaseRoad::Newer;
};

/// The answer to one question, frame by frame. Whatever is wrong with it is one of databaseFailures. Nothing
/// in an answer is believed: a damaged file may have taken the other process over.
class JetAnswer {
public:
    /// Opens the file and asks.
    JetAnswer(JetQuestion question, const QByteArray &program, Events &events,
              std::chrono::milliseconds patience);

    /// The content of the next frame, which must be of this kind; good until the next one is asked for.
    /// Nothing from the end of the whole answer on.
    std::optional<std::string_view> Next(jet::FrameKind kind);
    /// Waits for a frame of this kind without content.
    void Expect(jet::FrameKind kind);

    /// The failure of an answer that can't be one.
    Failure Damaged() const;

private:
    JetProcess::Frame NextFrame();
    Failure FailureOf(std::string_view content) const;

    JetQuestion question;
    JetProcess process;
    quint64 count = 0;
    bool hasEnded = false;
};

/// A content as a value. Nothing if it is none.
std::optional<DatabaseValue> ValueFromFrame(std::string_view content);

} // namespace tressel
