// SPDX-License-Identifier: MIT
#pragma once

#include <utility>

namespace tessarin {

/// Sets a variable while it lives, then restores the old value.
template <class T>
class [[nodiscard]] ScopedValue {
public:
    ScopedValue(T& variable, T value)
        : mVariable(variable), mBefore(std::exchange(variable, std::move(value))) {}
    ScopedValue(const ScopedValue&) = delete;
    ScopedValue& operator=(const ScopedValue&) = delete;
    ~ScopedValue() { mVariable = std::move(mBefore); }

private:
    T& mVariable;
    T mBefore;
};

} // namespace tessarin
