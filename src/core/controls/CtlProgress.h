// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/FontFace.h"
#include "controls/Colours.h"
#include "controls/Control.h"

#include <cstdint>
#include <optional>

namespace tressel {

class Dialogs;
class PropertyBag;

/// What the caption of a CtlProgress shows. The property may hold any number; an unnamed one acts as
/// PercentWithoutCaption.
enum class CaptionStyle : std::int16_t { None = 0, Caption = 1, Percent = 2, PercentWithoutCaption = 3 };

/// The hand-drawn progress bar, whose caption stays readable on both sides of the bar's edge.
///
/// It paints when its value is written and at no other time: what else is written shows at the next
/// writing of the value. The painting here works out what there is to see; a face shows that.
class CtlProgress : public Control {
public:
    CtlProgress(Form &form, const QString &name);

    /// What the last painting drew.
    struct Drawing {
        QString text;
        double filled = 0; ///< from 0 to 1
        ColourNumber fillColor = 0;
        ColourNumber foreColor = 0;
        std::optional<FontFace> font; ///< nothing: the container's
        bool painted = false; ///< false before the first painting
    };
    const Drawing &Drawn() const { return drawn; }

    /// 0 flat, 1 with a sunken edge.
    std::int16_t Appearance() const { return appearance; }
    void SetAppearance(std::int16_t newAppearance);
    const QString &Caption() const { return caption; }
    /// Blanks on both sides are dropped.
    void SetCaption(const QString &text);
    std::int32_t Max() const { return max; }
    void SetMax(std::int32_t newMax);
    std::int32_t Min() const { return min; }
    void SetMin(std::int32_t newMin);
    bool Enabled() const { return IsEnabled(); }
    void SetEnabled(bool isEnabled) override;
    /// 0 none, 1 a frame.
    std::int16_t BorderStyle() const { return borderStyle; }
    void SetBorderStyle(std::int16_t style);
    tressel::CaptionStyle CaptionStyle() const { return captionStyle; }
    void SetCaptionStyle(tressel::CaptionStyle style);
    const std::optional<FontFace> &CaptionFont() const { return captionFont; }
    void SetCaptionFont(const std::optional<FontFace> &font);
    ColourNumber FillColor() const { return fillColor; }
    void SetFillColor(ColourNumber colour);
    ColourNumber ForeColor() const { return foreColor; }
    void SetForeColor(ColourNumber colour);
    /// The container's until one is written.
    ColourNumber BackColor() const { return backColor; }
    void SetBackColor(ColourNumber colour);
    /// What was written last, also where it lies beyond Min and Max.
    std::int32_t Value() const { return value; }
    /// Stores the number, then paints. Fails with 11 if a percentage is to be shown and Max equals Min,
    /// and with 6 if the distance between the bounds needs more than 32 bits; the number is stored then, too.
    void SetValue(std::int32_t newValue);

    /// Shows again what was painted, without painting anew.
    void Refresh() { NoteChanged(); }
    /// A box with name and version.
    static void About(Dialogs &dialogs);

    /// A property was written; tells its name to whoever stores the design.
    Event<const QString &> PropertyChanged;

    // For faces.

    /// Tells the container's background colour.
    void TakeContainerColour(ColourNumber colour);

    /// Stores the design, all but the value.
    void WriteProperties(PropertyBag &bag) const;
    /// Takes over a stored design. A stored value that can't be taken is passed over.
    void ReadProperties(const PropertyBag &bag);

private:
    template <typename Kind> void Write(Kind &property, const Kind &written, const QString &name);
    void Paint(std::int32_t number);
    QString TextFor(std::int32_t number) const;

    std::int16_t appearance = 1;
    QString caption;
    std::int32_t max = 100;
    std::int32_t min = 0;
    std::int16_t borderStyle = 1;
    tressel::CaptionStyle captionStyle = tressel::CaptionStyle::Percent;
    std::optional<FontFace> captionFont;
    std::optional<FontFace> font;
    ColourNumber fillColor = 0xFF0000;
    ColourNumber foreColor = NumberOf(SystemColour::ButtonText);
    ColourNumber backColor = NumberOf(SystemColour::ButtonFace);
    bool backColorIsOwn = false;
    std::int32_t value = 0;
    Drawing drawn;
};

} // namespace tressel
