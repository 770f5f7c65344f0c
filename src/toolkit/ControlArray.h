// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/Control.h"

#include <cassert>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>

namespace tessarin {

/// Controls of one kind that share a name and differ by index: `lblField(12)`. Member 0 is the
/// template of the others. All share one Click, which gets the index.
template <class T>
class ControlArray {
public:
    using Properties = typename T::Properties;

    /// Creates member 0 with `design`.
    ControlArray(Control& container, std::string name, Properties design)
        : Design(std::move(design)), mContainer(container), msName(std::move(name)) {
        Add(0, Design);
    }
    ControlArray(const ControlArray&) = delete; // the members' clicks refer to it

    std::function<void(int)> Click;

    /// What member 0 was created with.
    const Properties Design;

    /// Throws std::out_of_range for a member that has not been created.
    T& operator()(int index) { return *mMembers.at(index); }
    bool Has(int index) const { return mMembers.contains(index); }

    /// Creates member `index`. REQUIRES: there is none yet.
    T& Add(int index, const Properties& design) {
        assert(!Has(index));
        const std::string name = msName + "(" + std::to_string(index) + ")";
        const auto added = mMembers.emplace(index, std::make_unique<T>(mContainer, name, design));
        T& member = *added.first->second;
        member.Click = [this, index] {
            if (Click) Click(index);
        };
        return member;
    }

private:
    Control& mContainer;
    std::string msName;
    std::map<int, std::unique_ptr<T>> mMembers;
};

} // namespace tessarin
