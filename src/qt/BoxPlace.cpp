// SPDX-License-Identifier: MIT
#include "qt/BoxPlace.h"

#include <algorithm>
#include <vector>

namespace tessarin::qt {

QPoint PlaceBeside(const QRect& area, QSize box, const QRect& screen) {
    QRect centered({}, box);
    centered.moveCenter(area.center());
    const int rightmost = std::max(screen.left(), screen.right() + 1 - box.width());
    const int lowest = std::max(screen.top(), screen.bottom() + 1 - box.height());
    // Of places that cover equally little of the area the first is chosen.
    std::vector<QRect> places;
    for (const int y : {centered.y(), area.y() - box.height(), area.y() + area.height()})
        for (const int x : {centered.x(), area.x() + area.width(), area.x() - box.width()}) {
            const int left = std::clamp(x, screen.left(), rightmost);
            const int top = std::clamp(y, screen.top(), lowest);
            places.emplace_back(QPoint(left, top), box);
        }
    const auto covered = [&](const QRect& place) {
        const QRect both = place & area;
        return both.width() * both.height();
    };
    return std::ranges::min_element(places, {}, covered)->topLeft();
}

} // namespace tessarin::qt
