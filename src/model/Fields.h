// SPDX-License-Identifier: MIT
#pragma once

#include "model/Collection.h"
#include "model/Event.h"
#include "model/Field.h"
#include "model/UniqueNumbers.h"
#include "platform/AtScopeEnd.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace tessarin {

/// The grid: all fields, the cursor, the counts and the status of the puzzle, and the events that
/// tell of every change. With dimension D it has boxes of D by D fields, Numbers() = D*D rows and
/// columns and Count() = Numbers()*Numbers() fields, numbered from 1 row by row.
///
/// The counts are lazy: a change only puts them out of date, and the next read of one counts all
/// fields anew and pumps window events once for each. Commands that run meanwhile may change the
/// grid or read counts themselves; every read returns the counts of the grid as it then is.
class Fields {
public:
    /// Which event follows StatusChanged: the one of a winner before the one of a dead end.
    enum Report : int {
        WinnerToReport = 0,  ///< the grid is full, or was so at the count before
        NothingToReport = 1, ///< neither
        DeadEndToReport = 2  ///< there is a dead field, or was one at the count before
    };

    /// What a count of all fields finds.
    struct Counts {
        int Free = 0;          ///< empty fields, locked or not
        int Locked = 0;        ///< locked fields, empty or not
        int Set = 0;           ///< fields with a value that are not locked
        int NextFreeField = 0; ///< the empty field with the fewest free values, at least one; or 0
        int DeadField = 0;     ///< the lowest empty field without free value; 0 if none
        bool IsWinner = false; ///< no field is empty
        Report Status = NothingToReport;

        bool IsDeadEnd() const { return DeadField > 0; }
    };

    /// Each event but Init is followed by a pump of window events.
    struct GridEvents {
        Event<int> BeforeIndexChanged; ///< index of the field that the cursor is about to leave
        Event<int> IndexChanged;       ///< the new cursor index, 0 when there is no cursor now
        Event<int> StatusChanged;      ///< the changed field; for a lock the cursor's index or 0
        Event<int> IsWinner;           ///< as StatusChanged; 0 also if it is no longer full
        Event<int> IsDeadEnd;          ///< the lowest dead field; 0: there is none any more
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
    std::optional<UniqueNumbers> DeadFields;

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
    /// first line leaves it empty. Skips empty lines and what follows the third item of a line.
    /// Throws TypeMismatchError or std::overflow_error for an item that is no number of 32 bits,
    /// and std::out_of_range for too few items in a line or an index outside 1 to 81; what was
    /// loaded before stays. Raises Init only.
    void SetTextCSV(std::string_view MyTextCSV, bool WithEmpty = false);
    /// The grid as text: "\"Sudoku\"" and a line of values for each row. A line break ends each of
    /// them, the last one too.
    std::string TextSDK() const;
    /// Rebuilds the grid from such a text and locks all values but 0. Values past the end of a row
    /// belong to the next one. A text with another first line, or with other than 9 or 25 such
    /// lines, leaves the grid unchanged. Throws TypeMismatchError or std::overflow_error for an
    /// item that is no number of 32 bits, and std::out_of_range for items past the last field; what
    /// was loaded before stays. Raises Init only.
    void SetTextSDK(std::string_view MyTextSDK);

    /// Locks or unlocks every field with a value above 0.
    void SetLockAll(bool LockState);

    /// The counts of the present grid. Counts the fields, and pumps, only if the status is out of
    /// date.
    Counts CountAndPump();
    /// The counts that the last CountAndPump has found. Never counts.
    const Counts& LastCounts() const { return mCounts; }

    // Single counts. Each of these calls CountAndPump.
    int FreeCount() { return CountAndPump().Free; }
    int LockedCount() { return CountAndPump().Locked; }
    int SetCount() { return CountAndPump().Set; }
    int NextFreeField() { return CountAndPump().NextFreeField; }
    bool IsWinner() { return CountAndPump().IsWinner; }
    bool IsDeadEnd() { return CountAndPump().IsDeadEnd(); }
    Report Status() { return CountAndPump().Status; }
    int DeadField() { return CountAndPump().DeadField; }

    /// The number of DeadFields. Never counts.
    int DeadCount() const { return DeadFields ? DeadFields->Count() : 0; }

    /// The cursor field's index, 0 without a cursor.
    int Index() const { return Cursor ? Cursor->Index : 0; }
    /// Moves the cursor to a field, or removes it with 0. Does nothing for the current index or,
    /// without a cursor, for a number below 1. Throws std::out_of_range, and changes nothing, for
    /// any other number outside 0 to Count().
    void SetIndex(int MyIndex);

    // The sizes.
    int Count() const;   ///< fields: Numbers() * Numbers()
    int Numbers() const; ///< values, rows, columns and boxes: Dimension() * Dimension()
    int Dimension() const { return mlDimension; }

private:
    friend class Field; // calls FieldChanged

    // While the result lives, changes of fields raise no events. Puts the status out of date at
    // once, and again at the end: a listener of Init may have read it meanwhile.
    auto ChangeSilently() {
        mbNotify = false;
        ++mlChanges;
        return AtScopeEnd([this] {
            mbNotify = true;
            ++mlChanges;
        });
    }

    // Called after the value of field ThisIndex has changed, and with 0 after any field's lock has.
    // Raises StatusChanged and then the event that the status names, unless the change is silent.
    void FieldChanged(int ThisIndex);

    struct CountResult {
        Fields::Counts Counts;
        UniqueNumbers DeadFields;
    };
    void UpdateStatus();
    CountResult CountFields() const;
    void Publish(CountResult result);

    Counts mCounts;
    bool mbNotify = true;
    int mlDimension = 0;
    unsigned mlChanges = 0;        // grows when the counts get out of date
    unsigned mlCountedChanges = 0; // mlChanges at the last count; if it differs, mCounts is old
};

} // namespace tessarin
