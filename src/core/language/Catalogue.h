// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <array>
#include <cstdint>
#include <functional>

namespace tressel {

class ComboBox;
class Control;
class Dialogs;
class FileSystem;
class Form;
class Program;
struct LanguageText;
struct Machine;

/// The texts of the interface in the language that the user chose: a thousand of them, empty at first, each
/// under its number. A file of the program folder's Lang folder fills it, and its texts then go onto the
/// controls that the table of LanguageTexts.h names.
///
/// A line of such a file has the number in its first three columns, any character in the fourth, and the
/// text from the fifth on, in which "_" stands for a line break. A line that starts with ";" is a comment.
class Catalogue {
public:
    static constexpr std::size_t size = 1000;

    /// The form of a name, made if it wasn't yet; null if there is none.
    using FormOfName = std::function<Form *(const QString &name)>;

    Catalogue(const Machine &machine, FormOfName forms);

    /// The file of a language, which need not be there.
    QString FileOf(const QString &language) const;
    /// Adds the languages that there are to the list. Tells the user if that fails.
    void FillLanguageList(ComboBox &cmbLanguage) const;
    /// Reads a language file and, if it is one, applies it. 0 is success and 1 failure. A number that the
    /// file doesn't name keeps its text, and what was read before a failure stays in the table.
    std::int16_t LoadLanguage(const QString &path);
    /// Puts the texts onto the controls. An empty one blanks its control.
    void ApplyLanguage() const;

    /// Fails with 9 for a number outside the table.
    const QString &Text(int index) const;

private:
    void TakeLine(const QString &line);
    void Apply(const LanguageText &row) const;

    FileSystem &files;
    Dialogs &dialogs;
    const Program &program;
    FormOfName forms;
    std::array<QString, size> texts;
};

} // namespace tressel
