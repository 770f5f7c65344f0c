#pragma once

#include "model/KeyedNumbers.h"
#include "model/ValueBits.h"

#include <string>
#include <string_view>

namespace tessarin {

class Group;

/// One cell of the grid: its value, its lock, and which values are still free for it. It refers to
/// other fields and to groups by number and reports every change of value or lock to the grid of
/// the current board. It checks nothing: any value can be stored, a locked field can be changed.
///
/// Reporting a change raises the grid's events and pumps window events, so any command can run
/// before a setter returns, even one that replaces the grid: a caller holds the field itself.
class Field {
public:
    int Index = 0;           ///< number in the grid, from 1 row by row; set once by the grid
    KeyedNumbers Neighbours; ///< fields that share a group with it, itself included
    KeyedNumbers InGroups;   ///< its groups: row, column, box

    /// Empties and unlocks the field without telling the grid.
    void Clear();

    /// 0 when empty, otherwise the digit.
    int Value() const { return mlValue; }
    /// Stores the value and reports it; an equal value changes nothing and tells nobody.
    void SetValue(int MyValue);

    bool Locked() const { return mbLocked; }
    /// Stores the lock and reports it (the grid tells it under its cursor's index); an equal lock
    /// changes nothing and tells nobody.
    void SetLocked(bool MyLocked);

    /// Registers the group with this field and makes the group's fields its neighbours. Throws
    /// DuplicateKeyError, and changes nothing, for a group that is already registered.
    void GroupAdd(const Group& Grp);

    /// The values 1 to Numbers that no field of its groups holds, this field included, ascending. A
    /// field without groups gets all of them. Groups and fields that do not exist hold nothing.
    KeyedNumbers FreeValues() const;
    /// The number of free values.
    int Freedom() const;
    /// The free values as text, each followed by ";": 2;5;9;
    std::string FreeValuesList() const;

    /// The smallest free value above the current one, or 0; there is no wrap-around. With SetValue
    /// the field takes it, 0 included.
    int NextFreeValue(bool SetValue = false);

    /// "index;value;lock" with lock 1 or 0; "" for an empty field unless WithEmpty.
    std::string TextCSV(bool WithEmpty = false) const;
    /// Clears the field, then takes value and lock from a line that names its index, through the
    /// setters above. Throws TypeMismatchError, std::overflow_error or std::out_of_range (too few
    /// items) and then keeps what it has taken so far.
    void SetTextCSV(std::string_view MyTextCSV, bool WithEmpty = false);
    /// Clears the field, then takes the number as value and locks it unless it is 0, without
    /// telling the grid. Throws TypeMismatchError or std::overflow_error and is then clear.
    void SetTextSDK(std::string_view MyTextSDK);

private:
    ValueBits FreeBits(int word) const;

    int mlValue = 0;
    bool mbLocked = false;
};

} // namespace tessarin
