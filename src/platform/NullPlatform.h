// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Platform.h"

namespace tessarin {

/// The default platform, without a window: nothing to pump, no sleep, ESC is never pressed, every
/// question is answered No.
class NullPlatform : public Platform {
public:
    void PumpEvents(Pump /*pump*/) override {}
    void Sleep(int /*milliseconds*/) override {}
    bool EscPressed() override { return false; }
    Message::Answer ShowMessage(const Message& message) override { return message.Refusal(); }
    void Beep() override {}
    void SetMousePointer(MousePointer /*pointer*/) override {}
    std::string ProgramName() override { return "Tessarin"; }
    std::string ProgramFolder() override { return "."; }
    VersionRecord Version() override { return {}; }
};

} // namespace tessarin
