#include "kit/Text.h"

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_OUTLINE_H

#include <map>
#include <stdexcept>
#include <tuple>
#include <utility>
#include <vector>

#include "kit/Canvas.h"

namespace quendrel::art {

namespace {

/// Letters are hinted for the pixels of a canvas, upright only: their feet and tops lie on the
/// edges of pixels, and their widths stay as they are.
constexpr FT_Int32 kHinted = FT_LOAD_TARGET_LIGHT | FT_LOAD_FORCE_AUTOHINT;

/// They are then drawn this many times larger to measure the distances from them.
constexpr int kEnlarged = 5;
constexpr int kScale = kEnlarged * kFine;

/// Distances are measured up to this far from a letter, in units.
constexpr int kReach = 6;

/// One letter of a line: its glyph and its pen position in enlarged pixels.
struct Letter {
    FT_UInt glyph;
    double pen;
};

/// Replaces each value by the least of value + squared distance along one line of the grid.
void SquaredDistances(std::vector<double>& line) {
    const int n = static_cast<int>(line.size());
    std::vector<int> parabola(line.size());
    std::vector<double> border(line.size() + 1);
    const auto value = [&line](int i) { return line[static_cast<std::size_t>(i)]; };
    int last = 0;
    border[0] = -1e20;
    border[1] = 1e20;
    for (int i = 1; i < n; ++i) {
        const auto crossing = [&](int k) {
            return ((value(i) + i * i) - (value(k) + k * k)) / (2.0 * i - 2.0 * k);
        };
        double s = crossing(parabola[static_cast<std::size_t>(last)]);
        while (s <= border[static_cast<std::size_t>(last)]) {
            s = crossing(parabola[static_cast<std::size_t>(--last)]);
        }
        ++last;
        parabola[static_cast<std::size_t>(last)] = i;
        border[static_cast<std::size_t>(last)] = s;
        border[static_cast<std::size_t>(last) + 1] = 1e20;
    }
    std::vector<double> result(line.size());
    int k = 0;
    for (int i = 0; i < n; ++i) {
        while (border[static_cast<std::size_t>(k) + 1] < i) ++k;
        const int from = parabola[static_cast<std::size_t>(k)];
        result[static_cast<std::size_t>(i)] = (i - from) * (i - from) + value(from);
    }
    line = std::move(result);
}

/// A black and white drawing in enlarged pixels.
struct Drawing {
    int width;
    int height;
    std::vector<bool> ink;

    std::size_t Index(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
               static_cast<std::size_t>(x);
    }

    /// Each point's distance to the nearest point that is inked as `wanted` says.
    std::vector<double> DistanceTo(bool wanted) const {
        std::vector<double> grid(ink.size());
        for (std::size_t i = 0; i < ink.size(); ++i) grid[i] = ink[i] == wanted ? 0 : 1e12;
        std::vector<double> line(static_cast<std::size_t>(height));
        for (int x = 0; x < width; ++x) {
            for (int y = 0; y < height; ++y) line[static_cast<std::size_t>(y)] = grid[Index(x, y)];
            SquaredDistances(line);
            for (int y = 0; y < height; ++y) grid[Index(x, y)] = line[static_cast<std::size_t>(y)];
        }
        line.resize(static_cast<std::size_t>(width));
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x) line[static_cast<std::size_t>(x)] = grid[Index(x, y)];
            SquaredDistances(line);
            for (int x = 0; x < width; ++x) {
                grid[Index(x, y)] = std::sqrt(line[static_cast<std::size_t>(x)]);
            }
        }
        return grid;
    }
};

}  // namespace

struct Font::Face {
    FT_Library library = nullptr;
    FT_Face face = nullptr;

    /// A line as it was measured: a grid of distances in units; in enlarged pixels its middle
    /// across, where it stands, and the height of its capitals.
    struct Measured {
        std::shared_ptr<const std::vector<double>> distances;
        int width = 0;
        int height = 0;
        double middle = 0;
        int baseline = 0;
        double capHeight = 0;
    };

    /// The lines that have been measured: a caption is needed again for every state of its key.
    std::map<std::tuple<std::string, double, double>, Measured> lines;

    void SetSize(double pixels) const {
        FT_Set_Char_Size(face, 0, static_cast<FT_F26Dot6>(pixels * kFine * 64), 72, 72);
    }

    /// The letters of a line and, behind the last, where the pen ends.
    std::vector<Letter> Set(const std::string& text, double spacing) const {
        std::vector<Letter> letters;
        double pen = 0;
        FT_UInt before = 0;
        for (const char c : text) {
            const FT_UInt glyph = FT_Get_Char_Index(face, static_cast<unsigned char>(c));
            FT_Vector kern{0, 0};
            if (before != 0) FT_Get_Kerning(face, before, glyph, FT_KERNING_UNFITTED, &kern);
            pen += static_cast<double>(kern.x) / 64 * kEnlarged;
            letters.push_back({glyph, pen});
            FT_Load_Glyph(face, glyph, FT_LOAD_NO_HINTING);
            pen += static_cast<double>(face->glyph->linearHoriAdvance) / 65536 * kEnlarged +
                   spacing * kScale;
            before = glyph;
        }
        letters.push_back({0, pen - spacing * kScale});
        return letters;
    }

    double CapHeight() const {
        FT_Load_Char(face, 'H', kHinted);
        return static_cast<double>(face->glyph->metrics.height) / 64 * kEnlarged;
    }

    Measured Measure(const std::string& text, double pixels, double spacing) const;

    void Draw(const Letter& letter, int margin, int baseline, Drawing& drawing) const {
        constexpr FT_Fixed kOne = 0x10000;
        constexpr FT_Matrix kLarger{kEnlarged * kOne, 0, 0, kEnlarged * kOne};
        FT_Load_Glyph(face, letter.glyph, kHinted);
        FT_GlyphSlot slot = face->glyph;
        FT_Outline_Transform(&slot->outline, &kLarger);
        FT_Render_Glyph(slot, FT_RENDER_MODE_NORMAL);
        const int left = margin + static_cast<int>(std::lround(letter.pen)) + slot->bitmap_left;
        const int top = baseline - slot->bitmap_top;
        for (int y = 0; y < static_cast<int>(slot->bitmap.rows); ++y) {
            for (int x = 0; x < static_cast<int>(slot->bitmap.width); ++x) {
                if (slot->bitmap.buffer[y * slot->bitmap.pitch + x] >= 128) {
                    drawing.ink[drawing.Index(left + x, top + y)] = true;
                }
            }
        }
    }
};

Font::Font(const std::string& file) : face_(std::make_unique<Face>()) {
    if (FT_Init_FreeType(&face_->library) != 0 ||
        FT_New_Face(face_->library, file.c_str(), 0, &face_->face) != 0) {
        throw std::runtime_error("cannot read the font " + file);
    }
}

Font::~Font() {
    FT_Done_Face(face_->face);
    FT_Done_FreeType(face_->library);
}

Shape Font::LineFrom(const std::string& text, double pixels, Vec2 leftMiddle,
                     double spacing) const {
    const double half = Width(text, pixels, spacing) / 2;
    return Line(text, pixels, leftMiddle + Vec2{half, 0}, spacing);
}

double Font::Width(const std::string& text, double pixels, double spacing) const {
    face_->SetSize(pixels);
    return face_->Set(text, spacing).back().pen / kScale;
}

Font::Face::Measured Font::Face::Measure(const std::string& text, double pixels,
                                         double spacing) const {
    SetSize(pixels);
    const std::vector<Letter> letters = Set(text, spacing);
    const int margin = kReach * kScale;
    const int ascent = static_cast<int>(pixels * kScale * 1.2);
    const int baseline = margin + ascent;
    Drawing drawing{static_cast<int>(letters.back().pen + pixels) + 2 * margin,
                    2 * margin + ascent + static_cast<int>(pixels * kScale * 0.5),
                    {}};
    drawing.ink.resize(drawing.Index(0, drawing.height));
    for (std::size_t i = 0; i + 1 < letters.size(); ++i) {
        Draw(letters[i], margin, baseline, drawing);
    }

    std::vector<double> distance = drawing.DistanceTo(true);
    const std::vector<double> depth = drawing.DistanceTo(false);
    for (std::size_t i = 0; i < distance.size(); ++i) {
        distance[i] = (distance[i] - depth[i]) / kScale;
    }
    return {std::make_shared<const std::vector<double>>(std::move(distance)),
            drawing.width,
            drawing.height,
            margin + letters.back().pen / 2,
            baseline,
            CapHeight()};
}

Shape Font::Line(const std::string& text, double pixels, Vec2 center, double spacing) const {
    const auto [place, isNew] = face_->lines.try_emplace({text, pixels, spacing});
    Face::Measured& line = place->second;
    if (isNew) line = face_->Measure(text, pixels, spacing);
    // The letters stand on the edge of a pixel.
    const double foot = std::round(center.y * kFine + line.capHeight / 2 / kEnlarged) / kFine;
    const Vec2 origin =
        Vec2{center.x, foot} - Vec2{line.middle - 0.5, line.baseline - 0.5} * (1.0 / kScale);
    return [grid = DistanceGrid(line.distances, line.width, line.height, origin, 1.0 / kScale)](
               Vec2 p) { return grid.At(p); };
}

}  // namespace quendrel::art
