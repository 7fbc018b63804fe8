// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "widgets/SideBarAccessible.h"

#include "widgets/SideBarWidget.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QHash>
#include <QPointer>

namespace tressel {

namespace {

/// One shown entry.
class SideBarTab : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    SideBarTab(SideBarWidget &sideBar, int entryNumber)
        : bar(&sideBar)
        , number(entryNumber)
    {
    }

    bool isValid() const override { return bar && bar->View().Shown().contains(number); }
    QObject *object() const override { return nullptr; }
    QWindow *window() const override { return bar ? bar->window()->windowHandle() : nullptr; }
    QAccessibleInterface *parent() const override { return QAccessible::queryAccessibleInterface(bar); }
    QAccessibleInterface *child(int) const override { return nullptr; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::PageTab; }
    void setText(QAccessible::Text, const QString &) override { }

    QString text(QAccessible::Text kind) const override
    {
        return isValid() && kind == QAccessible::Name ? bar->EntryCaption(number).trimmed() : QString();
    }

    QRect rect() const override
    {
        if (!isValid())
            return {};
        const QRect place = bar->EntryRect(number);
        return {bar->mapToGlobal(place.topLeft()), place.size()};
    }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        if (!isValid()) {
            state.invalid = true;
            return state;
        }
        state.selectable = true;
        state.focusable = true;
        state.selected = bar->SelectedIndex() == number;
        state.focused = state.selected && bar->hasFocus();
        state.disabled = !bar->isEnabled() || !bar->View().enabled;
        state.invisible = !bar->isVisible();
        return state;
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface *>(this)
                                                    : nullptr;
    }

    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }

    void doAction(const QString &action) override
    {
        if (!isValid())
            return;
        if (action == setFocusAction())
            bar->setFocus(Qt::OtherFocusReason);
        // The call comes from another process, which would wait as long as a box of the handler stands.
        if (action == pressAction() || action == setFocusAction())
            QMetaObject::invokeMethod(
                bar,
                [opened = bar, entry = number] {
                    if (opened->View().Shown().contains(entry))
                        opened->SetSelectedIndex(entry);
                },
                Qt::QueuedConnection);
    }

    QStringList keyBindingsForAction(const QString &) const override { return {}; }

private:
    QPointer<SideBarWidget> bar;
    int number;
};

class SideBarTabList : public QAccessibleWidget {
public:
    explicit SideBarTabList(SideBarWidget &sideBar)
        : QAccessibleWidget(&sideBar, QAccessible::PageTabList)
        , bar(sideBar)
    {
    }

    ~SideBarTabList() override
    {
        for (const QAccessible::Id id : std::as_const(tabs))
            QAccessible::deleteAccessibleInterface(id);
    }

    int childCount() const override { return TabCount() + QAccessibleWidget::childCount(); }

    QAccessibleInterface *child(int index) const override
    {
        return index < TabCount() ? Tab(index) : QAccessibleWidget::child(index - TabCount());
    }

    int indexOfChild(const QAccessibleInterface *child) const override
    {
        for (int index = 0; index < TabCount(); ++index) {
            if (Tab(index) == child)
                return index;
        }
        const int page = QAccessibleWidget::indexOfChild(child);
        return page < 0 ? -1 : page + TabCount();
    }

    QAccessibleInterface *childAt(int x, int y) const override
    {
        for (int index = 0; index < TabCount(); ++index) {
            if (Tab(index)->rect().contains(x, y))
                return Tab(index);
        }
        return QAccessibleWidget::childAt(x, y);
    }

    QAccessibleInterface *focusChild() const override
    {
        const auto open = static_cast<int>(bar.View().Shown().indexOf(bar.SelectedIndex()));
        return bar.hasFocus() && open >= 0 ? Tab(open) : QAccessibleWidget::focusChild();
    }

    QString text(QAccessible::Text kind) const override
    {
        const QString told = QAccessibleWidget::text(kind);
        return told.isEmpty() && kind == QAccessible::Name ? bar.Caption().trimmed() : told;
    }

private:
    int TabCount() const { return static_cast<int>(bar.View().Shown().size()); }

    QAccessibleInterface *Tab(int index) const
    {
        const QList<int> shown = bar.View().Shown();
        if (index < 0 || index >= shown.size())
            return nullptr;
        const int number = shown.at(index);
        if (!tabs.contains(number))
            tabs.insert(number, QAccessible::registerAccessibleInterface(new SideBarTab(bar, number)));
        return QAccessible::accessibleInterface(tabs.value(number));
    }

    SideBarWidget &bar;
    mutable QHash<int, QAccessible::Id> tabs; ///< made when first asked for, by entry number
};

QAccessibleInterface *MakeAccessible(const QString &, QObject *object)
{
    auto *bar = qobject_cast<SideBarWidget *>(object);
    return bar ? new SideBarTabList(*bar) : nullptr;
}

} // namespace

void InstallSideBarAccessible()
{
    [[maybe_unused]] static const bool installed = [] {
        QAccessible::installFactory(MakeAccessible);
        return true;
    }();
}

} // namespace tressel
