// The message box.
#include "qt/QtForm.h"
#include "qt/QtLook.h"
#include "qt/QtPlatform.h"

#include <QGridLayout>
#include <QMessageBox>
#include <QScreen>

#include <algorithm>

namespace tessarin::qt {

namespace {

// Keeps off the form's grid of labels, which its text is about: it opens on the right of it, on the
// left, above or below, where the screen has room. Without room it covers the grid as little as
// possible.
class QtMessageBox : public QMessageBox {
public:
    QtMessageBox(const Message& message, QtForm& form) : QMessageBox(&form), mForm(form) {
        const bool question = message.ButtonSet == Message::Buttons::YesNo;
        setWindowTitle(message.Title.empty() ? form.windowTitle() : ToQt(message.Title));
        setTextFormat(Qt::PlainText);
        setText(ToQt(message.Prompt));
        setIcon(message.QuestionIcon ? Question : NoIcon);
        setStandardButtons(question ? Yes | No : Ok);
        // Unless it is set, the default button depends on the desktop.
        setDefaultButton(question ? Yes : Ok);
        // Wide enough for its title, however short its text.
        const int least = 19 * fontMetrics().height();
        if (auto* const grid = qobject_cast<QGridLayout*>(layout()))
            grid->addItem(new QSpacerItem(least, 0), grid->rowCount(), 0, 1, grid->columnCount());
    }

protected:
    // QMessageBox fixes its size. But if the desktop maximises it, it must take the size that it is
    // given: see WindowFrame.
    bool event(QEvent* event) override {
        const bool handled = QMessageBox::event(event);
        setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
        return handled;
    }

    void showEvent(QShowEvent* event) override {
        QMessageBox::showEvent(event);
        const QRect labels = mForm.Focus().GridBounds();
        if (labels.isEmpty()) return;
        // With a margin: some window managers put the box there, and its frame around it.
        const QPoint client = mForm.Client().mapToGlobal(QPoint());
        const QRect grid = labels.translated(client).marginsAdded(mForm.Frame());
        QRect box = QRect(QPoint(), size()).marginsAdded(mForm.Frame());
        box.moveCenter(grid.center());
        // The places of its top left corner at which it lies on the screen.
        const QRect screen = mForm.screen()->availableGeometry();
        const QRect corners = screen.adjusted(0, 0, 1 - box.width(), 1 - box.height());
        const auto covered = [&](const QRect& place) {
            const QRect both = place & grid;
            return both.width() * both.height();
        };
        QRect best = grid;
        for (const int y : {box.y(), grid.y() - box.height(), grid.y() + grid.height()})
            for (const int x : {box.x(), grid.x() + grid.width(), grid.x() - box.width()}) {
                const int left = std::max(corners.left(), std::min(x, corners.right()));
                const int top = std::max(corners.top(), std::min(y, corners.bottom()));
                const QRect place({left, top}, box.size());
                if (covered(place) < covered(best)) best = place;
            }
        move(best.topLeft());
    }

private:
    QtForm& mForm;
};

} // namespace

Message::Answer QtPlatform::ShowMessage(const Message& message) {
    const bool question = message.ButtonSet == Message::Buttons::YesNo;
    const auto refusal = question ? Message::Answer::No : Message::Answer::Ok;
    if (mbClosed || mForm == nullptr) return refusal;
    QtMessageBox box(message, *mForm);
    return RunModal(box) == QMessageBox::Yes ? Message::Answer::Yes : refusal;
}

} // namespace tessarin::qt
