#pragma once

#include "toolkit/Controls.h"

#include <QGroupBox>

namespace tessarin::qt {

/// Paints a frame's background and, with a border, a line around its edge that the caption
/// interrupts. It is a QGroupBox only for screen readers.
class QtFrame : public QGroupBox {
public:
    QtFrame(const Frame& frame, QWidget& parent) : QGroupBox(&parent), mFrame(frame) {}

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const Frame& mFrame;
};

} // namespace tessarin::qt
