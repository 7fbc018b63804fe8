// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "controls/Captioned.h"
#include "forms/Application.h"
#include "language/LanguageTexts.h"
#include "support/MemoryMachine.h"
#include "support/Text.h"

#include <QDir>
#include <QFile>
#include <QMap>

#include <algorithm>
#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

QByteArray Asset(const QString &name)
{
    QFile file(QStringLiteral(TRESSEL_ASSETS "/Lang/") + name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return file.readAll();
}

/// The texts of a file by their numbers.
QMap<int, QString> TextsOf(const QString &language)
{
    QMap<int, QString> texts;
    for (const QString &line : QString::fromUtf8(Asset(language + u".lng"_s)).split(u"\r\n"_s)) {
        if (!line.isEmpty() && !line.startsWith(u';'))
            texts.insert(line.left(3).toInt(), line.mid(4));
    }
    return texts;
}

QStringList Languages()
{
    QStringList names = QString::fromUtf8(Asset(u"Language.dat"_s)).split(u"\r\n"_s, Qt::SkipEmptyParts);
    names.removeIf([](const QString &line) { return line.startsWith(u';'); });
    return names;
}

QChar MnemonicOf(const QString &caption)
{
    const qsizetype place = caption.indexOf(u'&');
    return place < 0 ? QChar() : caption.at(place + 1).toLower();
}

TEST(LanguageFiles, EachListedLanguageHasItsFileAndTheOtherWayRound)
{
    QStringList listed = Languages();
    for (QString &name : listed)
        name += u".lng";
    listed.sort();
    EXPECT_EQ(listed, QDir(QStringLiteral(TRESSEL_ASSETS "/Lang")).entryList({u"*.lng"_s}, QDir::Files));
    EXPECT_EQ(listed.size(), 8);
}

TEST(LanguageFiles, EachIsCompleteAndNamesNothingElse)
{
    QList<int> numbers{0};
    for (const LanguageText &row : LanguageTexts())
        numbers += row.index;
    std::ranges::sort(numbers);
    for (const QString &language : Languages()) {
        const QMap<int, QString> texts = TextsOf(language);
        EXPECT_EQ(texts.keys(), numbers) << language.toStdString();
        EXPECT_EQ(texts.value(0), u"LANGUAGE FILE v4.0"_s) << language.toStdString();
        for (const auto &[number, text] : texts.asKeyValueRange())
            EXPECT_FALSE(text.trimmed().isEmpty()) << language.toStdString() << ' ' << number;
        EXPECT_TRUE(Asset(language + u".lng"_s).startsWith("000 ")) << language.toStdString();
    }
}

TEST(LanguageFiles, MnemonicsOfTheOptionsDoNotMeet)
{
    QStringList languages = Languages();
    // The forms' own texts, in which Cancel and Change Info meet.
    languages.removeOne(u"English"_s);
    for (const QString &language : languages) {
        const QMap<int, QString> texts = TextsOf(language);
        QString taken;
        for (const int number : {417, 419, 421, 423, 430, 431}) {
            const QChar mnemonic = MnemonicOf(texts.value(number));
            EXPECT_FALSE(mnemonic.isNull()) << language.toStdString() << ' ' << number;
            // Default and the two of the information page are never seen together.
            if (number == 430)
                taken.remove(MnemonicOf(texts.value(417)));
            EXPECT_FALSE(taken.contains(mnemonic)) << language.toStdString() << ' ' << number;
            taken += mnemonic;
        }
    }
}

constexpr int fieldsHeading = 25;

class EnglishTexts : public testing::Test {
protected:
    EnglishTexts()
    {
        // An open database would have its labels count.
        application.settings.Write(keys::DatabaseFile, QString());
        application.Start();
    }

    MemoryMachine machine;
    Application application{machine.machine};
};

TEST_F(EnglishTexts, AreThoseOfTheForms)
{
    QMap<int, QString> texts = TextsOf(u"English"_s);
    // It comes while the fields of the last session's table stand below it already.
    EXPECT_EQ(texts.take(fieldsHeading), u"Fields"_s);
    QStringList missing;
    for (const LanguageText &row : LanguageTexts()) {
        Form &form = row.form == u"frmOption" ? static_cast<Form &>(application.frmOption())
            : row.form == u"frmAbout"         ? static_cast<Form &>(application.frmAbout())
                                              : application.frmMain();
        const Control *control = form.Find(row.control.toString());
        if (!control) {
            missing += row.control.toString();
            continue;
        }
        const auto *captioned = dynamic_cast<const Captioned *>(control);
        ASSERT_TRUE(captioned || row.property == TextProperty::ToolTip) << row.index;
        const QString own = row.property == TextProperty::ToolTip ? control->ToolTip() : captioned->Caption();
        if (!own.isEmpty() && row.index != fieldsHeading) {
            EXPECT_EQ(texts.value(row.index), own) << row.index;
        }
    }
    EXPECT_EQ(missing, QStringList());
}

} // namespace
