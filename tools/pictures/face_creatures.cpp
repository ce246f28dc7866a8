#include <array>
#include <cmath>
#include <numbers>

#include "faces.h"

// The two who are no people: an owl with a monocle and a clockwork of brass.
namespace quillet {
namespace {

using namespace palette;

constexpr QColor kDark = Rgb(0x0D1016);

// --- Strix ---

constexpr double kOwlEye = 13;

void PaintBreast(Portrait& portrait) {
    const Sitter& who = portrait.sitter;
    constexpr const char* kBreast = "M -60,70 C -60,44 -40,36 -20,34 L 20,34 C 40,36 60,44 60,70 Z";
    Solid(portrait, kBreast, who.cloth);
    portrait.painter.save();
    portrait.painter.setClipPath(In(portrait, kBreast));
    for (int row = 0; row < 4; ++row) {  // feathers lie over each other like tiles of a roof
        for (int k = -6; k <= 6; ++k) {
            const QPointF at(k * 10 + (row % 2 == 0 ? 0 : 5), 40 + row * 8);
            const QPainterPath feather = Shape("M -6,-6 C -6,2 -3,6.4 0,7 C 3,6.4 6,2 6,-6 Z").translated(at);
            const QColor colour = portrait.Lit(row % 2 == 0 ? who.trim : Darker(who.trim, 0.18));
            Fill(portrait.painter, feather,
                 Ramp(at - QPointF(6, 6), at + QPointF(5, 8), colour, Darker(colour, 0.55)));
            Stroke(portrait.painter, Shape("M 0,-3 L 0,4").translated(at), Sheer(kDark, 0.35), 1);
        }
    }
    portrait.painter.restore();
}

double TuftTurn(int mood) {
    constexpr std::array<double, 6> kTurns = {0, 0, -9, 14, -15, 26};
    return kTurns[static_cast<std::size_t>(mood)];
}

void PaintTufts(Portrait& portrait) {
    const double w = portrait.sitter.width, h = portrait.sitter.height;
    for (const double side : {-1.0, 1.0}) {
        portrait.painter.save();
        portrait.painter.scale(side, 1);
        portrait.painter.translate(w * 0.24, -h * 0.34);
        portrait.painter.rotate(TuftTurn(portrait.mood));
        portrait.painter.translate(-w * 0.24, h * 0.34);
        const QColor colour = side < 0 ? Lighter(portrait.sitter.hair, 0.12) : portrait.sitter.hair;
        Solid(portrait,
              "M .06,-.70 C .40,-.92 .72,-1.06 1.02,-1.46 C 1.08,-1.0 1.04,-.66 .90,-.40 C .64,-.62 .36,-.66 "
              ".06,-.70 Z",
              colour);
        Line(portrait, "M .44,-.80 C .64,-.90 .80,-1.02 .94,-1.20 M .58,-.70 C .76,-.78 .88,-.88 .97,-1.02",
             Darker(colour, 0.5), 1.2, 0.8);
        portrait.painter.restore();
    }
}

void PaintFaceDiscs(Portrait& portrait) {
    const double w = portrait.sitter.width, h = portrait.sitter.height;
    for (const double side : {-1.0, 1.0}) {
        const QPointF at(side * w * 0.235, portrait.Eye(side).y() + 3);
        QRadialGradient disc(at, w * 0.31);
        disc.setColorAt(0, portrait.Lit(Rgb(0x8A6C48)));
        disc.setColorAt(0.55, portrait.Lit(Rgb(0xB89A74)));
        disc.setColorAt(0.9, portrait.Lit(side < 0 ? Rgb(0xA88A64) : Rgb(0x846A4C)));
        disc.setColorAt(1, Darker(portrait.sitter.hair, 0.25));
        FillEllipse(portrait.painter, at, w * 0.285, h * 0.335, disc);
        for (int k = 0; k < 18; ++k) {
            const double turn = k * 20 * std::numbers::pi / 180;
            const QPointF out(std::cos(turn), std::sin(turn) * 1.12);
            QPainterPath ray(at + out * w * 0.175);
            ray.lineTo(at + out * w * 0.245);
            Stroke(portrait.painter, ray, Sheer(Rgb(0x4A3824), 0.5), 1);
        }
    }
}

void PaintOwlEye(Portrait& portrait, double side) {
    QPainter& painter = portrait.painter;
    const QPointF at = portrait.Eye(side);
    if (portrait.expression.lids == 0) {
        Stroke(painter, Scaled(Shape("M -1,.3 C -.6,-.8 .6,-.8 1,.3"), kOwlEye, 10).translated(at), kDark, 3);
        return;
    }
    QPainterPath eye;
    eye.addEllipse(at, kOwlEye, kOwlEye);
    FillEllipse(painter, at, kOwlEye + 1.8, kOwlEye + 1.8, kDark);
    painter.save();
    painter.setClipPath(eye);
    QRadialGradient gold(at + QPointF(0, 3), kOwlEye);
    gold.setColorAt(0, Capped(Rgb(0xF0B838), portrait.luminance));
    gold.setColorAt(1, Darker(Capped(Rgb(0xC07A18), portrait.luminance), 0.3));
    Fill(painter, eye, gold);
    const double lids = std::min(1.0, portrait.expression.lids);
    const QPointF pupil =
        at + QPointF(portrait.mood == kDispleased ? 2.4 : 1, portrait.expression.gaze + (1 - lids) * 3);
    FillEllipse(painter, pupil, 7, 7, Rgb(0x0C0A08));
    QPainterPath spark;
    spark.addEllipse(pupil + QPointF(-2.6, -2.8), 2.1, 2.1);
    Light(portrait, spark, Capped(kWhite, 0.75));
    if (lids < 1) {
        painter.translate(at - QPointF(0, kOwlEye));
        painter.rotate(side * (portrait.mood == kDispleased ? -16 : 13));
        painter.fillRect(QRectF(-30, -14, 60, 14 + 2 * kOwlEye * (1 - lids)), portrait.Lit(Rgb(0x6A5238)));
        painter.fillRect(QRectF(-30, 2 * kOwlEye * (1 - lids) - 1.6, 60, 1.8), kDark);
    } else if (portrait.mood == kPleased) {
        FillEllipse(painter, at + QPointF(0, kOwlEye * 1.5), kOwlEye * 1.5, kOwlEye * 0.95, kDark);
        FillEllipse(painter, at + QPointF(0, kOwlEye * 1.6), kOwlEye * 1.5, kOwlEye * 0.95,
                    portrait.Lit(Rgb(0x9A7C56)));
    }
    painter.restore();
}

void PaintBeak(Portrait& portrait) {
    const bool open = portrait.expression.laugh > 0.5;
    if (open) Solid(portrait, "M -.10,.42 Q 0,.80 .10,.42 Z", kMadderDark);
    Solid(portrait, "M -.15,.16 Q 0,.04 .15,.16 Q .11,.42 0,.60 Q -.11,.42 -.15,.16 Z", kBrass);
    Line(portrait, "M -.04,.20 L -.05,.26 M .05,.20 L .06,.26", kDark, 1.2);
    // The feathers below the beak bend as a mouth does.
    const double bend = portrait.expression.smile * 0.10;
    QPainterPath line;
    line.moveTo(-0.30, 0.66 - bend);
    line.quadTo(0, 0.66 + bend * 1.6, 0.30, 0.66 - bend);
    Stroke(portrait.painter, Scaled(line, portrait.unit.x(), portrait.unit.y()), Sheer(kDark, 0.7), 2);
}

void PaintOwlBrows(Portrait& portrait) {
    const Expression& mood = portrait.expression;
    for (const double side : {-1.0, 1.0}) {
        const QPointF at = portrait.Eye(side) + QPointF(0, -kOwlEye - 3.4 - mood.browLift);
        QPainterPath brow;
        brow.moveTo(at + QPointF(-side * 12.5, 5 - mood.browTilt * 1.3));
        brow.quadTo(at + QPointF(0, -7), at + QPointF(side * 16, -2 + mood.browTilt));
        brow.quadTo(at + QPointF(0, 1), at + QPointF(-side * 12.5, 5 - mood.browTilt * 1.3));
        Stroke(portrait.painter, brow, portrait.Lit(Darker(portrait.sitter.hair, 0.35)), 2.4);
        Fill(portrait.painter, brow, portrait.Lit(Darker(portrait.sitter.hair, 0.35)));
    }
}

void PaintMonocle(Portrait& portrait) {
    const QPointF at = portrait.Eye(1);
    QPainterPath rim;
    rim.addEllipse(at, 16.4, 16.4);
    Stroke(portrait.painter, rim, portrait.Lit(kBrassDark), 3.6);
    Stroke(portrait.painter, rim, portrait.Lit(kBrassLight), 2.2);
    Stroke(portrait.painter, Shape("M -10,-7 C -8,-10.4 -5.6,-11.6 -3,-12.4").translated(at),
           Sheer(portrait.Lit(kWhite), 0.8), 1.6);
    Stroke(portrait.painter, Shape("M 15,6 C 25,26 14,40 20,58").translated(at), portrait.Lit(kBrassLight),
           1.4);
}

// --- Cogwell ---

constexpr QColor kGlow = Rgb(0x6FE6DC), kScreen = Rgb(0x0E1A1E), kLampOff = Rgb(0x143A3E);

void PaintChassis(Portrait& portrait) {
    const Sitter& who = portrait.sitter;
    Solid(portrait, "M -60,70 C -60,52 -50,46 -34,44 L 34,44 C 50,46 60,52 60,70 Z", who.cloth);
    Solid(portrait, "R -15,28 30,7", who.trim);
    Solid(portrait, "R -12,35 24,5", Darker(who.trim, 0.3));
    Solid(portrait, "R -15,40 30,6", who.trim);
    Line(portrait, "M -34,46 L -34,70 M 34,46 L 34,70", Darker(who.cloth, 0.5), 1.4);
    for (const double x : {-46.0, 46.0}) {
        FillEllipse(portrait.painter, {x, 58}, 5.4, 5.4, portrait.Lit(Darker(who.trim, 0.45)));
        FillEllipse(portrait.painter, {x - 0.6, 57.4}, 4.6, 4.6, portrait.Lit(who.trim));
        portrait.painter.fillRect(QRectF(x - 3.6, 57, 6, 1.3), kDark);
    }
    Solid(portrait, "E 0,60 11,11", Rgb(0x8C6E34));
    Flat(portrait, "E 0,60 8.4,8.4", kScreen);
    QPainterPath gear;
    for (int k = 0; k < 32; ++k) {
        const double turn = k * std::numbers::pi / 16;
        const double radius = k % 4 < 2 ? 7 : 5.2;
        const QPointF tip(radius * std::cos(turn), 60 + radius * std::sin(turn));
        k == 0 ? gear.moveTo(tip) : gear.lineTo(tip);
    }
    gear.addEllipse(QPointF(0, 60), 2.2, 2.2);
    Fill(portrait.painter, gear, portrait.Lit(kBrass));
}

void PaintAerial(Portrait& portrait) {
    Solid(portrait, "R -.05,-1.32 .10,.36", Rgb(0x8C6E34));
    Solid(portrait, "B -.22,-1.08 .44,.12 2", Rgb(0x7C6030));
    Solid(portrait, "E 0,-1.38 .145,.14", portrait.mood == kWinner ? kBrassLight : kMadderLight);
    Flat(portrait, "E -.045,-1.42 .04,.035", kWhite);
    for (const double side : {-1.0, 1.0}) {
        portrait.painter.save();
        portrait.painter.scale(side, 1);
        Solid(portrait, "B 1.0,-.24 .20,.52 3", portrait.sitter.trim);
        Line(portrait, "M 1.06,-.08 L 1.16,-.08 M 1.06,.02 L 1.16,.02 M 1.06,.12 L 1.16,.12", kDark, 1.2,
             0.7);
        portrait.painter.restore();
    }
}

void PaintPlates(Portrait& portrait) {
    const QColor seam = Darker(portrait.sitter.skin, 0.6);
    Line(portrait, "M -.97,-.50 L .97,-.50 M -.97,.46 L .97,.46", seam, 1.4, 0.9);
    Line(portrait, "M -.97,-.46 L .97,-.46 M -.97,.50 L .97,.50", Lighter(portrait.sitter.skin, 0.3), 1, 0.6);
    for (const double x : {-0.84, 0.84}) {
        for (const double y : {-0.82, -0.62, 0.62, 0.82}) {
            const QPointF at(x * portrait.unit.x(), y * portrait.unit.y());
            FillEllipse(portrait.painter, at + QPointF(0.5, 0.6), 2.5, 2.5, seam);
            FillEllipse(portrait.painter, at, 2, 2, portrait.Lit(Rgb(0x9A8048)));
        }
    }
}

void PaintLamp(Portrait& portrait, double side) {
    QPainter& painter = portrait.painter;
    constexpr double kRadius = 10.6;
    const QPointF at = portrait.Eye(side);
    const QColor glow = portrait.Lit(kGlow);
    FillEllipse(painter, at, kRadius + 1.6, kRadius + 1.6, kLampOff);
    if (portrait.expression.lids == 0) {
        Stroke(painter, Shape("M -7.4,3.4 C -4.6,-6.4 4.6,-6.4 7.4,3.4").translated(at), glow, 3.6);
        return;
    }
    QPainterPath lamp;
    lamp.addEllipse(at, kRadius, kRadius);
    painter.save();
    painter.setClipPath(lamp);
    QRadialGradient light(at, kRadius);
    light.setColorAt(0, glow);
    light.setColorAt(1, Darker(glow, 0.4));
    Fill(painter, lamp, light);
    const QPointF pupil =
        at + QPointF(portrait.mood == kDispleased ? 2.4 : 0.6, portrait.expression.gaze + 1);
    FillEllipse(painter, pupil, 4.4, 4.4, Rgb(0x0C2124));
    QPainterPath spark;
    spark.addEllipse(pupil + QPointF(-1.6, -1.8), 1.4, 1.4);
    Light(portrait, spark, Capped(kWhite, 0.7));
    const double lids = std::min(1.0, portrait.expression.lids);
    if (lids < 1) {  // shutters
        painter.translate(at - QPointF(0, kRadius));
        painter.rotate(side * (portrait.mood == kDispleased ? -16 : 14));
        painter.fillRect(QRectF(-26, -12, 52, 12 + 2 * kRadius * (1 - lids)), Rgb(0x1C4A4E));
        painter.fillRect(QRectF(-26, 2 * kRadius * (1 - lids) - 1.4, 52, 1.6), Rgb(0x081416));
    } else if (portrait.mood == kPleased) {
        FillEllipse(painter, at + QPointF(0, kRadius * 1.45), kRadius * 1.4, kRadius * 0.95, Rgb(0x1C4A4E));
    }
    painter.restore();
}

// Bars of light, as high as it speaks loud, on a line that bends as a mouth does.
void PaintSpeaker(Portrait& portrait) {
    constexpr std::array<double, 6> kLoud = {0, 3.4, 5.4, 2.4, 8.4, 2};
    const double h = portrait.sitter.height;
    const QRectF slot(-23, h * 0.29 - 2, 46, 16);
    FillRound(portrait.painter, slot.adjusted(-1, -1, 1, 1), 4.4,
              portrait.Lit(Darker(portrait.sitter.skin, 0.5)));
    FillRound(portrait.painter, slot, 3.6, kScreen);
    for (int k = -4; k <= 4; ++k) {
        const double off = k / 4.0;
        const double loud = kLoud[static_cast<std::size_t>(portrait.mood)] * (1 - 0.3 * off * off);
        const double y = slot.center().y() + portrait.expression.smile * 4.6 * (0.5 - off * off);
        FillRound(portrait.painter, {k * 4.7 - 1.5, y - loud / 2, 3, loud}, 1, portrait.Lit(kGlow));
    }
}

void PaintBrowPlates(Portrait& portrait) {
    for (const double side : {-1.0, 1.0}) {
        portrait.painter.save();
        portrait.painter.translate(portrait.Eye(side) +
                                   QPointF(0, -16.4 - portrait.expression.browLift * 0.6));
        portrait.painter.rotate(side * portrait.expression.browTilt * 4.5);
        FillRound(portrait.painter, {-11.5, -1.6, 24, 5}, 2, Darker(portrait.sitter.skin, 0.65));
        FillRound(portrait.painter, {-12, -2.4, 24, 4.8}, 2, portrait.Lit(Rgb(0x9AA0A6)));
        portrait.painter.restore();
    }
}

}  // namespace

void PaintOwlHead(Portrait& portrait) {
    const QPainterPath head = HeadShape(portrait.sitter);
    QRadialGradient light(QPointF(-26, -26), portrait.sitter.width);
    light.setColorAt(0, portrait.Lit(Lighter(portrait.sitter.hair, 0.22)));
    light.setColorAt(0.5, portrait.Lit(portrait.sitter.hair));
    light.setColorAt(1, Darker(portrait.sitter.hair, 0.45));
    Fill(portrait.painter, head, light);
    portrait.painter.save();
    portrait.painter.setClipPath(head);
    PaintFaceDiscs(portrait);
    Solid(portrait, "M 0,-.86 C .16,-.5 .16,-.2 0,.12 C -.16,-.2 -.16,-.5 0,-.86 Z", portrait.sitter.hair);
    for (int row = 0; row < 3; ++row) {
        for (int k = -5; k <= 5; ++k) {
            const QPointF at(k * 8 + (row % 2 == 0 ? 0 : 4), portrait.sitter.height * 0.37 + row * 6);
            Fill(portrait.painter, Shape("M -2.4,-2.4 Q 0,5 2.4,-2.4 Z").translated(at),
                 Sheer(Darker(portrait.sitter.hair, 0.5), 0.75));
        }
    }
    portrait.painter.restore();
}

void PaintOwlFeatures(Portrait& portrait) {
    PaintBeak(portrait);
    for (const double side : {-1.0, 1.0}) PaintOwlEye(portrait, side);
    PaintOwlBrows(portrait);
}

void PaintRobotHead(Portrait& portrait) {
    const double w = portrait.sitter.width, h = portrait.sitter.height;
    const QRectF box(-w / 2, -h / 2, w, h);
    FillRound(portrait.painter, box.adjusted(0, 0, 1.4, 1.8), 13, Darker(portrait.sitter.skin, 0.75));
    QLinearGradient brass(box.topLeft(), box.bottomRight());
    brass.setColorAt(0, portrait.Lit(Lighter(portrait.sitter.skin, 0.22)));
    brass.setColorAt(0.45, portrait.Lit(portrait.sitter.skin));
    brass.setColorAt(1, Darker(portrait.Lit(portrait.sitter.skin), 0.5));
    FillRound(portrait.painter, box, 13, brass);
    FillRound(portrait.painter, {-w * 0.42, -h * 0.19, w * 0.84, h * 0.37}, 14,
              portrait.Lit(Darker(portrait.sitter.skin, 0.5)));
    FillRound(portrait.painter, {-w * 0.40, -h * 0.17, w * 0.80, h * 0.33}, 13, kScreen);
}

void PaintRobotFeatures(Portrait& portrait) {
    for (const double side : {-1.0, 1.0}) PaintLamp(portrait, side);
    PaintBrowPlates(portrait);
    PaintSpeaker(portrait);
    if (portrait.mood == kLoser) {  // a drop of oil
        Solid(portrait,
              "M .46,.30 C .54,.42 .58,.48 .58,.54 C .58,.64 .34,.64 .34,.54 C .34,.48 .38,.42 .46,.30 Z",
              Rgb(0x1C1A18));
    }
}

const Sitter kStrix = {"Strix",
                       false,
                       96,
                       92,
                       0.92,
                       0.60,
                       Kind::Owl,
                       EyeShape::Round,
                       NoseShape::Small,
                       5,
                       false,
                       Rgb(0x6E5A46),
                       Rgb(0x5C4836),
                       Rgb(0x4A3A2C),
                       Rgb(0x4A3A2C),
                       Rgb(0x3A2E26),
                       Rgb(0x7E6850),
                       Rgb(0x1E2E46),
                       PaintBreast,
                       PaintNothing,
                       PaintTufts,
                       PaintMonocle};

const Sitter kCogwell = {"Cogwell",
                         true,
                         84,
                         86,
                         1.0,
                         0.90,
                         Kind::Robot,
                         EyeShape::Round,
                         NoseShape::Small,
                         4,
                         false,
                         Rgb(0x8A7440),
                         Rgb(0x5A4A28),
                         Rgb(0xB8964E),
                         Rgb(0x5A4A28),
                         Rgb(0x4A4E54),
                         Rgb(0x7C828A),
                         Rgb(0x26323A),
                         PaintChassis,
                         PaintAerial,
                         PaintPlates,
                         PaintNothing};

}  // namespace quillet
