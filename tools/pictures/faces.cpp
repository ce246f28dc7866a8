#include "faces.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "pictures.h"

namespace quillet {
namespace {

using namespace palette;

constexpr int kWidth = 215, kHeight = 150;
constexpr QPointF kHeadMiddle(156, 86);  // the text column stays free on its left
constexpr double kVeilWidth = 150;

// The most luminance under text, so that it stands out 4.6 to 1.
constexpr double kUnderWhite = 0.172, kUnderYellow = 0.154;
constexpr double kBackdropLuminance = 0.042;

constexpr std::array<Expression, kMoodCount> kExpressions = {{
    {0, 0, 1, 0.58, 0, 0, 0},            // normal
    {2.5, 0.5, 1.05, 0.85, 0.3, 0, -2},  // pleased
    {-1.5, -3.6, 0.62, -0.6, 0, 1, 2},   // displeased
    {4, 0.8, 0, 1, 1, 0, -5},            // winner
    {1, 3.6, 0.55, -0.5, 0, 2.6, 6},     // loser
}};

const std::array kSitters = {&kMarguerite, &kBartleby, &kOctavia, &kErasmus,
                             &kPip,        &kZenobia,  &kStrix,   &kCogwell};

void PaintBackdrop(const Portrait& portrait) {
    QPainter& painter = portrait.painter;
    QColor colour = portrait.sitter.backdrop;
    if (portrait.mood == kLoser) colour = Mix(colour, Rgb(0x2A2E33), 0.6);
    QRadialGradient light(QPointF(146, 52), 150);
    light.setColorAt(0, Capped(Lighter(colour, 0.10), kBackdropLuminance));
    light.setColorAt(0.6, Darker(colour, 0.28));
    light.setColorAt(1, Darker(colour, 0.64));
    painter.fillRect(QRect(0, 0, kWidth, kHeight), light);
    if (portrait.mood != kWinner) return;
    QRadialGradient shine(kHeadMiddle, 150);
    shine.setColorAt(0, Sheer(portrait.Lit(kBrass), 0.42));
    shine.setColorAt(1, Sheer(portrait.Lit(kBrass), 0.10));
    for (int k = 0; k < 12; ++k) {
        const auto at = [&](double turn) {
            const double angle = (k + turn) * std::numbers::pi / 6;
            return kHeadMiddle + 240 * QPointF(std::cos(angle), std::sin(angle));
        };
        QPainterPath ray(kHeadMiddle);
        ray.lineTo(at(-0.18));
        ray.lineTo(at(0.18));
        Fill(painter, ray, shine);
    }
}

void PaintStars(const Portrait& portrait) {
    constexpr std::array<QPointF, 6> kStars = {
        {{97, 44}, {108, 24}, {128, 12}, {184, 12}, {199, 30}, {203, 62}}};
    for (std::size_t k = 0; k < kStars.size(); ++k) {
        const double size = k % 2 == 0 ? 5.5 : 4;
        const QPainterPath star = Scaled(
            Shape("M 0,-1 Q .14,-.14 1,0 Q .14,.14 0,1 Q -.14,.14 -1,0 Q -.14,-.14 0,-1 Z"), size, size);
        Fill(portrait.painter, star.translated(kStars[k]), portrait.Lit(kBrassLight));
    }
}

void PaintBody(Portrait& portrait) {
    QPainter& painter = portrait.painter;
    if (portrait.sitter.kind == Kind::Person) {
        Fill(painter, Shape("M -13,20 L 13,20 L 13.6,38 L 20,46 L -20,46 L -13.6,38 Z"),
             Ramp(QPointF(-14, 20), QPointF(14, 44), portrait.Skin(0.30), portrait.Skin(0.58)));
        Fill(painter, Shape("M -13,24 C -6,34 8,36 13,26 L 13,40 C 4,46 -8,42 -13,34 Z"),
             Sheer(portrait.Skin(0.75), 0.45));  // the chin's shadow
    }
    portrait.sitter.clothes(portrait);
}

void PaintHead(Portrait& portrait) {
    const Sitter& sitter = portrait.sitter;
    portrait.painter.rotate(portrait.expression.roll);
    portrait.unit = {sitter.width / 2, sitter.height / 2};
    sitter.behind(portrait);
    switch (sitter.kind) {
        case Kind::Person:
            PaintPersonHead(portrait);
            sitter.hairdo(portrait);
            PaintPersonFeatures(portrait);
            break;
        case Kind::Owl:
            PaintOwlHead(portrait);
            sitter.hairdo(portrait);
            PaintOwlFeatures(portrait);
            break;
        case Kind::Robot:
            PaintRobotHead(portrait);
            sitter.hairdo(portrait);
            PaintRobotFeatures(portrait);
            break;
    }
    sitter.things(portrait);
}

void PaintVeil(QPainter& painter) {
    const QColor dark = Rgb(0x0D1016);
    QLinearGradient veil(QPointF(0, 0), QPointF(kVeilWidth, 0));
    veil.setColorAt(0, Sheer(dark, 0.62));
    veil.setColorAt(0.55, Sheer(dark, 0.34));
    veil.setColorAt(1, Sheer(dark, 0));
    painter.fillRect(QRect(0, 0, kWidth, kHeight), veil);
}

// Sees to what the colours alone do not promise: highlights and mixtures keep to the cap as well.
void CapLuminance(QImage& picture, const QPainterPath& lights, double luminance) {
    QImage spared(picture.size(), QImage::Format_Grayscale8);
    spared.fill(0);
    QPainter painter(&spared);
    painter.fillPath(lights, Qt::white);
    painter.end();
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (qRed(spared.pixel(x, y)) > 0) continue;
            picture.setPixelColor(x, y, Capped(picture.pixelColor(x, y), luminance));
        }
    }
}

}  // namespace

QPainterPath In(const Portrait& portrait, const char* shape) {
    return Scaled(Shape(shape), portrait.unit.x(), portrait.unit.y());
}

void Solid(Portrait& portrait, const char* shape, QColor colour) {
    const QPainterPath path = In(portrait, shape);
    const QRectF area = path.boundingRect();
    QLinearGradient light(area.topLeft(), area.bottomRight());
    light.setColorAt(0, portrait.Lit(Lighter(colour, 0.14)));
    light.setColorAt(0.4, portrait.Lit(colour));
    light.setColorAt(1, Darker(portrait.Lit(colour), 0.5));
    Fill(portrait.painter, path, light);
}

void Flat(Portrait& portrait, const char* shape, QColor colour, double opacity) {
    Fill(portrait.painter, In(portrait, shape), Sheer(portrait.Lit(colour), opacity));
}

void Line(Portrait& portrait, const char* shape, QColor colour, double width, double opacity) {
    Stroke(portrait.painter, In(portrait, shape), Sheer(portrait.Lit(colour), opacity), width);
}

void Light(Portrait& portrait, const QPainterPath& shape, const QBrush& brush) {
    Fill(portrait.painter, shape, brush);
    portrait.lights.addPath(portrait.painter.transform().map(shape));
    portrait.lights.setFillRule(Qt::WindingFill);
}

QImage DrawOpponent(std::string_view name, int mood, int scale) {
    const auto found = std::ranges::find(kSitters, name, [](const Sitter* sitter) { return sitter->name; });
    if (found == kSitters.end()) qFatal("Nobody has drawn the opponent %s", std::string(name).c_str());
    const Sitter& sitter = **found;
    const double luminance = sitter.yellowText ? kUnderYellow : kUnderWhite;
    QPainterPath lights;
    QImage picture = Draw(kWidth, kHeight, scale, [&](QPainter& painter) {
        Portrait portrait{painter, sitter, mood, kExpressions[static_cast<std::size_t>(mood - 1)], luminance};
        PaintBackdrop(portrait);
        painter.save();
        painter.translate(kHeadMiddle);
        PaintBody(portrait);
        PaintHead(portrait);
        painter.restore();
        if (mood == kWinner) PaintStars(portrait);
        PaintVeil(painter);
        lights = portrait.lights;
    });
    CapLuminance(picture, lights, luminance);
    QPainter painter(&picture);
    painter.scale(scale, scale);
    BrassFrame(painter, QRectF(0, 0, kWidth, kHeight));
    return picture;
}

}  // namespace quillet
