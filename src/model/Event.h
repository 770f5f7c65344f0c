#pragma once

#include <algorithm>
#include <functional>
#include <iterator>
#include <memory>
#include <utility>
#include <vector>

namespace tessarin {

/// Keeps a handler connected to an event for as long as it lives. It may outlive the event.
class Connection {
public:
    Connection() = default;
    explicit Connection(std::shared_ptr<bool> connected) : mConnected(std::move(connected)) {}
    Connection(Connection&& other) noexcept = default;
    Connection& operator=(Connection&& other) noexcept {
        Disconnect();
        mConnected = std::move(other.mConnected);
        return *this;
    }
    ~Connection() { Disconnect(); }

    /// From now on the handler is not called any more, not even by a Raise that is under way.
    void Disconnect() {
        if (mConnected) *mConnected = false;
        mConnected.reset();
    }

private:
    std::shared_ptr<bool> mConnected;
};

/// Something that happens to an object and that others want to hear of.
template <class... Args>
class Event {
public:
    using Handler = std::function<void(Args...)>;

    /// Calls `handler` at every Raise, after the handlers connected before it, until the returned
    /// connection dies.
    [[nodiscard]] Connection Connect(Handler handler) {
        auto connected = std::make_shared<bool>(true);
        auto slots = std::make_shared<Slots>();
        std::copy_if(mSlots->begin(), mSlots->end(), std::back_inserter(*slots),
                     [](const Slot& slot) { return *slot.Connected; });
        slots->push_back({connected, std::move(handler)});
        mSlots = std::move(slots);
        return Connection(std::move(connected));
    }

    /// Calls all handlers in order. Handlers may connect, disconnect, raise the event again or
    /// destroy it; one connected meanwhile hears of the next Raise only.
    void Raise(Args... args) const {
        const std::shared_ptr<const Slots> slots = mSlots;
        for (const Slot& slot : *slots)
            if (*slot.Connected) slot.Call(args...);
    }

private:
    struct Slot {
        std::shared_ptr<bool> Connected;
        Handler Call;
    };
    using Slots = std::vector<Slot>;

    std::shared_ptr<const Slots> mSlots = std::make_shared<const Slots>();
};

} // namespace tessarin
