// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

namespace tessarin::qt {

/// The top left corner for a box that keeps off `area`: on the right of it, on the left, above or
/// below, where the screen has room. Without room the box covers it as little as possible. The box
/// lies on the screen as far as it fits there.
QPoint PlaceBeside(const QRect& area, QSize box, const QRect& screen);

} // namespace tessarin::qt
