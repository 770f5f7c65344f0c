// SPDX-License-Identifier: MIT
// The two puzzle text formats, in both directions, for a field and for the whole grid.
#include "model/Field.h"
#include "model/Fields.h"
#include "model/TextItems.h"

namespace tessarin {

namespace {

constexpr std::string_view LineBreak = "\r\n";
constexpr std::string_view HeaderCSV = "Index;Value;Locked";
constexpr std::string_view HeaderSDK = "\"Sudoku\"";

std::string_view FirstLine(std::string_view text) {
    return text.substr(0, text.find(LineBreak));
}

// The dimension of the grid whose SDK text has that number of lines: the header, the rows, and an
// empty line after the last line break. 0 for any other number: 16 rows would be of dimension 4,
// which the grid refuses, and larger grids are not loaded.
int DimensionOfLines(std::size_t lines) {
    for (const std::size_t dimension : {3U, 5U})
        if (lines == 1 + dimension * dimension + 1) return static_cast<int>(dimension);
    return 0;
}

} // namespace

std::string Field::TextCSV(bool WithEmpty) const {
    if (!WithEmpty && mlValue == 0) return "";
    return std::to_string(Index) + ";" + std::to_string(mlValue) + (mbLocked ? ";1" : ";0");
}

void Field::SetTextCSV(std::string_view MyTextCSV, bool /*WithEmpty*/) {
    Clear();
    TextItems items(MyTextCSV, ";");
    if (ToNumber(items.Next()) != Index) return;
    SetValue(ToNumber(items.Next()));
    SetLocked(ToNumber(items.Next()) == 1);
}

void Field::SetTextSDK(std::string_view MyTextSDK) {
    Clear();
    mlValue = ToNumber(MyTextSDK);
    mbLocked = mlValue != 0;
}

std::string Fields::TextCSV(bool WithEmpty) const {
    std::string text(HeaderCSV);
    for (const auto& field : Items) {
        const std::string line = field->TextCSV(WithEmpty);
        if (!line.empty()) text.append(LineBreak).append(line);
    }
    return text;
}

void Fields::SetTextCSV(std::string_view MyTextCSV, bool /*WithEmpty*/) {
    Init(3);
    if (FirstLine(MyTextCSV) != HeaderCSV) return;
    const auto silent = ChangeSilently();
    TextItems lines(MyTextCSV, LineBreak);
    lines.Next(); // the header
    while (!lines.AtEnd()) {
        const std::string_view line = lines.Next();
        if (line.empty()) continue;
        const int index = ToNumber(TextItems(line, ";").Next());
        Items.Item(index)->SetTextCSV(line);
    }
}

std::string Fields::TextSDK() const {
    std::string text = std::string(HeaderSDK).append(LineBreak);
    const int n = Numbers();
    for (int row = 1; row <= n; ++row)
        for (int column = 1; column <= n; ++column) {
            text += std::to_string(Items.Item((row - 1) * n + column)->Value());
            text += column < n ? "," : LineBreak;
        }
    return text;
}

void Fields::SetTextSDK(std::string_view MyTextSDK) {
    if (FirstLine(MyTextSDK) != HeaderSDK) return;
    TextItems lines(MyTextSDK, LineBreak);
    const int dimension = DimensionOfLines(CountItems(lines));
    if (dimension == 0) return;
    Init(dimension);
    const auto silent = ChangeSilently();
    lines.Next(); // the header
    for (int row = 0; !lines.AtEnd(); ++row) {
        TextItems values(lines.Next(), ",");
        for (int index = row * Numbers() + 1; !values.AtEnd(); ++index)
            Items.Item(index)->SetTextSDK(values.Next());
    }
}

} // namespace tessarin
