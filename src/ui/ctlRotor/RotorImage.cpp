#include "ui/ctlRotor/RotorImage.h"

#include <cmath>
#include <numbers>

namespace tessarin {

namespace {

constexpr int Side = 32;
constexpr double Centre = Side / 2.0;
constexpr double BladeAngle = 2 * std::numbers::pi / 3;
constexpr double Turn = BladeAngle / RotorImages;
constexpr std::uint32_t Steel = 0x002F5D8C;

// Whether the point, seen from the centre, lies on the hub or on a blade of the rotor in its first
// position. A blade starts narrow at the hub and its rear edge sweeps back towards the tip.
bool OnRotor(double x, double y, double turned) {
    const double radius = std::hypot(x, y);
    if (radius < 3) return true;
    if (radius > 15) return false;
    // The y axis points down; angles count counterclockwise.
    double angle = std::fmod(std::atan2(-y, x) - turned, BladeAngle);
    if (angle < 0) angle += BladeAngle;
    const double front = 0.15 + 0.02 * radius;
    return angle > front && angle < front + 0.25 + 0.04 * radius;
}

// How much of the pixel the rotor covers, 0 to 255.
std::uint32_t Coverage(int column, int row, double turned) {
    constexpr int Samples = 4;
    int hits = 0;
    for (int i = 0; i < Samples; ++i)
        for (int j = 0; j < Samples; ++j)
            if (OnRotor(column + (i + 0.5) / Samples - Centre, row + (j + 0.5) / Samples - Centre,
                        turned))
                ++hits;
    return static_cast<std::uint32_t>(255 * hits / (Samples * Samples));
}

} // namespace

Image RotorImage(int index) {
    Image image{};
    auto pixel = image.begin();
    for (int row = 0; row < Side; ++row)
        for (int column = 0; column < Side; ++column)
            *pixel++ = Coverage(column, row, index * Turn) << 24 | Steel;
    return image;
}

} // namespace tessarin
