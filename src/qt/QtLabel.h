// SPDX-License-Identifier: MIT
#pragma once

#include "qt/ControlWidget.h"

#include <QLabel>

namespace tessarin::qt {

/// Paints a label from its control's properties (background, border and text) and reports clicks of
/// the mouse and, if the Tab key stops at it, of the keyboard. In the form's grid of labels the
/// arrow keys click the label that they lead to. It is a QLabel only for screen readers.
class QtLabel : public WidgetOf<QLabel>, public LabelPeer {
public:
    QtLabel(Label& label, const Site& site);

    void Changed(Property property) override;
    void MakeCurrent() override;

    void Press() { mLabel.RaiseClick(); }
    /// Whether it is there to be clicked, so that it has a place for the focus.
    bool IsClickable() const { return mLabel.TabStop || IsInGrid(); }

protected:
    // Shows a shortened caption in full in a tool tip.
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    // A click is a left press and a left release inside. The second press of a double click counts
    // like any other.
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    bool IsInGrid() const { return mLabel.Cell.has_value(); }
    void DrawLines(QPainter& painter, const QRect& space) const;
    QString ShortenedCaption() const;
    bool IsShortened() const;
    QString Tip() const;

    Label& mLabel;
    bool mbPressed = false;
};

} // namespace tessarin::qt
