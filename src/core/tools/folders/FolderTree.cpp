// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "tools/folders/FolderTree.h"

#include "base/Steps.h"
#include "base/Text.h"
#include "language/FolderPaths.h"
#include "language/Session.h"
#include "machine/Events.h"
#include "tools/WorkArea.h"

#include <algorithm>
#include <limits>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

const QString rootKey = u"main"_s;
constexpr int rootImage = 4;
constexpr int plannedImage = 5;
constexpr int createdImage = 6;

/// The tree counts in 16 bits and shows as many entries as that reaches.
int ShownCount(const ListBox &list)
{
    return std::min<int>(list.ListCount(), std::numeric_limits<std::int16_t>::max());
}

/// Works out what a tree shows for the entries, one after the other.
class DisplayName {
public:
    /// An entry without its extension of three letters, if those go.
    QString Of(const QString &entry, bool removeExtension)
    {
        if (!removeExtension) {
            name = entry;
            return name;
        }
        // Kept: an entry of fewer than four characters fails here, so what was seen of the entry
        // before it stays in place; after one with a dot it takes that one's name.
        Steps steps;
        steps.Do([&] { hasExtension = HasThreeLetterExtension(entry); });
        if (hasExtension)
            steps.Do([&] { name = WithoutLast(entry, 4); });
        else
            name = entry;
        return name;
    }

private:
    bool hasExtension = false;
    QString name;
};

} // namespace

FolderTree::FolderTree(const ToolContext &context)
    : area(context.area)
    , events(context.machine.events)
    , session(context.session)
{
}

void FolderTree::RefreshFolderTree()
{
    Steps steps;
    steps.Do([&] { area.TVList.Collapse(area.TVList.Root()); });
    events.SetBusyPointer(true);
    area.lblStatusLine.SetCaption(u"Read list Wait..."_s);
    events.LetEventsRun();
    Rebuild(u"Create "_s + CountText() + u" Main Folders"_s, plannedImage);
    events.SetBusyPointer(false);
    area.lblStatusLine.SetCaption(u"Finished"_s);
}

void FolderTree::FillFolderTree()
{
    Rebuild(u"Create "_s + CountText() + u" Main Folders"_s, plannedImage);
}

void FolderTree::ShowCreatedTree()
{
    Rebuild(u"Total "_s + CountText() + u" Main Folders Created"_s, createdImage);
}

void FolderTree::Rebuild(const QString &rootText, int childImage)
{
    Steps steps;
    area.TVList.Clear();
    steps.Do([&] { area.TVList.AddRoot(rootKey, rootText, rootImage); });
    DisplayName displayName;
    const int count = ShownCount(area.LstItem);
    for (int index = 0; index < count; ++index) {
        steps.Do([&] {
            const QString entry = area.LstItem.Item(index);
            FixFolderName(displayName.Of(entry, area.chkExtension.IsChecked()), events, session);
            area.TVList.AddChild(rootKey, session.LastFixedName, childImage);
        });
    }
    steps.Do([&] { area.TVList.Expand(area.TVList.Root()); });
}

QString FolderTree::CountText() const
{
    return QString::number(ShownCount(area.LstItem));
}

} // namespace tressel
