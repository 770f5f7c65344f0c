#pragma once

#include "platform/Platform.h"

#include <QMessageBox>

namespace tessarin::qt {

class QtForm;

/// A message box that opens on the right of the form's grid of labels, which its text is about and
/// which it must not cover. If the screen has no room there, it opens in the middle of the window.
class QtMessageBox : public QMessageBox {
public:
    /// Without a form the box has no parent window.
    QtMessageBox(const Message& message, QtForm* form);

protected:
    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    QtForm* mForm;
};

} // namespace tessarin::qt
