// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/QtDialogs.h"

#include "machine/BusyCursor.h"
#include "machine/FileFilters.h"
#include "machine/FontDialog.h"
#include "machine/PlainColours.h"

#include <QApplication>
#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QScreen>

#include <utility>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

QMessageBox::Icon ToIcon(BoxIcon icon)
{
    switch (icon) {
    case BoxIcon::None:
        return QMessageBox::NoIcon;
    case BoxIcon::Critical:
        return QMessageBox::Critical;
    case BoxIcon::Question:
        return QMessageBox::Question;
    case BoxIcon::Exclamation:
        return QMessageBox::Warning;
    case BoxIcon::Information:
        return QMessageBox::Information;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons ToButtons(BoxButtons buttons)
{
    switch (buttons) {
    case BoxButtons::Ok:
        return QMessageBox::Ok;
    case BoxButtons::OkCancel:
        return QMessageBox::Ok | QMessageBox::Cancel;
    case BoxButtons::YesNo:
        return QMessageBox::Yes | QMessageBox::No;
    case BoxButtons::YesNoCancel:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    }
    return QMessageBox::Ok;
}

QMessageBox::StandardButton ToButton(BoxAnswer answer)
{
    switch (answer) {
    case BoxAnswer::Ok:
        return QMessageBox::Ok;
    case BoxAnswer::Cancel:
        return QMessageBox::Cancel;
    case BoxAnswer::Yes:
        return QMessageBox::Yes;
    case BoxAnswer::No:
        return QMessageBox::No;
    }
    return QMessageBox::Ok;
}

QString WithoutDot(const QString &extension)
{
    return extension.startsWith(u'.') ? extension.mid(1) : extension;
}

/// The path of what is there: as it stands, or else with the extension behind it.
QString Found(const QString &path, const QString &extension)
{
    const QString extended = path + u'.' + extension;
    return !QFileInfo::exists(path) && QFileInfo::exists(extended) ? extended : path;
}

/// A dialog for what is there already. Its extension is no default suffix of the toolkit's, which would come
/// to every name without a dot, whether there is a file of that name or not.
class OpenDialog : public QFileDialog {
public:
    OpenDialog(QWidget *owner, QString defaultExtension)
        : QFileDialog(owner)
        , extension(std::move(defaultExtension))
    {
    }

protected:
    void accept() override
    {
        auto *edit = findChild<QLineEdit *>(u"fileNameEdit"_s);
        if (edit
            && Found(directory().absoluteFilePath(edit->text()), extension)
                != directory().absoluteFilePath(edit->text()))
            edit->setText(edit->text() + u'.' + extension);
        QFileDialog::accept();
    }

private:
    QString extension;
};

BoxAnswer FirstAnswer(BoxButtons buttons)
{
    return buttons == BoxButtons::YesNo || buttons == BoxButtons::YesNoCancel ? BoxAnswer::Yes
                                                                              : BoxAnswer::Ok;
}

QString WithLineBreaks(QString text)
{
    return text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
}

// A folder that isn't there leaves the dialog at its default place.
void StartAt(QFileDialog &dialog, const QString &folder)
{
    if (!folder.isEmpty() && QDir(folder).exists())
        dialog.setDirectory(folder);
}

void StartWithName(QFileDialog &dialog, const QString &fileName)
{
    if (fileName.isEmpty() || IsPattern(fileName))
        return;
    const QFileInfo file(fileName);
    dialog.selectFile(file.isAbsolute() && !file.dir().exists() ? file.fileName() : fileName);
}

} // namespace

QtDialogs::QtDialogs(BusyCursor &busyCursor, QString defaultTitle)
    : cursor(busyCursor)
    , title(std::move(defaultTitle))
{
}

BoxAnswer QtDialogs::Show(const MessageBox &box)
{
    QMessageBox dialog(ToIcon(box.icon), box.title.isEmpty() ? title : box.title, WithLineBreaks(box.text),
                       ToButtons(box.buttons), Owner());
    dialog.setTextFormat(Qt::PlainText);
    dialog.setDefaultButton(ToButton(box.defaultAnswer.value_or(FirstAnswer(box.buttons))));
    switch (Run(dialog)) {
    case QMessageBox::Yes:
        return BoxAnswer::Yes;
    case QMessageBox::No:
        return BoxAnswer::No;
    case QMessageBox::Ok:
        return BoxAnswer::Ok;
    default:
        return box.buttons == BoxButtons::Ok ? BoxAnswer::Ok : BoxAnswer::Cancel;
    }
}

void QtDialogs::ShowFatal(int number, const QString &description)
{
    Show({u"Run-time error '%1':\n\n%2"_s.arg(QString::number(number), description), title,
          BoxIcon::Critical});
}

std::optional<FileDialogAnswer> QtDialogs::OpenFile(const FileDialogRequest &request)
{
    OpenDialog dialog(Owner(), WithoutDot(request.defaultExtension));
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(request.several            ? QFileDialog::ExistingFiles
                           : request.mayBeMissing ? QFileDialog::AnyFile
                                                  : QFileDialog::ExistingFile);
    return AskForFile(dialog, request);
}

std::optional<FileDialogAnswer> QtDialogs::SaveFile(const FileDialogRequest &request)
{
    QFileDialog dialog(Owner());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite, !request.askBeforeOverwriting);
    return AskForFile(dialog, request);
}

std::optional<FileDialogAnswer> QtDialogs::AskForFile(QFileDialog &dialog, const FileDialogRequest &request)
{
    if (!request.title.isEmpty())
        dialog.setWindowTitle(request.title);
    // The label says already which files it is for.
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    dialog.setOption(QFileDialog::DontResolveSymlinks);
    const QStringList filters = NameFilters(request.filter);
    if (!filters.isEmpty()) {
        dialog.setNameFilters(filters);
        dialog.selectNameFilter(filters.at(FirstFilter(request)));
    }
    if (dialog.acceptMode() == QFileDialog::AcceptSave)
        dialog.setDefaultSuffix(WithoutDot(request.defaultExtension));
    StartAt(dialog, request.folder);
    StartWithName(dialog, request.fileName);
    if (Run(dialog, request.centreOnOwner) != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return FileDialogAnswer{dialog.selectedFiles(),
                            QFileInfo(dialog.selectedFiles().constFirst()).absolutePath()};
}

std::optional<QString> QtDialogs::ChooseFolder(const QString &prompt, const QString &folder)
{
    QFileDialog dialog(Owner(), prompt);
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    dialog.setOption(QFileDialog::DontResolveSymlinks);
    StartAt(dialog, folder);
    if (Run(dialog) != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return dialog.selectedFiles().constFirst();
}

std::optional<quint32> QtDialogs::ChooseColour(quint32 colour)
{
    QColorDialog dialog(ToColour(colour), Owner());
    dialog.setWindowTitle(u"Choose a Color"_s);
    if (Run(dialog) != QDialog::Accepted)
        return std::nullopt;
    return ToNumber(dialog.selectedColor());
}

std::optional<FontChoice> QtDialogs::ChooseFont(const FontChoice &font)
{
    FontDialog dialog(font, Owner());
    // Kept: the font dialog bears the colour dialog's title.
    dialog.setWindowTitle(u"Choose a Color"_s);
    if (Run(dialog) != QDialog::Accepted)
        return std::nullopt;
    return dialog.Choice();
}

int QtDialogs::Run(QDialog &dialog, bool centreOnOwner)
{
    const BusyCursor::AtRest rest(cursor);
    if (!centreOnOwner) {
        dialog.adjustSize();
        const QRect middle(QPoint(), dialog.size());
        dialog.move(dialog.screen()->availableGeometry().center() - middle.center());
    }
    return dialog.exec();
}

QWidget *QtDialogs::Owner()
{
    QWidget *modal = QApplication::activeModalWidget();
    return modal ? modal : QApplication::activeWindow();
}

} // namespace tressel
