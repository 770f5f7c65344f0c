#include "qt/QtLabel.h"

#include "qt/QtForm.h"
#include "qt/QtLook.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <utility>

namespace tessarin::qt {

QtLabel::QtLabel(Control& label, QWidget& parent) : QLabel(&parent), QtPeer(label, *this) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    if (IsInGrid()) mForm.Focus().AddToGrid(*this);
    if (mControl.Properties().Keys == KeyStop::Own) setFocusPolicy(Qt::TabFocus);
}

void QtLabel::MakeCurrent() {
    mForm.Focus().MakeCurrent(*this);
}

void QtLabel::paintEvent(QPaintEvent* /*event*/) {
    const ControlProperties& look = mControl.Properties();
    QPainter painter(this);
    QRect inside = rect();
    // Fills one inside the other, because drawn rectangles lose lines at fractional scales.
    const auto ring = [&](const QColor& color, int width) {
        painter.fillRect(inside, color);
        inside.adjust(width, width, -width, -width);
    };
    if (look.Border == BorderStyle::FixedSingle) ring(LineColor(), 1);
    const QRect space = inside;                  // for the text
    if (hasFocus() && !mForm.Focus().IsLent()) { // one of the two shows on any background
        ring(Qt::white, 2);
        ring(Qt::black, 2);
    }
    painter.fillRect(inside, ToQt(look.BackColor));
    if (look.Caption.empty()) return;
    painter.setPen(TextColor(look.ForeColor, look.BackColor));
    QString text = ToQt(look.Caption);
    if (look.Align == Alignment::Center) return painter.drawText(space, Qt::AlignCenter, text);
    if (look.Wrap) {
        text.replace(QLatin1Char(';'), QStringLiteral(";\u200B")); // where a line may end
        return painter.drawText(space, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, text);
    }
    const QString shown = painter.fontMetrics().elidedText(text, Qt::ElideMiddle, space.width());
    painter.drawText(space, Qt::AlignLeft | Qt::AlignVCenter, shown);
    // As HTML, because the lines of a plain tip are never broken.
    setToolTip(shown == text ? ToQt(look.ToolTipText) : "<p>" + text.toHtmlEscaped() + "</p>");
}

void QtLabel::mousePressEvent(QMouseEvent* event) {
    event->accept();
    if (event->button() == Qt::LeftButton) mbPressed = true;
}

void QtLabel::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
    if (event->button() != Qt::LeftButton) return;
    const bool pressed = std::exchange(mbPressed, false);
    if (!pressed || !rect().contains(event->position().toPoint())) return;
    mControl.RaiseClick();
    // Only now, so that a screen reader hears of the new current label alone.
    if (IsInGrid()) mForm.Focus().ToGrid();
}

void QtLabel::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    if (key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter)
        return mControl.RaiseClick();
    QtLabel* const target = IsInGrid() ? mForm.Focus().Target(*event) : nullptr;
    if (target == nullptr) return QLabel::keyPressEvent(event);
    mForm.Focus().ToGrid();
    target->mControl.RaiseClick();
}

// The menu bar gives the focus back to the label that had it, which need not be current any more.
void QtLabel::focusInEvent(QFocusEvent* event) {
    QLabel::focusInEvent(event);
    if (!IsInGrid()) return;
    QtLabel* const current = mForm.Focus().Current();
    if (current != nullptr && current != this) return current->setFocus();
    const bool byTab =
        event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    if (byTab) mForm.Focus().ToGrid();
}

} // namespace tessarin::qt
