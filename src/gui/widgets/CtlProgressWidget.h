// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/CtlProgress.h"
#include "widgets/OwnControl.h"

#include <QFont>
#include <QImage>
#include <QWidget>

#include <memory>

namespace tressel {

/// A progress bar's last painting as a picture in pixels of the screen: the text is printed in its own
/// colour beside the bar and inverted on it, so that it stays readable on both sides of the bar's edge.
/// `scale` is the number of those to a pixel of the design. The picture holds no frame.
QImage DrawProgress(const CtlProgress::Drawing &drawing, const QColor &background, const QPalette &palette,
                    const QFont &font, QSize screenSize, qreal scale);

/// The face of a CtlProgress. Until SetControl it shows a control of its own.
class CtlProgressWidget : public QWidget {
    Q_OBJECT
    Q_PROPERTY(int Appearance READ Appearance WRITE SetAppearance)
    Q_PROPERTY(QString Caption READ Caption WRITE SetCaption)
    Q_PROPERTY(QString text READ Text)
    Q_PROPERTY(int Max READ Max WRITE SetMax)
    Q_PROPERTY(int Min READ Min WRITE SetMin)
    Q_PROPERTY(bool Enabled READ Enabled WRITE SetEnabled)
    Q_PROPERTY(int BorderStyle READ BorderStyle WRITE SetBorderStyle)
    Q_PROPERTY(int CaptionStyle READ CaptionStyle WRITE SetCaptionStyle)
    Q_PROPERTY(QFont CaptionFont READ CaptionFont WRITE SetCaptionFont)
    Q_PROPERTY(uint FillColor READ FillColor WRITE SetFillColor)
    Q_PROPERTY(uint ForeColor READ ForeColor WRITE SetForeColor)
    Q_PROPERTY(uint BackColor READ BackColor WRITE SetBackColor)
    Q_PROPERTY(int Value READ Value WRITE SetValue)

public:
    explicit CtlProgressWidget(QWidget *parent = nullptr);
    ~CtlProgressWidget() override;

    /// Shows this control from now on, in place of its own. The control must outlive the widget, or be
    /// followed by a call with null.
    void SetControl(CtlProgress *newControl);
    CtlProgress &Control() const { return *control; }
    /// Takes over what changed in the control.
    void TakeOver();

    QSize sizeHint() const override;

    int Appearance() const;
    /// Fails with 6 beyond 16 bits, as the other setters of 16-bit properties do. A failure of a control on
    /// a form goes where those of the form's events go.
    void SetAppearance(int appearance);
    QString Caption() const;
    void SetCaption(const QString &text);
    /// What stands on the bar.
    QString Text() const;
    int Max() const;
    void SetMax(int max);
    int Min() const;
    void SetMin(int min);
    bool Enabled() const;
    void SetEnabled(bool isEnabled);
    int BorderStyle() const;
    void SetBorderStyle(int style);
    int CaptionStyle() const;
    void SetCaptionStyle(int style);
    QFont CaptionFont() const;
    void SetCaptionFont(const QFont &captionFont);
    uint FillColor() const;
    void SetFillColor(uint colour);
    uint ForeColor() const;
    void SetForeColor(uint colour);
    uint BackColor() const;
    void SetBackColor(uint colour);
    int Value() const;
    /// The value within the bounds, as it is drawn; the lower one before the first painting.
    int ShownValue() const;
    /// Fails as the control does, and goes the same way.
    void SetValue(int value);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void TakeContainerColour();
    void TellAssistance();
    int FrameWidth() const;
    void DrawFrame(QPainter &painter, QSize screenSize, int thick) const;
    QImage DrawWhole(QSize screenSize, qreal scale) const;

    std::unique_ptr<OwnControl<CtlProgress>> own;
    CtlProgress *control;
    QString toldText;
    int toldValue = 0;
};

} // namespace tressel
