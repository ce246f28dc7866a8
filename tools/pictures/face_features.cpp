#include <cmath>

#include "faces.h"

// A person's head, eyes, brows, nose and mouth. Here the unit is always 1 and the origin the middle of the
// head.
namespace quillet {
namespace {

using namespace palette;

constexpr double kWhiteLuminance = 0.40, kTeethLuminance = 0.42;

QColor LineColour(const Portrait& portrait) { return portrait.Skin(0.76); }

void PaintEars(Portrait& portrait) {
    const double w = portrait.sitter.width, h = portrait.sitter.height;
    for (const double side : {-1.0, 1.0}) {
        const QPointF at(side * w * 0.49, h * 0.05);
        FillEllipse(portrait.painter, at, 7, 10.4, portrait.Skin(side < 0 ? 0.08 : 0.5));
        Stroke(portrait.painter,
               Scaled(Shape("M .5,-.5 C -.5,-.7 -.6,.2 .1,.5"), -side * 5, 8).translated(at),
               portrait.Skin(side < 0 ? 0.42 : 0.7), 1.4);
    }
}

void PaintBlush(Portrait& portrait) {
    const double w = portrait.sitter.width, h = portrait.sitter.height;
    const bool warm = portrait.mood == kPleased || portrait.mood == kWinner;
    for (const double side : {-1.0, 1.0}) {
        const QPointF at(side * w * 0.31, h * 0.17);
        QRadialGradient blush(at, 11);
        const QColor red = Mix(portrait.Lit(Rgb(0xB8483C)), portrait.Skin(), 0.15);
        blush.setColorAt(0, Sheer(red, warm ? 0.75 : 0.4));
        blush.setColorAt(1, Sheer(red, 0));
        FillEllipse(portrait.painter, at, 11, 9, blush);
    }
}

// --- Eyes ---

struct EyeSize {
    double x, y, iris;
};

EyeSize SizeOf(EyeShape shape) {
    switch (shape) {
        case EyeShape::Round:
            return {9.4, 9.2, 5.6};
        case EyeShape::Almond:
            return {9.2, 6.0, 4.7};
        default:
            return {8.4, 6.8, 4.8};
    }
}

QPainterPath EyeOutline(EyeShape shape, EyeSize size) {
    if (shape == EyeShape::Almond) {
        return Scaled(Shape("M -1.1,.16 C -.6,-1.1 .5,-1.2 1.1,-.3 C .7,.9 -.5,1.05 -1.1,.16 Z"), size.x,
                      size.y);
    }
    return Scaled(Shape("E 0,0 1,1"), size.x, size.y);
}

// Laughing, eyes are shut in an arc.
void PaintShutEye(Portrait& portrait, QPointF at, EyeSize size) {
    Stroke(portrait.painter,
           Scaled(Shape("M -1.05,.35 C -.6,-.75 .6,-.75 1.05,.35"), size.x, 6.4).translated(at),
           LineColour(portrait), 2.8);
}

void PaintOpenEye(Portrait& portrait, QPointF at, double side, EyeSize size) {
    QPainter& painter = portrait.painter;
    const EyeShape shape = portrait.sitter.eyes;
    // An almond's outer corner lies higher, on both sides.
    const QPainterPath outline = Scaled(EyeOutline(shape, size), side < 0 ? -1 : 1, 1).translated(at);
    const double lids = std::min(1.0, portrait.expression.lids);
    const QPointF iris = at + QPointF(portrait.mood == kDispleased ? 2.6 : 0.8,
                                      portrait.expression.gaze * 0.8 + (1 - lids) * 2.6);
    painter.save();
    const QColor white = Capped(Rgb(0xE2D8C4), kWhiteLuminance);
    Light(portrait, outline,
          Ramp(at - QPointF(0, size.y), at + QPointF(0, size.y * 0.4), Darker(white, 0.45), white));
    painter.setClipPath(outline);
    FillEllipse(painter, iris, size.iris, size.iris, Rgb(0x2A1A10));
    FillEllipse(painter, iris + QPointF(0, 0.8), size.iris * 0.82, size.iris * 0.76, Rgb(0x6A4524));
    FillEllipse(painter, iris, size.iris * 0.54, size.iris * 0.54, Rgb(0x0B090A));
    FillEllipse(painter, iris + QPointF(-1.7, -1.9), 1.5, 1.5, Capped(kWhite, 0.75));
    if (lids < 1) {
        painter.save();
        painter.translate(at - QPointF(0, size.y));
        painter.rotate(side * (portrait.mood == kDispleased ? -13 : 12));
        painter.fillRect(QRectF(-size.x * 1.7, -9, size.x * 3.4, 9 + 2 * size.y * (1 - lids)),
                         portrait.Skin(0.2));
        painter.restore();
    }
    if (portrait.mood == kPleased) {
        FillEllipse(painter, at + QPointF(0, size.y * 1.65), size.x * 1.5, size.y * 1.02,
                    portrait.Skin(0.06));
    }
    painter.restore();

    const QColor line = LineColour(portrait);
    if (portrait.mood == kPleased) {
        Stroke(painter, Scaled(Shape("M -.95,.86 C -.5,.46 .5,.46 .95,.86"), size.x, size.y).translated(at),
               line, 1.3);
    }
    if (lids < 1) {
        painter.save();
        painter.translate(at - QPointF(0, size.y * (2 * lids - 1)));
        painter.rotate(side * (portrait.mood == kDispleased ? -13 : 12));
        painter.setClipRect(QRectF(-size.x * 1.2, -12, size.x * 2.4, 24));
        Stroke(painter, Scaled(Shape("M -.98,.15 Q 0,-.12 .98,.15"), size.x, size.y), line, 2);
        painter.restore();
    } else if (shape == EyeShape::Almond) {
        const QPainterPath lash =
            Scaled(Shape("M -1.1,.16 C -.6,-1.1 .5,-1.2 1.1,-.3 L 1.42,-.62"), size.x, size.y);
        Stroke(painter, Scaled(lash, side < 0 ? -1 : 1, 1).translated(at), Darker(line, 0.5), 2.2);
    } else {
        Stroke(painter,
               Scaled(Shape("M -1,-.05 C -.85,-1.28 .85,-1.28 1,-.05"), size.x, size.y).translated(at), line,
               1.9);
    }
}

void PaintEyes(Portrait& portrait) {
    const EyeSize size = SizeOf(portrait.sitter.eyes);
    for (const double side : {-1.0, 1.0}) {
        const QPointF at = portrait.Eye(side);
        QRadialGradient socket(at, size.x * 1.6);
        socket.setColorAt(0.4, Sheer(portrait.Skin(0.6), 0.32));
        socket.setColorAt(1, Sheer(portrait.Skin(0.6), 0));
        FillEllipse(portrait.painter, at, size.x * 1.6, size.x * 1.5, socket);
        if (portrait.expression.lids == 0) {
            PaintShutEye(portrait, at, size);
        } else {
            PaintOpenEye(portrait, at, side, size);
        }
    }
}

void PaintBrows(Portrait& portrait) {
    const Expression& mood = portrait.expression;
    const double width = portrait.sitter.browWidth;
    const double y = portrait.Eye(1).y() - SizeOf(portrait.sitter.eyes).y - 5.6 - mood.browLift;
    for (const double side : {-1.0, 1.0}) {
        const double x = portrait.Eye(side).x();
        QPainterPath brow;  // thick inside, thin outside
        brow.moveTo(x - side * 9.6, y - mood.browTilt - width * 0.5);
        brow.quadTo(x + side * 1, y - 4.6 - width * 0.5 - mood.browTilt * 0.2, x + side * 11,
                    y + mood.browTilt * 0.7);
        brow.quadTo(x + side * 1, y - 4.2 + width * 0.6 - mood.browTilt * 0.2, x - side * 9,
                    y - mood.browTilt + width * 0.5);
        brow.closeSubpath();
        Stroke(portrait.painter, brow, portrait.Lit(portrait.sitter.brows), 1.2);
        Fill(portrait.painter, brow, portrait.Lit(portrait.sitter.brows));
    }
    if (portrait.mood != kDispleased) return;
    Stroke(portrait.painter, Shape("M -2.2,-4 L -2.8,1 M 2.2,-4 L 2.8,1").translated(0, y + 2),
           portrait.Skin(0.5), 1.2);
}

// --- Nose and mouth ---

void PaintNose(Portrait& portrait) {
    QPainter& painter = portrait.painter;
    const double h = portrait.sitter.height;
    const auto at = [&](const char* shape) { return Shape(shape).translated(0, h * 0.16); };
    const QColor line = LineColour(portrait);
    switch (portrait.sitter.nose) {
        case NoseShape::Small:
            Fill(painter, at("M 1,-16 C 4,-8 7,-2 6,0 C 4,2 0,2 1,-16 Z"), Sheer(portrait.Skin(0.6), 0.32));
            Stroke(painter, at("M -4.4,-.4 Q 0,2.8 5,-.8"), line, 1.7);
            break;
        case NoseShape::Long:
            Fill(painter, at("M 1,-20 C 4,-10 10,-3 7,1 C 4,3 0,2 1,-20 Z"), Sheer(portrait.Skin(0.6), 0.42));
            Stroke(painter, at("M 2,-19 C 3,-10 9.6,-3.6 7,.6 Q 2,3 -3,.6"), line, 1.7);
            break;
        case NoseShape::Red:
            FillEllipse(painter, {0, h * 0.11}, 9, 7,
                        Ramp(QPointF(-7, h * 0.06), QPointF(8, h * 0.18), portrait.Lit(Rgb(0xC46A52)),
                             Darker(portrait.Lit(Rgb(0xA04A3A)), 0.45)));
            break;
        case NoseShape::Snub:
            FillEllipse(painter, {0.6, h * 0.135}, 5, 3.6, portrait.Skin(0.32));
            FillEllipse(painter, {-0.6, h * 0.122}, 3, 2, portrait.Skin(0.02));
            break;
    }
}

void PaintOpenMouth(Portrait& portrait, double half, double y, double open) {
    QPainter& painter = portrait.painter;
    const double deep = 9 + 11 * open;
    QPainterPath mouth;
    mouth.moveTo(-half, -3);
    mouth.quadTo(0, 1, half, -3);
    mouth.cubicTo(half * 0.8, deep * 0.72, half * 0.3, deep * 0.82, 0, deep * 0.82);
    mouth.cubicTo(-half * 0.3, deep * 0.82, -half * 0.8, deep * 0.72, -half, -3);
    mouth.translate(0, y);
    Fill(painter, mouth, Rgb(0x2A0D12));
    painter.save();
    painter.setClipPath(mouth);
    FillEllipse(painter, {0, y + deep * 0.86}, half * 0.56, deep * 0.3, portrait.Lit(Rgb(0xA8484C)));
    QPainterPath teeth;
    teeth.moveTo(-half * 0.88, -4);
    teeth.lineTo(half * 0.88, -4);
    teeth.quadTo(half * 0.6, 1.4 + 1.6 * open, 0, 1.9 + 1.6 * open);
    teeth.quadTo(-half * 0.6, 1.4 + 1.6 * open, -half * 0.88, -4);
    Light(portrait, teeth.translated(0, y).intersected(mouth), Capped(Rgb(0xE8DFC8), kTeethLuminance));
    painter.restore();
    Stroke(painter, mouth, portrait.Lit(portrait.sitter.lips), 1.9);
}

void PaintMouth(Portrait& portrait) {
    const Expression& mood = portrait.expression;
    const double y = portrait.sitter.height * 0.31;
    const double half = portrait.sitter.width * (0.17 + 0.05 * std::abs(mood.smile));
    if (mood.laugh > 0) return PaintOpenMouth(portrait, half, y, mood.laugh);
    const double corner = y - mood.smile * 3.6;
    QPainterPath mouth;
    mouth.moveTo(-half, corner);
    mouth.quadTo(portrait.mood == kDispleased ? 3 : 0, y + mood.smile * 8, half, corner);
    const bool painted = portrait.sitter.paintedLips;
    if (painted) {  // lips have a body of their own
        QPainterPath lips = mouth;
        lips.quadTo(0, y + mood.smile * 8 + 7, -half, corner);
        Fill(portrait.painter, lips, portrait.Lit(portrait.sitter.lips));
        QPainterPath upper = mouth;
        upper.quadTo(half * 0.4, y + mood.smile * 5 - 5, 0, y + mood.smile * 6 - 1.6);
        upper.quadTo(-half * 0.4, y + mood.smile * 5 - 5, -half, corner);
        Fill(portrait.painter, upper, Darker(portrait.Lit(portrait.sitter.lips), 0.2));
    }
    Stroke(portrait.painter, mouth,
           painted ? Darker(portrait.Lit(portrait.sitter.lips), 0.6) : LineColour(portrait),
           painted ? 1.3 : 2.3);
    if (!painted) {
        Stroke(portrait.painter,
               Shape("M -4.5,0 Q 0,1.8 4.5,0").translated(0, y + std::max(0.0, mood.smile) * 4 + 6),
               portrait.Skin(0.42), 1.3);
    }
    for (const double side : {-1.0, 1.0}) {  // the corners
        FillEllipse(portrait.painter, {side * (half + 0.8), corner}, 1.5, 1.3,
                    Sheer(portrait.Skin(0.6), 0.6));
    }
}

void PaintDrop(Portrait& portrait) {
    if (portrait.mood != kLoser) return;
    const double w = portrait.sitter.width, h = portrait.sitter.height;
    const QPainterPath drop =
        Shape("M 0,-8 C 2.6,-3 5,0 5,3 C 5,6 2.8,7.6 0,7.6 C -2.8,7.6 -5,6 -5,3 C -5,0 -2.6,-3 0,-8 Z")
            .translated(-w * 0.43, -h * 0.22);
    Fill(portrait.painter, drop,
         Ramp(drop.boundingRect(), portrait.Lit(Rgb(0xA8D4E8)), portrait.Lit(Rgb(0x4E8AA8))));
    FillEllipse(portrait.painter, {-w * 0.43 - 1.6, -h * 0.22 + 2.2}, 1.1, 1.9, portrait.Lit(kWhite));
}

}  // namespace

QPainterPath HeadShape(const Sitter& sitter) {
    const double w = sitter.width / 2, h = sitter.height / 2, jaw = w * sitter.jaw, chin = w * sitter.chin;
    QPainterPath head;
    head.moveTo(0, -h);
    head.cubicTo(w * 0.72, -h, w, -h * 0.62, w, -h * 0.08);
    head.cubicTo(w, h * 0.30, jaw * 1.02, h * 0.52, jaw * 0.92, h * 0.66);
    head.cubicTo(jaw * 0.8, h * 0.88, chin * 1.15, h, 0, h);
    head.cubicTo(-chin * 1.15, h, -jaw * 0.8, h * 0.88, -jaw * 0.92, h * 0.66);
    head.cubicTo(-jaw * 1.02, h * 0.52, -w, h * 0.30, -w, -h * 0.08);
    head.cubicTo(-w, -h * 0.62, -w * 0.72, -h, 0, -h);
    return head;
}

void PaintPersonHead(Portrait& portrait) {
    QPainter& painter = portrait.painter;
    const double w = portrait.sitter.width, h = portrait.sitter.height;
    PaintEars(portrait);
    const QPainterPath head = HeadShape(portrait.sitter);
    QRadialGradient light(QPointF(-w * 0.24, -h * 0.20), w * 1.02);
    light.setColorAt(0, portrait.Lit(Lighter(portrait.sitter.skin, 0.18)));
    light.setColorAt(0.42, portrait.Skin());
    light.setColorAt(0.76, portrait.Skin(0.30));
    light.setColorAt(1, portrait.Skin(0.55));
    Fill(painter, head, light);
    painter.save();
    painter.setClipPath(head);
    PaintBlush(portrait);
    FillEllipse(painter, {0, -h * 0.47}, w * 0.54, h * 0.20,
                Sheer(portrait.Skin(0.7), 0.28));  // below the hair
    painter.restore();
}

void PaintPersonFeatures(Portrait& portrait) {
    PaintEyes(portrait);
    PaintBrows(portrait);
    PaintNose(portrait);
    PaintMouth(portrait);
    PaintDrop(portrait);
}

}  // namespace quillet
