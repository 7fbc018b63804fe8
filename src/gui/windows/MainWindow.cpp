// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "windows/MainWindow.h"

#include "base/Twips.h"
#include "faces/PlainTips.h"
#include "forms/MainForm.h"
#include "widgets/IsButtonWidget.h"
#include "widgets/PictureImages.h"
#include "widgets/SideBarWidget.h"
#include "windows/ClickPlaces.h"
#include "windows/ElidedLabel.h"
#include "windows/HintedViews.h"
#include "windows/Parts.h"
#include "windows/SplitBar.h"
#include "windows/WorkPanes.h"
#include "windows/pages/BrowseView.h"
#include "windows/pages/DatabaseView.h"
#include "windows/pages/EmptyFoldersView.h"
#include "windows/pages/NumberedView.h"
#include "windows/pages/RenameView.h"
#include "windows/pages/SplitterView.h"
#include "windows/pages/TextView.h"

#include <QHelpEvent>
#include <QShortcut>

#include <array>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

constexpr int toolButtonWidth = 64;
constexpr int toolButtonHeight = 60;
constexpr std::array createKeys{QKeyCombination(Qt::ControlModifier, Qt::Key_Return),
                                QKeyCombination(Qt::ControlModifier, Qt::Key_Enter)};

/// The icons of the side bar's entries, by their image numbers from 1.
QIcon IconOfEntry(int image, const PictureColours &colours)
{
    static const QStringList names{u"browse-files"_s,  u"text-lists"_s, u"numbered-folders"_s,
                                   u"file-splitter"_s, u"database"_s,   u"empty-folders"_s,
                                   u"rename"_s};
    QIcon icon;
    if (image < 1 || image > names.size())
        return icon;
    for (const int scale : {1, 2, 3})
        icon.addPixmap(QPixmap::fromImage(
            ImageOf(Picture(names.at(image - 1)), scale * SideBarLook::iconSize, colours)));
    return icon;
}

IsButtonWidget *ToolButton(const QString &name)
{
    auto *button = Part<IsButtonWidget>(name);
    button->setMinimumSize(toolButtonWidth, toolButtonHeight);
    return button;
}

QFrame *ToolSeparator(const QString &name)
{
    auto *line = Part<QFrame>(name);
    line->setFrameShape(QFrame::VLine);
    line->setFrameShadow(QFrame::Sunken);
    return line;
}

} // namespace

MainWindow::MainWindow(const MainForm &form)
{
    setObjectName(form.Name());

    auto *bands = Column(0);
    bands->addWidget(MakeToolbar());
    bands->addLayout(MakePathRow());
    bands->addWidget(new WorkPanes(form.PicStrip, form.EyeDropper1, MakeSideBar(), new SplitBar, MakeNames()),
                     1);
    bands->addWidget(MakeStatus());
    setLayout(bands);
    AddFaceless();
    path->setFocus();
}

bool MainWindow::eventFilter(QObject *watched, QEvent *event)
{
    // A tip that the button has of its own goes before.
    if (watched != create || event->type() != QEvent::ToolTip || !create->ToolTip().isEmpty()
        || !create->CutCaption().isEmpty())
        return QWidget::eventFilter(watched, event);
    const QString key = QKeySequence(createKeys.front()).toString(QKeySequence::NativeText);
    ShowPlainTip(static_cast<QHelpEvent *>(event)->globalPos(),
                 u"Make the folders of the list (%1)"_s.arg(key), *create);
    return true;
}

QWidget *MainWindow::MakeToolbar()
{
    auto *row = Row(gapSmall);
    row->setContentsMargins(gap, gap, gap, gapSmall);
    create = ToolButton(u"btnGBToolbarCreate"_s);
    create->installEventFilter(this);
    for (const QKeyCombination &key : createKeys)
        connect(new QShortcut(key, this), &QShortcut::activated, create, &IsButtonWidget::Press);
    row->addWidget(create);
    row->addWidget(ToolButton(u"btnGBToolbarLoadList"_s));
    row->addWidget(ToolButton(u"btnGBToolbarBrowse"_s));
    row->addWidget(ToolSeparator(u"FrmeSep(0)"_s));
    row->addWidget(ToolButton(u"btnGBToolbarOption"_s));
    row->addWidget(ToolButton(u"btnGBToolbarUpdate"_s));
    row->addWidget(ToolButton(u"btnGBToolbarAbout"_s));
    row->addWidget(ToolSeparator(u"FrmeSep(1)"_s));
    row->addWidget(ToolButton(u"btnGBToolbarExit"_s));
    row->addStretch();
    auto *toolbar = Part<QWidget>(u"FrmeToolbar"_s);
    toolbar->setLayout(row);
    return toolbar;
}

QLayout *MainWindow::MakePathRow()
{
    path = Field(u"txtStrtPath"_s);
    auto *row = Row();
    row->setContentsMargins(gap, gapSmall, gap, gap);
    row->addWidget(LabelFor(u"lblTitle"_s, path));
    row->addWidget(path, 1);
    row->addSpacing(gapSmall);
    row->addWidget(Part<QCheckBox>(u"chkExtension"_s));
    row->addWidget(Part<QCheckBox>(u"chkButtonBar"_s));
    return row;
}

QWidget *MainWindow::MakeSideBar()
{
    auto *bar = Part<SideBarWidget>(u"EyeDropper1"_s);
    bar->setAccessibleName(u"Tools"_s);
    bar->SetIcons(IconOfEntry);
    AddPages(*bar);

    auto *ground = Part<QWidget>(u"Picture3"_s);
    auto *whole = Column(0);
    whole->addWidget(bar);
    ground->setLayout(whole);
    return ground;
}

void MainWindow::AddPages(SideBarWidget &bar)
{
    const QList<QWidget *> pages{
        MakeBrowseView(),   MakeRenameView(),       MakeNumberedView(), Part<QWidget>(u"FrameXPMenu(3)"_s),
        MakeDatabaseView(), MakeEmptyFoldersView(), MakeTextView(),     MakeSplitterView()};
    for (QWidget *page : pages)
        bar.AddPage(page, page->objectName());
}

QWidget *MainWindow::MakeNames()
{
    auto *tree = Part<HintedTree>(u"TVList"_s);
    tree->SetWords(u"The folders that Create makes are shown here."_s);
    tree->setAccessibleName(u"Tree of the folders"_s);
    tree->setMinimumSize(80, 72);

    auto *names = Column();
    names->setContentsMargins(0, 0, gap, 0);
    names->addWidget(tree, 3);
    names->addWidget(List(u"LstItem"_s, u"Names of the folders"_s,
                          u"Load a text file, list a folder, or double-click files to get names."_s),
                     2);
    auto *pane = new QWidget;
    pane->setLayout(names);
    return pane;
}

QWidget *MainWindow::MakeStatus()
{
    constexpr int leastHeight = 21;
    constexpr int noticeDistance = 20;
    auto *line = Part<ElidedLabel>(u"lblStatusLine"_s);

    auto *notice = Part<NoticeBox>(u"PicUpdate"_s);
    notice->SetLabel(Part<ElidedLabel>(u"lblUpdate"_s));

    auto *row = Row(0);
    row->setContentsMargins(gap, gapSmall, gap, gapSmall);
    row->addWidget(line);
    row->addSpacing(noticeDistance);
    row->addWidget(notice);
    row->addStretch(1);
    auto *status = Part<QWidget>(u"PicStatus"_s);
    status->setMinimumHeight(leastHeight);
    status->setLayout(row);
    return status;
}

void MainWindow::AddFaceless()
{
    auto *holder = Part<QWidget>(u"Picture4"_s);
    holder->setParent(this);
    holder->hide();
    Field(u"txtstrSQL"_s)->setParent(holder);
}

} // namespace tressel
