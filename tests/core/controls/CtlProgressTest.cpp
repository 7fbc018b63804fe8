// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "controls/CtlProgress.h"

#include "controls/PropertyBag.h"
#include "machine/Dialogs.h"
#include "support/Text.h"

#include <gtest/gtest.h>
#include <limits>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

class CtlProgressPainting : public testing::Test {
protected:
    CtlProgressPainting() { form.TakeChanged(); }

    bool Repainted() { return form.TakeChanged().contains(&bar); }
    int NumberOfWriting(std::int32_t value)
    {
        try {
            bar.SetValue(value);
        } catch (const Failure &failure) {
            return failure.Number();
        }
        return 0;
    }

    Form form{u"frmTest"_s};
    CtlProgress bar{form, u"ctlProgress1"_s};
};

TEST_F(CtlProgressPainting, NewBarHasItsFirstValues)
{
    EXPECT_EQ(bar.Max(), 100);
    EXPECT_EQ(bar.Min(), 0);
    EXPECT_EQ(bar.Value(), 0);
    EXPECT_EQ(bar.FillColor(), 0xFF0000U);
    EXPECT_EQ(bar.CaptionStyle(), CaptionStyle::Percent);
    EXPECT_EQ(bar.Caption(), u""_s);
    EXPECT_EQ(bar.BorderStyle(), 1);
    EXPECT_FALSE(bar.CaptionFont().has_value());
    EXPECT_FALSE(bar.Drawn().painted);
}

TEST_F(CtlProgressPainting, BeyondMaxPaintsAFullBarAndKeepsTheValue)
{
    bar.SetValue(150);
    EXPECT_EQ(bar.Drawn().filled, 1.0);
    EXPECT_EQ(bar.Drawn().text, u"100%"_s);
    EXPECT_EQ(bar.Value(), 150);
}

TEST_F(CtlProgressPainting, BelowMinPaintsAnEmptyBarAndKeepsTheValue)
{
    bar.SetMin(10);
    bar.SetValue(-3);
    EXPECT_EQ(bar.Drawn().filled, 0.0);
    EXPECT_EQ(bar.Drawn().text, u"0%"_s);
    EXPECT_EQ(bar.Value(), -3);
}

TEST_F(CtlProgressPainting, PercentIsOfTheRange)
{
    bar.SetMax(200);
    bar.SetValue(50);
    EXPECT_EQ(bar.Drawn().text, u"25%"_s);
    EXPECT_EQ(bar.Drawn().filled, 0.25);
}

TEST_F(CtlProgressPainting, EachCaptionStyleShowsItsText)
{
    struct Row {
        int style;
        QString caption;
        QString shown;
    };
    const QList<Row> rows{
        {0, u""_s, u""_s},          {0, u"Splitting"_s, u""_s},    {1, u"Splitting"_s, u"Splitting"_s},
        {1, u""_s, u""_s},          {2, u"Splitting"_s, u"30%"_s}, {2, u""_s, u"30%"_s},
        {3, u"Splitting"_s, u""_s}, {3, u""_s, u"30%"_s}};
    for (const Row &row : rows) {
        bar.SetCaptionStyle(static_cast<CaptionStyle>(row.style));
        bar.SetCaption(row.caption);
        bar.SetValue(30);
        EXPECT_EQ(bar.Drawn().text, row.shown) << row.style;
    }
}

TEST_F(CtlProgressPainting, OnlyTheValuePaints)
{
    bar.SetValue(50);
    form.TakeChanged();
    bar.SetMax(200);
    bar.SetMin(-200);
    bar.SetCaption(u"Splitting"_s);
    bar.SetCaptionStyle(CaptionStyle::Caption);
    bar.SetFillColor(0);
    EXPECT_FALSE(Repainted());
    EXPECT_EQ(bar.Drawn().text, u"50%"_s);
    EXPECT_EQ(bar.Drawn().filled, 0.5);
    EXPECT_EQ(bar.Drawn().fillColor, 0xFF0000U);
    bar.SetValue(0);
    EXPECT_TRUE(Repainted());
    EXPECT_EQ(bar.Drawn().text, u"Splitting"_s);
    EXPECT_EQ(bar.Drawn().fillColor, 0U);
}

TEST_F(CtlProgressPainting, RefreshShowsWhatIsDrawn)
{
    bar.SetValue(50);
    bar.SetMax(200);
    form.TakeChanged();
    bar.Refresh();
    EXPECT_TRUE(Repainted());
    EXPECT_EQ(bar.Drawn().filled, 0.5);
}

TEST_F(CtlProgressPainting, EqualBoundsDivideByZeroWhereAPercentageIsAsked)
{
    bar.SetMax(0);
    EXPECT_EQ(NumberOfWriting(5), 11);
    EXPECT_EQ(bar.Value(), 5);
    bar.SetCaptionStyle(CaptionStyle::PercentWithoutCaption);
    EXPECT_EQ(NumberOfWriting(0), 11);
    bar.SetCaption(u"Joining"_s);
    EXPECT_EQ(NumberOfWriting(0), 0);
    EXPECT_EQ(bar.Drawn().filled, 0.0);
}

TEST_F(CtlProgressPainting, BoundsTooFarApartOverflow)
{
    bar.SetMin(std::numeric_limits<std::int32_t>::min());
    bar.SetMax(std::numeric_limits<std::int32_t>::max());
    EXPECT_EQ(NumberOfWriting(0), 6);
}

TEST_F(CtlProgressPainting, WholeThirtyTwoBitsAreARange)
{
    bar.SetMax(std::numeric_limits<std::int32_t>::max());
    bar.SetValue(std::numeric_limits<std::int32_t>::max() / 2);
    EXPECT_EQ(bar.Drawn().text, u"50%"_s);
}

TEST_F(CtlProgressPainting, CaptionLosesItsOuterBlanks)
{
    bar.SetCaption(u"  Copy it  "_s);
    EXPECT_EQ(bar.Caption(), u"Copy it"_s);
    bar.SetCaption(u"\tx \t"_s);
    EXPECT_EQ(bar.Caption(), u"\tx \t"_s);
    bar.SetCaption(u"   "_s);
    EXPECT_EQ(bar.Caption(), u""_s);
}

TEST_F(CtlProgressPainting, EachWritingIsTold)
{
    QStringList told;
    bar.PropertyChanged.Handle([&](const QString &name) { told.append(name); });
    bar.SetAppearance(0);
    bar.SetCaption(u"x"_s);
    bar.SetMax(9);
    bar.SetMin(1);
    bar.SetEnabled(true);
    bar.SetBorderStyle(0);
    bar.SetCaptionStyle(CaptionStyle::Caption);
    bar.SetCaptionFont(FontFace{u"Serif"_s});
    bar.SetFillColor(1);
    bar.SetForeColor(2);
    bar.SetBackColor(3);
    bar.SetValue(4);
    EXPECT_EQ(told.join(u' '),
              u"Appearance Caption Max Min Enabled BorderStyle CaptionStyle CaptionFont FillColor ForeColor "
              "BackColor Value"_s);
}

TEST(CtlProgressStored, DesignComesBackWithoutTheValue)
{
    Form form{u"frmTest"_s};
    CtlProgress written{form, u"a"_s};
    written.SetAppearance(0);
    written.SetCaption(u"x"_s);
    written.SetMax(9);
    written.SetMin(1);
    written.SetEnabled(false);
    written.SetBorderStyle(0);
    written.SetCaptionStyle(CaptionStyle::Caption);
    written.SetCaptionFont(FontFace{u"Serif"_s});
    written.SetFillColor(1);
    written.SetForeColor(2);
    written.SetBackColor(3);
    written.SetValue(4);
    PropertyBag bag;
    written.WriteProperties(bag);

    CtlProgress readBack{form, u"b"_s};
    readBack.ReadProperties(bag);
    EXPECT_EQ(readBack.Appearance(), 0);
    EXPECT_EQ(readBack.Caption(), u"x"_s);
    EXPECT_EQ(readBack.Max(), 9);
    EXPECT_EQ(readBack.Min(), 1);
    EXPECT_FALSE(readBack.Enabled());
    EXPECT_EQ(readBack.BorderStyle(), 0);
    EXPECT_EQ(readBack.CaptionStyle(), CaptionStyle::Caption);
    EXPECT_EQ(readBack.CaptionFont(), (FontFace{u"Serif"_s}));
    EXPECT_EQ(readBack.FillColor(), 1U);
    EXPECT_EQ(readBack.ForeColor(), 2U);
    EXPECT_EQ(readBack.BackColor(), 3U);
    EXPECT_EQ(readBack.Value(), 0);
}

TEST(CtlProgressStored, GroundIsTheContainersUnlessOneIsStored)
{
    Form form{u"frmTest"_s};
    CtlProgress bar{form, u"a"_s};
    bar.TakeContainerColour(0xF5F5F5);
    PropertyBag bag;
    bar.WriteProperties(bag);
    EXPECT_FALSE(bag.Holds(u"BackColor"_s));
    bar.ReadProperties(bag);
    EXPECT_EQ(bar.BackColor(), 0xF5F5F5U);
    bag.Write(u"BackColor"_s, ColourNumber{7}, {});
    bar.ReadProperties(bag);
    bar.TakeContainerColour(0xF5F5F5);
    EXPECT_EQ(bar.BackColor(), 7U);
}

TEST(CtlProgressStored, CaptionStyleHasTwoDefaults)
{
    Form form{u"frmTest"_s};
    CtlProgress bar{form, u"a"_s};
    EXPECT_EQ(bar.CaptionStyle(), CaptionStyle::Percent);
    bar.ReadProperties(PropertyBag());
    EXPECT_EQ(bar.CaptionStyle(), CaptionStyle::PercentWithoutCaption);
}

TEST(CtlProgressStored, ABadValueIsPassedOver)
{
    Form form{u"frmTest"_s};
    CtlProgress bar{form, u"a"_s};
    PropertyBag bag;
    bag.Write(u"Max"_s, u"many"_s, QString());
    bag.Write(u"Min"_s, std::int32_t{7}, std::int32_t{0});
    bar.ReadProperties(bag);
    EXPECT_EQ(bar.Max(), 100);
    EXPECT_EQ(bar.Min(), 7);
}

TEST(CtlProgressAbout, TellsNameAndVersion)
{
    class OneBox : public Dialogs {
    public:
        BoxAnswer Show(const MessageBox &box) override
        {
            shown = box;
            return BoxAnswer::Ok;
        }
        void ShowFatal(int, const QString &) override { }
        std::optional<FileDialogAnswer> OpenFile(const FileDialogRequest &) override { return {}; }
        std::optional<FileDialogAnswer> SaveFile(const FileDialogRequest &) override { return {}; }
        std::optional<QString> ChooseFolder(const QString &, const QString &) override { return {}; }
        std::optional<quint32> ChooseColour(quint32) override { return {}; }
        std::optional<FontChoice> ChooseFont(const FontChoice &) override { return {}; }
        MessageBox shown;
    } dialogs;
    CtlProgress::About(dialogs);
    EXPECT_TRUE(dialogs.shown.text.startsWith(u"Progress Bar v1.0"_s));
    EXPECT_EQ(dialogs.shown.title, u"About"_s);
}

} // namespace
