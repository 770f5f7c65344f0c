#include "platform/qt/QtPlatform.h"

#include "platform/qt/QtControls.h"
#include "platform/qt/QtFileDialog.h"
#include "platform/qt/QtForm.h"
#include "platform/qt/QtLook.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QMessageBox>
#include <QScopedValueRollback>
#include <QStyleFactory>
#include <QThread>

#include <algorithm>

namespace tessarin::qt {

namespace {

constexpr int ExtendedStyleIndex = -20;
constexpr int UiPixelSize = 12;

// Wide enough for the title of a box with a short text.
constexpr int MinBoxWidth = 280;

void WidenTo(int width, QMessageBox& box) {
    if (auto* const grid = qobject_cast<QGridLayout*>(box.layout()))
        grid->addItem(new QSpacerItem(width, 0), grid->rowCount(), 0, 1, grid->columnCount());
}

QWidget* WidgetOf(Control& container) {
    if (auto* form = dynamic_cast<QtForm*>(&container.Peer())) return &form->Client();
    return static_cast<QtPeer&>(container.Peer()).Widget();
}

} // namespace

QtPlatform::QtPlatform() {
    QApplication::setStyle(QStyleFactory::create("fusion"));
    QFont font = QApplication::font();
    font.setPixelSize(UiPixelSize);
    QApplication::setFont(font);
    Platform::SetCurrent(this);
}

QtPlatform::~QtPlatform() {
    Platform::SetCurrent(nullptr);
}

void QtPlatform::PumpEvents() {
    if (mbClosed) return;
    const QScopedValueRollback<bool> ticking(QtTimerPeer::Held, false);
    QApplication::processEvents();
}

// In slices, after each of which the window may be painted and activated. What the user does waits
// for the next pump, closing the window included, and timers do not tick.
void QtPlatform::Sleep(int milliseconds) {
    constexpr qint64 Slice = 20;
    const QDeadlineTimer end(milliseconds);
    while (!mbClosed && !end.hasExpired()) {
        QThread::msleep(static_cast<unsigned long>(std::min(Slice, end.remainingTime())));
        const QScopedValueRollback<bool> held(QtTimerPeer::Held, true);
        QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    }
}

bool QtPlatform::EscPressed() {
    return mEscWatch.Query();
}

Message::Answer QtPlatform::ShowMessage(const Message& message) {
    const bool question = message.ButtonSet == Message::Buttons::YesNo;
    const auto refusal = question ? Message::Answer::No : Message::Answer::Ok;
    if (mbClosed) return refusal;
    QMessageBox box(mForm);
    box.setWindowTitle(message.Title.empty() && mForm != nullptr ? mForm->windowTitle()
                                                                 : ToQt(message.Title));
    box.setTextFormat(Qt::PlainText);
    box.setText(ToQt(message.Prompt));
    box.setIcon(message.QuestionIcon ? QMessageBox::Question : QMessageBox::NoIcon);
    box.setStandardButtons(question ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok);
    // Desktops differ in the button that comes first, which would else be the default.
    box.setDefaultButton(question ? QMessageBox::Yes : QMessageBox::Ok);
    WidenTo(MinBoxWidth, box);
    return RunModal(box) == QMessageBox::Yes ? Message::Answer::Yes : refusal;
}

void QtPlatform::Beep() {
    QApplication::beep();
}

void QtPlatform::SetMousePointer(MousePointer pointer) {
    mbHourglass = pointer == MousePointer::Hourglass;
    ApplyPointer();
}

std::string QtPlatform::ProgramName() {
    return QFileInfo(QApplication::applicationFilePath()).completeBaseName().toStdString();
}

std::string QtPlatform::ProgramFolder() {
    return QApplication::applicationDirPath().toStdString();
}

void QtPlatform::LockWindowUpdate(int handle) {
    if (mForm == nullptr) return;
    if (handle != 0)
        mForm->LockUpdate();
    else
        mForm->UnlockUpdate();
}

void QtPlatform::ShowWindow(int handle, int command) {
    if (IsForm(handle)) mForm->ShowCommand(command);
}

int QtPlatform::GetWindowLongA(int handle, int index) {
    return IsForm(handle) && index == ExtendedStyleIndex ? mForm->ExtendedStyle() : 0;
}

void QtPlatform::SetWindowLongA(int handle, int index, int value) {
    if (IsForm(handle) && index == ExtendedStyleIndex) mForm->SetExtendedStyle(value);
}

bool QtPlatform::IsForm(int handle) const {
    return mForm != nullptr && !mbClosed && mForm->Handle() == handle;
}

std::unique_ptr<ControlPeer> QtPlatform::CreatePeer(ControlKind kind, Control& control,
                                                    Control* container) {
    if (kind == ControlKind::Form) {
        auto form = std::make_unique<QtForm>(static_cast<Form&>(control), *this);
        mForm = form.get();
        return form;
    }
    if (kind == ControlKind::Timer) return std::make_unique<QtTimerPeer>(control);
    if (kind == ControlKind::MenuItem)
        return std::make_unique<QtMenuPeer>(control, dynamic_cast<QtMenuPeer*>(&container->Peer()),
                                            *mForm);
    QWidget* const parent = WidgetOf(*container);
    switch (kind) {
    case ControlKind::Label:
        return CreateLabel(control, parent, *mForm);
    case ControlKind::CommandButton:
        return CreateCommandButton(control, parent, *mForm);
    case ControlKind::OptionButton:
        return CreateOptionButton(control, parent, *mForm);
    case ControlKind::Frame:
        return CreateFrame(control, parent, *mForm);
    case ControlKind::Picture:
        return CreatePicture(control, parent, *mForm);
    default:
        return CreateUserControl(control, parent, *mForm);
    }
}

std::optional<std::string> QtPlatform::RunFileDialog(const FileDialogRequest& request) {
    if (mbClosed) return std::nullopt;
    QtFileDialog dialog(request, mForm);
    RunModal(dialog);
    return dialog.Chosen();
}

void QtPlatform::Close() {
    mbClosed = true;
    SetMousePointer(MousePointer::Default);
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget* const window : windows)
        if (auto* const dialog = qobject_cast<QDialog*>(window)) dialog->reject();
}

int QtPlatform::RunModal(QDialog& dialog) {
    ++mlOpenDialogs;
    ApplyPointer();
    const int result = dialog.exec();
    --mlOpenDialogs;
    ApplyPointer();
    return result;
}

// Override cursors are a stack, so it is touched only when the pointer really changes. While a
// dialog is open the user is not to wait.
void QtPlatform::ApplyPointer() {
    const bool hourglass = mbHourglass && mlOpenDialogs == 0;
    if (hourglass == mbHourglassShown) return;
    mbHourglassShown = hourglass;
    if (hourglass)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

} // namespace tessarin::qt
