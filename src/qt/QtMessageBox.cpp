#include "qt/QtMessageBox.h"

#include "qt/QtForm.h"
#include "qt/QtLook.h"

#include <QGridLayout>
#include <QScreen>

namespace tessarin::qt {

namespace {

// Wide enough for the title of a box whose text is short.
constexpr int MinWidth = 280;

void WidenTo(int width, QMessageBox& box) {
    if (auto* const grid = qobject_cast<QGridLayout*>(box.layout()))
        grid->addItem(new QSpacerItem(width, 0), grid->rowCount(), 0, 1, grid->columnCount());
}

} // namespace

QtMessageBox::QtMessageBox(const Message& message, QtForm* form) : QMessageBox(form), mForm(form) {
    const bool question = message.ButtonSet == Message::Buttons::YesNo;
    setWindowTitle(message.Title.empty() && form != nullptr ? form->windowTitle()
                                                            : ToQt(message.Title));
    setTextFormat(Qt::PlainText);
    setText(ToQt(message.Prompt));
    setIcon(message.QuestionIcon ? Question : NoIcon);
    setStandardButtons(question ? Yes | No : Ok);
    // Unless it is set, the default button depends on the desktop.
    setDefaultButton(question ? Yes : Ok);
    WidenTo(MinWidth, *this);
}

// QMessageBox fixes its size. But if the desktop maximises it, it must take the size that it is
// given: see WindowFrame.
bool QtMessageBox::event(QEvent* event) {
    const bool handled = QMessageBox::event(event);
    setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    return handled;
}

void QtMessageBox::showEvent(QShowEvent* event) {
    QMessageBox::showEvent(event); // centres the box
    if (mForm == nullptr) return;
    const QRect grid = mForm->GridOnScreen();
    const QRect free = mForm->screen()->availableGeometry();
    const QMargins frame = mForm->Frame();
    QRect place = QRect(QPoint(), size()).marginsAdded(frame);
    place.moveCenter(grid.center());
    // With a margin: some window managers put the box there, and its frame around it.
    place.moveLeft(grid.right() + 1 + frame.left());
    if (!grid.isEmpty() && free.contains(place)) move(place.topLeft());
}

} // namespace tessarin::qt
