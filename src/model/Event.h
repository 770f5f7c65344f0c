#pragma once

#include <algorithm>
#include <functional>
#include <iterator>
#include <memory>
#include <utility>
#include <vector>

namespace tessarin {

/// Keeps a handler connected to an event while it lives. It may outlive the event.
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

    /// The handler is not called again, not even by a Raise in progress.
    void Disconnect() {
        if (mConnected) *mConnected = false;
        mConnected.reset();
    }

private:
    std::shared_ptr<bool> mConnected;
};

/// Tells the connected handlers that something has happened.
template <class... Args>
class Event {
public:
    using Handler = std::function<void(Args...)>;

    Event() = default;
    Event(const Event&) = delete; // a copy would share the handlers
    Event& operator=(const Event&) = delete;

    /// Calls `handler` at every Raise, after the handlers connected before it, until the returned
    /// connection dies.
    [[nodiscard]] Connection Connect(Handler handler) {
        auto connected = std::make_shared<bool>(true);
        auto handlers = std::make_shared<HandlerList>();
        std::copy_if(mHandlers->begin(), mHandlers->end(), std::back_inserter(*handlers),
                     [](const Entry& entry) { return *entry.Connected; });
        handlers->push_back({connected, std::move(handler)});
        mHandlers = std::move(handlers);
        return Connection(std::move(connected));
    }

    /// Calls all handlers in order. Handlers may connect, disconnect, raise the event again or
    /// destroy it; one that is connected meanwhile is first called by the next Raise.
    void Raise(Args... args) const {
        const std::shared_ptr<const HandlerList> handlers = mHandlers;
        for (const Entry& entry : *handlers)
            if (*entry.Connected) entry.Call(args...);
    }

private:
    struct Entry {
        std::shared_ptr<bool> Connected;
        Handler Call;
    };
    using HandlerList = std::vector<Entry>;

    // Raise keeps the list that it walks: Connect replaces the list and never changes it. Which of
    // its handlers are still connected is read from the flag in each entry.
    std::shared_ptr<const HandlerList> mHandlers = std::make_shared<const HandlerList>();
};

} // namespace tessarin
