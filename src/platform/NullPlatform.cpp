#include "platform/NullPlatform.h"

namespace tessarin {

Message::Answer NullPlatform::ShowMessage(const Message& message) {
    return message.ButtonSet == Message::Buttons::Ok ? Message::Answer::Ok : Message::Answer::No;
}

} // namespace tessarin
