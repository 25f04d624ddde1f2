#pragma once

#include <cmath>
#include <set>

// The sides, in device-independent pixels, at which the interface draws its vector icons, and the
// display scales it expects. A build without an SVG renderer ships every icon drawn beforehand at
// each side times each scale (the icon renderer reads this header), so keep both lists complete:
// a side missing here is drawn from the nearest larger picture, slightly blurred.
namespace iconsizes {

constexpr int Navigation = 18;
constexpr int WindowsLogo = 30; // inside the dashboard's 60 px disc

constexpr int Sides[] = { Navigation, WindowsLogo };
constexpr double Scales[] = { 1.0, 1.25, 1.5, 1.75, 2.0, 2.25, 2.5, 3.0 };

// The device-pixel sides the icons are drawn at, ascending.
inline std::set<int> pixelSides()
{
    std::set<int> sides;
    for (const int side : Sides)
        for (const double scale : Scales)
            sides.insert(int(std::lround(side * scale)));
    return sides;
}

} // namespace iconsizes
