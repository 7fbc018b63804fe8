// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/Captioned.h"

#include <memory>
#include <vector>

namespace tressel {

class OptionGroup;

/// One round button of a group.
class OptionButton : public Captioned {
public:
    OptionButton(Form &form, const QString &name, QString caption, OptionGroup &group, int index);

    const QString &Caption() const override { return caption; }
    void SetCaption(const QString &text) override;
    bool IsSelected() const;

    // For faces.
    const OptionGroup &Group() const { return group; }
    void UserSelects();
    /// The group's selection moved to or from this entry.
    void NoteSelection() { NoteChanged(); }

private:
    QString caption;
    OptionGroup &group;
    int index;
};

/// Round buttons of which at most one is selected. Entries are counted from 0.
class OptionGroup {
public:
    /// Entries of one array: "optSplit(0)", "optSplit(1)", one for each caption.
    OptionGroup(Form &form, const QString &name, const QStringList &captions);
    /// Entries under names of their own.
    OptionGroup(Form &form, const QStringList &names, const QStringList &captions);

    int Count() const { return static_cast<int>(buttons.size()); }
    /// The selected entry, -1 if none is.
    int Selected() const { return selected; }
    bool IsSelected(int index) const { return index == selected; }
    /// Selects an entry and raises Click with its index; nothing happens if it is the selected one.
    /// Fails with 9 for an index outside the group.
    void Select(int index);
    /// Takes the selection away; raises nothing.
    void SelectNone();
    /// Enables or disables every entry.
    void SetEnabled(bool enabled);
    /// Fails with 9 for an index outside the group.
    OptionButton &Button(int index) const;

    Event<int> Click;

private:
    std::vector<std::unique_ptr<OptionButton>> buttons;
    int selected = -1;
};

} // namespace tressel
