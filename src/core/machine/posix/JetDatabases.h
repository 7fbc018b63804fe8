// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "machine/Databases.h"

#include <QByteArray>

#include <chrono>

namespace tressel {

class Events;

/// Jet files, read by tressel-jet: one process for each question, with limits on all that it may take.
class JetDatabases : public Databases {
public:
    /// A file that gives no answer for so long counts as damaged.
    static constexpr std::chrono::milliseconds Patience = std::chrono::seconds(20);

    /// `program` is the whole path of tressel-jet. The window is kept painting through the events.
    explicit JetDatabases(Events &events, QByteArray program = FindJet(),
                          std::chrono::milliseconds patience = Patience);

    std::unique_ptr<ObjectReader> OpenSchema(const QString &file, DatabaseRoad road) override;
    std::unique_ptr<FieldListReader> OpenFields(const QString &file, const QString &table,
                                                DatabaseRoad road) override;
    std::unique_ptr<FieldReader> Read(const QString &file, const QString &table,
                                      const QStringList &fields) override;

    /// tressel-jet beside the running executable, or where it is installed.
    static QByteArray FindJet();

private:
    Events &events;
    QByteArray program;
    std::chrono::milliseconds patience;
};

} // namespace tressel
