#include "ui/ctlRotor/ctlRotor.h"

#include "platform/Platform.h"

#include <string>
#include <utility>

namespace tessarin {

namespace {

constexpr int Pictures = 12;
constexpr int TickMilliseconds = 5;
constexpr float PictureSide = 480;
constexpr int PicturesInColumn = 4;

ControlProperties PictureAt(int index) {
    const int column = index / PicturesInColumn;
    const int row = index % PicturesInColumn;
    return {.Name = "Image1",
            .Left = PictureSide * static_cast<float>(column),
            .Top = PictureSide * static_cast<float>(row),
            .Width = PictureSide,
            .Height = PictureSide,
            .Visible = false,
            .PictureFile = "rotor-" + std::to_string(index) + ".png"};
}

} // namespace

ctlRotor::ctlRotor(Control& container, ControlProperties properties)
    : UserControl(container, std::move(properties)), Image1(*this, PictureAt(0)) {
    for (int i = 1; i < Pictures; ++i)
        Image1.Add(i, PictureAt(i));
    Timer1.Tick = [this] { Timer1_Timer(); };
    UserControl_Initialize();
    UserControl_Resize();
}

void ctlRotor::UserControl_Initialize() {
    Timer1.SetInterval(TickMilliseconds);
    UseHourglass = true;
    Stop();
}

void ctlRotor::UserControl_Resize() {
    for (int i = 1; i < Pictures; ++i) {
        Image1(i).SetLeft(Image1(0).Left());
        Image1(i).SetTop(Image1(0).Top());
    }
    SetWidth(Image1(0).Width());
    SetHeight(Image1(0).Height());
}

void ctlRotor::SetRunning(bool SetRunning) {
    if (SetRunning)
        Start();
    else
        Stop();
}

void ctlRotor::Start() {
    SetPointer(MousePointer::Hourglass);
    FrameIndex = 0;
    Timer1.SetEnabled(true);
}

void ctlRotor::Stop() {
    Timer1.SetEnabled(false);
    SetPointer(MousePointer::Default);
    FrameIndex = -1;
    ShowFrame();
}

void ctlRotor::Timer1_Timer() {
    FrameIndex = static_cast<std::int16_t>((FrameIndex + 1) % Pictures);
    ShowFrame();
}

void ctlRotor::ShowFrame() {
    for (int i = 0; i < Pictures; ++i)
        Image1(i).SetVisible(i == FrameIndex);
    PumpEvents(Pump::Now);
}

void ctlRotor::SetPointer(MousePointer pointer) const {
    if (UseHourglass) Platform::Current().SetMousePointer(pointer);
}

} // namespace tessarin
