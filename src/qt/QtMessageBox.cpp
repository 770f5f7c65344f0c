#include "qt/QtMessageBox.h"

#include "qt/QtForm.h"
#include "qt/QtLook.h"

#include <QGridLayout>
#include <QScreen>

#include <algorithm>

namespace tessarin::qt {

namespace {

// Wide enough for the title of a box whose text is short.
constexpr int MinWidthInLines = 19;

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
    WidenTo(MinWidthInLines * fontMetrics().height(), *this);
}

// QMessageBox fixes its size. But if the desktop maximises it, it must take the size that it is
// given: see WindowFrame.
bool QtMessageBox::event(QEvent* event) {
    const bool handled = QMessageBox::event(event);
    setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    return handled;
}

void QtMessageBox::showEvent(QShowEvent* event) {
    QMessageBox::showEvent(event);
    if (mForm == nullptr || mForm->GridOnScreen().isEmpty()) return;
    // With a margin: some window managers put the box there, and its frame around it.
    const QRect grid = mForm->GridOnScreen().marginsAdded(mForm->Frame());
    const QRect screen = mForm->screen()->availableGeometry();
    QRect box = QRect(QPoint(), size()).marginsAdded(mForm->Frame());
    box.moveCenter(grid.center());
    const auto onScreen = [&](const QPoint& place) {
        const QPoint most = screen.bottomRight() + QPoint(1, 1) - QPoint(box.width(), box.height());
        return QRect(QPoint(std::max(std::min(place.x(), most.x()), screen.x()),
                            std::max(std::min(place.y(), most.y()), screen.y())),
                     box.size());
    };
    const auto covered = [&](const QPoint& place) {
        const QRect both = onScreen(place) & grid;
        return both.width() * both.height();
    };
    const int left = grid.x() - box.width();
    const int right = grid.x() + grid.width();
    const int above = grid.y() - box.height();
    const int below = grid.y() + grid.height();
    const QPoint place =
        std::min({QPoint(right, box.y()), QPoint(left, box.y()), QPoint(box.x(), above),
                  QPoint(box.x(), below), QPoint(right, above), QPoint(right, below),
                  QPoint(left, above), QPoint(left, below)},
                 [&](const QPoint& a, const QPoint& b) { return covered(a) < covered(b); });
    move(onScreen(place).topLeft());
}

} // namespace tessarin::qt
