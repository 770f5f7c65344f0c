// SPDX-License-Identifier: MIT
#include "QtFixture.h"

#include "qt/QtLook.h"

namespace tessarin {

static QKeyCombination Combination(const QString& keys) {
    return keys == "Alt" ? Qt::Key_Alt : QKeySequence(keys)[0];
}

static bool HasHourglass() {
    return QApplication::overrideCursor() != nullptr;
}

QtFixture::QtFixture() : WindowUser(platform, window) {
    QObject::connect(&mEyes, &QTimer::timeout, [this] { LookForBox(); });
    mEyes.start(10);
    const auto look = [this] { ExpectFocusOnCurrentField(); };
    QObject::connect(qApp, &QApplication::focusChanged, form, look);
    platform.EachPump = look;
    // Else a window manager may let it reach beyond the screen.
    form->move(0, 0);
    window.Show();
    Activate();
    platform.Record.clear();
}

void QtFixture::TearDown() {
    platform.ExpectNothingLeft();
    EXPECT_FALSE(platform.EscPressed());
    EXPECT_FALSE(Box() || QApplication::activePopupWidget());
    if (!form->isVisible()) return;
    EXPECT_NE(Focused(), "") << "still in the menu bar";
    ExpectOrder();
}

void QtFixture::ExpectOrder() {
    if (!form->isVisible()) return;
    QApplication::processEvents();
    const auto isPainted = [this] {
        const QImage screen = form->screen()->grabWindow(form->winId()).toImage();
        return screen == form->grab().toImage().convertToFormat(screen.format());
    };
    const bool isCovered = Box() || QApplication::activePopupWidget() || QToolTip::isVisible();
    EXPECT_TRUE(isCovered || QTest::qWaitFor(isPainted, 500)) << "the screen shows a former state";
    for (const Control* const control : toolkit.Controls) {
        SCOPED_TRACE(control->Name());
        if (const auto* const text = dynamic_cast<const TextControl*>(control)) ExpectShown(*text);
        const auto* const entry = dynamic_cast<const QAction*>(&control->Peer());
        const QMenu* const menu = entry != nullptr ? entry->menu() : nullptr;
        if (menu == nullptr) continue;
        EXPECT_EQ(menu->isEnabled(), control->Reachable());
        EXPECT_EQ(menu->font(), form->font());
        EXPECT_TRUE(entry->associatedObjects().contains(menu->parent())) << "closed on Wayland";
    }
    EXPECT_TRUE(form->focusWidget()->isVisible() && form->focusWidget()->isEnabled()) << Focused();
    ExpectFocusOnCurrentField();
}

void QtFixture::ExpectShown(const TextControl& control) {
    const auto pixels = [](float twips) { return qRound(twips / 15); };
    const auto& widget = dynamic_cast<const QWidget&>(control.Peer());
    EXPECT_EQ(widget.accessibleName(), qt::ToQt(control.AccessibleName()));
    EXPECT_EQ(widget.toolTip(), qt::ToQt(control.ToolTipText()));
    if (const auto* const button = dynamic_cast<const QAbstractButton*>(&widget)) {
        EXPECT_EQ(button->text(), qt::ToQt(control.Caption()));
    }
    EXPECT_EQ(widget.geometry(), QRect(pixels(control.Left()), pixels(control.Top()),
                                       pixels(control.Width()), pixels(control.Height())));
    const QString family = qt::ToQt(control.Font().Name);
    EXPECT_TRUE(family.isEmpty() || widget.font().families().contains(family));
    EXPECT_EQ(widget.font().weight() == QFont::Black, family == "Arial Black");
    EXPECT_EQ(widget.font().pixelSize(), pixels(control.Font().Size * 20));
    EXPECT_EQ(widget.font().italic(), control.Font().Italic);
    EXPECT_EQ(widget.isEnabledTo(widget.parentWidget()), control.Enabled());
    // The side column lies beyond the edge of the narrow window.
    const bool isBeyond =
        control.Container() == &window && control.Left() + control.Width() / 2 > window.Width();
    EXPECT_EQ(widget.isHidden(), !control.Visible() || isBeyond);
}

// A screen reader tells the name of the widget that has got the focus.
void QtFixture::ExpectFocusOnCurrentField() {
    const QWidget* const focus = form->focusWidget();
    if (focus == nullptr || !grid.Cursor || !Focused().starts_with("lblField")) return;
    EXPECT_TRUE(focus->accessibleName().contains(", current")) << Focused();
}

// Only Tab takes the focus out of the grid. Without a name it is in the menu bar.
void QtFixture::EndStep(const std::string& focusBefore) {
    Activate();
    ExpectOrder();
    const std::string after = Focused();
    EXPECT_TRUE(after == focusBefore || after.starts_with("lblField") || after.empty() ||
                focusBefore.empty())
        << "from " << focusBefore << " to " << after;
}

void QtFixture::Key(const QString& keys) {
    const std::string before = keys.contains("Tab") ? "" : Focused();
    Press(keys);
    EndStep(before);
}

void QtFixture::Press(const QString& keys) {
    const QKeyCombination key = Combination(keys);
    // In the same millisecond as the release before it would be a repeat.
    QTest::qWait(2);
    QTest::keyClick((Box() ? Box() : form)->windowHandle(), key.key(), key.keyboardModifiers());
}

void QtFixture::SendKey(QEvent::Type type, int time, const QString& key) {
    const int code = Combination(key).key();
    QKeyEvent event(type, code, {}, code < 0x100 ? QString(QChar(code)) : QString());
    event.setTimestamp(static_cast<quint64>(time));
    QCoreApplication::sendEvent((Box() ? Box() : form)->windowHandle(), &event);
}

void QtFixture::PointAtMenu(const QString& title) {
    const auto& menus = *form->findChild<QMenuBar*>();
    for (QAction* const entry : menus.actions())
        if (entry->text() == title)
            QTest::mouseMove(form->windowHandle(), menus.actionGeometry(entry).center());
}

void QtFixture::Activate() {
    if (!form->isVisible() || Box()) return;
    form->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(form));
}

void QtFixture::TellClicks() {
    for (const auto& [control, click] : toolkit.Clicks)
        click = [this, name = control->Name()] { platform.Tell(name); };
}

QWidget& QtFixture::Widget(const std::string& name) {
    auto* const widget = form->findChild<QWidget*>(QString::fromStdString(name));
    if (widget == nullptr) throw std::invalid_argument("no control " + name);
    return *widget;
}

void QtFixture::ClickAt(QWidget& widget, QPoint where) {
    QWidget* const top = widget.window();
    QTest::mouseClick(top->windowHandle(), Qt::LeftButton, {}, widget.mapTo(top, where));
}

void QtFixture::ClickControl(const std::string& control) {
    const std::string before = Focused();
    if (auto* const entry = form->findChild<QAction*>(QString::fromStdString(control)))
        entry->trigger();
    else
        ClickAt(Widget(control), Widget(control).rect().bottomRight() - QPoint(2, 2));
    EndStep(before);
    EXPECT_EQ(HasHourglass(), window.ctlRotor1.Running() && !Box());
}

void QtFixture::LookForBox() {
    QDialog* const dialog = Box();
    if (dialog == nullptr || dialog->property("seen").isValid()) return;
    // Only an active box can be answered. A window manager would activate it.
    if (!dialog->isActiveWindow()) {
        dialog->activateWindow();
        return;
    }
    dialog->setProperty("seen", true);
    // Fires again although this handler has not ended.
    mEyes.start();
    std::string told = dialog->windowTitle().toStdString();
    if (const auto* const box = qobject_cast<const QMessageBox*>(dialog)) {
        const bool isQuestion = box->icon() == QMessageBox::Question;
        told = "Box(" + told + "|" + box->text().toStdString() + (isQuestion ? "|?)" : "|-)");
        EXPECT_EQ(box->textFormat(), Qt::PlainText);
        EXPECT_EQ(box->size(), box->maximumSize());
        const int title = box->fontMetrics().horizontalAdvance(box->windowTitle());
        EXPECT_GT(box->width(), 2 * title) << "a frame would cut the title";
        const QRect fields(Widget("lblField(1)").mapToGlobal(QPoint()),
                           Widget("lblField(81)").mapToGlobal(QPoint(39, 39)));
        EXPECT_FALSE(box->parent() == form && box->geometry().intersects(fields));
        EXPECT_TRUE(box->screen()->geometry().contains(box->geometry()));
    }
    platform.Tell(told);
    EXPECT_EQ(dialog->font(), platform.DesktopFont);
    EXPECT_FALSE(HasHourglass());
    ExpectOrder();
    platform.Paused();
    if (!dialog->isVisible()) return;
    const QString answer = QString::fromStdString(platform.TakeAnswer());
    if (!answer.contains('.')) {
        Press(answer.isEmpty() ? "Esc" : answer);
        return;
    }
    // The name of a file. While it grows, the dialog itself selects rows of its list.
    auto* const line = Dialog().findChild<QLineEdit*>("fileNameEdit");
    for (const QChar c : answer) {
        line->insert(c);
        QTest::qWait(1);
    }
    EXPECT_EQ(line->completer()->popup()->windowHandle()->transientParent(), dialog->windowHandle())
        << "Wayland would open the list of names anywhere";
    EXPECT_TRUE(dialog->findChild<QPushButton*>()->isEnabled());
    Press("Return");
    if (dialog->isVisible()) dialog->reject();
}

QFileDialog& QtFixture::Dialog() {
    auto& dialog = dynamic_cast<QFileDialog&>(*Box());
    const auto& files = *dialog.findChild<QFileSystemModel*>();
    const auto listed = [&] { return files.rowCount(files.index(files.rootPath())) > 0; };
    EXPECT_TRUE(QTest::qWaitFor(listed));
    return dialog;
}

} // namespace tessarin
