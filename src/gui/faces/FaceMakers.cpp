// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "faces/FaceMakers.h"

#include "controls/DriveList.h"
#include "faces/CheckBoxFace.h"
#include "faces/ComboFace.h"
#include "faces/FrameFace.h"
#include "faces/LabelFace.h"
#include "faces/ListFace.h"
#include "faces/OptionFace.h"
#include "faces/PictureFace.h"
#include "faces/ProgressFace.h"
#include "faces/TextFace.h"
#include "faces/TreeFace.h"

namespace tressel {

FaceMakers::FaceMakers(const FaceLooks &looks)
{
    Add<Frame, QWidget, FrameFace>(looks);
    Add<PictureBox, QWidget, PictureFace>(looks);
    Add<Label, QLabel, LabelFace>(looks);
    Add<TextBox, QLineEdit, LineFace>();
    Add<TextBox, QPlainTextEdit, LinesFace>();
    Add<CheckBox, QCheckBox, CheckBoxFace>();
    Add<OptionButton, QRadioButton, OptionFace>();
    Add<ListBox, QListView, ListFace>();
    Add<CheckListBox, QListView, CheckListFace>(looks);
    Add<FolderList, QListView, FolderFace>(looks.folder);
    Add<DriveList, QComboBox, ChoiceFace>();
    Add<ComboBox, QComboBox, ComboFace>();
    Add<TreeView, QTreeView, TreeFace>(looks.nodes);
    Add<ProgressBar, QProgressBar, ProgressFace>();
}

Face *FaceMakers::Make(Control &control, QWidget &widget) const
{
    // The makers added last come first.
    for (auto maker = makers.rbegin(); maker != makers.rend(); ++maker) {
        if (Face *face = (*maker)(control, widget))
            return face;
    }
    return nullptr;
}

} // namespace tressel
