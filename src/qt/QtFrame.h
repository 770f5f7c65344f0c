#pragma once

#include "qt/QtPeer.h"

#include <QGroupBox>

namespace tessarin::qt {

/// Paints a frame's background and, with a border, a line around its edge that the caption
/// interrupts. It is a QGroupBox only for screen readers.
class QtFrame : public QGroupBox, public QtPeer {
public:
    QtFrame(Control& frame, QtForm& form, QWidget& parent)
        : QGroupBox(&parent), QtPeer(frame, *this, form) {}

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace tessarin::qt
