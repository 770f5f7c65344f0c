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
    double turned = 0;
    for (int& count : hits) {
        const double onBlade = angle < turned ? angle - turned + BladeAngle : angle - turned;
        if (radius < 3 || (onBlade > front && onBlade < rear)) ++count;
        turned += Turn;
    }
}

} // namespace

std::array<Image, RotorImages> DrawRotor() {
    std::array<Image, RotorImages> images{};
    std::size_t pixel = 0;
    for (int row = 0; row < Side; ++row)
        for (int column = 0; column < Side; ++column) {
            Hits hits{};
            for (int i = 0; i < Samples; ++i)
                for (int j = 0; j < Samples; ++j)
                    CountHits(column + (i + 0.5) / Samples - Centre,
                              row + (j + 0.5) / Samples - Centre, hits);
            auto count = hits.begin();
            for (Image& image : images)
                image.at(pixel) =
                    static_cast<std::uint32_t>(255 * *count++ / (Samples * Samples)) << 24 | Steel;
            ++pixel;
        }
    return images;
}

} // namespace tessarin
