#include "model/Group.h"

#include "model/Board.h"
#include "model/Fields.h"

namespace tessarin {

std::string Group::FlavorText() const {
    switch (Flavor) {
    case Horizontal:
        return "horizontal";
    case Vertical:
        return "vertikal";
    case Diagonal:
        return "diagonal";
    case Box:
        return "box";
    default:
        return "(unbekannt)";
    }
}

ValueSet Group::TakenValues() const {
    const auto& grid = *Board::Current().Fields;
    ValueSet taken(grid.Numbers());
    for (const int index : Fields)
        if (grid.Items.Has(index)) taken.Insert(grid.Items.Item(index)->Value());
    return taken;
}

} // namespace tessarin
