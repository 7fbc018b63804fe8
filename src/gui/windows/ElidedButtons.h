// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "faces/Captions.h"
#include "faces/PlainTips.h"

#include <QCheckBox>
#include <QHelpEvent>
#include <QRadioButton>
#include <QStyleOptionButton>
#include <QStylePainter>

#include <algorithm>

namespace tressel {

/// The ground of a check box or round button in a band of that palette. On a dark desktop the style's outline
/// can't be told from the band, nor the box's own ground.
QColor BoxGround(const QPalette &palette);

/// A check box or round button. Where its caption doesn't fit it ends in an ellipsis, and the whole is in
/// the tool tip.
template <typename Button> class ElidedButton : public Button {
public:
    ElidedButton() { this->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed); }

    /// What is shown of the caption.
    QString ShownText() const
    {
        return ElidedLines(this->fontMetrics(), this->text(), CaptionWidth(), Qt::TextShowMnemonic);
    }

    QSize minimumSizeHint() const override
    {
        constexpr int widestThatStays = 100;
        return Button::minimumSizeHint().boundedTo(QSize(widestThatStays, QWIDGETSIZE_MAX));
    }

protected:
    bool event(QEvent *event) override
    {
        if (event->type() != QEvent::ToolTip || ShownText() == this->text())
            return Button::event(event);
        ShowPlainTip(static_cast<QHelpEvent *>(event)->globalPos(),
                     WholeAndTip(WithoutMnemonic(this->text()), this->toolTip()), *this);
        return true;
    }

    void paintEvent(QPaintEvent *) override
    {
        QStylePainter painter(this);
        QStyleOptionButton option;
        this->initStyleOption(&option);
        option.text = ShownText();
        option.palette.setColor(QPalette::Base, BoxGround(option.palette));
        painter.drawControl(isRound ? QStyle::CE_RadioButton : QStyle::CE_CheckBox, option);
    }

private:
    static constexpr bool isRound = std::is_same_v<Button, QRadioButton>;

    /// The room that the indicator leaves.
    int CaptionWidth() const
    {
        QStyleOptionButton option;
        this->initStyleOption(&option);
        return this->style()
            ->subElementRect(isRound ? QStyle::SE_RadioButtonContents : QStyle::SE_CheckBoxContents, &option,
                             this)
            .width();
    }
};

} // namespace tressel
