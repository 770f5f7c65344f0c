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
constexpr int Samples = 4; // for each side of a pixel
constexpr int AllSamples = Samples * Samples;

using Hits = std::array<int, RotorImages>;

// Counts the pictures in which the point, seen from the centre, lies on the hub or on a blade. A
// blade starts narrow at the hub and its rear edge sweeps back towards the tip.
void CountHits(double x, double y, Hits& hits) {
    const double radius = std::sqrt(x * x + y * y);
    if (radius > 15) return;
    // The y axis points down; angles count counterclockwise.
    const double angle = std::fmod(std::atan2(-y, x) + 2 * BladeAngle, BladeAngle);
    const double front = 0.15 + 0.02 * radius;
    const double rear = front + 0.25 + 0.04 * radius;
    for (int i = 0; i < RotorImages; ++i) {
        const double turned = angle - i * Turn;
        const double onBlade = turned < 0 ? turned + BladeAngle : turned;
        if (radius < 3 || (onBlade > front && onBlade < rear)) ++hits[static_cast<std::size_t>(i)];
    }
}

} // namespace

std::array<Image, RotorImages> DrawRotor() {
    std::array<Image, RotorImages> images{};
    for (int pixel = 0; pixel < Side * Side; ++pixel) {
        Hits hits{};
        for (int i = 0; i < AllSamples; ++i)
            CountHits(pixel % Side + (i % Samples + 0.5) / Samples - Centre,
                      pixel / Side + (i / Samples + 0.5) / Samples - Centre, hits);
        for (std::size_t i = 0; i < images.size(); ++i)
            images[i][static_cast<std::size_t>(pixel)] =
                static_cast<std::uint32_t>(255 * hits[i] / AllSamples) << 24 | Steel;
    }
    return images;
}

} // namespace tessarin
