// SPDX-License-Identifier: MIT
// Twips, colours and fonts of the controls in Qt's terms.
#pragma once

#include "toolkit/Properties.h"

#include <QColor>
#include <QFont>
#include <QKeySequence>
#include <QList>
#include <QString>

namespace tessarin::qt {

/// 15 twips are one of Qt's logical pixels, at every scale.
int Pixels(float twips);

/// Looks system colours up in the application's present palette.
QColor ToQt(Color color);
/// The colour of a text. On a fixed background the system colour of button texts becomes black or
/// white, so that it can be read in a dark theme too.
QColor TextColor(Color fore, Color back);

/// The colour of borders and lines, visible on every background in light and dark themes.
QColor LineColor();

QFont ToQt(const FontStyle& font);

inline QString ToQt(const std::string& text) {
    return QString::fromStdString(text);
}
/// The resource that holds the picture `file`.
inline QString ResourcePath(const std::string& file) {
    return QLatin1String(":/") + ToQt(file);
}
/// The keys that `shortcuts` of a control names.
QList<QKeySequence> Shortcuts(const std::string& shortcuts);
/// A caption for a button or menu entry, with "&" escaped, which would mark a shortcut.
QString EscapeAmpersands(const std::string& caption);

} // namespace tessarin::qt
