// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/FontDialog.h"

#include "machine/PlainColours.h"
#include "widgets/FontFaces.h"

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
    QFont shown = ToFont(font);
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
    return {ToFontFace(selectedFont()), ToNumber(colour)};
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
