// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/FontDialog.h"

#include "machine/PlainColours.h"

#include <QColorDialog>
#include <QFontInfo>
#include <QGridLayout>
#include <QPushButton>

namespace tressel {

using namespace Qt::StringLiterals;

FontDialog::FontDialog(const FontChoice &font, QWidget *parent)
    : QFontDialog(parent)
    , colour(ToColour(font.colour))
{
    setOption(DontUseNativeDialog);
    QFont shown(font.family);
    shown.setPointSizeF(font.points);
    shown.setBold(font.bold);
    shown.setItalic(font.italic);
    shown.setUnderline(font.underline);
    shown.setStrikeOut(font.strikeout);
    // The dialog knows styles only of real families, not of names that stand for one.
    shown.setFamily(QFontInfo(shown).family());
    setCurrentFont(shown);

    colourButton = new QPushButton(u"Color..."_s, this);
    colourButton->setObjectName(u"colourButton"_s);
    connect(colourButton, &QPushButton::clicked, this, [this] { ChooseColour(); });
    ShowColour();
    auto *rows = qobject_cast<QGridLayout *>(layout());
    Q_ASSERT(rows);
    rows->addWidget(colourButton, rows->rowCount(), 0);
}

FontChoice FontDialog::Choice() const
{
    const QFont font = selectedFont();
    return {font.family(),    font.pointSizeF(), font.bold(),     font.italic(),
            font.underline(), font.strikeOut(),  ToNumber(colour)};
}

void FontDialog::ChooseColour()
{
    const QColor chosen = QColorDialog::getColor(colour, this);
    if (!chosen.isValid())
        return;
    colour = chosen;
    ShowColour();
}

void FontDialog::ShowColour()
{
    QPixmap swatch(colourButton->iconSize());
    swatch.fill(colour);
    colourButton->setIcon(QIcon(swatch));
    colourButton->setAccessibleDescription(colour.name());
}

} // namespace tressel
