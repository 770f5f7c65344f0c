#pragma once

#include "toolkit/Controls.h"

#include <QWidget>

namespace tessarin::qt {

/// Paints a frame's background and, with a border, a line around its edge that is interrupted by
/// the caption.
class QtFrame : public QWidget {
public:
    QtFrame(const Frame& frame, QWidget& parent) : QWidget(&parent), mFrame(frame) {}

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const Frame& mFrame;
};

} // namespace tessarin::qt
