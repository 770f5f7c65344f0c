#pragma once

#include "toolkit/Control.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>

namespace tessarin {

/// Controls of one kind that share a name and differ by index: `lblField(12)`. Member 0 is the
/// template for those loaded later. All share one Click, which gets the index.
template <class T>
class ControlArray {
public:
    /// Creates member 0 with `properties`.
    ControlArray(Control& container, ControlProperties properties)
        : mContainer(container), msName(properties.Name) {
        Add(0, std::move(properties));
    }
    ControlArray(const ControlArray&) = delete; // the members' clicks refer to it

    std::function<void(int)> Click;

    /// Throws std::out_of_range for a member that has not been created.
    T& operator()(int index) { return *mMembers.at(index); }
    bool Has(int index) const { return mMembers.contains(index); }

    /// Creates member `index`, which must be a new one, hidden, with the properties of member 0.
    T& Load(int index) {
        ControlProperties properties = mMembers.at(0)->Properties();
        properties.Visible = false;
        return Add(index, std::move(properties));
    }

    /// Creates member `index`, which must be a new one, with `properties`.
    T& Add(int index, ControlProperties properties) {
        properties.Name = msName + "(" + std::to_string(index) + ")";
        auto& member = mMembers[index];
        member = std::make_unique<T>(mContainer, std::move(properties));
        member->Click = [this, index] {
            if (Click) Click(index);
        };
        return *member;
    }

private:
    Control& mContainer;
    std::string msName;
    std::map<int, std::unique_ptr<T>> mMembers;
};

} // namespace tessarin
