#pragma once

#include "toolkit/Toolkit.h"

#include <QFileDialog>

namespace tessarin::qt {

/// The file dialog, the same on every desktop.
class QtFileDialog : public QFileDialog {
public:
    QtFileDialog(FileDialogRequest request, QWidget* parent);

    /// The full path chosen when the dialog was closed; nothing when it was cancelled.
    std::optional<std::string> Chosen() const;

protected:
    void accept() override;

private:
    void AcceptQuoted(const QString& name);

    FileDialogRequest mRequest;
    QString mQuoted; // the path chosen, if its name contains quotes
};

} // namespace tessarin::qt
