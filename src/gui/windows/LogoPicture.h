// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

namespace tressel {

/// The program's picture, also in the state that shows it pressed in.
class LogoPicture : public QWidget {
public:
    LogoPicture(const QString &name, bool isPressed);

    static constexpr QSize extent{80, 80};

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void PaintGround(QPainter &painter) const;

    const bool pressed;
};

} // namespace tressel
