// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// Every language in the real windows: it is chosen as a person chooses it, and each caption is seen whole, or
// ends in an ellipsis and is told whole by its tool tip.

#include "DesktopStage.h"
#include "controls/Captioned.h"
#include "gui/GuiTest.h"
#include "gui/WhenUp.h"
#include "language/LanguageTexts.h"
#include "widgets/ButtonToolTip.h"
#include "widgets/IsButtonWidget.h"
#include "windows/ElidedButtons.h"
#include "windows/ElidedGroup.h"
#include "windows/ElidedLabel.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QHelpEvent>
#include <QMessageBox>
#include <QProgressBar>
#include <QRegularExpression>
#include <QScrollArea>
#include <QToolTip>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

constexpr int entryCount = 7;
constexpr int optionPages = 5;
const QString wordy = u"Wordy"_s; ///< a language that nobody could fit

QStringList Languages()
{
    return {u"English"_s,    u"German"_s,    u"French"_s, u"Spanish"_s,
            u"Portuguese"_s, u"Norwegian"_s, u"Polish"_s, u"Russian"_s};
}

/// Puts the program's languages and the wordy one into the stage's folder.
void PutLanguages(const DesktopStage &stage)
{
    const QDir assets(QStringLiteral(TRESSEL_ASSETS "/Lang"));
    for (const QString &name : assets.entryList(QDir::Files)) {
        QFile::remove(stage.Place(u"Lang/"_s + name));
        QVERIFY(QFile::copy(assets.filePath(name), stage.Place(u"Lang/"_s + name)));
    }
    QFile list(stage.Place(u"Lang/Language.dat"_s));
    QVERIFY(list.setPermissions(QFile::ReadOwner | QFile::WriteOwner));
    QVERIFY(list.open(QIODevice::Append));
    list.write(wordy.toUtf8() + "\r\n");
    QFile file(stage.Place(u"Lang/%1.lng"_s.arg(wordy)));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("000 LANGUAGE FILE v4.0\r\n");
    for (const LanguageText &row : LanguageTexts())
        file.write(QByteArray::number(row.index).rightJustified(3, '0') + ' '
                   + QByteArray("Wordy & wide ").repeated(8) + "\r\n");
}

QRect SeenPart(const QWidget &widget)
{
    QRect seen = widget.rect();
    for (const QWidget *inner = &widget; !inner->isWindow(); inner = inner->parentWidget())
        seen = seen.translated(inner->pos()) & inner->parentWidget()->rect();
    return seen;
}

/// Scrolls its page to a widget, as a person does who looks for it.
void ScrollTo(QWidget &widget)
{
    for (QWidget *above = widget.parentWidget(); above; above = above->parentWidget()) {
        if (auto *area = qobject_cast<QScrollArea *>(above))
            area->ensureWidgetVisible(&widget, 0, 0);
    }
}

bool IsOnAScrollingPage(const QWidget &widget)
{
    for (const QWidget *above = widget.parentWidget(); above; above = above->parentWidget()) {
        if (qobject_cast<const QScrollArea *>(above))
            return true;
    }
    return false;
}

QString TipOf(QWidget &widget)
{
    QToolTip::hideText();
    const QPoint middle = widget.rect().center();
    QHelpEvent event(QEvent::ToolTip, middle, widget.mapToGlobal(middle));
    QApplication::sendEvent(&widget, &event);
    if (const auto *button = qobject_cast<IsButtonWidget *>(&widget))
        return button->Tip() ? button->Tip()->Text() : QString();
    return QToolTip::text();
}

/// A caption as it stands in its widget: what there is, and what is seen of it.
struct Caption {
    QString whole;
    QString seen;
};

template <typename Button> std::optional<Caption> ButtonCaption(const QWidget &widget)
{
    const auto *button = dynamic_cast<const ElidedButton<Button> *>(&widget);
    return button ? std::optional(Caption{button->text(), button->ShownText()}) : std::nullopt;
}

std::optional<Caption> CaptionOf(const QWidget &widget)
{
    if (const auto *button = dynamic_cast<const IsButtonWidget *>(&widget))
        return Caption{button->PlainCaption(),
                       button->CutCaption().isEmpty() ? button->PlainCaption() : u"…"_s};
    if (const auto caption = ButtonCaption<QCheckBox>(widget))
        return caption;
    if (const auto caption = ButtonCaption<QRadioButton>(widget))
        return caption;
    if (const auto *group = dynamic_cast<const ElidedGroup *>(&widget))
        return Caption{group->title(), group->ShownTitle()};
    if (const auto *label = dynamic_cast<const ElidedLabel *>(&widget))
        return Caption{label->text(), label->ShownText()};
    return std::nullopt;
}

QString Plain(QString caption)
{
    return caption.remove(u'&');
}

/// Whether no edge cuts the widget off, its upper and lower one aside where its page scrolls.
bool IsBetweenTheEdges(QWidget &widget)
{
    ScrollTo(widget);
    const QRect seen = SeenPart(widget);
    const QRect place = widget.rect().translated(widget.mapTo(widget.window(), QPoint()));
    const bool isWide = seen.left() == place.left() && seen.right() == place.right();
    return IsOnAScrollingPage(widget) ? isWide && seen.height() > 0 : seen == place;
}

/// What is wrong with how a widget shows its caption; empty if nothing is.
QString ComplaintAbout(QWidget &widget)
{
    if (!IsBetweenTheEdges(widget))
        return u"is cut off"_s;
    const auto caption = CaptionOf(widget);
    const auto *label = qobject_cast<const QLabel *>(&widget);
    if (!caption && label) {
        const bool fits = label->wordWrap() ? label->heightForWidth(label->width()) <= label->height()
                                            : label->sizeHint().width() <= label->width();
        return fits ? QString() : u"shows a part of its text"_s;
    }
    if (label && label->height() < label->minimumSizeHint().height())
        return u"is too low for its text"_s;
    if (!caption || caption->seen == caption->whole || Plain(TipOf(widget)).startsWith(Plain(caption->whole)))
        return {};
    return u"has no tip with its whole caption"_s;
}

bool IsLeaf(const QWidget &widget)
{
    return CaptionOf(widget) ? !widget.inherits("QGroupBox")
                             : qobject_cast<const QLabel *>(&widget) || widget.inherits("QLineEdit")
            || widget.inherits("QComboBox") || widget.inherits("QAbstractItemView")
            || qobject_cast<const QProgressBar *>(&widget);
}

/// The form's controls whose widgets are on show.
QList<QWidget *> OnShow(const Form &form, const QWidget &window)
{
    QList<QWidget *> widgets;
    for (const Control *control : form.Controls()) {
        auto *widget = window.findChild<QWidget *>(control->Name());
        if (widget && widget->isVisible())
            widgets += widget;
    }
    return widgets;
}

/// One of the program's windows while a language is looked at.
class Look {
public:
    Look(DesktopStage &onStage, QString languageName)
        : stage(onStage)
        , language(std::move(languageName))
    {
    }

    /// Looks at all that a window shows now.
    void At(const QString &formName)
    {
        stage.Settle();
        const WindowFace *face = stage.desktop->FaceOf(formName);
        QList<QWidget *> widgets = OnShow(face->ShownForm(), face->Window());
        for (QWidget *widget : widgets) {
            seen += formName + u'.' + widget->objectName();
            if (!IsLeaf(*widget) && !CaptionOf(*widget))
                continue;
            const QString complaint = ComplaintAbout(*widget);
            QVERIFY2(complaint.isEmpty(),
                     qPrintable(u"%1: %2 %3"_s.arg(language, widget->objectName(), complaint)));
            const auto caption = CaptionOf(*widget);
            if (caption && caption->seen != caption->whole)
                cut += widget->objectName();
        }
        LookForOverlaps(widgets);
    }

    QStringList seen; ///< "frmMain.btnGBMake"
    QStringList cut; ///< those whose captions ended in an ellipsis

private:
    void LookForOverlaps(const QList<QWidget *> &widgets)
    {
        QList<QWidget *> leaves = widgets;
        leaves.removeIf([](const QWidget *widget) { return !IsLeaf(*widget); });
        for (qsizetype one = 0; one < leaves.size(); ++one) {
            for (qsizetype other = one + 1; other < leaves.size(); ++other) {
                QVERIFY2(!SeenPart(*leaves[one]).intersects(SeenPart(*leaves[other])),
                         qPrintable(u"%1: %2 lies over %3"_s.arg(language, leaves[other]->objectName(),
                                                                 leaves[one]->objectName())));
            }
        }
    }

    DesktopStage &stage;
    QString language;
};

/// Chooses an entry of the list of languages by keyboard.
void Choose(DesktopStage &stage, int entry)
{
    OptionForm &options = stage.desktop->application.frmOption();
    options.lstOptions.UserSelects(2);
    stage.Settle();
    auto *box = stage.desktop->FaceOf(u"frmOption"_s)->Window().findChild<QComboBox *>(u"cmbLanguage"_s);
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Home);
    for (int step = 0; step < entry; ++step)
        QTest::keyClick(box, Qt::Key_Down);
    stage.Settle();
    QCOMPARE(options.cmbLanguage.ListIndex(), entry);
}

} // namespace

class LanguageWindowsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void CaptionsAreSeenWholeOrToldByATip_data()
    {
        QTest::addColumn<QString>("language");
        for (const QString &language : Languages())
            QTest::newRow(qPrintable(language)) << language;
        QTest::newRow(qPrintable(wordy)) << wordy;
    }

    void CaptionsAreSeenWholeOrToldByATip()
    {
        QFETCH(QString, language);
        DesktopStage stage;
        PutLanguages(stage);
        stage.Start();
        OptionForm &options = stage.desktop->application.frmOption();
        stage.Form().btnGBToolbarOption.UserClicks();
        stage.Settle();
        Choose(stage, language == wordy ? 8 : static_cast<int>(Languages().indexOf(language)));
        Look look(stage, language);
        // Colours stay in front of the page that comes after them if it is About.
        for (int page = 0; page < optionPages; ++page) {
            options.lstOptions.UserSelects(page);
            look.At(u"frmOption"_s);
        }
        options.lstOptions.UserSelects(1);
        options.information.btnGBChangeInfo.UserClicks();
        stage.Settle();
        look.seen += u"frmOption.btnGBUpdateInfo"_s;
        QCOMPARE(
            ComplaintAbout(
                *stage.desktop->FaceOf(u"frmOption"_s)->Window().findChild<QWidget *>(u"btnGBUpdateInfo"_s)),
            QString());
        options.Hide();

        for (int entry = 1; entry <= entryCount; ++entry) {
            stage.OpenEntry(entry);
            look.At(u"frmMain"_s);
        }
        // What a language is made for is seen whole where there is room.
        QCOMPARE(look.cut.isEmpty(), language != wordy);
        const QSize least(542, 455);
        stage.Window().resize(least);
        for (int entry = 1; entry <= entryCount; ++entry) {
            stage.OpenEntry(entry);
            look.At(u"frmMain"_s);
        }
        QCOMPARE(stage.Window().size(), least);
        stage.OpenEntry(3);
        stage.Form().numbered.Chck_MakeDel.SetChecked(!stage.Form().numbered.Chck_MakeDel.IsChecked());
        look.At(u"frmMain"_s);
        stage.Form().btnGBToolbarAbout.UserClicks();
        look.At(u"frmAbout"_s);

        for (const LanguageText &row : LanguageTexts()) {
            const QString name = row.form.toString() + u'.' + row.control.toString();
            QVERIFY2(row.property == TextProperty::ToolTip || look.seen.contains(name), qPrintable(name));
        }
    }

    void AFileThatIsNoLanguageIsToldAndChangesNothing_data()
    {
        QTest::addColumn<QByteArray>("content");
        const QByteArray mark = "000 LANGUAGE FILE v4.0\r\n";
        QTest::newRow("wrong mark") << QByteArray("000 LANGUAGE FILE v3.0\r\n005 Wrong\r\n");
        QTest::newRow("cut in its mark") << QByteArray("000 LANGUAGE FI");
        QTest::newRow("of 10 MB") << mark + "005 Wrong\r\n" + QByteArray(10 << 20, ';');
        QTest::newRow("a letter for a number") << mark + "005 Wrong\r\nO06 Wrong\r\n";
        QTest::newRow("gone") << QByteArray();
    }

    void AFileThatIsNoLanguageIsToldAndChangesNothing()
    {
        QFETCH(QByteArray, content);
        DesktopStage stage;
        PutLanguages(stage);
        stage.Start();
        stage.Form().btnGBToolbarOption.UserClicks();
        const QString path = stage.Place(u"Lang/%1.lng"_s.arg(wordy));
        QVERIFY(QFile::remove(path));
        if (!content.isNull()) {
            QFile file(path);
            QVERIFY(file.open(QIODevice::WriteOnly));
            QCOMPARE(file.write(content), content.size());
        }
        QString told;
        // Each step down the list chooses, and the last comes to the file in question.
        WhenUp<QMessageBox>([&](QMessageBox &box) {
            told = box.text();
            box.accept();
        });
        Choose(stage, static_cast<int>(Languages().size()));
        QCOMPARE(told, u"Failed loading new language."_s);
        QCOMPARE(stage.Face<IsButtonWidget>(u"btnGBToolbarCreate"_s).PlainCaption(), u"Создать"_s);
        QCOMPARE(stage.desktop->application.settings.ReadText(keys::Language), u"8"_s);
    }

    void AFileOfAnotherCodePageAndWithEveryNumberIsALanguage()
    {
        DesktopStage stage;
        PutLanguages(stage);
        stage.Start();
        stage.Form().btnGBToolbarOption.UserClicks();
        QFile file(stage.Place(u"Lang/%1.lng"_s.arg(wordy)));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("000 LANGUAGE FILE v4.0\r\n");
        for (int number = 1; number < 1000; ++number)
            file.write(QByteArray::number(number).rightJustified(3, '0')
                       + " Gr\xF6\xDF"
                         "e\r\n");
        file.close();
        Choose(stage, static_cast<int>(Languages().size()));
        QCOMPARE(stage.Face<IsButtonWidget>(u"btnGBToolbarCreate"_s).PlainCaption(), u"Größe"_s);
    }

    void ALanguageThatIsChosenShowsInBothWindowsAndIsStored()
    {
        DesktopStage stage;
        PutLanguages(stage);
        stage.Start();
        stage.Form().btnGBToolbarOption.UserClicks();
        for (const QString &language : Languages()) {
            const int entry = static_cast<int>(Languages().indexOf(language));
            Choose(stage, entry);
            QFile file(QStringLiteral(TRESSEL_ASSETS "/Lang/%1.lng").arg(language));
            QVERIFY(file.open(QIODevice::ReadOnly));
            const QStringList lines = QString::fromUtf8(file.readAll()).split(u"\r\n"_s);
            const auto text = [&](const QString &number) {
                return lines.filter(QRegularExpression(u"^"_s + number)).value(0).mid(4);
            };
            QCOMPARE(stage.Face<IsButtonWidget>(u"btnGBToolbarCreate"_s).PlainCaption(), text(u"005"_s));
            const QWidget &options = stage.desktop->FaceOf(u"frmOption"_s)->Window();
            QCOMPARE(options.findChild<QGroupBox *>(u"FrmeSound"_s)->title(), text(u"405"_s));
            QCOMPARE(options.findChild<QWidget *>(u"lstOptions"_s)->toolTip(), text(u"400"_s));
            QCOMPARE(stage.desktop->application.settings.ReadText(keys::Language), QString::number(entry));
        }
    }
};

TRESSEL_GUI_TEST(LanguageWindowsTest)
#include "LanguageWindowsTest.moc"
