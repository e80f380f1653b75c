// The envelope: its flap turns up, the letter looks out, and all goes back.
#include "kit/Animation.h"
#include "kit/Fittings.h"
#include "kit/Noise.h"
#include "kit/Text.h"
#include "skins/Atelier.h"
#include "ui/layout/AboutLayout.h"

namespace quendrel::art::envelope {

namespace {

constexpr Rect kPlace{0, 0, layout::kAboutEmail.width, layout::kAboutEmail.height};
constexpr double kLeft = 9;
constexpr double kRight = 63;
constexpr double kTop = 24;
constexpr double kBottom = 56;
constexpr double kMiddle = (kLeft + kRight) / 2;
/// How far the flap's point lies from its fold.
constexpr double kFlap = 19;

constexpr Color kPaper{0.80, 0.70, 0.52};
constexpr Color kSheet{0.93, 0.90, 0.82};
constexpr Color kWax{0.50, 0.012, 0.014};

/// One moment of the animation: `flap` from closed (0) to open (1), `letter` from in (0) to out
/// (1).
struct Moment {
    double flap;
    double letter;
};

/// Paper, whose grain shows in slanting light.
Color Paper(Color stuff, Vec3 normal, Vec2 p, double shade) {
    const double tooth = 1 + 0.05 * LayeredNoise(p * 0.8, 2, 301);
    return Matte(stuff * tooth, normal, shade);
}

Shape Triangle(Vec2 a, Vec2 b, Vec2 c) { return Path(a).LineTo(b).LineTo(c).Close(); }

Shape Pocket() {
    const Shape left = Triangle({kLeft, kTop}, {kMiddle + 1, kTop + 20}, {kLeft, kBottom});
    const Shape right = Triangle({kRight, kTop}, {kMiddle - 1, kTop + 20}, {kRight, kBottom});
    return Union(left, right);
}

Shape Foot() {
    return Path({kLeft, kBottom})
        .LineTo({kMiddle - 4, kTop + 15})
        .CurveTo({kMiddle - 1.5, kTop + 13}, {kMiddle + 1.5, kTop + 13}, {kMiddle + 4, kTop + 15})
        .LineTo({kRight, kBottom})
        .Close();
}

/// A sheet of paper seen flat, with the shadow that it throws on what lies behind.
void PaintSheet(Canvas& canvas, const Shape& sheet, Color stuff, Vec3 normal, double lift) {
    PaintShadow(canvas, kPlace, sheet, lift, 1.6, 0.55);
    canvas.Paint(kPlace, [&](Vec2 p) {
        const double d = sheet(p);
        if (d >= 0) return Sample{};
        const bool litEdge = d > -0.8 && Dot(Outward(sheet, p), kShadowFall) < -0.2;
        return Sample{Paper(stuff, normal, p, 0) * (litEdge ? 1.12 : 1.0), 1};
    });
}

void PaintLetter(Canvas& canvas, double out, const Font& font) {
    if (out <= 0) return;
    const double top = Mix(kTop + 4, 5, out);
    const Shape sheet = RoundedBox({kLeft + 5, top}, {kRight - 5, kBottom - 3}, 0.8);
    // What has not yet come out stays within the envelope.
    const Shape seen = [&](Vec2 p) { return std::max(sheet(p), p.y - (kBottom - 6)); };
    PaintSheet(canvas, seen, kSheet, kFacing, 1.0);
    const Shape at = font.Line("@", 25, {kMiddle, top + 11.5});
    canvas.Paint(kPlace, [&](Vec2 p) {
        return Sample{{0.020, 0.085, 0.050}, Inside(at(p)) * Inside(seen(p))};
    });
    for (const double line : {24.0, 28.0, 32.0}) {
        const Shape rule = Stroke({kLeft + 11, top + line}, {kRight - 11, top + line}, 1.2);
        canvas.Paint(kPlace, [&](Vec2 p) {
            return Sample{{0.10, 0.085, 0.07}, 0.8 * Inside(rule(p)) * Inside(seen(p))};
        });
    }
}

/// The flap turns about its fold: its point sinks or rises as the cosine of the angle.
void PaintFlap(Canvas& canvas, double open) {
    const double angle = kPi * open;
    const double reach = kFlap * std::cos(angle);
    if (std::abs(reach) < 0.4) return;
    const Shape flap = Path({kLeft + 0.5, kTop})
                           .LineTo({kMiddle - 5, kTop + reach * 0.84})
                           .CurveTo({kMiddle - 2, kTop + reach}, {kMiddle + 2, kTop + reach},
                                    {kMiddle + 5, kTop + reach * 0.84})
                           .LineTo({kRight - 0.5, kTop})
                           .Close();
    // Standing up it faces the light above; folded back, it shows its lining.
    const Vec3 normal = Normalize({0, -std::sin(angle) * 0.7, std::abs(std::cos(angle)) + 0.35});
    const Color stuff = reach > 0 ? kPaper * 1.08 : kPaper * 0.78;
    PaintSheet(canvas, flap, stuff, normal, reach > 0 ? 1.0 + 3 * std::sin(angle) : 0.4);
}

void PaintSeal(Canvas& canvas, double open) {
    const double reach = kFlap * std::cos(kPi * open);
    if (reach < 3) return;
    const double squeeze = reach / kFlap;
    const Vec2 middle{kMiddle, kTop + reach * 0.82};
    const Shape seal = Ellipse(middle, {5.2, 5.2 * squeeze});
    PaintShadow(canvas, kPlace, seal, 0.9, 1.0, 0.6);
    const Shape stamp = Ellipse(middle, {3.1, 3.1 * squeeze});
    PaintFace(canvas, kPlace, seal, [&](Vec2 p) {
        Vec3 normal = Rounded(seal, p, 2.0, 1.3);
        if (stamp(p) < 0) normal = Rounded(stamp, p, 1.4, -0.8);
        return Coated(kWax, normal, 0.15);
    });
}

Picture DrawEnvelope(Moment moment, const Font& font) {
    Canvas canvas = EmptyFrame(kPlace);
    const Shape back = RoundedBox({kLeft, kTop}, {kRight, kBottom}, 1.2);
    PaintSheet(canvas, back, kPaper * 0.42, kFacing, 1.4);
    if (moment.flap > 0.5) PaintFlap(canvas, moment.flap);
    PaintLetter(canvas, moment.letter, font);
    PaintSheet(canvas, Pocket(), kPaper * 0.94, Normalize({0.05, -0.02, 1}), 0.8);
    PaintSheet(canvas, Foot(), kPaper, Normalize({0, -0.12, 1}), 0.9);
    if (moment.flap <= 0.5) {
        PaintFlap(canvas, moment.flap);
        PaintSeal(canvas, moment.flap);
    }
    return Develop(canvas);
}

/// From 0 to 1 with a soft start and end.
double Eased(int step, int steps) { return SmoothStep(0, 1, static_cast<double>(step) / steps); }

}  // namespace

std::vector<Frame> Frames() {
    constexpr int kFlapSteps = 8;
    constexpr int kLetterSteps = 9;
    constexpr int kCentiseconds = 5;
    constexpr int kRest = 150;
    constexpr int kShown = 110;
    const Font font(QUENDREL_CAPTION_FONT);
    std::vector<Frame> frames{{DrawEnvelope({0, 0}, font), kRest}};
    for (int i = 1; i <= kFlapSteps; ++i) {
        frames.push_back({DrawEnvelope({Eased(i, kFlapSteps), 0}, font), kCentiseconds});
    }
    for (int i = 1; i <= kLetterSteps; ++i) {
        frames.push_back({DrawEnvelope({1, Eased(i, kLetterSteps)}, font), kCentiseconds});
    }
    frames.back().centiseconds = kShown;
    // The envelope closes as it opened: the same frames, backwards.
    for (std::size_t i = frames.size() - 2; i > 0; --i) {
        frames.push_back({frames[i].picture, kCentiseconds});
    }
    return frames;
}

}  // namespace quendrel::art::envelope
