// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "widgets/CtlProgressWidget.h"

#include "base/Numbers.h"
#include "widgets/FontFaces.h"
#include "widgets/PixelPainting.h"
#include "widgets/ProgressAccessible.h"
#include "widgets/SystemColours.h"

#include <QAccessible>
#include <QPainter>

namespace tressel {

using namespace Qt::StringLiterals;

QImage DrawProgress(const CtlProgress::Drawing &drawing, const QColor &background, const QPalette &palette,
                    const QFont &font, QSize screenSize, qreal scale)
{
    QImage drawn(screenSize, QImage::Format_RGB32);
    if (drawn.isNull())
        return drawn;
    drawn.fill(background);
    if (!drawing.painted)
        return drawn;
    QPainter painter(&drawn);
    painter.save();
    painter.scale(scale, scale);
    painter.setFont(drawing.font ? ToFont(*drawing.font) : font);
    painter.setPen(TranslateColour(drawing.foreColor, palette));
    painter.drawText(QRectF(QPointF(), QSizeF(screenSize) / scale), Qt::AlignCenter | Qt::TextSingleLine,
                     drawing.text);
    painter.restore();

    // The pen of the original leaves not (pixel xor colour), which turns the plain background into the
    // fill's colour only where that is white. Starting from the background turns it into exactly that.
    const QRgb fill = TranslateColour(drawing.fillColor, palette).rgb();
    const QRgb turned = (fill ^ background.rgb()) & 0x00FFFFFF;
    const int edge = qRound(screenSize.width() * drawing.filled);
    painter.setCompositionMode(QPainter::RasterOp_SourceXorDestination);
    painter.fillRect(QRect(0, 0, edge, screenSize.height()), QColor::fromRgb(turned));
    return drawn;
}

CtlProgressWidget::CtlProgressWidget(QWidget *parent)
    : QWidget(parent)
{
    InstallProgressAccess();
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    UseOwnControl();
}

CtlProgressWidget::~CtlProgressWidget() = default;

void CtlProgressWidget::UseOwnControl()
{
    ownForm = std::make_unique<Form>(u"own"_s);
    ownControl = std::make_unique<CtlProgress>(*ownForm, u"ctlProgress"_s);
    control = ownControl.get();
    ownForm->SetChangeListener([this] {
        QMetaObject::invokeMethod(
            this,
            [this] {
                if (ownForm) {
                    ownForm->TakeChanged();
                    TakeOver();
                }
            },
            Qt::QueuedConnection);
    });
}

void CtlProgressWidget::SetControl(CtlProgress *newControl)
{
    ownControl.reset();
    ownForm.reset();
    if (newControl)
        control = newControl;
    else
        UseOwnControl();
    TakeOver();
}

void CtlProgressWidget::TakeOver()
{
    if (isEnabled() != control->IsEnabled())
        setEnabled(control->IsEnabled());
    QAccessibleValueChangeEvent changed(this, control->Value());
    QAccessible::updateAccessibility(&changed);
    update();
}

QSize CtlProgressWidget::sizeHint() const
{
    return QSize(120, fontMetrics().height() + 2 * FrameWidth() + 6);
}

int CtlProgressWidget::FrameWidth() const
{
    return control->BorderStyle() == 0 ? 0 : 1;
}

void CtlProgressWidget::DrawFrame(QPainter &painter, QSize screenSize, int thick) const
{
    const int w = screenSize.width();
    const int h = screenSize.height();
    const QColor dark = ColourOf(SystemColour::ButtonShadow, palette());
    const QColor light = control->Appearance() == 0 ? dark : palette().color(QPalette::Light);
    painter.fillRect(QRect(0, 0, w, thick), dark);
    painter.fillRect(QRect(0, 0, thick, h), dark);
    painter.fillRect(QRect(0, h - thick, w, thick), light);
    painter.fillRect(QRect(w - thick, 0, thick, h), light);
}

QImage CtlProgressWidget::DrawWhole(QSize screenSize, qreal scale) const
{
    const int thick = qRound(FrameWidth() * scale);
    const QColor background = TranslateColour(control->BackColor(), palette());
    const QImage inside = DrawProgress(control->Drawn(), background, palette(), font(),
                                       screenSize - QSize(2 * thick, 2 * thick), scale);
    if (thick == 0)
        return inside;
    QImage whole(screenSize, QImage::Format_RGB32);
    QPainter painter(&whole);
    DrawFrame(painter, screenSize, thick);
    painter.drawImage(thick, thick, inside);
    return whole;
}

void CtlProgressWidget::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    DrawOnPixels(painter, rect(),
                 [&](QSize screenSize, qreal scale) { return DrawWhole(screenSize, scale); });
}

int CtlProgressWidget::Appearance() const
{
    return control->Appearance();
}

void CtlProgressWidget::SetAppearance(int appearance)
{
    control->SetAppearance(ToInt16(static_cast<double>(appearance)));
}

QString CtlProgressWidget::Caption() const
{
    return control->Caption();
}

void CtlProgressWidget::SetCaption(const QString &text)
{
    control->SetCaption(text);
}

QString CtlProgressWidget::Text() const
{
    return control->Drawn().text;
}

int CtlProgressWidget::Max() const
{
    return control->Max();
}

void CtlProgressWidget::SetMax(int max)
{
    control->SetMax(max);
}

int CtlProgressWidget::Min() const
{
    return control->Min();
}

void CtlProgressWidget::SetMin(int min)
{
    control->SetMin(min);
}

bool CtlProgressWidget::Enabled() const
{
    return control->Enabled();
}

void CtlProgressWidget::SetEnabled(bool isEnabled)
{
    control->SetEnabled(isEnabled);
}

int CtlProgressWidget::BorderStyle() const
{
    return control->BorderStyle();
}

void CtlProgressWidget::SetBorderStyle(int style)
{
    control->SetBorderStyle(ToInt16(static_cast<double>(style)));
}

int CtlProgressWidget::CaptionStyle() const
{
    return static_cast<int>(control->CaptionStyle());
}

void CtlProgressWidget::SetCaptionStyle(int style)
{
    control->SetCaptionStyle(static_cast<tressel::CaptionStyle>(ToInt16(static_cast<double>(style))));
}

QFont CtlProgressWidget::CaptionFont() const
{
    return control->CaptionFont() ? ToFont(*control->CaptionFont()) : font();
}

void CtlProgressWidget::SetCaptionFont(const QFont &captionFont)
{
    control->SetCaptionFont(ToFontFace(captionFont));
}

uint CtlProgressWidget::FillColor() const
{
    return control->FillColor();
}

void CtlProgressWidget::SetFillColor(uint colour)
{
    control->SetFillColor(colour);
}

uint CtlProgressWidget::ForeColor() const
{
    return control->ForeColor();
}

void CtlProgressWidget::SetForeColor(uint colour)
{
    control->SetForeColor(colour);
}

uint CtlProgressWidget::BackColor() const
{
    return control->BackColor();
}

void CtlProgressWidget::SetBackColor(uint colour)
{
    control->SetBackColor(colour);
}

int CtlProgressWidget::Value() const
{
    return control->Value();
}

void CtlProgressWidget::SetValue(int value)
{
    control->SetValue(value);
}

} // namespace tressel
