// How far apart two colours look: CIELAB and the colour difference CIEDE2000, for single colours
// and for parts of pictures.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

#include "Bitmap.h"

namespace quendrel {

struct Lab {
    double l = 0;
    double a = 0;
    double b = 0;
};

inline Lab LabOf(Rgb c) {
    const auto f = [](double t) {
        return t > 216.0 / 24389 ? std::cbrt(t) : (24389.0 / 27 * t + 16) / 116;
    };
    const double x = f((0.4124564 * c.r + 0.3575761 * c.g + 0.1804375 * c.b) / 0.95047);
    const double y = f(0.2126729 * c.r + 0.7151522 * c.g + 0.0721750 * c.b);
    const double z = f((0.0193339 * c.r + 0.1191920 * c.g + 0.9503041 * c.b) / 1.08883);
    return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

inline constexpr double kDegree = 3.14159265358979323846 / 180;

inline double Hue(double a, double b) {
    if (a == 0 && b == 0) return 0;
    const double hue = std::atan2(b, a) / kDegree;
    return hue < 0 ? hue + 360 : hue;
}

inline double MeanHue(double h1, double h2, double chromaProduct) {
    if (chromaProduct == 0) return h1 + h2;
    if (std::abs(h1 - h2) <= 180) return (h1 + h2) / 2;
    return h1 + h2 < 360 ? (h1 + h2 + 360) / 2 : (h1 + h2 - 360) / 2;
}

/// The colour difference CIEDE2000 with all weights 1.
inline double DeltaE(Lab p, Lab q) {
    const auto seventh = [](double c) {
        const double c7 = std::pow(c, 7);
        return std::sqrt(c7 / (c7 + std::pow(25.0, 7)));
    };
    const double g = 0.5 * (1 - seventh((std::hypot(p.a, p.b) + std::hypot(q.a, q.b)) / 2));
    const double a1 = (1 + g) * p.a;
    const double a2 = (1 + g) * q.a;
    const double c1 = std::hypot(a1, p.b);
    const double c2 = std::hypot(a2, q.b);
    const double h1 = Hue(a1, p.b);
    const double h2 = Hue(a2, q.b);

    double turn = c1 * c2 == 0 ? 0 : h2 - h1;
    if (turn > 180) turn -= 360;
    if (turn < -180) turn += 360;
    const double dl = q.l - p.l;
    const double dc = c2 - c1;
    const double dh = 2 * std::sqrt(c1 * c2) * std::sin(turn / 2 * kDegree);

    const double l = (p.l + q.l) / 2;
    const double c = (c1 + c2) / 2;
    const double h = MeanHue(h1, h2, c1 * c2);
    const double t = 1 - 0.17 * std::cos((h - 30) * kDegree) + 0.24 * std::cos(2 * h * kDegree) +
                     0.32 * std::cos((3 * h + 6) * kDegree) -
                     0.20 * std::cos((4 * h - 63) * kDegree);
    const double sl = 1 + 0.015 * (l - 50) * (l - 50) / std::sqrt(20 + (l - 50) * (l - 50));
    const double sc = 1 + 0.045 * c;
    const double sh = 1 + 0.015 * c * t;
    const double theta = 30 * std::exp(-std::pow((h - 275) / 25, 2));
    const double rt = -2 * seventh(c) * std::sin(2 * theta * kDegree);
    return std::sqrt(std::pow(dl / sl, 2) + std::pow(dc / sc, 2) + std::pow(dh / sh, 2) +
                     rt * (dc / sc) * (dh / sh));
}

/// The mean colour, by light, of the pixels that `wanted` accepts.
template <class Wanted>
Lab MeanColor(const Bitmap& picture, const Wanted& wanted) {
    Rgb sum;
    double count = 0;
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            if (!wanted(x, y)) continue;
            const Rgb c = LinearOf(picture.At(x, y));
            sum = {sum.r + c.r, sum.g + c.g, sum.b + c.b};
            ++count;
        }
    }
    return LabOf({sum.r / count, sum.g / count, sum.b / count});
}

/// The mean colour of the pixels of a sprite that lie `depth` pixels within its mask.
inline Lab CoreColor(const Bitmap& sprite, const Bitmap& mask, int depth) {
    return MeanColor(sprite, [&mask, depth](int x, int y) {
        for (int dy = -depth; dy <= depth; ++dy) {
            for (int dx = -depth; dx <= depth; ++dx) {
                const bool inside =
                    x + dx >= 0 && y + dy >= 0 && x + dx < mask.width && y + dy < mask.height;
                if (!inside || mask.At(x + dx, y + dy) != kBlack) return false;
            }
        }
        return true;
    });
}

/// The mean difference of two pictures of one size, pixel by pixel.
inline double MeanDifference(const Bitmap& a, const Bitmap& b) {
    double sum = 0;
    for (std::size_t i = 0; i < a.pixels.size(); ++i)
        sum += DeltaE(LabOf(LinearOf(a.pixels[i])), LabOf(LinearOf(b.pixels.at(i))));
    return sum / static_cast<double>(a.pixels.size());
}

/// How colourful a picture is on the whole.
inline double MeanChroma(const Bitmap& picture) {
    double sum = 0;
    for (const std::uint32_t pixel : picture.pixels) {
        const Lab lab = LabOf(LinearOf(pixel));
        sum += std::hypot(lab.a, lab.b);
    }
    return sum / static_cast<double>(picture.pixels.size());
}

/// What is less colourful looks grey.
inline constexpr double kGreyChroma = 8;

/// How far apart the dark and the light parts of a picture are; a twentieth of it at either end is
/// left out.
inline double LightnessRange(const Bitmap& picture) {
    std::vector<double> lightness;
    for (const std::uint32_t pixel : picture.pixels) lightness.push_back(LabOf(LinearOf(pixel)).l);
    std::sort(lightness.begin(), lightness.end());
    return lightness[lightness.size() * 19 / 20] - lightness[lightness.size() / 20];
}

}  // namespace quendrel
