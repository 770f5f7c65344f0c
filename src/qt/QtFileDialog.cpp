// SPDX-License-Identifier: MIT
// The file dialog, the same on every desktop.
#include "qt/QtForm.h"
#include "qt/QtLook.h"
#include "qt/QtPlatform.h"
#include "qt/QtToolkit.h"
#include "toolkit/CommonDialog.h"

#include <QAbstractItemView>
#include <QAction>
#include <QCompleter>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QTreeView>
#include <QWindow>

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

// The dialog only chooses: Qt's would also delete, rename and move files, by keys, menu and mouse.
// A folder that is made here can still be named once.
void LeaveFilesAlone(QFileDialog& dialog) {
    for (const char* const action : {"qt_delete_action", "qt_rename_action"})
        dialog.findChild<QAction*>(action)->setVisible(false);
    for (const char* const view : {"listView", "treeView"}) {
        auto& files = *dialog.findChild<QAbstractItemView*>(view);
        files.setEditTriggers(QAbstractItemView::NoEditTriggers);
        files.setDragDropMode(QAbstractItemView::NoDragDrop);
        qDeleteAll(files.findChildren<QShortcut*>()); // the Delete key
    }
}

// What counts is the line with the file's name. QFileDialog goes by its list instead, in which it
// selects rows itself while a path is typed: the folders on the way, too.
class QtFileDialog : public QFileDialog {
public:
    QtFileDialog(CommonDialog request, FileDialogKind kind, QWidget* parent)
        : QFileDialog(parent), mRequest(std::move(request)) {
        const bool isSave = kind == FileDialogKind::Save;
        setOption(DontUseNativeDialog);
        setOption(HideNameFilterDetails); // the descriptions contain them already
        setOption(ReadOnly, !isSave);     // no new folders
        setWindowTitle(ToQt(mRequest.DialogTitle));
        setNameFilters(NameFilters(mRequest.Filter));
        setAcceptMode(isSave ? AcceptSave : AcceptOpen);
        LeaveFilesAlone(*this);
        ShowColumnsWhole(*this);
        const QFileInfo before(ToQt(mRequest.FileName));
        if (!mRequest.FileName.empty()) setDirectory(before.absolutePath());
        auto* const button = findChild<QDialogButtonBox*>()->button(
            isSave ? QDialogButtonBox::Save : QDialogButtonBox::Open);
        button->installEventFilter(this);
        button->setEnabled(true);
    }

    /// The full path, when the dialog was accepted.
    QString Chosen() const { return msChosen; }

protected:
    void showEvent(QShowEvent* event) override {
        QFileDialog::showEvent(event);
        // Without a parent the list of names that match opens as a window of its own on Wayland,
        // anywhere, each time after the first.
        QWidget& names = *NameLine().completer()->popup();
        names.winId(); // makes the window
        names.windowHandle()->setTransientParent(windowHandle());
    }

    // Qt disables the button by what the list has selected.
    bool eventFilter(QObject* button, QEvent* event) override {
        if (event->type() == QEvent::EnabledChange)
            dynamic_cast<QWidget&>(*button).setEnabled(true);
        return QFileDialog::eventFilter(button, event);
    }

    // Return in the line, a double click in the list, or the button.
    void accept() override {
        const QString typed = NameLine().text();
        // Without a name the button leads into the folder that the list has selected.
        const QString path = typed.isEmpty() ? selectedFiles().value(0) : PathOf(typed);
        if (QFileInfo(path).isDir()) {
            setDirectory(path);
            NameLine().clear();
        } else if (typed.endsWith('/')) {
            Refuse(path + NoFolder);
        } else if (!typed.isEmpty()) {
            AcceptFile(path);
        }
    }

private:
    static constexpr QLatin1String NoFolder{"\nThis folder does not exist."};

    QLineEdit& NameLine() { return *findChild<QLineEdit*>("fileNameEdit"); }

    // In the dialog's folder. "~" is the user's home, unless a file has this name.
    QString PathOf(const QString& typed) const {
        QString path = directory().absoluteFilePath(typed);
        const bool fromHome = typed == "~" || typed.startsWith("~/");
        if (fromHome && !QFileInfo::exists(path)) path = QDir::homePath() + typed.mid(1);
        return QDir::cleanPath(path);
    }

    // A name without extension gets the default one. But a file to open may have none: there the
    // name as typed comes first, if it exists.
    void AcceptFile(QString path) {
        const bool isComplete = acceptMode() == AcceptOpen && QFileInfo::exists(path);
        if (!isComplete && !QFileInfo(path).fileName().contains('.'))
            path += ToQt(mRequest.DefaultExt);
        if (const QString reason = ReasonAgainst(QFileInfo(path)); !reason.isEmpty()) {
            Refuse(reason);
            return;
        }
        msChosen = path;
        done(Accepted);
    }

    // Why the file cannot be chosen; empty if it can.
    QString ReasonAgainst(const QFileInfo& file) const {
        if (mRequest.PathMustExist && !file.dir().exists()) return file.path() + NoFolder;
        if (mRequest.FileMustExist && !file.isFile())
            return file.fileName() +
                   "\nFile not found.\nPlease verify the correct file name was given.";
        if (QFile::encodeName(file.fileName()).size() > NAME_MAX)
            return "This file name is too long.";
        return {};
    }

    void Refuse(const QString& reason) {
        QMessageBox box(QMessageBox::Warning, windowTitle(), reason, QMessageBox::Ok, this);
        box.setTextFormat(Qt::PlainText); // a name may look like HTML
        box.exec();
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
