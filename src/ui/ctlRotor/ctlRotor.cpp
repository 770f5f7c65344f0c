// SPDX-License-Identifier: MIT
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

// In the design the pictures lie beside each other, to be looked at. The program never shows them
// so: UserControl_Resize puts them on top of each other.
PictureProperties PictureAt(int index) {
    const int column = index / PicturesInColumn;
    const int row = index % PicturesInColumn;
    return {.Place = {.Left = PictureSide * static_cast<float>(column),
                      .Top = PictureSide * static_cast<float>(row),
                      .Width = PictureSide,
                      .Height = PictureSide},
            .File = "rotor-" + std::to_string(index) + ".png",
            .Visible = false};
}

} // namespace

ctlRotor::ctlRotor(Control& container, std::string name, const Bounds& place)
    : UserControl(container, std::move(name), {.Place = place}) {
    for (int i = 0; i < Pictures; ++i)
        Image1.emplace_back(*this, "Image1(" + std::to_string(i) + ")", PictureAt(i));
    Timer1.Tick = [this] { Timer1_Timer(); };
    UserControl_Initialize();
    UserControl_Resize();
}

void ctlRotor::UserControl_Initialize() {
    Timer1.SetInterval(TickMilliseconds);
    Stop();
}

void ctlRotor::UserControl_Resize() {
    const Picture& first = Image1.front();
    for (Picture& picture : Image1) {
        picture.SetLeft(first.Left());
        picture.SetTop(first.Top());
    }
    SetWidth(first.Width());
    SetHeight(first.Height());
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
    ShowFrameAndPump();
}

void ctlRotor::Timer1_Timer() {
    FrameIndex = (FrameIndex + 1) % Pictures;
    ShowFrameAndPump();
}

void ctlRotor::ShowFrameAndPump() {
    for (int i = 0; i < Pictures; ++i)
        Image1[static_cast<std::size_t>(i)].SetVisible(i == FrameIndex);
    PumpEvents(Pump::Now);
}

void ctlRotor::SetPointer(MousePointer pointer) const {
    if (UseHourglass) Platform::Current().SetMousePointer(pointer);
}

} // namespace tessarin
