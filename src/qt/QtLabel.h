#pragma once

#include "toolkit/Controls.h"

#include <QLabel>

namespace tessarin::qt {

/// Paints a label from its control's properties (background, border and text) and reports clicks.
class QtLabel : public QLabel {
public:
    QtLabel(Label& label, QWidget& parent);

protected:
    void paintEvent(QPaintEvent* event) override;
    // A click is a left press and a left release inside. The second press of a double click counts
    // like any other.
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    Label& mControl;
    bool mbPressed = false;
};

} // namespace tessarin::qt
