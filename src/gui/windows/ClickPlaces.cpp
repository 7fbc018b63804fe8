// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "windows/ClickPlaces.h"

#include "windows/Parts.h"

#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QPainter>

namespace tressel {

namespace {

/// What a click works, for assistive technology.
class ClickAccessible : public QAccessibleWidget {
public:
    using QAccessibleWidget::QAccessibleWidget;

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? widget()->property("text").toString().trimmed()
                                         : QAccessibleWidget::text(kind);
    }
    QStringList actionNames() const override
    {
        return QStringList{pressAction()} + QAccessibleWidget::actionNames();
    }
    void doAction(const QString &name) override
    {
        if (name != pressAction()) {
            QAccessibleWidget::doAction(name);
            return;
        }
        // The key that works it, from the queue: who calls is another process and would wait.
        QCoreApplication::postEvent(widget(), new QKeyEvent(QEvent::KeyPress, Qt::Key_Space, {}));
    }
    QStringList keyBindingsForAction(const QString &name) const override
    {
        return name == pressAction() ? QStringList{QStringLiteral("Space")} : QStringList();
    }
};

QAccessibleInterface *MakeInterface(const QString &, QObject *object)
{
    if (auto *link = qobject_cast<LinkLabel *>(object))
        return new ClickAccessible(link, QAccessible::Link);
    if (auto *notice = qobject_cast<NoticeBox *>(object))
        return new ClickAccessible(notice, QAccessible::Button);
    return nullptr;
}

void InstallAccess()
{
    static const bool installed = [] {
        QAccessible::installFactory(MakeInterface);
        return true;
    }();
    Q_UNUSED(installed);
}

void DrawFocus(QWidget &widget, const QColor &colour)
{
    if (!widget.hasFocus())
        return;
    QPainter painter(&widget);
    painter.setPen(QPen(colour, 1, Qt::DotLine));
    painter.drawRect(widget.rect().adjusted(0, 0, -1, -1));
}

} // namespace

LinkLabel::LinkLabel(QWidget *parent)
    : QLabel(parent)
{
    InstallAccess();
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setForegroundRole(QPalette::Link);
    QFont underlined = font();
    underlined.setUnderline(true);
    setFont(underlined);
}

void LinkLabel::paintEvent(QPaintEvent *event)
{
    QLabel::paintEvent(event);
    DrawFocus(*this, palette().color(QPalette::WindowText));
}

NoticeBox::NoticeBox(QWidget *parent)
    : QWidget(parent)
{
    InstallAccess();
    setFocusPolicy(Qt::TabFocus);
}

void NoticeBox::SetLabel(QLabel *text)
{
    constexpr int behindTheText = 3; // the form's 50 twips
    label = text;
    auto *row = Row(0);
    row->setContentsMargins(0, 0, behindTheText, 0);
    row->addWidget(label);
    // The whole text shows however long the status line is, and one line of it however many it has.
    label->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
    setLayout(row);
}

QString NoticeBox::Text() const
{
    return label ? label->text() : QString();
}

void NoticeBox::paintEvent(QPaintEvent *)
{
    DrawFocus(*this, Qt::white);
}

} // namespace tressel
