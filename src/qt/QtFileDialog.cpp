#include "qt/QtFileDialog.h"

#include "qt/QtLook.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QMessageBox>
#include <QScreen>
#include <QSplitter>
#include <QTreeView>

#include <utility>

namespace tessarin::qt {

namespace {

// Converts "CSV Dokumente (*.csv)|*.csv|..." to Qt's form: one filter for each pair, with the
// pattern in brackets after the description.
QStringList NameFilters(const std::string& filter) {
    QStringList filters;
    const QStringList parts = ToQt(filter).split(QLatin1Char('|'));
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        // In Qt, *.* leaves out files without an extension.
        const QString pattern = parts[i + 1] == QLatin1String("*.*") ? "*" : parts[i + 1];
        filters << parts[i] + " (" + pattern + ")";
    }
    return filters;
}

QTreeView* FileList(const QFileDialog& dialog) {
    return dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
}

// Makes the dialog wide enough for name, size, type and date.
void ShowColumnsWhole(QFileDialog& dialog) {
    constexpr int NameColumn = 0;
    const int line = dialog.fontMetrics().height();
    dialog.resize(QSize(50 * line, 31 * line).boundedTo(dialog.screen()->availableSize() * 0.9));
    if (auto* const splitter = dialog.findChild<QSplitter*>())
        splitter->setSizes({8 * line, 42 * line}); // folders and files
    if (const auto* const list = FileList(dialog)) {
        list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
        list->header()->setSectionResizeMode(NameColumn, QHeaderView::Stretch);
    }
}

} // namespace

QtFileDialog::QtFileDialog(CommonDialog request, bool saving, QWidget* parent)
    : QFileDialog(parent), mRequest(std::move(request)), mbSaving(saving) {
    setOption(QFileDialog::DontUseNativeDialog);
    setOption(QFileDialog::DontConfirmOverwrite);
    setWindowTitle(ToQt(mRequest.DialogTitle));
    setOption(QFileDialog::HideNameFilterDetails); // the descriptions contain them already
    setNameFilters(NameFilters(mRequest.Filter));
    setAcceptMode(mbSaving ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    setFileMode(mRequest.FileMustExist ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    ShowColumnsWhole(*this);
    if (!mRequest.FileName.empty()) setDirectory(QFileInfo(ToQt(mRequest.FileName)).absolutePath());
}

std::optional<std::string> QtFileDialog::Chosen() const {
    const QString path = mQuoted.isEmpty() ? selectedFiles().value(0) : mQuoted;
    if (result() != QDialog::Accepted || path.isEmpty()) return std::nullopt;
    return QDir::toNativeSeparators(path).toStdString();
}

// A file to open may have no extension: the default one is tried only when the name as typed does
// not exist. A file to save always gets an extension: what is selected in the list would not, and
// while the folder is loading, Qt selects even files that the filter hides.
void QtFileDialog::accept() {
    const auto* const nameEdit = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    if (nameEdit != nullptr && nameEdit->text().contains(QLatin1Char('"')))
        return AcceptQuoted(nameEdit->text());
    if (auto* const list = FileList(*this); list != nullptr && mbSaving) list->clearSelection();
    setDefaultSuffix(mbSaving ? ToQt(mRequest.DefaultExt) : QString());
    const QStringList typed = selectedFiles();
    if (!typed.isEmpty() && !QFileInfo::exists(typed.constFirst())) {
        setDefaultSuffix(ToQt(mRequest.DefaultExt));
        if (!HasFolder(QFileInfo(typed.constFirst()))) return;
    }
    QFileDialog::accept();
}

// QFileDialog reads quotes as separators of several names; here they belong to one name.
void QtFileDialog::AcceptQuoted(const QString& name) {
    QString path = directory().absoluteFilePath(name);
    if ((mbSaving || !QFileInfo::exists(path)) && QFileInfo(path).suffix().isEmpty())
        path += ToQt(mRequest.DefaultExt);
    const QFileInfo file(path);
    if (file.isDir()) return setDirectory(path);
    if (!HasFolder(file)) return;
    if (!mbSaving && !file.isFile())
        return Warn(name + "\n" +
                    tr("File not found.\nPlease verify the correct file name was given."));
    mQuoted = path;
    done(Accepted);
}

bool QtFileDialog::HasFolder(const QFileInfo& file) {
    const QDir folder = file.dir();
    if (!mbSaving || !mRequest.PathMustExist || folder.exists()) return true;
    Warn(folder.path() + "\n" + tr("This folder does not exist."));
    return false;
}

void QtFileDialog::Warn(const QString& text) {
    QMessageBox::warning(this, windowTitle(), text);
}

} // namespace tessarin::qt
