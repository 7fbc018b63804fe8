// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/Numbers.h"
#include "settings/Keys.h"

#include <QChar>
#include <QString>

#include <cstdint>

namespace tressel {

class Program;
class SettingsHive;
struct Machine;

/// Which of a key's two readers reads. For most keys it makes no difference.
enum class KeyReader {
    First, ///< Main and the main form's load
    Later, ///< the appearance routine and the options dialog, which have defaults of their own for some keys
};

/// The stores as forms and tools use them: each value by its row in the table of keys, wherever it lives
/// and whatever kind it is stored as. Holds nothing itself; what is referred to must outlive it.
class Settings {
public:
    /// `separator` stands between the levels of a path on this platform.
    Settings(SettingsHive &settingsHive, const Program &runningProgram, QChar separator);
    explicit Settings(const Machine &machine);

    /// What is stored, text or number whatever is expected, or the reader's default. Never fails.
    /// A key of the older product that is missing or empty is stored with its default by being read.
    Value Read(const KeyEntry &key, KeyReader reader = KeyReader::First) const;
    QString ReadText(const KeyEntry &key, KeyReader reader = KeyReader::First) const;
    /// As a whole number. Fails with 6 and 13 as the conversions in base/Numbers.h do.
    std::int32_t ReadInt32(const KeyEntry &key, KeyReader reader = KeyReader::First) const;
    /// As a yes or no: "True" and "False", or a number, of which 0 alone is no. Fails with 13 for another
    /// text.
    bool ReadBoolean(const KeyEntry &key, KeyReader reader = KeyReader::First) const;

    /// Stores a value as the kind that the table gives for the key. Nothing tells if it couldn't be
    /// stored; but text for a key that is stored as a number fails with 6 or 13 if it isn't one.
    void Write(const KeyEntry &key, const QString &text);
    void Write(const KeyEntry &key, std::int32_t number);
    /// A yes or no: "True" or "False" as text, -1 or 0 as a number.
    void WriteBoolean(const KeyEntry &key, bool isTrue);

    /// Has what was written put down on the disc.
    void Flush();

private:
    Value DefaultOf(const KeyEntry &key, KeyReader reader) const;

    SettingsHive &hive;
    const Program &program;
    QChar pathSeparator;
};

} // namespace tressel
