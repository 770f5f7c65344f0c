#include "model/Fields.h"

#include "model/Board.h"
#include "model/Groups.h"
#include "model/ValueSet.h"
#include "platform/Platform.h"
#include "platform/ScopedValue.h"

#include <cstdint>
#include <limits>
#include <stdexcept>
#include <utility>
#include <vector>

namespace tessarin {

namespace {

int Square(int side) {
    const std::int64_t square = std::int64_t{side} * side;
    if (square > std::numeric_limits<int>::max())
        throw std::overflow_error("the square of " + std::to_string(side) + " is above 32 bits");
    return static_cast<int>(square);
}

// The item at `position`, from 1, or nullptr.
auto* Find(auto& items, int position) {
    const auto offset = static_cast<std::size_t>(position) - 1;
    return offset < items.size() ? &items[offset] : nullptr;
}

// What each group of the board holds, collected in one walk over the fields: to ask every empty
// field for its Freedom would take four times as long. Both agree as long as a field names the
// groups that name it, as Field::GroupAdd leaves them.
std::vector<ValueSet> HeldByGroup(const Collection<std::shared_ptr<Field>>& fields, int numbers) {
    const int groups = goBoard->Groups ? goBoard->Groups->Items.Count() : 0;
    std::vector<ValueSet> held(static_cast<std::size_t>(groups), ValueSet(numbers));
    for (const auto& field : fields)
        if (field->Value() != 0)
            for (const int group : field->InGroups)
                if (auto* const values = Find(held, group)) values->Add(field->Value());
    return held;
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
    ++mlChanges; // before the event: its handlers may read the status, or fail
    Events.Init.Raise();
    return "";
}

void Fields::Clear(bool FreeOnly) {
    for (const auto& field : Items)
        if (!FreeOnly || !field->Locked()) field->Clear();
    ++mlChanges;
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
    ++mlChanges;
    if (!mbNotify) return;
    const int index = ThisIndex != 0 ? ThisIndex : Index();
    Events.StatusChanged.Raise(index);
    PumpEvents();
    const int status = Status();
    if (status == 0)
        Events.IsWinner.Raise(IsWinner() ? index : 0);
    else if (status == 2)
        Events.IsDeadEnd.Raise(DeadField());
    if (status != 1) PumpEvents(); // after that event
    PumpEvents();
}

// Counts before it pumps, so that a count sees one state of the grid. If commands in the pumps have
// changed the grid, it counts again without pumping: otherwise a stream of changes could go on for
// ever.
const Fields::Counts& Fields::UpdateStatus() {
    if (mlCountedChanges == mlChanges) return mCounts;
    const auto changes = mlChanges;
    Counts counts = CountFields();
    Platform& platform = Platform::Current(); // looked up once, not for each field
    for (int i = Items.Count(); i > 0; --i)
        platform.PumpEvents(Pump::WhenDue);
    if (mlCountedChanges == mlChanges) return mCounts; // a command in the pumps has read the status
    if (mlChanges != changes) counts = CountFields();
    Publish(std::move(counts));
    return mCounts;
}

Fields::Counts Fields::CountFields() const {
    const int numbers = Numbers();
    const std::vector<ValueSet> held = HeldByGroup(Items, numbers);
    ValueSet taken(numbers); // by the groups of the field
    Counts counts;
    int smallestFreedom = numbers + 1;
    for (const auto& field : Items) {
        if (field->Locked()) ++counts.Locked;
        if (field->Value() != 0) {
            if (!field->Locked()) ++counts.Set;
            continue;
        }
        ++counts.Free;
        taken.Clear();
        for (const int group : field->InGroups)
            if (const auto* const values = Find(held, group)) taken.Add(*values);
        const int freedom = numbers - taken.Count();
        if (freedom == 0) {
            counts.DeadFields.Add(field->Index);
        } else if (freedom < smallestFreedom) {
            smallestFreedom = freedom;
            counts.NextFreeField = field->Index;
        }
    }
    counts.IsWinner = counts.Free == 0;
    if (counts.DeadFields.Count() > 0) counts.DeadField = counts.DeadFields.Item(1);
    return counts;
}

// The status compares the new count with the last one, however many changes lie between them.
void Fields::Publish(Counts counts) {
    if (counts.IsWinner || mCounts.IsWinner)
        counts.Status = 0;
    else if (counts.DeadField > 0 || mCounts.DeadField > 0)
        counts.Status = 2;
    else
        counts.Status = 1;
    DeadFields = std::move(counts.DeadFields);
    mCounts = std::move(counts);
    mlCountedChanges = mlChanges;
}

} // namespace tessarin
