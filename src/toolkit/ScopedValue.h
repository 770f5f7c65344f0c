#pragma once

#include <utility>

namespace tessarin {

/// Gives a variable another value for its own lifetime.
template <class T>
class ScopedValue {
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
