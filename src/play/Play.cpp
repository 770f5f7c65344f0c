#include "play/Play.h"

#include "model/Fields.h"
#include "platform/Platform.h"
#include "play/Game.h"

namespace tessarin {

namespace {

Fields& Grid() {
    return *goGame->Fields;
}

} // namespace

void Play::Reset() {
    History.reset();
    mbTracing = false;
}

void Play::SetTracing(bool MyTracing) {
    if (MyTracing == mbTracing) return;
    mbTracing = MyTracing;
    History = mbTracing ? std::optional(KeyedNumbers()) : std::nullopt;
}

void Play::GotoNextFreeField(bool AutoValue) {
    const int next = Grid().NextFreeField();
    if (next == 0) return;
    Grid().SetIndex(next);
    if (!AutoValue) return;
    SetValue(0, true);
    PumpEvents();
}

void Play::GoBack(bool AutoValue) {
    SetValue(0);
    if (AutoValue) SetValue(0, true);
}

bool Play::GoBackToFreedom(bool AutoValue) {
    ++Retries;
    const int oldValue = Value();
    const int start = Grid().Index();
    const auto hasFreedom = [] {
        const auto field = Grid().Cursor;
        return field && field->Freedom() > 0;
    };
    while (StepBack() && !hasFreedom()) {
    }
    if (AutoValue && hasFreedom()) SetValue(0, true);
    if (Grid().Index() != start) return true;
    if (const auto field = Grid().Cursor) field->SetValue(oldValue);
    Platform::Current().Beep();
    return false;
}

// Goes back, and says whether one more step could lead on: there is a history, and this step has
// moved the cursor or shortened it. It has not if the newest entry is the cursor field itself, and
// that field is empty.
bool Play::StepBack() {
    const int index = Grid().Index();
    const int entries = Entries();
    GoBack();
    return Entries() > 0 && (Grid().Index() != index || Entries() < entries);
}

int Play::Value(bool /*AutoValue*/) const {
    const auto field = Grid().Cursor;
    return field ? field->Value() : 0;
}

void Play::SetValue(int MyValue, bool AutoValue) {
    const auto field = Grid().Cursor;
    if (!field) return;
    const int value = AutoValue ? field->NextFreeValue() : MyValue;
    if (AutoValue && value == 0) return;
    if (value != 0)
        EnterValue(*field, value);
    else if (field->Value() != 0)
        EmptyField(*field);
    else
        GotoNewestEntry();
}

void Play::EnterValue(Field& field, int value) {
    if (field.Value() == value || !field.FreeValues().Contains(value)) return;
    field.SetValue(value);
    if (mbTracing) AddToHistory(field.Index);
}

void Play::EmptyField(Field& field) {
    field.SetValue(0);
    if (mbTracing && History) History->Remove(field.Index);
    GotoNewestEntry();
}

void Play::GotoNewestEntry() {
    if (!mbTracing || Entries() == 0) return;
    const int newest = History->Item(Entries());
    if (newest <= Grid().Items.Count()) Grid().SetIndex(newest); // else left from a larger grid
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
