#include "model/Group.h"

#include "model/Field.h"

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

ValueBits Group::HeldValues(const Collection<std::shared_ptr<Field>>& items, int word) const {
    ValueBits taken = 0;
    for (const int index : Fields)
        if (const auto* const field = items.Find(index)) taken |= BitOf((*field)->Value(), word);
    return taken;
}

} // namespace tessarin
