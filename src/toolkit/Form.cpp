#include "toolkit/Form.h"

#include "platform/ScopedValue.h"
#include "toolkit/Door.h"

#include <utility>

namespace tessarin {

Form::Form(Toolkit& toolkit, Design design, FormDesign formDesign)
    : Control(toolkit, *this, std::move(design)), mFormProperties(std::move(formDesign)) {
    auto peer = toolkit.Create(*this);
    mFormPeer = peer.get();
    Attach(std::move(peer));
}

void Form::RaiseActivate() {
    if (mbActivating) return;
    const ScopedValue<bool> activating(mbActivating, true);
    Enter([this] { Form_Activate(); });
}

bool Form::RaiseUnload() {
    bool cancel = false;
    Enter([&] { Form_Unload(cancel); });
    if (!cancel) Gate.Close();
    return !cancel;
}

} // namespace tessarin
