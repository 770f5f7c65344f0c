// SPDX-License-Identifier: MIT
#include "qt/QtLabel.h"

#include "qt/KeyboardFocus.h"
#include "qt/QtLook.h"
#include "qt/QtPlatform.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QTextLayout>
#include <QToolTip>

#include <algorithm>
#include <utility>

namespace tessarin::qt {

// Breaks the text of `layout` into lines of that width.
static void BreakLines(QTextLayout& layout, int width) {
    layout.setCacheEnabled(true); // otherwise each line lays out the whole text again
    layout.beginLayout();
    while (true) {
        QTextLine line = layout.createLine();
        if (!line.isValid()) break;
        line.setLineWidth(width);
    }
    layout.endLayout();
}

QtLabel::QtLabel(Label& label, const Site& site) : WidgetOf(label, site), mLabel(label) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    if (IsInGrid()) Focus().AddToGrid(label, *this);
    if (label.TabStop) setFocusPolicy(Qt::TabFocus);
}

void QtLabel::Changed(Property property) {
    Apply(property);
    // Each move of a solve is to be seen before the next. Other labels may wait for a pump: a light
    // that is on for half a millisecond need not be seen.
    if (IsInGrid()) Platform().ShowAtNextPump();
}

void QtLabel::MakeCurrent() {
    Focus().MakeCurrent(mLabel);
}

void QtLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    QRect inside = rect();
    // A ring is what remains of a filled rectangle when its inside is filled, too: the lines of
    // drawn rectangles get lost at fractional scales.
    const auto ring = [&](const QColor& color, int width) {
        painter.fillRect(inside, color);
        inside.adjust(width, width, -width, -width);
    };
    if (mLabel.Border == BorderStyle::FixedSingle) ring(LineColor(), 1);
    const QRect space = inside; // for the text, which the rings of the focus do not move
    const bool showsFocus = hasFocus() && !Focus().IsAwaited();
    if (showsFocus) { // on any background one of the two is seen
        ring(Qt::white, 2);
        ring(Qt::black, 2);
    }
    painter.fillRect(inside, ToQt(mLabel.BackColor()));
    if (mLabel.Caption().empty()) return;
    painter.setPen(TextColor(mLabel.ForeColor(), mLabel.BackColor()));
    switch (mLabel.Flow) {
    case TextFlow::Line:
        painter.drawText(space, Qt::AlignLeft | Qt::AlignVCenter, ShortenedCaption());
        break;
    case TextFlow::Lines:
        DrawLines(painter, space);
        break;
    case TextFlow::Centered:
        painter.drawText(space, Qt::AlignCenter, ToQt(mLabel.Caption()));
        break;
    }
}

// Fonts of one size differ in the height of their lines by a fifth, so the distance of the lines
// depends on the size alone. It is smaller if the label has no room for all lines at that distance.
void QtLabel::DrawLines(QPainter& painter, const QRect& space) const {
    QString text = ToQt(mLabel.Caption());
    text.replace("\r\n", QChar(QChar::LineSeparator));
    text.replace(';', QStringLiteral(";\u200B")); // where a line may end
    QTextLayout layout(text, font());
    BreakLines(layout, space.width());
    const int count = layout.lineCount();
    constexpr qreal DistanceBySize = 1.2;
    const qreal distance =
        std::min(DistanceBySize * font().pixelSize(), 1.0 * space.height() / count);
    for (int i = 0; i < count; ++i) {
        const QTextLine line = layout.lineAt(i);
        const qreal middle = space.top() + (i + 0.5) * distance;
        line.draw(&painter, {1.0 * space.left(), middle - line.height() / 2});
    }
}

// Shortened to the part of the label that lies inside its parent.
QString QtLabel::ShortenedCaption() const {
    const QRect seen = rect() & parentWidget()->rect().translated(-pos());
    return fontMetrics().elidedText(ToQt(mLabel.Caption()), Qt::ElideMiddle, seen.width());
}

bool QtLabel::IsShortened() const {
    return mLabel.Flow == TextFlow::Line && ShortenedCaption() != ToQt(mLabel.Caption());
}

bool QtLabel::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip || !IsShortened()) return QLabel::event(event);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), Tip(), this);
    return true;
}

// The caption as HTML. Its lines are broken here: where Qt does it, the tip often has room for one
// more.
QString QtLabel::Tip() const {
    const QString caption = ToQt(mLabel.Caption());
    QTextLayout layout(caption, QToolTip::font());
    BreakLines(layout, width());
    QStringList lines;
    for (int i = 0; i < layout.lineCount(); ++i) {
        const QTextLine line = layout.lineAt(i);
        lines << caption.mid(line.textStart(), line.textLength()).toHtmlEscaped();
    }
    return "<p style='white-space:pre'>" + lines.join("<br>") + "</p>";
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
    Press();
    // Only now, so that a screen reader hears of the new current label alone.
    if (IsInGrid()) Focus().ToGrid();
}

void QtLabel::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    if (key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter) {
        Press();
        return;
    }
    Label* const target = IsInGrid() ? Focus().Target(*event) : nullptr;
    if (target == nullptr) {
        QLabel::keyPressEvent(event);
        return;
    }
    Focus().ToGrid();
    target->RaiseClick();
}

// The menu bar gives the focus back to the label that had it, which need not be current any more.
void QtLabel::focusInEvent(QFocusEvent* event) {
    QLabel::focusInEvent(event);
    if (!IsInGrid()) return;
    QWidget* const current = Focus().Current();
    if (current != nullptr && current != this) {
        current->setFocus();
        return;
    }
    const bool byTab =
        event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    if (byTab) Focus().ToGrid();
}

} // namespace tessarin::qt
