// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "widgets/ProgressAccessible.h"

#include "widgets/CtlProgressWidget.h"

#include <QAccessibleWidget>

namespace tressel {

namespace {

class ProgressAccessible : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit ProgressAccessible(CtlProgressWidget *widget)
        : QAccessibleWidget(widget, QAccessible::ProgressBar)
    {
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface *>(this);
        return QAccessibleWidget::interface_cast(type);
    }
    QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Value)
            return Bar()->Text();
        if (kind == QAccessible::Name && Bar()->accessibleName().isEmpty())
            return Bar()->Caption().isEmpty() ? QStringLiteral("Progress") : Bar()->Caption();
        return QAccessibleWidget::text(kind);
    }
    QVariant currentValue() const override { return Bar()->ShownValue(); }
    void setCurrentValue(const QVariant &) override { }
    QVariant maximumValue() const override { return Bar()->Max(); }
    QVariant minimumValue() const override { return Bar()->Min(); }
    QVariant minimumStepSize() const override { return 1; }

private:
    CtlProgressWidget *Bar() const { return static_cast<CtlProgressWidget *>(widget()); }
};

QAccessibleInterface *MakeInterface(const QString &, QObject *object)
{
    auto *bar = qobject_cast<CtlProgressWidget *>(object);
    return bar ? new ProgressAccessible(bar) : nullptr;
}

} // namespace

void InstallProgressAccess()
{
    static const bool installed = [] {
        QAccessible::installFactory(MakeInterface);
        return true;
    }();
    Q_UNUSED(installed);
}

} // namespace tressel
