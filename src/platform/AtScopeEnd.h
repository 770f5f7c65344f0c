#pragma once

#include <utility>

namespace tessarin {

/// Calls a function at the end of its own life, also when an error ends it.
template <class Function>
class [[nodiscard]] AtScopeEnd {
public:
    explicit AtScopeEnd(Function function) : mFunction(std::move(function)) {}
    AtScopeEnd(const AtScopeEnd&) = delete;
    AtScopeEnd& operator=(const AtScopeEnd&) = delete;
    ~AtScopeEnd() { mFunction(); }

private:
    Function mFunction;
};

} // namespace tessarin
