// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "widgets/CtlProgressWidget.h"

#include "base/Numbers.h"
#include "machine/PlainColours.h"
#include "widgets/FontFaces.h"
#include "widgets/PixelPainting.h"
#include "widgets/ProgressAccessible.h"
#include "widgets/SystemColours.h"

#include <QAccessible>
#include <QPainter>

#include <algorithm>

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
    const QColor text = TranslateColour(drawing.foreColor, palette);
    const QRgb fill = TranslateColour(drawing.fillColor, palette).rgb();
    // The original's pen turns every colour under the bar by the one that makes the ground the bar's own.
    // The text is printed once for either side instead: turning the soft edges of its letters would leave
    // fringes of all colours around them.
    const QColor turned = QColor::fromRgb(text.rgb() ^ fill ^ background.rgb());
    const int edge = qRound(screenSize.width() * drawing.filled);
    QPainter painter(&drawn);
    const auto print = [&](const QRect &part, const QColor &colour) {
        painter.save();
        painter.setClipRect(part);
        painter.scale(scale, scale);
        painter.setFont(drawing.font ? ToFont(*drawing.font) : font);
        painter.setPen(colour);
        painter.drawText(QRectF(QPointF(), QSizeF(screenSize) / scale), Qt::AlignCenter | Qt::TextSingleLine,
                         drawing.text);
        painter.restore();
    };
    const QRect bar(0, 0, edge, screenSize.height());
    painter.fillRect(bar, QColor::fromRgb(fill));
    print(bar, turned);
    print(QRect(edge, 0, screenSize.width() - edge, screenSize.height()), text);
    return drawn;
}

CtlProgressWidget::CtlProgressWidget(QWidget *parent)
    : QWidget(parent)
{
    InstallProgressAccess();
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    SetControl(nullptr);
}

CtlProgressWidget::~CtlProgressWidget() = default;

void CtlProgressWidget::SetControl(CtlProgress *newControl)
{
    own = newControl ? nullptr : std::make_unique<OwnControl<CtlProgress>>(u"ctlProgress"_s, *this);
    control = newControl ? newControl : &own->Control();
    TakeContainerColour();
    TakeOver();
}

void CtlProgressWidget::TakeOver()
{
    if (isEnabled() != control->IsEnabled())
        setEnabled(control->IsEnabled());
    TellAssistance();
    update();
}

void CtlProgressWidget::TakeContainerColour()
{
    if (const QWidget *container = parentWidget())
        control->TakeContainerColour(ToNumber(container->palette().color(container->backgroundRole())));
}

void CtlProgressWidget::TellAssistance()
{
    if (toldValue == ShownValue() && toldText == Text())
        return;
    toldValue = ShownValue();
    toldText = Text();
    QAccessibleValueChangeEvent changed(this, toldValue);
    QAccessible::updateAccessibility(&changed);
}

bool CtlProgressWidget::event(QEvent *event)
{
    // A page gives its own palette to what stands on it.
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ParentChange)
        TakeContainerColour();
    return QWidget::event(event);
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
    control->Owner().Dispatch([&] { control->SetAppearance(ToInt16(static_cast<double>(appearance))); });
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
    control->Owner().Dispatch([&] { control->SetBorderStyle(ToInt16(static_cast<double>(style))); });
}

int CtlProgressWidget::CaptionStyle() const
{
    return static_cast<int>(control->CaptionStyle());
}

void CtlProgressWidget::SetCaptionStyle(int style)
{
    control->Owner().Dispatch([&] {
        control->SetCaptionStyle(static_cast<tressel::CaptionStyle>(ToInt16(static_cast<double>(style))));
    });
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

int CtlProgressWidget::ShownValue() const
{
    if (!control->Drawn().painted)
        return control->Min();
    return control->Value() > control->Max() ? control->Max() : std::max(control->Value(), control->Min());
}

void CtlProgressWidget::SetValue(int value)
{
    control->Owner().Dispatch([&] { control->SetValue(value); });
}

} // namespace tressel
