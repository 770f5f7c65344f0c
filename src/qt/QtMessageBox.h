#pragma once

#include "platform/Platform.h"

#include <QMessageBox>

namespace tessarin::qt {

class QtForm;

/// A message box beside the form's grid of labels, which it speaks of: over the controls on the
/// right of it. Where the screen has no room for that, it opens in the middle of the window.
class QtMessageBox : public QMessageBox {
public:
    /// Without a form the box has no window that it belongs to.
    QtMessageBox(const Message& message, QtForm* form);

protected:
    void showEvent(QShowEvent* event) override;

private:
    QtForm* mForm;
};

} // namespace tessarin::qt
