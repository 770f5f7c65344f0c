// SPDX-License-Identifier: MIT
#include "play/Play.h"

#include "model/Board.h"
#include "model/Fields.h"
#include "platform/Platform.h"

namespace tessarin {

void Play::Reset() {
    History.reset();
}

void Play::SetTracing(bool MyTracing) {
    if (MyTracing == Tracing()) return;
    if (MyTracing)
        History.emplace();
    else
        Reset();
}

void Play::GotoNextFreeField(bool AutoValue) {
    const int next = Grid().CountAndPump().NextFreeField;
    if (next == 0) return;
    Grid().SetIndex(next);
    if (!AutoValue) return;
    EnterNextFreeValue();
    PumpEvents();
}

void Play::GoBack(bool AutoValue) {
    EmptyAndStepBack();
    if (AutoValue) EnterNextFreeValue();
}

bool Play::GoBackToFreedom(bool AutoValue) {
    ++Retries;
    const int oldValue = Value();
    const int start = Grid().Index();
    bool canGoOn = GoBackOnce();
    while (canGoOn && !CursorHasFreedom())
        canGoOn = GoBackOnce();
    if (AutoValue && CursorHasFreedom()) EnterNextFreeValue();
    if (Grid().Index() != start) return true;
    if (const auto field = Grid().Cursor) field->SetValue(oldValue);
    Platform::Current().Beep();
    return false;
}

// Returns whether another step back can lead on: entries are left, and this step has moved the
// cursor or used up an entry. A step from an empty field that is itself the newest entry does
// neither.
bool Play::GoBackOnce() {
    const int index = Grid().Index();
    const int entries = Entries();
    GoBack();
    return Entries() > 0 && (Grid().Index() != index || Entries() < entries);
}

bool Play::CursorHasFreedom() const {
    const auto field = Grid().Cursor;
    return field && field->Freedom() > 0;
}

int Play::Value(bool /*AutoValue*/) const {
    const auto field = Grid().Cursor;
    return field ? field->Value() : 0;
}

void Play::SetValue(int MyValue, bool AutoValue) {
    if (AutoValue)
        EnterNextFreeValue();
    else if (MyValue != 0)
        EnterValue(MyValue);
    else
        EmptyAndStepBack();
}

void Play::EnterNextFreeValue() {
    const int next = NextFreeValue();
    if (next != 0) EnterValue(next);
}

void Play::EnterValue(int MyValue) {
    const auto field = Grid().Cursor;
    if (!field || field->Value() == MyValue || !field->FreeValues().Contains(MyValue)) return;
    field->SetValue(MyValue);
    AddToHistory(field->Index);
}

void Play::EmptyAndStepBack() {
    const auto field = Grid().Cursor;
    if (!field) return;
    if (field->Value() != 0) {
        field->SetValue(0);
        if (History) History->Remove(field->Index);
    }
    GotoNewestEntry();
}

void Play::GotoNewestEntry() {
    if (Entries() == 0) return;
    const int newest = History->Item(Entries());
    if (newest > Grid().Items.Count()) return; // left from a larger grid
    Grid().SetIndex(newest);
}

bool Play::Locked() const {
    const auto field = Grid().Cursor;
    return field && field->Locked();
}

void Play::SetLocked(bool MyLocked) {
    if (const auto field = Grid().Cursor) field->SetLocked(MyLocked);
}

int Play::NextFreeValue(bool SetValue) {
    const auto field = Grid().Cursor;
    return field ? field->NextFreeValue(SetValue) : 0;
}

void Play::AddToHistory(int Index) {
    if (History) History->TryAdd(Index);
}

} // namespace tessarin
