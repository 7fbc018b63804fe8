// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "controls/CtlProgress.h"

#include "base/Numbers.h"
#include "base/Pictures.h"
#include "base/Steps.h"
#include "controls/PropertyBag.h"
#include "machine/Dialogs.h"

#include <algorithm>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

/// Fails with 6 beyond 32 bits.
std::int32_t Distance(std::int32_t from, std::int32_t to)
{
    return ToInt32(static_cast<double>(to) - static_cast<double>(from));
}

QString WithoutOuterBlanks(const QString &text)
{
    const auto isBlank = [](QChar letter) { return letter == u' '; };
    const auto first = std::find_if_not(text.cbegin(), text.cend(), isBlank);
    const auto last = std::find_if_not(text.crbegin(), std::make_reverse_iterator(first), isBlank).base();
    return QString(first, last - first);
}

} // namespace

CtlProgress::CtlProgress(Form &form, const QString &name)
    : Control(form, name)
{
}

template <typename Kind> void CtlProgress::Write(Kind &property, const Kind &written, const QString &name)
{
    property = written;
    PropertyChanged.Raise(name);
}

void CtlProgress::SetAppearance(std::int16_t newAppearance)
{
    Write(appearance, newAppearance, u"Appearance"_s);
    NoteChanged();
}

void CtlProgress::SetCaption(const QString &text)
{
    Write(caption, WithoutOuterBlanks(text), u"Caption"_s);
}

void CtlProgress::SetMax(std::int32_t newMax)
{
    Write(max, newMax, u"Max"_s);
}

void CtlProgress::SetMin(std::int32_t newMin)
{
    Write(min, newMin, u"Min"_s);
}

void CtlProgress::SetEnabled(bool isEnabled)
{
    Control::SetEnabled(isEnabled);
    PropertyChanged.Raise(u"Enabled"_s);
}

void CtlProgress::SetBorderStyle(std::int16_t style)
{
    Write(borderStyle, style, u"BorderStyle"_s);
    NoteChanged();
}

void CtlProgress::SetCaptionStyle(tressel::CaptionStyle style)
{
    Write(captionStyle, style, u"CaptionStyle"_s);
}

void CtlProgress::SetCaptionFont(const std::optional<FontFace> &newFont)
{
    Write(captionFont, newFont, u"CaptionFont"_s);
}

void CtlProgress::SetFillColor(ColourNumber colour)
{
    Write(fillColor, colour, u"FillColor"_s);
}

void CtlProgress::SetForeColor(ColourNumber colour)
{
    Write(foreColor, colour, u"ForeColor"_s);
}

void CtlProgress::SetBackColor(ColourNumber colour)
{
    backColorIsOwn = true;
    Write(backColor, colour, u"BackColor"_s);
    NoteChanged();
}

void CtlProgress::TakeContainerColour(ColourNumber colour)
{
    if (backColorIsOwn || backColor == colour)
        return;
    backColor = colour;
    NoteChanged();
}

void CtlProgress::SetValue(std::int32_t newValue)
{
    Write(value, newValue, u"Value"_s);
    Paint(newValue);
}

void CtlProgress::Paint(std::int32_t number)
{
    if (number > max)
        number = max;
    else if (number < min)
        number = min;

    const QString text = TextFor(number);
    const std::int32_t range = Distance(min, max);
    const double filled = range == 0 ? 0 : static_cast<double>(Distance(min, number)) / range;
    drawn = {text,      std::clamp(filled, 0.0, 1.0),     fillColor,
             foreColor, captionFont ? captionFont : font, true};
    NoteChanged();
}

QString CtlProgress::TextFor(std::int32_t number) const
{
    if (captionStyle == tressel::CaptionStyle::None)
        return {};
    if (captionStyle == tressel::CaptionStyle::Caption)
        return caption;
    // Kept: PercentWithoutCaption shows nothing at all beside a caption, as nothing here prints it.
    if (!caption.isEmpty() && captionStyle != tressel::CaptionStyle::Percent)
        return {};
    const std::int32_t done = Distance(min, number);
    const std::int32_t range = Distance(min, max);
    if (range == 0)
        throw Failure(FailureNumber::DivisionByZero);
    const double percent = static_cast<double>(done) / range * 100;
    return FormatPicture(percent, u"0"_s) + u'%';
}

void CtlProgress::About(Dialogs &dialogs)
{
    dialogs.Show({.text = u"Progress Bar v1.0\n\nDrawn by hand for Tressel."_s,
                  .title = u"About"_s,
                  .icon = BoxIcon::Information});
}

void CtlProgress::WriteProperties(PropertyBag &bag) const
{
    bag.Write(u"Appearance"_s, std::int32_t{appearance}, std::int32_t{1});
    bag.Write(u"Caption"_s, caption, QString());
    bag.Write(u"Max"_s, max, std::int32_t{100});
    bag.Write(u"Min"_s, min, std::int32_t{0});
    bag.Write(u"Enabled"_s, IsEnabled(), true);
    bag.Write(u"BorderStyle"_s, std::int32_t{borderStyle}, std::int32_t{1});
    bag.Write(u"CaptionStyle"_s, static_cast<std::int32_t>(captionStyle), std::int32_t{3});
    bag.WriteOptional(u"CaptionFont"_s, captionFont);
    bag.WriteOptional(u"Font"_s, font);
    bag.Write(u"FillColor"_s, fillColor, ColourNumber{0xFF0000});
    bag.Write(u"ForeColor"_s, foreColor, NumberOf(SystemColour::ButtonText));
    if (backColorIsOwn)
        bag.Write(u"BackColor"_s, backColor, {});
}

void CtlProgress::ReadProperties(const PropertyBag &bag)
{
    Steps steps;
    steps.Do([&] { SetAppearance(ToInt16(bag.Read<std::int32_t>(u"Appearance"_s, 1))); });
    steps.Do([&] { SetCaption(bag.Read(u"Caption"_s, QString())); });
    steps.Do([&] { SetMax(bag.Read<std::int32_t>(u"Max"_s, 100)); });
    steps.Do([&] { SetMin(bag.Read<std::int32_t>(u"Min"_s, 0)); });
    steps.Do([&] { SetEnabled(bag.Read(u"Enabled"_s, true)); });
    steps.Do([&] { SetBorderStyle(ToInt16(bag.Read<std::int32_t>(u"BorderStyle"_s, 1))); });
    steps.Do([&] {
        const std::int16_t style = ToInt16(bag.Read<std::int32_t>(u"CaptionStyle"_s, 3));
        SetCaptionStyle(static_cast<tressel::CaptionStyle>(style));
    });
    steps.Do([&] { SetCaptionFont(bag.ReadOptional<FontFace>(u"CaptionFont"_s)); });
    steps.Do([&] { font = bag.ReadOptional<FontFace>(u"Font"_s); });
    steps.Do([&] { SetFillColor(bag.Read<ColourNumber>(u"FillColor"_s, 0xFF0000)); });
    steps.Do([&] { SetForeColor(bag.Read(u"ForeColor"_s, NumberOf(SystemColour::ButtonText))); });
    steps.Do([&] {
        if (const auto colour = bag.ReadOptional<ColourNumber>(u"BackColor"_s))
            SetBackColor(*colour);
    });
}

} // namespace tressel
