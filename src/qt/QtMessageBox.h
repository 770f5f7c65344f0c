#pragma once

#include "platform/Platform.h"

#include <QMessageBox>

namespace tessarin::qt {

class QtForm;

/// A message box that keeps off the form's grid of labels, which its text is about: it opens on the
/// right of it, on the left, above or below, where the screen has room. Without room it covers the
/// grid as little as possible.
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
