// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "language/Catalogue.h"

#include "base/Numbers.h"
#include "base/Steps.h"
#include "base/Text.h"
#include "base/Version.h"
#include "controls/Captioned.h"
#include "controls/ComboBox.h"
#include "language/LanguageTexts.h"
#include "machine/Dialogs.h"
#include "machine/Machine.h"
#include "machine/Paths.h"
#include "machine/Program.h"
#include "machine/TextFile.h"

#include <algorithm>
#include <utility>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

constexpr std::int16_t success = 0;
constexpr std::int16_t failed = 1;

bool IsComment(const QString &line)
{
    return line.startsWith(u';');
}

bool IsBlank(const QString &line)
{
    return std::ranges::all_of(line, [](QChar each) { return each == u' '; });
}

void PutToolTip(Control &control, const QString &text)
{
    control.SetToolTip(text);
    // A button that is hidden has left its tool tip with the form and takes that one when it is shown.
    if (!control.Control::ToolTip().isEmpty())
        control.Control::SetToolTip(text);
}

} // namespace

Catalogue::Catalogue(const Machine &machine, FormOfName formOfName)
    : files(machine.files)
    , dialogs(machine.dialogs)
    , program(machine.program)
    , forms(std::move(formOfName))
{
}

QString Catalogue::FileOf(const QString &language) const
{
    return JoinPath(files, JoinPath(files, program.Folder(), u"Lang"_s), language + u".lng"_s);
}

void Catalogue::FillLanguageList(ComboBox &cmbLanguage) const
{
    const QString path = JoinPath(files, JoinPath(files, program.Folder(), u"Lang"_s), u"Language.dat"_s);
    try {
        LineReader reader(files, path, NameBytes::Escaped, largestProgramText);
        while (const auto line = reader.Next()) {
            if (!IsComment(*line) && !line->isEmpty())
                cmbLanguage.AddItem(*line);
        }
    } catch (const Failure &failure) {
        QString text = failure.description;
        if (failure.number == FailureNumber::FileNotFound)
            text = u"The Language file ''"_s + path + u"'' is not exist"_s;
        else if (failure.number == FailureNumber::PathNotFound)
            text = u"Path ''Lang'' Not Found"_s;
        dialogs.Show({text, ApplicationTitle, BoxIcon::Exclamation});
    }
}

std::int16_t Catalogue::LoadLanguage(const QString &path)
{
    if (path.isEmpty() || !FileExists(files, path))
        return failed;
    // From here on what fails is passed over but counts in the end.
    Steps steps;
    steps.Do([&] {
        LineReader reader(files, path, NameBytes::Escaped, largestProgramText);
        while (const auto line = reader.Next()) {
            if (!IsComment(*line) && !IsBlank(*line))
                steps.Do([&] { TakeLine(*line); });
        }
    });
    // Kept: by now a file without the mark has changed the table.
    if (texts[0] != u"LANGUAGE FILE v4.0" || steps.Pending())
        return failed;
    ApplyLanguage();
    return success;
}

void Catalogue::TakeLine(const QString &line)
{
    constexpr int columnsOfNumber = 3;
    constexpr int firstColumnOfText = 5;
    const std::int16_t index = ToInt16(LeadingNumber(Left(line, columnsOfNumber)));
    if (index >= static_cast<int>(size))
        return;
    if (index < 0)
        throw Failure(FailureNumber::SubscriptOutOfRange);
    texts[static_cast<std::size_t>(index)] = Mid(line, firstColumnOfText, line.size()).replace(u'_', u'\r');
}

void Catalogue::ApplyLanguage() const
{
    for (const LanguageText &row : LanguageTexts())
        Apply(row);
}

void Catalogue::Apply(const LanguageText &row) const
{
    const Form *form = forms(row.form.toString());
    Control *control = form ? form->Find(row.control.toString()) : nullptr;
    if (!control)
        return;
    if (row.property == TextProperty::ToolTip)
        PutToolTip(*control, Text(row.index));
    else if (auto *captioned = dynamic_cast<Captioned *>(control))
        captioned->SetCaption(Text(row.index));
}

const QString &Catalogue::Text(int index) const
{
    if (index < 0 || index >= static_cast<int>(size))
        throw Failure(FailureNumber::SubscriptOutOfRange);
    return texts[static_cast<std::size_t>(index)];
}

} // namespace tressel
