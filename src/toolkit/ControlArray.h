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
    /// Creates member 0 with `design`.
    ControlArray(Control& container, Design design) : mContainer(container), msName(design.Name) {
        Add(0, std::move(design));
    }
    ControlArray(const ControlArray&) = delete; // the members' clicks refer to it
    ControlArray& operator=(const ControlArray&) = delete;

    std::function<void(int)> Click;

    T& operator()(int index) { return *mMembers.at(index); }
    bool Has(int index) const { return mMembers.contains(index); }

    /// Creates member `index`, hidden, with the properties of member 0.
    T& Load(int index) {
        Design design = mMembers.at(0)->Properties();
        design.Visible = false;
        return Add(index, std::move(design));
    }

    /// Creates member `index` with `design`.
    T& Add(int index, Design design) {
        design.Name = msName + "(" + std::to_string(index) + ")";
        auto& member = mMembers[index];
        member = std::make_unique<T>(mContainer, std::move(design));
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
