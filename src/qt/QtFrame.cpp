#include "qt/QtFrame.h"

#include "qt/QtLook.h"

#include <QPainter>

namespace tessarin::qt {

void QtFrame::paintEvent(QPaintEvent* /*event*/) {
    const ControlProperties& look = mControl.Properties();
    QPainter painter(this);
    painter.fillRect(rect(), ToQt(look.BackColor));
    if (look.Border == BorderStyle::None) return;
    const QString caption = ToQt(look.Caption);
    const int textHeight = caption.isEmpty() ? 0 : painter.fontMetrics().height();
    const QRect line = rect().adjusted(0, textHeight / 2, 0, 0);
    painter.fillRect(line, LineColor());
    painter.fillRect(line.adjusted(1, 1, -1, -1), ToQt(look.BackColor));
    if (caption.isEmpty()) return;
    const QRect text(8, 0, painter.fontMetrics().horizontalAdvance(caption) + 6, textHeight);
    painter.fillRect(text, ToQt(look.BackColor));
    painter.setPen(TextColor(look.ForeColor, look.BackColor));
    painter.drawText(text, Qt::AlignCenter, caption);
}

} // namespace tessarin::qt
