// SPDX-License-Identifier: MIT
#pragma once

#include "model/UniqueNumbers.h"

#include <string>
#include <string_view>

namespace tessarin {

class Group;

/// One cell of the grid: its value, its lock, which marks it as given, and which values are still
/// free for it. It refers to other fields and to groups by number. It checks nothing: any value can
/// be stored, a locked field can be changed.
///
/// SetValue and SetLocked report each change to Grid(). That raises the grid's events and pumps
/// window events, so any command can run before they return, even one that replaces the grid: a
/// caller needs its own shared_ptr.
class Field {
public:
    int Index = 0;            ///< number in the grid, from 1 row by row; set once by the grid
    UniqueNumbers Neighbours; ///< fields that share a group with it, itself included
    UniqueNumbers InGroups;   ///< its groups: row, column, box

    /// 0 when empty, otherwise the digit.
    int Value() const { return mlValue; }
    /// Stores the value and reports the change; does nothing if the value is equal.
    void SetValue(int MyValue);

    bool Locked() const { return mbLocked; }
    /// Stores the lock and reports the change (the grid's event then carries the cursor's index);
    /// does nothing if the lock is equal.
    void SetLocked(bool MyLocked);

    /// Registers the group with this field and makes the group's fields its neighbours. Throws
    /// DuplicateKeyError, and changes nothing, for a group that is already registered.
    void GroupAdd(const Group& Grp);

    /// The values 1 to Numbers, ascending, that no field in its groups holds; its own value is not
    /// free either. Without groups these are all values. Groups and fields that do not exist are
    /// ignored.
    UniqueNumbers FreeValues() const;
    /// The number of free values.
    int Freedom() const;
    /// The free values as text, each followed by ";": 2;5;9;
    std::string FreeValuesList() const;

    /// The smallest free value above the current one, or 0; there is no wrap-around. With SetValue
    /// it is also stored, even if it is 0.
    int NextFreeValue(bool SetValue = false);

    /// "index;value;lock" with lock 1 or 0; "" for an empty field unless WithEmpty.
    std::string TextCSV(bool WithEmpty = false) const;

private:
    friend class Fields; // calls the following three

    // Empties and unlocks the field, without reporting it.
    void Clear();
    // Clears the field, without reporting it. If the line has the field's index, then sets value
    // and lock through the setters above. Ignores WithEmpty. Throws TypeMismatchError,
    // std::overflow_error or std::out_of_range (too few items); what was set before stays.
    void SetTextCSV(std::string_view MyTextCSV, bool WithEmpty = false);
    // Clears the field, then stores the number as value and locks the field unless it is 0, all
    // without reporting it. Throws TypeMismatchError or std::overflow_error; the field is then
    // clear.
    void SetTextSDK(std::string_view MyTextSDK);

    int mlValue = 0;
    bool mbLocked = false;
};

} // namespace tessarin
