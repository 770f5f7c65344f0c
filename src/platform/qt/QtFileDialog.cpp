#include "platform/qt/QtFileDialog.h"

#include "platform/qt/QtLook.h"

#include <QFileInfo>
#include <QMessageBox>

namespace tessarin::qt {

namespace {

// "CSV Dokumente (*.csv)|*.csv|..." as a list of Qt's own filters, one entry each.
QStringList NameFilters(const std::string& filter) {
    QStringList filters;
    const QStringList parts = ToQt(filter).split(QLatin1Char('|'));
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString description = parts[i].section(QLatin1Char('('), 0, 0).trimmed();
        // Here *.* would leave out files without an extension.
        const QString pattern = parts[i + 1] == QLatin1String("*.*") ? "*" : parts[i + 1];
        filters << description + " (" + pattern + ")";
    }
    return filters;
}

} // namespace

QtFileDialog::QtFileDialog(const FileDialogRequest& request, QWidget* parent)
    : QFileDialog(parent), mRequest(request) {
    setOption(QFileDialog::DontUseNativeDialog);
    setOption(QFileDialog::DontConfirmOverwrite);
    setWindowTitle(ToQt(request.Title));
    setNameFilters(NameFilters(request.Filter));
    setAcceptMode(request.Saving ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    setFileMode(request.FileMustExist ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    if (!request.FileName.empty()) setDirectory(QFileInfo(ToQt(request.FileName)).absolutePath());
}

std::optional<std::string> QtFileDialog::Chosen() const {
    if (result() != QDialog::Accepted || selectedFiles().isEmpty()) return std::nullopt;
    return QDir::toNativeSeparators(selectedFiles().constFirst()).toStdString();
}

// A file to open may have no extension: the default one is for names that do not exist as they are
// typed. A file to save gets it in any case.
void QtFileDialog::accept() {
    setDefaultSuffix(mRequest.Saving ? ToQt(mRequest.DefaultExt) : QString());
    const QStringList typed = selectedFiles();
    if (!typed.isEmpty() && !QFileInfo::exists(typed.constFirst())) {
        setDefaultSuffix(ToQt(mRequest.DefaultExt));
        const QDir folder = QFileInfo(typed.constFirst()).dir();
        if (mRequest.Saving && mRequest.PathMustExist && !folder.exists()) {
            QMessageBox::warning(this, windowTitle(),
                                 folder.path() + "\n" + tr("This folder does not exist."));
            return;
        }
    }
    QFileDialog::accept();
}

} // namespace tessarin::qt
