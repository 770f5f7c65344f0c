#include "model/Fields.h"

#include "model/Board.h"
#include "model/TakenValues.h"
#include "platform/Platform.h"
#include "platform/ScopedValue.h"

#include <cstdint>
#include <limits>
#include <stdexcept>
#include <utility>

namespace tessarin {

namespace {

int Square(int side) {
    const std::int64_t square = std::int64_t{side} * side;
    if (square > std::numeric_limits<int>::max())
        throw std::overflow_error("the square of " + std::to_string(side) + " is above 32 bits");
    return static_cast<int>(square);
}

} // namespace

Fields::Fields() {
    Init(3);
}

std::string Fields::Init(int MyDimension) {
    const ScopedValue<bool> silence(mbNotify, false);
    const int dimension = MyDimension == 0 ? 3 : MyDimension;
    if (dimension < 3) return "Diemsion kleiner als 3 (" + std::to_string(dimension) + ")";
    if (dimension % 2 == 0)
        return "Dimension darf nicht gerade sein (" + std::to_string(dimension) + ")";
    const int count = Square(Square(dimension));
    decltype(Items) items;
    items.Reserve(count);
    for (int i = 1; i <= count; ++i) {
        auto field = std::make_shared<Field>();
        field->Index = i;
        items.Add(std::move(field));
    }
    mlDimension = dimension;
    Cursor.reset();
    Items = std::move(items);
    Events.Init.Raise();
    MarkDirty();
    return "";
}

void Fields::Clear(bool FreeOnly) {
    {
        const ScopedValue<bool> silence(mbNotify, false);
        for (const auto& field : Items)
            if (!FreeOnly || !field->Locked()) field->Clear();
    }
    MarkDirty();
    SetIndex(1);
}

void Fields::SetLockAll(bool LockState) {
    const auto items = Items; // a command that runs meanwhile may replace them
    for (const auto& field : items)
        if (field->Value() > 0) field->SetLocked(LockState);
}

int Fields::FreeCount() {
    UpdateStatus();
    return mlFreeCount;
}

int Fields::LockedCount() {
    UpdateStatus();
    return mlLockedCount;
}

int Fields::SetCount() {
    UpdateStatus();
    return mlSetCount;
}

int Fields::NextFreeField() {
    UpdateStatus();
    return mlNextFreeField;
}

bool Fields::IsWinner() {
    UpdateStatus();
    return mbIsWinner;
}

bool Fields::IsDeadEnd() {
    UpdateStatus();
    return mbIsDeadEnd;
}

int Fields::Status() {
    UpdateStatus();
    return mlStatus;
}

int Fields::DeadField() {
    UpdateStatus();
    return mlDeadField;
}

int Fields::DeadCount() const {
    return DeadFields ? DeadFields->Count() : 0;
}

int Fields::Index() const {
    return Cursor ? Cursor->Index : 0;
}

void Fields::SetIndex(int MyIndex) {
    if (!Cursor && MyIndex < 1) return;
    if (MyIndex < 0 || MyIndex > Items.Count())
        throw std::out_of_range("no field " + std::to_string(MyIndex));
    if (Cursor && Cursor->Index != MyIndex) {
        Events.BeforeIndexChanged.Raise(Cursor->Index);
        PumpEvents();
    }
    // Commands that ran in the event or the pump may have moved the cursor or replaced the fields.
    if (MyIndex != 0) {
        if (Cursor && Cursor->Index == MyIndex) return;
        Cursor = Items.Item(MyIndex);
    } else {
        Cursor.reset();
    }
    Events.IndexChanged.Raise(MyIndex);
    PumpEvents();
}

int Fields::Count() const {
    return Square(Numbers());
}

int Fields::Numbers() const {
    return Square(mlDimension);
}

void Fields::FieldChanged(int ThisIndex) {
    MarkDirty();
    if (!mbNotify) return;
    const int index = ThisIndex != 0 ? ThisIndex : Index();
    Events.StatusChanged.Raise(index);
    PumpEvents();
    const int status = Status();
    if (status == 0)
        Events.IsWinner.Raise(IsWinner() ? index : 0);
    else if (status == 2)
        Events.IsDeadEnd.Raise(DeadField());
    if (status != 1) PumpEvents();
    PumpEvents();
}

void Fields::MarkDirty() {
    mbDirty = true;
    ++mlChanges;
}

// Counts before it pumps, so that a count sees one state of the grid. If commands in the pumps have
// changed the grid, it counts again without pumping: otherwise a stream of changes could go on for
// ever.
void Fields::UpdateStatus() {
    if (!mbDirty) return;
    const auto changes = mlChanges;
    Counts counts = CountFields();
    Platform& platform = Platform::Current();
    for (int i = Items.Count(); i > 0; --i)
        platform.PumpEvents(Pump::WhenDue);
    if (!mbDirty) return; // a command in the pumps has read the status
    if (mlChanges != changes) counts = CountFields();
    TakeOver(std::move(counts));
}

Fields::Counts Fields::CountFields() const {
    const TakenValues taken(Board::Current());
    Counts counts;
    int smallestFreedom = Numbers() + 1;
    for (const auto& field : Items) {
        if (field->Locked()) ++counts.Locked;
        if (field->Value() != 0) {
            if (!field->Locked()) ++counts.Set;
            continue;
        }
        ++counts.Free;
        const int freedom = taken.FreedomOfEmpty(*field);
        if (freedom == 0) {
            counts.DeadFields.Add(field->Index);
        } else if (freedom < smallestFreedom) {
            smallestFreedom = freedom;
            counts.NextFreeField = field->Index;
        }
    }
    return counts;
}

// The status compares the new count with the last one, however many changes lie between them.
void Fields::TakeOver(Counts counts) {
    const bool isWinner = counts.Free == 0;
    const int deadField = counts.DeadField();
    const bool isDeadEnd = deadField > 0;
    if (isWinner || isWinner != mbIsWinner)
        mlStatus = 0;
    else if (isDeadEnd || deadField != mlDeadField)
        mlStatus = 2;
    else
        mlStatus = 1;
    mbIsWinner = isWinner;
    mbIsDeadEnd = isDeadEnd;
    mlDeadField = deadField;
    mlFreeCount = counts.Free;
    mlLockedCount = counts.Locked;
    mlSetCount = counts.Set;
    mlNextFreeField = counts.NextFreeField;
    DeadFields = std::move(counts.DeadFields);
    mbDirty = false;
}

} // namespace tessarin
