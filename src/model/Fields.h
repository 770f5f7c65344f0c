#pragma once

#include "model/Collection.h"
#include "model/Event.h"
#include "model/Field.h"
#include "model/KeyedNumbers.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace tessarin {

/// The grid: all fields, the cursor, the counts and the status of the puzzle, and the events that
/// tell of every change. With dimension D it has boxes of D by D fields, Numbers() = D*D rows and
/// columns and Count() = Numbers()*Numbers() fields, numbered from 1 row by row.
///
/// The status is lazy: a change only puts it out of date, and the next read of a status property
/// counts all fields anew and pumps window events once for each. Commands that run meanwhile may
/// change the grid or read the status themselves; every read returns the counts of the grid at its
/// end.
class Fields {
public:
    /// SetIndex and FieldChanged pump window events after each event that they raise.
    struct GridEvents {
        Event<int> BeforeIndexChanged; ///< index of the field that the cursor is about to leave
        Event<int> IndexChanged;       ///< the new cursor index, 0 when there is no cursor now
        Event<int> StatusChanged;      ///< the changed field; for a lock the cursor's index
        Event<int> IsWinner;           ///< as StatusChanged; 0: the grid is no longer full
        Event<int> IsDeadEnd;          ///< the lowest dead field; 0: the dead end is gone
        Event<> Init;                  ///< the grid has new fields, which have no groups yet
    };

    /// A grid of dimension 3.
    Fields();
    Fields(const Fields&) = delete;
    Fields& operator=(const Fields&) = delete;

    GridEvents Events;
    std::shared_ptr<Field> Cursor;            ///< the current field or none; only the grid sets it
    Collection<std::shared_ptr<Field>> Items; ///< the field with Index k at position k
    /// The empty fields without free value at the last count, ascending; no list before the first.
    std::optional<KeyedNumbers> DeadFields;

    /// Replaces all fields by those of a dimension that is odd and at least 3 (0: dimension 3),
    /// removes the cursor and raises Init. Returns "", or why the dimension is refused and the grid
    /// unchanged. Throws std::overflow_error for an odd dimension above 215.
    std::string Init(int MyDimension = 0);
    /// Empties and unlocks all fields, or only those that are not locked, and puts the cursor on
    /// field 1. Raises only the events of the cursor.
    void Clear(bool FreeOnly = false);

    /// The grid as text: "Index;Value;Locked" and a line for each field with a value (or for all).
    std::string TextCSV(bool WithEmpty = false) const;
    /// Rebuilds the grid with dimension 3 from such a text; ignores WithEmpty. A text with another
    /// first line leaves it empty. Throws what Field::SetTextCSV throws, and std::out_of_range for
    /// an index outside 1 to 81; what was loaded before stays. Raises Init only.
    void SetTextCSV(std::string_view MyTextCSV, bool WithEmpty = false);
    /// The grid as text: "\"Sudoku\"" and a line of values for each row.
    std::string TextSDK() const;
    /// Rebuilds the grid from such a text and locks all values. A text with another first line, or
    /// with other than 9 or 25 rows, leaves the grid unchanged. Throws what Field::SetTextSDK
    /// throws, and std::out_of_range for items past the last field; what was loaded before stays.
    /// Raises Init only.
    void SetTextSDK(std::string_view MyTextCSV);

    /// Locks or unlocks every field with a value above 0.
    void SetLockAll(bool LockState);

    // The status. Each of these counts the fields first if the status is out of date.

    /// Empty fields, locked or not.
    int FreeCount() { return UpdateStatus().Free; }
    /// Locked fields, empty or not.
    int LockedCount() { return UpdateStatus().Locked; }
    /// Fields with a value that are not locked.
    int SetCount() { return UpdateStatus().Set; }
    /// The empty field with the fewest free values, at least one; 0 if none.
    int NextFreeField() { return UpdateStatus().NextFreeField; }
    /// Whether no field is empty.
    bool IsWinner() { return UpdateStatus().IsWinner; }
    /// Whether some empty field has no free value.
    bool IsDeadEnd() { return DeadField() > 0; }
    /// The event that a change raises: 0 IsWinner, 1 none, 2 IsDeadEnd.
    int Status() { return UpdateStatus().Status; }
    /// The lowest index of an empty field without free value; 0 if none.
    int DeadField() { return UpdateStatus().DeadField; }

    /// The number of DeadFields. Never counts anew.
    int DeadCount() const { return DeadFields ? DeadFields->Count() : 0; }

    /// The cursor field's index, 0 without a cursor.
    int Index() const { return Cursor ? Cursor->Index : 0; }
    /// Moves the cursor to a field, or removes it with 0. Does nothing for the current index or,
    /// without a cursor, for a number below 1. Throws std::out_of_range, and changes nothing, for
    /// any other number outside 0 to Count().
    void SetIndex(int MyIndex);

    // The sizes. They throw std::overflow_error if the result exceeds 32 bits.
    int Count() const;
    int Numbers() const;
    int Dimension() const { return mlDimension; }

private:
    friend class Field; // which tells of its changes

    // The value of field ThisIndex, or the lock of any field (0), has changed. Raises StatusChanged
    // and then what Status says, except while the grid is being rebuilt.
    void FieldChanged(int ThisIndex);

    // What one pass over all fields counts.
    struct Counts {
        int Free = 0;
        int Locked = 0;
        int Set = 0;
        int NextFreeField = 0;
        int DeadField = 0;
        bool IsWinner = false;
        int Status = 0; // found by Publish
        KeyedNumbers DeadFields;
    };

    // Counts the fields if anything has changed since the last count.
    const Counts& UpdateStatus();
    Counts CountFields() const;
    void Publish(Counts counts);

    Counts mCounts;
    bool mbNotify = true; // false: changes of fields raise no events
    int mlDimension = 0;
    unsigned mlChanges = 0;        // of fields, so far
    unsigned mlCountedChanges = 0; // of them, those that mCounts knows; if fewer, it is out of date
};

} // namespace tessarin
