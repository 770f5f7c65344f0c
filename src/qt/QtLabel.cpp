#include "qt/QtLabel.h"

#include "qt/QtLook.h"

#include <QMouseEvent>
#include <QPainter>

#include <utility>

namespace tessarin::qt {

QtLabel::QtLabel(Label& label, QWidget& parent) : QLabel(&parent), mControl(label) {
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void QtLabel::paintEvent(QPaintEvent* /*event*/) {
    const Design& look = mControl.Properties();
    QPainter painter(this);
    QRect inside = rect();
    // Two nested fills: a drawn rectangle loses lines at fractional scales.
    if (look.Border == BorderStyle::FixedSingle) {
        painter.fillRect(inside, Qt::black);
        inside.adjust(1, 1, -1, -1);
    }
    painter.fillRect(inside, ToQt(look.BackColor));
    painter.setFont(ToQt(look.Font));
    painter.setPen(TextColor(look.ForeColor, look.BackColor));
    const QString text = ToQt(look.Caption);
    if (look.Align == Alignment::Center)
        painter.drawText(inside, Qt::AlignCenter, text);
    else if (look.Wrap)
        painter.drawText(inside, Qt::AlignLeft | Qt::AlignTop | Qt::TextWrapAnywhere, text);
    else
        painter.drawText(inside, Qt::AlignLeft | Qt::AlignVCenter,
                         painter.fontMetrics().elidedText(text, Qt::ElideMiddle, inside.width()));
}

void QtLabel::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) mbPressed = true;
    event->accept();
}

void QtLabel::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
    if (event->button() != Qt::LeftButton) return;
    const bool pressed = std::exchange(mbPressed, false);
    if (pressed && rect().contains(event->position().toPoint())) mControl.RaiseClick();
}

} // namespace tessarin::qt
