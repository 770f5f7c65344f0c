// SPDX-License-Identifier: MIT
#pragma once

#include <utility>

namespace tessarin {

/// Calls a function when it goes out of scope, also because of an error. The function must not
/// throw.
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
