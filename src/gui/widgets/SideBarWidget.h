// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "faces/PageHost.h"
#include "widgets/SideBarLayout.h"
#include "widgets/SideBarLook.h"
#include "widgets/SideBarPainter.h"
#include "widgets/SideBarView.h"

#include <QList>
#include <QString>
#include <QWidget>

#include <functional>

namespace tressel {

class SideBar;

/// The face of a side bar: header, page, grip, rows and a bar of small icons, drawn by hand. It shows
/// the state of its control and hands the user's acts to it.
///
/// Keys, when it has the focus: the arrows, Home and End open other entries, letters the next entry
/// that starts with them; Ctrl+Up and Ctrl+Down give more or fewer rows. Ctrl+Tab and Ctrl+Page Down,
/// with Shift or Page Up backwards, also work from inside a page, and Ctrl with the number of an entry from
/// everywhere in the window.
///
/// The properties are the control's, for programs that drive and read the window.
class SideBarWidget : public QWidget, public PageHost {
    Q_OBJECT
    Q_PROPERTY(QString Caption READ Caption NOTIFY Changed)
    Q_PROPERTY(QString text READ Caption NOTIFY Changed)
    Q_PROPERTY(int Count READ Count NOTIFY Changed)
    Q_PROPERTY(int SelectedIndex READ SelectedIndex WRITE SetSelectedIndex NOTIFY Changed)
    Q_PROPERTY(int VisibleItems READ VisibleItems WRITE SetVisibleItems NOTIFY Changed)
    Q_PROPERTY(int Rows READ Rows NOTIFY Changed)
    Q_PROPERTY(bool RightToLeft READ RightToLeft NOTIFY Changed)
    Q_PROPERTY(bool OutlookColors READ OutlookColors NOTIFY Changed)
    Q_PROPERTY(bool ShowMenu READ ShowMenu NOTIFY Changed)

public:
    explicit SideBarWidget(QWidget *parent = nullptr);

    /// The control must outlive the widget, or be taken back with null.
    void SetControl(SideBar *sideBar);
    SideBar *Control() const { return control; }
    /// Where the icons of the control's image list come from.
    void SetIcons(IconProvider provider);
    /// Hosts a page, the face of the control of that name, and owns it from then on. A page has light
    /// ground and dark text by PageBackColor, whatever the desktop's palette is.
    void AddPage(QWidget *page, const QString &controlName);
    /// Takes the control's state over, unless its redraw is off.
    void Refresh();

    QString Caption() const { return view.OpenEntry().caption; }
    int Count() const { return static_cast<int>(view.entries.size()); }
    int SelectedIndex() const { return view.open; }
    /// As a click on the entry.
    void SetSelectedIndex(int number);
    int VisibleItems() const;
    /// As the grip.
    void SetVisibleItems(int count);
    int Rows() const { return static_cast<int>(view.rows.size()); }
    bool RightToLeft() const { return view.mirrored; }
    bool OutlookColors() const;
    bool ShowMenu() const { return view.showMenu; }

    /// Where an entry is, as a row or a small icon; empty for one that isn't shown.
    Q_INVOKABLE QRect EntryRect(int number) const { return layout.Entry(number); }
    Q_INVOKABLE QRect PageRect() const { return layout.Page(); }
    /// The caption of an entry with the blanks around it, which aren't shown.
    Q_INVOKABLE QString EntryCaption(int number) const { return view.Entry(number).caption; }

    const SideBarView &View() const { return view; }
    const SideBarLayout &Places() const { return layout; }
    const SideBarLook &Look() const { return look; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void Changed();

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    struct HostedPage {
        QWidget *widget;
        QString controlName;
    };

    /// What the highest page takes: at the least, and to be seen whole.
    struct PageHeights {
        int least = 0;
        int whole = 0;
        bool operator==(const PageHeights &) const = default;
    };

    void Act(const std::function<void(SideBar &)> &act);
    bool ActOnKey(const QKeyEvent &event);
    bool ActOnFocusedKey(const QKeyEvent &event);
    void Arrange();
    void ShowPages();
    void ApplyPagePalette();
    void TellAssistants(const SideBarView &before);
    void SetHover(const SideBarPart &part);
    void PressPart(const SideBarPart &part, const QPoint &point);
    void OpenMenu(const QPoint &globalPoint);
    bool ShowToolTip(const QPoint &point, const QPoint &globalPoint);
    PageHeights HeightsOfPages() const;

    SideBar *control = nullptr;
    IconProvider icons;
    QList<HostedPage> pages;
    SideBarView view;
    SideBarLayout layout;
    SideBarLook look;
    SideBarTouch touch;
    QColor pageGround;
    int gripOffset = 0;
    int wheelRest = 0;
    PageHeights pageHeights; ///< as they were when the rows were counted last
    bool arranging = false;
};

} // namespace tressel
