#include "qt/QtLook.h"

#include <QApplication>
#include <QPalette>

namespace tessarin::qt {

int Pixels(float twips) {
    return qRound(twips / 15);
}

QColor ToQt(Color color) {
    if (color < SystemColor(0))
        return QColor::fromRgb(static_cast<int>(color & 0xFF), static_cast<int>(color >> 8 & 0xFF),
                               static_cast<int>(color >> 16 & 0xFF));
    const QPalette palette = QApplication::palette();
    if (color == SystemColor(5)) return palette.color(QPalette::Base);
    if (color == SystemColor(18)) return palette.color(QPalette::ButtonText);
    return palette.color(QPalette::Window);
}

QColor TextColor(Color fore, Color back) {
    if (fore != SystemColor(18) || back >= SystemColor(0)) return ToQt(fore);
    return qGray(ToQt(back).rgb()) > 110 ? Qt::black : Qt::white;
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
