// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace tessarin {

/// Keeps a handler connected to an event while it lives. A handler whose connection has died is not
/// called again, not even by a Raise in progress. A connection may outlive its event.
class Connection {
public:
    Connection() = default;
    explicit Connection(std::shared_ptr<void> token) : mToken(std::move(token)) {}
    // No copies: each would keep the handler connected.
    Connection(Connection&&) = default;
    Connection& operator=(Connection&&) = default;

private:
    std::shared_ptr<void> mToken;
};

/// Tells the connected handlers that something has happened.
template <class... Args>
class Event {
public:
    using Handler = std::function<void(Args...)>;

    Event() = default;
    // A copy would share the handlers.
    Event(const Event&) = delete;
    Event& operator=(const Event&) = delete;

    /// Calls `handler` at every Raise, after the handlers connected before it, until the returned
    /// connection dies.
    [[nodiscard]] Connection Connect(Handler handler) {
        auto token = std::make_shared<bool>();
        auto handlers = std::make_shared<HandlerList>(*mHandlers);
        std::erase_if(*handlers, [](const Entry& entry) { return entry.Token.expired(); });
        handlers->push_back({token, std::move(handler)});
        mHandlers = std::move(handlers);
        return Connection(std::move(token));
    }

    /// Calls all handlers in order. Handlers may connect, disconnect, raise the event again or
    /// destroy it; one that is connected meanwhile is first called by the next Raise.
    void Raise(Args... args) const {
        const auto handlers = mHandlers;
        for (const Entry& entry : *handlers)
            if (!entry.Token.expired()) entry.Call(args...);
    }

private:
    struct Entry {
        std::weak_ptr<void> Token; // the connection owns it
        Handler Call;
    };
    using HandlerList = std::vector<Entry>;

    // Raise keeps the list that it walks: Connect replaces the list and never changes it.
    std::shared_ptr<const HandlerList> mHandlers = std::make_shared<const HandlerList>();
};

} // namespace tessarin
