// SPDX-License-Identifier: MIT
#include "qt/QtLook.h"

#include <QApplication>
#include <QPalette>

namespace tessarin::qt {

int Pixels(float twips) {
    return qRound(twips / 15);
}

QColor ToQt(Color color) {
    if (!IsSystemColor(color))
        return QColor::fromRgb(static_cast<int>(color & 0xFF), static_cast<int>(color >> 8 & 0xFF),
                               static_cast<int>(color >> 16 & 0xFF));
    const QPalette palette = QApplication::palette();
    if (color == WindowBackground) return palette.color(QPalette::Base);
    if (color == ButtonText) return palette.color(QPalette::ButtonText);
    return palette.color(QPalette::Window);
}

QColor TextColor(Color fore, Color back) {
    if (fore != ButtonText || IsSystemColor(back)) return ToQt(fore);
    constexpr int DarkestForBlack = 110; // of 255
    return qGray(ToQt(back).rgb()) > DarkestForBlack ? Qt::black : Qt::white;
}

QColor LineColor() {
    return QApplication::palette().color(QPalette::WindowText);
}

QFont ToQt(const FontStyle& font) {
    // This family is heavy at any weight. The families that replace it where it is missing are not.
    constexpr auto HeavyFamily = "Arial Black";
    QFont result = QApplication::font();
    if (font.Name == HeavyFamily) {
        result.setFamilies({HeavyFamily, "Open Sans", "DejaVu Sans"});
        result.setWeight(QFont::Black);
    } else if (!font.Name.empty()) {
        result.setFamily(ToQt(font.Name));
    }
    result.setPixelSize(Pixels(font.Size * 20)); // a point is 20 twips
    result.setItalic(font.Italic);
    return result;
}

QList<QKeySequence> Shortcuts(const std::string& shortcuts) {
    return QKeySequence::listFromString(ToQt(shortcuts));
}

QString EscapeAmpersands(const std::string& caption) {
    return ToQt(caption).replace(QLatin1Char('&'), QLatin1String("&&"));
}

} // namespace tessarin::qt
