// The file dialog, the same on every desktop.
#include "qt/QtForm.h"
#include "qt/QtLook.h"
#include "qt/QtPlatform.h"
#include "qt/QtToolkit.h"
#include "toolkit/CommonDialog.h"

#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QLineEdit>
#include <QMessageBox>
#include <QScreen>
#include <QSplitter>
#include <QTreeView>

#include <climits>
#include <utility>

namespace tessarin::qt {

namespace {

// Converts "CSV Dokumente (*.csv)|*.csv|..." to Qt's form: one filter for each pair, with the
// pattern in brackets after the description. In Qt, *.* leaves out files without an extension.
QStringList NameFilters(const std::string& filter) {
    QStringList filters;
    const QStringList parts = ToQt(filter).replace("|*.*", "|*").split('|');
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2)
        filters << parts[i] + " (" + parts[i + 1] + ")";
    return filters;
}

// Makes the dialog wide enough for name, size, type and date. No name is cut: the list scrolls.
void ShowColumnsWhole(QFileDialog& dialog) {
    const int line = dialog.fontMetrics().height();
    dialog.resize(QSize(50 * line, 31 * line).boundedTo(dialog.screen()->availableSize() * 0.9));
    if (auto* const splitter = dialog.findChild<QSplitter*>())
        splitter->setSizes({8 * line, 42 * line}); // folders and files
    if (const auto* const list = dialog.findChild<QTreeView*>("treeView"))
        list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
}

class QtFileDialog : public QFileDialog {
public:
    QtFileDialog(CommonDialog request, FileDialogKind kind, QWidget* parent)
        : QFileDialog(parent), mRequest(std::move(request)) {
        setOption(DontUseNativeDialog);
        setOption(HideNameFilterDetails); // the descriptions contain them already
        setWindowTitle(ToQt(mRequest.DialogTitle));
        setNameFilters(NameFilters(mRequest.Filter));
        setAcceptMode(kind == FileDialogKind::Save ? AcceptSave : AcceptOpen);
        setFileMode(mRequest.FileMustExist ? ExistingFile : AnyFile);
        ShowColumnsWhole(*this);
        const QFileInfo before(ToQt(mRequest.FileName));
        if (!mRequest.FileName.empty()) setDirectory(before.absolutePath());
    }

    /// The full path, when the dialog was accepted.
    QString Chosen() const { return msChosen; }

protected:
    void accept() override {
        const QString quoted = QuotedPath();
        const QString path = quoted.isEmpty() ? selectedFiles().value(0) : quoted;
        const bool namesFile = !path.isEmpty() && !QFileInfo(path).isDir();
        if (namesFile)
            AcceptFile(path);
        else if (quoted.isEmpty())
            QFileDialog::accept(); // goes to the folder
        else
            setDirectory(quoted);
    }

private:
    // A file to open may have no extension: the default one is tried only if the name as typed does
    // not exist. A file to save always gets one.
    void AcceptFile(QString path) {
        const bool isComplete = acceptMode() == AcceptOpen && QFileInfo::exists(path);
        if (!isComplete && !QFileInfo(path).fileName().contains('.'))
            path += ToQt(mRequest.DefaultExt);
        if (const QString reason = ReasonAgainst(QFileInfo(path)); !reason.isEmpty()) {
            QMessageBox::warning(this, windowTitle(), reason);
            return;
        }
        msChosen = path;
        done(Accepted);
    }

    // The path if its name as typed contains quotes. QFileDialog reads them as separators of
    // several names; here they belong to one name.
    QString QuotedPath() const {
        const auto* const nameEdit = findChild<QLineEdit*>("fileNameEdit");
        if (nameEdit == nullptr || !nameEdit->text().contains('"')) return {};
        return directory().absoluteFilePath(nameEdit->text());
    }

    // Why the file cannot be chosen; empty if it can.
    QString ReasonAgainst(const QFileInfo& file) const {
        if (mRequest.FileMustExist && !file.isFile())
            return file.fileName() +
                   "\nFile not found.\nPlease verify the correct file name was given.";
        if (mRequest.PathMustExist && !file.dir().exists())
            return file.path() + "\nThis folder does not exist.";
        if (QFile::encodeName(file.fileName()).size() > NAME_MAX)
            return "This file name is too long.";
        return {};
    }

    const CommonDialog mRequest; // a copy, as a command that runs meanwhile may change the original
    QString msChosen;
};

} // namespace

std::optional<std::string> QtToolkit::RunFileDialog(const CommonDialog& dialog,
                                                    FileDialogKind kind) {
    if (mPlatform.Closed()) return std::nullopt;
    QtFileDialog window(dialog, kind, mForm);
    if (mPlatform.RunModal(window) != QDialog::Accepted) return std::nullopt;
    return QDir::toNativeSeparators(window.Chosen()).toStdString();
}

} // namespace tessarin::qt
