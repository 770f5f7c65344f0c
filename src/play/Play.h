// SPDX-License-Identifier: MIT
#pragma once

#include "model/UniqueNumbers.h"

#include <memory>
#include <optional>

namespace tessarin {

class Field;

/// The player: moves the cursor of the game's grid, enters, changes and clears the value of the
/// cursor field, keeps a history of the fields it filled, goes back along it, and solves by itself.
///
/// It ignores locks. What cannot be done (a value that is not free, no next free field, an empty
/// history, no cursor) changes nothing, but see GoBackToFreedom. Every change raises the
/// grid's events, in which any other command may run and move the cursor: each step reads the
/// cursor again, but SetValue keeps the field that it began with.
class Play {
public:
    /// A player without history, for Grid().
    Play() = default;
    Play(const Play&) = delete;
    Play& operator=(const Play&) = delete;

    /// The indices of the fields filled while tracing, or current when a solve began, oldest first;
    /// none while tracing is off.
    std::optional<UniqueNumbers> History;
    /// How often GoBackToFreedom has run since Solve last started.
    int Retries = 0;

    /// The same as SetTracing(false).
    void Reset();

    /// Whether filled fields are recorded.
    bool Tracing() const { return History.has_value(); }
    /// Switching on starts an empty history, switching off drops it.
    void SetTracing(bool MyTracing);

    /// Moves the cursor to the grid's next free field; with AutoValue fills in its smallest free
    /// value.
    void GotoNextFreeField(bool AutoValue = false);

    /// The same as SetValue(0). With AutoValue the field that is then under the cursor takes its
    /// next free value.
    void GoBack(bool AutoValue = false);

    /// Goes back until the cursor field has another free value or the history is used up. With
    /// AutoValue the cursor field then takes its next free value. Returns whether the cursor is on
    /// another field than before. If not, its value is restored, but not its place in the history,
    /// and the system beeps.
    bool GoBackToFreedom(bool AutoValue = false);

    /// The cursor field's value, 0 without a cursor. AutoValue is ignored.
    int Value(bool AutoValue = false) const;
    /// Enters a free value into the cursor field and, while tracing, adds the field to the history.
    /// 0 empties the field, removes it from the history and moves the cursor to the newest entry
    /// left; from an empty field it only moves there. With AutoValue MyValue is ignored and the
    /// value is the next free one, if any.
    void SetValue(int MyValue, bool AutoValue = false);

    /// The cursor field's lock, false without a cursor.
    bool Locked() const;
    void SetLocked(bool MyLocked);

    /// The cursor field's next free value; with SetValue it is also stored, even if it is 0, and
    /// the history stays as it is.
    int NextFreeValue(bool SetValue = false);

    /// Fills the grid by itself. Switches tracing on, to stay on, with the cursor field as an entry
    /// of the history, and takes back a cancel that was requested before. In each cycle the next
    /// free field takes its smallest free value; if that leads to a dead end, one retreat goes back
    /// along the history to a field with a larger free value. Ends when the grid is full, when a
    /// dead end remains after the retreat or when a cancel is requested, which is checked once a
    /// cycle. An ESC that was pressed before the start counts.
    void Solve();

private:
    void EnterNextFreeValue();
    void EnterValue(int MyValue);
    void EmptyAndStepBack();
    void GotoNewestEntry();
    void AddToHistory(int Index);
    int Entries() const { return History ? History->Count() : 0; }
    bool GoBackOnce();
    bool CursorHasFreedom() const;
    void Retreat();
};

} // namespace tessarin
