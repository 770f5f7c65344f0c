// Twips, colours and fonts of the controls in Qt's terms.
#pragma once

#include "toolkit/Control.h"

#include <QColor>
#include <QFont>
#include <QRect>
#include <QString>

namespace tessarin::qt {

/// 15 twips are one of Qt's logical pixels, at every scale.
int Pixels(float twips);
QRect PixelRect(const Design& design);

/// System colours come from the application's palette as it is now.
QColor ToQt(Color color);
/// The colour of a text: the system colour for button texts on a fixed background becomes black or
/// white, so that it can be read in a dark theme too.
QColor TextColor(Color fore, Color back);

/// The colour of borders and lines, which can be told from every background in light and dark
/// themes.
QColor LineColor();

QFont ToQt(const FontStyle& font);

inline QString ToQt(const std::string& text) {
    return QString::fromStdString(text);
}
/// Where the program carries the picture of that file name.
inline QString ResourcePath(const std::string& file) {
    return QLatin1String(":/") + ToQt(file);
}
/// A caption for a button or menu entry, in which "&" would mark a shortcut.
QString Plain(const std::string& caption);

} // namespace tessarin::qt
