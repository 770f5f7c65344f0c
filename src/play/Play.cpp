#include "play/Play.h"

#include "model/Board.h"
#include "model/Fields.h"
#include "platform/Platform.h"

namespace tessarin {

namespace {

Fields& Grid() {
    return *Board::Current().Fields;
}

} // namespace

Play::Play()
    // Connected to every change, but no change needs an action here.
    : moFields_StatusChanged(Grid().Events.StatusChanged.Connect([](int) {})) {}

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
    for (;;) {
        const int index = Grid().Index();
        const int entries = History ? History->Count() : 0;
        GoBack();
        const auto field = Grid().Cursor;
        if (!field) break;
        if (field->Freedom() > 0) {
            if (AutoValue) SetValue(0, true);
            break;
        }
        if (!History || History->Count() == 0) break;
        // No progress: the newest entry is an empty field without free values.
        if (Grid().Index() == index && History->Count() >= entries) break;
    }
    if (Grid().Index() != start) return true;
    if (const auto field = Grid().Cursor) field->SetValue(oldValue);
    Platform::Current().Beep();
    return false;
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
        Enter(*field, value);
    else if (field->Value() != 0)
        Empty(*field);
    else
        GotoNewestEntry();
}

void Play::Enter(Field& field, int value) {
    if (field.Value() == value || !field.FreeValues().Contains(value)) return;
    field.SetValue(value);
    if (mbTracing) AddToHistory(field.Index);
}

void Play::Empty(Field& field) {
    field.SetValue(0);
    if (mbTracing && History) History->Remove(field.Index);
    GotoNewestEntry();
}

void Play::GotoNewestEntry() {
    if (!mbTracing || !History || History->Count() == 0) return;
    const int newest = History->Item(History->Count());
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
