// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QListView>
#include <QTreeView>

namespace tressel {

/// A list that says in faint words how it gets filled while it is empty, and shows then too that it has
/// the keyboard. It asks for no more than its least height, so that a page grows beyond its room only where
/// its fixed parts do.
class HintedList : public QListView {
public:
    void SetWords(const QString &text) { words = text; }
    const QString &Words() const { return words; }

    QSize sizeHint() const override { return minimumSize(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString words;
};

/// The same for a tree: it counts as empty while nothing stands below its root.
class HintedTree : public QTreeView {
public:
    void SetWords(const QString &text) { words = text; }
    const QString &Words() const { return words; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString words;
};

} // namespace tressel
