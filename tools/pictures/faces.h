// The opponents' portraits: one head from a record of measures and colours, with clothes, hair and things of
// its own, in five moods. A mood moves only brows, lids, gaze, mouth and the head itself.
//
// The window writes its lines over a portrait, in white or yellow. So everything is capped in luminance but
// the small lights that make a face alive: whites of the eyes and teeth.
#pragma once

#include <QPainter>
#include <QPainterPath>
#include <string_view>

#include "brush.h"

namespace quillet {

enum Mood { kNormal = 1, kPleased, kDispleased, kWinner, kLoser };

struct Expression {
    double browLift;  // units up
    double browTilt;  // units that the inner ends are higher
    double lids;      // opening: 1 open, 0 shut in an arc
    double smile;     // corners of the mouth: 1 up, -1 down
    double laugh;     // opening of the mouth, 0 to 1
    double gaze;      // units down
    double roll;      // of the head, degrees clockwise
};

struct Portrait;
using Part = void (*)(Portrait&);

enum class Kind { Person, Owl, Robot };
enum class EyeShape { Calm, Round, Almond };
enum class NoseShape { Small, Long, Red, Snub };

struct Sitter {
    std::string_view name;
    bool yellowText;       // the window writes in yellow, not white
    double width, height;  // of the head, in units
    double jaw, chin;      // their width, 1 as wide as the head
    Kind kind;
    EyeShape eyes;
    NoseShape nose;
    double browWidth;
    bool paintedLips;
    QColor skin, hair, brows, lips, cloth, trim, backdrop;
    // From the back to the front. Clothes have their origin in the middle of the head and a unit of 1; the
    // others have a unit of half the head's width and height, and turn with the head.
    Part clothes, behind, hairdo, things;
};

extern const Sitter kMarguerite, kBartleby, kOctavia, kErasmus, kPip, kZenobia, kStrix, kCogwell;

// A portrait while it is painted.
struct Portrait {
    QPainter& painter;
    const Sitter& sitter;
    int mood;
    Expression expression;
    double luminance;          // the most that a colour may have
    QPointF unit = {1, 1};     // of the shapes that follow
    QPainterPath lights = {};  // in the picture's pixels: what may be brighter

    // In the middle of an eye: side is -1 or 1.
    QPointF Eye(double side) const { return {side * sitter.width * 0.215, -sitter.height * 0.02}; }
    QColor Lit(QColor colour) const { return Capped(colour, luminance); }
    QColor Skin(double dark = 0) const { return Darker(Lit(sitter.skin), dark); }
};

QPainterPath In(const Portrait& portrait, const char* shape);
// A solid: light at the upper left, dark at the lower right.
void Solid(Portrait& portrait, const char* shape, QColor colour);
void Flat(Portrait& portrait, const char* shape, QColor colour, double opacity = 1);
void Line(Portrait& portrait, const char* shape, QColor colour, double width, double opacity = 1);
// A small light, which is not capped: its shape is in units of 1.
void Light(Portrait& portrait, const QPainterPath& shape, const QBrush& brush);

inline void PaintNothing(Portrait&) {}
QPainterPath HeadShape(const Sitter& sitter);  // in units of 1
void PaintPersonHead(Portrait& portrait);
void PaintPersonFeatures(Portrait& portrait);
void PaintOwlHead(Portrait& portrait);
void PaintOwlFeatures(Portrait& portrait);
void PaintRobotHead(Portrait& portrait);
void PaintRobotFeatures(Portrait& portrait);

}  // namespace quillet
