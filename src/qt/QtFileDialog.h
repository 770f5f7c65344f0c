#pragma once

#include "toolkit/CommonDialog.h"

#include <QFileDialog>
#include <QFileInfo>

namespace tessarin::qt {

/// The file dialog, the same on every desktop.
class QtFileDialog : public QFileDialog {
public:
    QtFileDialog(CommonDialog request, bool saving, QWidget* parent);

    /// The full path chosen when the dialog was closed; nothing when it was cancelled.
    std::optional<std::string> Chosen() const;

protected:
    void accept() override;

private:
    void AcceptQuoted(const QString& name);
    /// Shows an error and returns false if the folder of a file to save does not exist.
    bool HasFolder(const QFileInfo& file);
    void Warn(const QString& text);

    const CommonDialog mRequest; // a copy, as a command that runs meanwhile may change the original
    const bool mbSaving;
    QString mQuoted; // the path chosen, if its name contains quotes
};

} // namespace tessarin::qt
