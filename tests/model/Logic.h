// SPDX-License-Identifier: MIT
// What the puzzle's logic does, written a second time, slowly and plainly, to compare the
// program with.
#pragma once

#include "platform/Platform.h"
#include "support/modTextStream.h"

#include <algorithm>
#include <functional>
#include <memory>
#include <optional>
#include <regex>
#include <set>
#include <stdexcept>
#include <vector>

namespace tessarin::model {

using std::shared_ptr, std::string, std::to_string, std::vector;

/// Items at the positions from 1.
template <class T>
struct Collection : vector<T> {
    void Add(T item) { this->push_back(item); }
    bool Contains(T item) const { return std::ranges::count(*this, item) > 0; }
    bool Has(int position) const { return position > 0 && position <= std::ssize(*this); }
    T Item(int position) const {
        if (!Has(position)) throw std::out_of_range("no item " + to_string(position));
        return this->begin()[position - 1];
    }
};
using Indices = Collection<int>;

inline bool IsAnsweredYes(Message question) {
    question.ButtonSet = Message::Buttons::YesNo;
    return Platform::Current().ShowMessage(question) == Message::Answer::Yes;
}

inline vector<string> Split(string text, const string& separator) {
    vector<string> parts;
    for (size_t end; (end = text.find(separator)) != string::npos;) {
        parts.push_back(text.substr(0, end));
        text.erase(0, end + separator.size());
    }
    parts.push_back(text);
    return parts;
}

inline int ToNumber(const string& text) {
    static const std::regex number(" *[+-]?[0-9]+ *");
    if (!std::regex_match(text, number)) throw std::invalid_argument("no whole number: " + text);
    try {
        return std::stoi(text);
    } catch (const std::out_of_range&) {
        throw std::overflow_error("outside 32 bits: " + text);
    }
}

/// Around all classes, so that each may use those that follow it.
struct Logic {

    class Game;

    struct Group {
        int Index = 0, Flavor = 0;
        Indices Fields;

        string FlavorText() const {
            return Flavor == 1   ? "horizontal"
                   : Flavor == 2 ? "vertikal"
                   : Flavor == 3 ? "diagonal"
                   : Flavor == 4 ? "box"
                                 : "(unbekannt)";
        }
    };

    /// Held by shared_ptr, as an operation may go on with a field that a nested import has
    /// replaced.
    struct Field {
        Field(Game& g, int index) : game(g), Index(index) {}

        Game& game;
        int Index;
        Indices Neighbours, InGroups;
        int mlValue = 0;
        bool mbLocked = false;

        /// Silent, for the grid alone.
        void Set(int value, bool locked) {
            mlValue = value;
            mbLocked = locked;
        }

        int Value() const { return mlValue; }
        void SetValue(int value) {
            if (value == mlValue) return;
            mlValue = value;
            game.Fields.FieldChanged(Index);
        }

        bool Locked() const { return mbLocked; }
        void SetLocked(bool locked) {
            if (locked == mbLocked) return;
            mbLocked = locked;
            game.Fields.FieldChanged(0);
        }

        void GroupAdd(const Group& group) {
            if (InGroups.Contains(group.Index)) throw std::invalid_argument("duplicate key");
            InGroups.Add(group.Index);
            for (int i : group.Fields)
                if (!Neighbours.Contains(i)) Neighbours.Add(i);
        }

        std::set<int> FreeValues() const {
            std::set<int> free;
            for (int value = 1; value <= game.Fields.Numbers(); ++value)
                free.insert(value);
            for (int g : InGroups) {
                if (!game.Groups.Has(g)) continue;
                for (int i : game.Groups.Item(g)->Fields)
                    if (game.Fields.Items.Has(i)) free.erase(game.Fields.Items.Item(i)->mlValue);
                free.erase(mlValue);
            }
            return free;
        }

        int Freedom() const { return static_cast<int>(FreeValues().size()); }

        string FreeValuesList() const {
            string list;
            for (int value : FreeValues())
                list += to_string(value) + ";";
            return list;
        }

        /// The next larger one. When there is none, 0, and setValue empties the field.
        int NextFreeValue(bool setValue = false) {
            const auto free = FreeValues();
            const auto larger = free.upper_bound(mlValue);
            const int next = larger == free.end() ? 0 : *larger;
            if (setValue) SetValue(next);
            return next;
        }
    };

    class Fields {
    public:
        explicit Fields(Game& g) : game(g) {}

        shared_ptr<Field> Cursor;
        Collection<shared_ptr<Field>> Items;
        Indices DeadFields;

        int Dimension() const { return mlDimension; }
        int Numbers() const { return mlDimension * mlDimension; }
        int Count() const { return Numbers() * Numbers(); }

        string Init(int dimension = 0) {
            if (dimension == 0) dimension = 3;
            const string end = " (" + to_string(dimension) + ")";
            if (dimension < 3) return "Diemsion kleiner als 3" + end;
            if (dimension % 2 == 0) return "Dimension darf nicht gerade sein" + end;
            if (dimension > 215) throw std::overflow_error("Count is outside 32 bits");
            mlDimension = dimension;
            Cursor = nullptr;
            Items.clear();
            for (int k = 1; k <= Count(); ++k)
                Items.Add(std::make_shared<Field>(game, k));
            game.GroupsInit();
            game.Raise("Init", Index());
            mbDirty = true;
            return "";
        }

        void Clear(bool freeOnly = false) {
            for (const auto& field : Items)
                if (!freeOnly || !field->Locked()) field->Set(0, false);
            mbDirty = true;
            SetIndex(1);
        }

        string TextCSV(bool withEmpty = false) const {
            string text = "Index;Value;Locked";
            for (const auto& field : Items)
                if (withEmpty || field->Value() != 0)
                    text += "\r\n" + to_string(field->Index) + ";" + to_string(field->Value()) +
                            (field->Locked() ? ";1" : ";0");
            return text;
        }

        /// Loads are silent. A bad item ends them, and what was loaded before it stays.
        void SetTextCSV(const string& text) {
            Init(3);
            const auto lines = Split(text, "\r\n");
            if (lines[0] != "Index;Value;Locked") return;
            for (size_t i = 1; i < lines.size(); ++i) {
                if (lines[i].empty()) continue;
                const auto items = Split(lines[i], ";");
                const auto field = Items.Item(ToNumber(items[0]));
                field->Set(0, false);
                field->Set(ToNumber(items.at(1)), false);
                field->Set(field->Value(), ToNumber(items.at(2)) == 1);
            }
        }

        string TextSDK() const {
            string text = "\"Sudoku\"\r\n";
            for (const auto& field : Items)
                text += to_string(field->Value()) + (field->Index % Numbers() == 0 ? "\r\n" : ",");
            return text;
        }

        void SetTextSDK(const string& text) {
            const auto lines = Split(text, "\r\n");
            const auto rows = lines.size() - 2; // the last row's line end leaves an empty line
            if (lines[0] != "\"Sudoku\"" || (rows != 9 && rows != 25)) return;
            Init(rows == 9 ? 3 : 5);
            for (size_t i = 1; i < lines.size(); ++i) {
                if (lines[i].empty()) continue;
                int position = (static_cast<int>(i) - 1) * Numbers();
                for (const auto& item : Split(lines[i], ",")) {
                    const auto field = Items.Item(++position);
                    field->Set(0, false);
                    field->Set(ToNumber(item), ToNumber(item) != 0);
                }
            }
        }

        void SetLockAll(bool locked) {
            const auto items = Items;
            for (const auto& field : items)
                if (field->Value() > 0) field->SetLocked(locked);
        }

        int Index() const { return Cursor ? Cursor->Index : 0; }
        void SetIndex(int index) {
            if (!Cursor && index < 1) return;
            if (index != 0) Items.Item(index); // an error before anything is told
            if (Cursor && Index() != index) Tell("BeforeIndexChanged", Index());
            if (Cursor && Index() == index) return;
            Cursor = index == 0 ? nullptr : Items.Item(index);
            Tell("IndexChanged", index);
        }

        int FreeCount() { return Counted().mlFreeCount; }
        int LockedCount() { return Counted().mlLockedCount; }
        int SetCount() { return Counted().mlSetCount; }
        int NextFreeField() { return Counted().mlNextFreeField; }
        bool IsWinner() { return Counted().mbIsWinner; }
        bool IsDeadEnd() { return Counted().mlDeadField > 0; }
        int Status() { return Counted().mlStatus; }
        int DeadField() { return Counted().mlDeadField; }
        int DeadCount() const { return static_cast<int>(DeadFields.size()); }

        /// With the field whose value has changed, 0 for a lock.
        void FieldChanged(int index) {
            mbDirty = true;
            if (index == 0) index = Index();
            Tell("StatusChanged", index);
            const int status = Status();
            if (status == 0) Tell("IsWinner", mbIsWinner ? index : 0);
            if (status == 2) Tell("IsDeadEnd", mlDeadField);
            PumpEvents();
        }

    private:
        /// The game relays the event and pumps, then the grid pumps.
        void Tell(const string& event, int index) {
            game.Raise(event, index);
            PumpEvents();
            PumpEvents();
        }

        /// With counts that are up to date.
        Fields& Counted() {
            if (!mbDirty) return *this;
            for (size_t pumps = Items.size(); pumps > 0; --pumps)
                PumpEvents();
            if (!mbDirty) return *this; // a nested command has counted, and nothing changed since

            const bool wasWinner = mbIsWinner, wasDeadEnd = mlDeadField > 0;
            int smallest = Numbers() + 1;
            mlFreeCount = mlLockedCount = mlSetCount = mlNextFreeField = 0;
            DeadFields.clear();
            for (const auto& field : Items) {
                const bool isEmpty = field->Value() == 0;
                if (field->Locked()) ++mlLockedCount;
                if (!isEmpty && !field->Locked()) ++mlSetCount;
                if (!isEmpty) continue;
                ++mlFreeCount;
                const int freedom = field->Freedom();
                if (freedom == 0) DeadFields.Add(field->Index);
                if (freedom > 0 && freedom < smallest) {
                    smallest = freedom;
                    mlNextFreeField = field->Index;
                }
            }
            mlDeadField = DeadFields.empty() ? 0 : DeadFields[0];
            mbIsWinner = mlFreeCount == 0;
            mlStatus = mbIsWinner || wasWinner ? 0 : mlDeadField > 0 || wasDeadEnd ? 2 : 1;
            mbDirty = false;
            return *this;
        }

        Game& game;
        int mlDimension = 0;
        bool mbDirty = true, mbIsWinner = false;
        int mlFreeCount = 0, mlLockedCount = 0, mlSetCount = 0;
        int mlNextFreeField = 0, mlDeadField = 0, mlStatus = 1;
    };

    class Play {
    public:
        explicit Play(Game& g) : game(g) {}

        std::optional<Indices>
            History; // filled while tracing, or where a solve began; oldest first
        int Retries = 0;

        void Reset() {
            History.reset();
            mbTracing = false;
        }

        bool Tracing() const { return mbTracing; }
        void SetTracing(bool tracing) {
            if (tracing == mbTracing) return;
            Reset();
            mbTracing = tracing;
            if (tracing) History.emplace();
        }

        bool Locked() const { return Cursor() && Cursor()->Locked(); }
        void SetLocked(bool locked) {
            if (Cursor()) Cursor()->SetLocked(locked);
        }

        int NextFreeValue(bool setValue = false) {
            return Cursor() ? Cursor()->NextFreeValue(setValue) : 0;
        }

        int Value() const { return Cursor() ? Cursor()->Value() : 0; }

        /// 0 clears the field. While tracing, the field then leaves the history, and the cursor
        /// goes to the newest entry; from an empty field it only goes there. autoValue takes the
        /// next free value.
        void SetValue(int value, bool autoValue = false) {
            const auto field = Cursor();
            if (!field) return;
            if (autoValue) value = field->NextFreeValue();
            if (autoValue && value == 0) return;
            if (value != 0) {
                if (value == field->Value() || !field->FreeValues().contains(value)) return;
                field->SetValue(value);
                if (mbTracing) AddToHistory(field->Index);
                return;
            }
            const bool clearing = field->Value() != 0;
            if (clearing) field->SetValue(0);
            if (!mbTracing || Entries() == 0) return;
            if (clearing) std::erase(*History, field->Index);
            // A newest entry from a larger grid stays, but there is no such field to go to.
            if (Entries() > 0 && History->back() <= game.Fields.Count())
                game.Fields.SetIndex(History->back());
        }

        void GotoNextFreeField(bool autoValue = false) {
            const int next = game.Fields.NextFreeField();
            if (next == 0) return;
            game.Fields.SetIndex(next);
            if (!autoValue) return;
            SetValue(0, true);
            PumpEvents();
        }

        void GoBack(bool autoValue = false) {
            SetValue(0);
            if (autoValue) SetValue(0, true);
        }

        /// Goes back to a field that has another free value. True if the cursor ended elsewhere.
        bool GoBackToFreedom(bool autoValue = false) {
            const int oldValue = Value(), start = game.Fields.Index();
            ++Retries;
            int index = 0;
            size_t entries = 0;
            do {
                index = game.Fields.Index();
                entries = Entries();
                GoBack();
                if (Cursor() && Cursor()->Freedom() > 0) {
                    if (autoValue) SetValue(0, true);
                    break;
                }
                // From a newest entry that is empty and dead itself no step leads away.
            } while (Entries() > 0 && (game.Fields.Index() != index || Entries() < entries));
            if (game.Fields.Index() != start) return true;
            if (Cursor()) Cursor()->SetValue(oldValue);
            Platform::Current().Beep();
            return false;
        }

        void Solve() {
            Retries = 0;
            game.gbCancel = false;
            SetTracing(true);
            if (Cursor()) AddToHistory(Cursor()->Index);
            while (!game.CancelRequested()) {
                GotoNextFreeField(true);
                if (game.Fields.IsDeadEnd()) Retreat();
                if (game.Fields.IsWinner() || game.Fields.IsDeadEnd()) return;
            }
        }

    private:
        shared_ptr<Field> Cursor() const { return game.Fields.Cursor; }
        size_t Entries() const { return History ? History->size() : 0; }

        void AddToHistory(int index) {
            if (History && !History->Contains(index)) History->Add(index);
        }

        /// A field reached without a larger free value is cleared by the next walk.
        void Retreat() {
            do {
                if (!GoBackToFreedom()) return;
            } while (NextFreeValue() == 0);
            NextFreeValue(true);
        }

        Game& game;
        bool mbTracing = false;
    };

    class Game {
    public:
        Game() { Fields.Init(); }
        Game(const Game&) = delete;

        Logic::Fields Fields{*this};
        Collection<shared_ptr<Group>> Groups;
        Logic::Play Play{*this};
        bool gbCancel = false; // ends a solve at its next cycle
        vector<std::function<void(const string& event, int index)>> Listeners;

        void Raise(const string& event, int index) const {
            for (const auto& listener : Listeners)
                listener(event, index);
        }

        /// The rows, then the columns, then the boxes.
        void GroupsInit() {
            const int n = Fields.Numbers(), d = Fields.Dimension();
            Groups.clear();
            for (int g = 1; g <= 3 * n; ++g)
                Groups.Add(std::make_shared<Group>(Group{g, g <= n ? 1 : g <= 2 * n ? 2 : 4, {}}));
            for (int k = 1; k <= n * n; ++k) {
                const int row = (k - 1) / n, column = (k - 1) % n, box = row / d * d + column / d;
                for (int g : {1 + row, 1 + n + column, 1 + 2 * n + box})
                    Groups.Item(g)->Fields.Add(k);
            }
            for (const auto& group : Groups)
                for (int k : group->Fields)
                    Fields.Items.Item(k)->GroupAdd(*group);
        }

        /// Answered No, the next ESC asks again.
        bool CancelRequested() {
            if (gbCancel) return true;
            if (!Platform::Current().EscPressed()) return false;
            if (!IsAnsweredYes({.Prompt = "Abbrechen?", .Title = "ESC gedrückt"})) return false;
            return gbCancel = true;
        }

        void FileImportCSV(const string& path) {
            Fields.SetTextCSV(ReadTextFile(path));
            Play.Reset();
        }
        void FileImportSDK(const string& path) { Fields.SetTextSDK(ReadTextFile(path)); }
        void FileExportCSV(const string& path) { WriteTextFile(path, Fields.TextCSV(), "", false); }
    };
};

using Group = Logic::Group;
using Field = Logic::Field;
using Fields = Logic::Fields;
using Play = Logic::Play;
using Game = Logic::Game;

} // namespace tessarin::model
