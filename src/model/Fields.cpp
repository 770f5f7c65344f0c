// SPDX-License-Identifier: MIT
#include "model/Fields.h"

#include "model/Board.h"
#include "model/HeldValues.h"
#include "platform/Platform.h"

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

void RaiseAndPump(const Event<int>& event, int index) {
    event.Raise(index);
    PumpEvents();
}

// The status compares a count with the one before, however many changes lie between them.
Fields::Report StatusOf(const Fields::Counts& now, const Fields::Counts& before) {
    if (now.IsWinner || before.IsWinner) return Fields::WinnerToReport;
    if (now.IsDeadEnd() || before.IsDeadEnd()) return Fields::DeadEndToReport;
    return Fields::NothingToReport;
}

} // namespace

Fields::Fields() {
    Init(3);
}

std::string Fields::Init(int MyDimension) {
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
    const auto silent = ChangeSilently();
    mlDimension = dimension;
    Cursor.reset();
    Items = std::move(items);
    Events.Init.Raise();
    return "";
}

void Fields::Clear(bool FreeOnly) {
    {
        const auto silent = ChangeSilently();
        for (const auto& field : Items)
            if (!FreeOnly || !field->Locked()) field->Clear();
    }
    SetIndex(1);
}

void Fields::SetLockAll(bool LockState) {
    const auto items = Items; // a command that runs meanwhile may replace them
    for (const auto& field : items)
        if (field->Value() > 0) field->SetLocked(LockState);
}

void Fields::SetIndex(int MyIndex) {
    if (!Cursor && MyIndex < 1) return;
    if (MyIndex < 0 || MyIndex > Items.Count())
        throw std::out_of_range("no field " + std::to_string(MyIndex));
    if (Index() == MyIndex) return;
    if (Cursor) RaiseAndPump(Events.BeforeIndexChanged, Cursor->Index);
    // Commands that ran in the event or the pump may have moved the cursor or replaced the fields.
    if (Cursor && Cursor->Index == MyIndex) return;
    Cursor = MyIndex != 0 ? Items.Item(MyIndex) : nullptr;
    RaiseAndPump(Events.IndexChanged, MyIndex);
}

int Fields::Count() const {
    return Square(Numbers());
}

int Fields::Numbers() const {
    return Square(mlDimension);
}

void Fields::FieldChanged(int ThisIndex) {
    ++mlChanges;
    if (!mbNotify) return;
    const int index = ThisIndex != 0 ? ThisIndex : Index();
    RaiseAndPump(Events.StatusChanged, index);
    const Counts counts = CountAndPump();
    if (counts.Status == WinnerToReport)
        RaiseAndPump(Events.IsWinner, counts.IsWinner ? index : 0);
    else if (counts.Status == DeadEndToReport)
        RaiseAndPump(Events.IsDeadEnd, counts.DeadField);
    PumpEvents(); // after the whole report, whatever it was
}

Fields::Counts Fields::CountAndPump() {
    UpdateStatus();
    return mCounts;
}

// Counts before it pumps, so that a count sees one state of the grid. If commands in the pumps have
// changed the grid, it counts again without pumping: otherwise a stream of changes could go on for
// ever.
void Fields::UpdateStatus() {
    if (mlCountedChanges == mlChanges) return;
    const auto changes = mlChanges;
    CountResult result = CountFields();
    for (int i = Items.Count(); i > 0; --i)
        PumpEvents();
    if (mlCountedChanges == mlChanges) return; // a command in the pumps has read the status
    if (mlChanges != changes) result = CountFields();
    Publish(std::move(result));
}

Fields::CountResult Fields::CountFields() const {
    const int numbers = Numbers();
    const HeldValues held;
    int smallestFreedom = numbers + 1;
    Counts counts;
    UniqueNumbers deadFields;
    for (const auto& field : Items) {
        if (field->Locked()) ++counts.Locked;
        if (field->Value() != 0) {
            if (!field->Locked()) ++counts.Set;
            continue;
        }
        ++counts.Free;
        const int freedom = held.Freedom(*field);
        if (freedom == 0) {
            deadFields.Add(field->Index);
        } else if (freedom < smallestFreedom) {
            smallestFreedom = freedom;
            counts.NextFreeField = field->Index;
        }
    }
    counts.IsWinner = counts.Free == 0;
    if (deadFields.Count() > 0) counts.DeadField = deadFields.Item(1);
    return {counts, std::move(deadFields)};
}

void Fields::Publish(CountResult result) {
    result.Counts.Status = StatusOf(result.Counts, mCounts);
    mCounts = result.Counts;
    DeadFields = std::move(result.DeadFields);
    mlCountedChanges = mlChanges;
}

} // namespace tessarin
