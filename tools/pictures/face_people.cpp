#include <cmath>
#include <numbers>

#include "faces.h"

// What makes each of the six people one of a kind: clothes, hair and the thing they are known by.
namespace quillet {
namespace {

using namespace palette;

constexpr const char* kShoulders = "M -60,70 C -58,46 -38,39 -16,35 L 16,35 C 38,39 58,46 60,70 Z";

QColor HairLight(const Portrait& portrait) { return Lighter(portrait.sitter.hair, 0.2); }
QColor HairDark(const Portrait& portrait) { return Darker(portrait.sitter.hair, 0.5); }

// --- Marguerite: a grey bun with a pencil in it, round spectacles, a shawl ---

void PaintShawl(Portrait& portrait) {
    const Sitter& who = portrait.sitter;
    Solid(portrait, kShoulders, who.cloth);
    Solid(portrait, "M -61,70 C -57,46 -36,40 -19,35 L 0,59 L -8,70 Z", who.trim);
    Solid(portrait, "M 61,70 C 57,46 36,40 19,35 L 0,59 L 8,70 Z", Darker(who.trim, 0.15));
    Line(portrait, "M -50,60 C -40,50 -28,46 -17,43 M -38,68 C -30,58 -20,54 -9,52", Darker(who.trim, 0.45),
         1.2, 0.8);
    Line(portrait, "M 50,60 C 40,50 28,46 17,43 M 38,68 C 30,58 20,54 9,52", Darker(who.trim, 0.55), 1.2,
         0.8);
    Solid(portrait, "E 0,58 4.6,4.6", kBrassLight);
    Flat(portrait, "E 0,58 2.2,2.2", kMadderLight);
}

void PaintBun(Portrait& portrait) {
    Line(portrait, "M -.62,-1.42 L .6,-1.10", kBrassLight, 3);
    Line(portrait, "M -.62,-1.42 L -.54,-1.40", kMadderLight, 3.4);
    Solid(portrait, "E 0,-1.22 .43,.31", portrait.sitter.hair);
    Line(portrait, "M -.26,-1.16 C -.3,-1.44 .26,-1.46 .28,-1.2 C .28,-1.06 .04,-1.06 .02,-1.2",
         HairDark(portrait), 1.2, 0.8);
    Solid(portrait,
          "M -1.12,-.1 C -1.2,-.9 -.6,-1.2 0,-1.16 C .6,-1.2 1.2,-.9 1.12,-.1 L 1.02,.24 L -1.02,.24 Z",
          Darker(portrait.sitter.hair, 0.25));
}

void PaintGreyHair(Portrait& portrait) {
    Solid(portrait,
          "M -1.06,.10 C -1.16,-.92 -.5,-1.2 .06,-1.12 C -.14,-1.0 -.12,-.86 -.04,-.74 C -.5,-.66 -.9,-.34 "
          "-1.06,.10 Z",
          portrait.sitter.hair);
    Solid(
        portrait,
        "M 1.06,.10 C 1.16,-.92 .5,-1.2 0,-1.12 C -.16,-1.0 -.14,-.86 -.06,-.74 C .5,-.66 .9,-.34 1.06,.10 Z",
        Darker(portrait.sitter.hair, 0.12));
    Line(portrait, "M -.1,-1.06 C -.5,-1.0 -.86,-.66 -.98,-.24 M -.12,-.94 C -.46,-.88 -.78,-.62 -.92,-.3",
         HairLight(portrait), 1.1, 0.8);
    Line(portrait, "M .1,-1.06 C .5,-1.0 .86,-.66 .98,-.24 M .04,-.92 C .44,-.86 .76,-.62 .92,-.3",
         HairDark(portrait), 1.1, 0.7);
}

void PaintSpectacles(Portrait& portrait) {
    const QColor wire = Rgb(0x1A1420);
    for (const double side : {-1.0, 1.0}) {
        const QPointF at = portrait.Eye(side) + QPointF(0, 0.8);
        QPainterPath glass;
        glass.addEllipse(at, 13, 11.8);
        Fill(portrait.painter, glass, Sheer(Rgb(0xBFD3DE), 0.06));
        Stroke(portrait.painter, glass, wire, 2.1);
        Stroke(portrait.painter, Shape("M -8,-5.4 C -6.6,-8 -4.6,-9 -2.4,-9.4").translated(at),
               Sheer(portrait.Lit(kWhite), 0.7), 1.3);
    }
    Line(portrait, "M -.11,-.06 Q 0,-.15 .11,-.06", wire, 2.1);
    Line(portrait, "M -.75,-.04 L -.98,-.12 M .75,-.04 L .98,-.12", wire, 1.8);
    Line(portrait, "M -.44,.46 C -.52,.54 -.54,.62 -.52,.70 M .44,.46 C .52,.54 .54,.62 .52,.70",
         portrait.Skin(0.5), 1.2, 0.7);
}

// --- Bartleby: a clerk with a quill behind his ear ---

void PaintSuit(Portrait& portrait) {
    const Sitter& who = portrait.sitter;
    Solid(portrait, kShoulders, who.cloth);
    Flat(portrait, "M -16,35 L 16,35 L 6,70 L -6,70 Z", Rgb(0x8C8674));
    Solid(portrait, "M -16,35 L -26,44 L -14,52 L -20,56 L -3,70 L -24,70 C -30,58 -34,48 -30,40 Z",
          Lighter(who.cloth, 0.08));
    Solid(portrait, "M 16,35 L 26,44 L 14,52 L 20,56 L 3,70 L 24,70 C 30,58 34,48 30,40 Z", who.cloth);
    Solid(portrait, "M -17,30 L -1,47 L -12,56 L -22,40 Z", Rgb(0xB4AC98));
    Solid(portrait, "M 17,30 L 1,47 L 12,56 L 22,40 Z", Rgb(0x9A927E));
    Solid(portrait, "M -8,46 C -4,50 4,50 8,46 L 9,54 L 3,53 L 5,68 L -5,68 L -3,53 L -9,54 Z", kMadder);
}

void PaintPartedHair(Portrait& portrait) {
    Solid(portrait,
          "M -1.06,.20 C -1.24,-.78 -.74,-1.22 .10,-1.18 C .86,-1.16 1.22,-.74 1.06,.14 C 1.0,-.02 .96,-.22 "
          ".90,-.46 "
          "C .80,-.62 .66,-.66 .5,-.66 C .1,-.64 -.3,-.72 -.5,-.88 C -.72,-.66 -.92,-.3 -.94,-.02 Z",
          portrait.sitter.hair);
    Line(portrait,
         "M -.5,-.9 C -.2,-1.08 .3,-1.1 .66,-.96 M -.42,-.84 C -.1,-.94 .4,-.94 .78,-.76 M -.62,-.84 C "
         "-.86,-.62 -1.0,-.3 -1.0,0",
         HairLight(portrait), 1.3, 0.55);
}

void PaintEarQuill(Portrait& portrait) {
    const double w = portrait.sitter.width, h = portrait.sitter.height;
    Quill(portrait.painter, {w * 0.37, h * 0.10}, 62, 72,
          {portrait.Lit(Rgb(0xC8BFA6)), portrait.Lit(Rgb(0x958C74)), portrait.Lit(kBrassDark)}, 0.19);
    // The hair hides where it is stuck.
    Solid(portrait, "M .80,-.52 C 1.0,-.42 1.1,-.2 1.05,.12 C .98,-.04 .92,-.2 .80,-.30 Z",
          Darker(portrait.sitter.hair, 0.3));
}

// --- Octavia: a crown of curls and brass hoops ---

void PaintWrapDress(Portrait& portrait) {
    const Sitter& who = portrait.sitter;
    Solid(portrait, kShoulders, who.cloth);
    Flat(portrait, "M -16,35 L 16,35 L 3,62 L -3,62 Z", portrait.Skin(0.42));
    Solid(portrait, "M -18,34 L -26,37 L -1,72 L 10,72 Z", who.trim);
    Solid(portrait, "M 18,34 L 26,37 L -4,74 L -12,74 Z", Darker(who.trim, 0.12));
    Line(portrait, "M -9,42 Q 0,52 9,42", kBrassLight, 1.6);
    Solid(portrait, "E 0,48.4 2.6,2.8", kBrassLight);
}

// A curl is a ball with a light of its own; the further from the lamp, the darker.
void PaintCurl(Portrait& portrait, double x, double y, double radius) {
    const QPointF at(x * portrait.unit.x(), y * portrait.unit.y());
    const double away = std::clamp((x + y + 1.6) / 3.4, 0.0, 1.0);
    const QColor colour = portrait.Lit(Mix(Lighter(portrait.sitter.hair, 0.12), HairDark(portrait), away));
    QRadialGradient light(at - QPointF(radius * 0.35, radius * 0.4), radius * 1.3);
    light.setColorAt(0, Lighter(colour, 0.12));
    light.setColorAt(0.55, colour);
    light.setColorAt(1, Darker(colour, 0.45));
    FillEllipse(portrait.painter, at, radius, radius, light);
    Stroke(portrait.painter,
           Scaled(Shape("M -.55,-.1 C -.5,-.6 .1,-.75 .4,-.35"), radius, radius).translated(at),
           Sheer(portrait.Lit(Lighter(colour, 0.3)), 0.5), 1.1);
}

void PaintCurlsBehind(Portrait& portrait) {
    Flat(portrait, "E 0,-.30 1.26,1.0", Darker(portrait.sitter.hair, 0.3));
    for (const double ring : {1.0, 0.74}) {
        for (int k = 0; k <= 14; ++k) {
            const double turn = (148 + k * 17.5) * std::numbers::pi / 180;
            PaintCurl(portrait, 1.30 * ring * std::cos(turn), -0.28 + 1.06 * ring * std::sin(turn),
                      10.5 + k % 3);
        }
    }
}

void PaintCurlsInFront(Portrait& portrait) {
    for (int k = -4; k <= 4; ++k) {
        const double x = 0.245 * k;
        PaintCurl(portrait, x * 0.9, -1.02 + 0.010 * k * k, 9.5);
    }
    for (int k = -4; k <= 4; ++k) {
        const double x = 0.25 * k;
        PaintCurl(portrait, x, -0.84 + 0.030 * k * k, 8.5 + std::abs(k) % 2);
    }
}

void PaintHoops(Portrait& portrait) {
    Line(portrait, "E -1.04,.50 .17,.19 E 1.04,.50 .17,.19", kBrassDark, 3.4);
    Line(portrait, "E -1.04,.50 .17,.19 E 1.04,.50 .17,.19", kBrassLight, 2.2);
    Flat(portrait, "E .48,.46 .035,.03", Darker(portrait.Skin(), 0.7));
}

// --- Erasmus: a white beard, a red nose, a smoking cap ---

void PaintCoat(Portrait& portrait) {
    Solid(portrait, kShoulders, portrait.sitter.cloth);
    Solid(portrait, "M -24,34 L -2,70 L -34,70 Z", portrait.sitter.trim);
    Solid(portrait, "M 24,34 L 2,70 L 34,70 Z", Darker(portrait.sitter.trim, 0.2));
}

void PaintBeard(Portrait& portrait) {
    Solid(portrait,
          "M -1.02,-.10 C -1.26,.16 -1.22,.86 -.84,1.12 C -.62,1.40 -.30,1.34 -.16,1.52 C -.06,1.44 .08,1.44 "
          ".18,1.52 "
          "C .36,1.34 .64,1.40 .86,1.10 C 1.22,.86 1.26,.16 1.02,-.10 C .94,.22 .80,.36 .48,.36 C .22,.30 "
          "-.22,.30 -.48,.36 "
          "C -.80,.36 -.94,.22 -1.02,-.10 Z",
          portrait.sitter.hair);
    Line(portrait,
         "M -.96,.3 C -.96,.7 -.78,.98 -.6,1.12 M -.7,.5 C -.72,.84 -.5,1.1 -.36,1.24 M -.34,.98 C -.3,1.16 "
         "-.2,1.3 -.12,1.38",
         HairLight(portrait), 1.3, 0.75);
    Line(portrait,
         "M .96,.3 C .96,.7 .78,.98 .6,1.12 M .7,.5 C .72,.84 .5,1.1 .36,1.24 M .34,.98 C .3,1.16 .2,1.3 "
         ".14,1.38 M 0,1.02 L .01,1.36",
         HairDark(portrait), 1.3, 0.7);
}

// The moustache leaves the mouth free.
void PaintMoustache(Portrait& portrait) {
    Solid(portrait, "M -.02,.36 C -.2,.32 -.5,.40 -.74,.62 C -.5,.66 -.2,.58 -.02,.46 Z",
          Lighter(portrait.sitter.hair, 0.12));
    Solid(portrait, "M .02,.36 C .2,.32 .5,.40 .74,.62 C .5,.66 .2,.58 .02,.46 Z", portrait.sitter.hair);
}

void PaintSmokingCap(Portrait& portrait) {
    const Sitter& who = portrait.sitter;
    PaintMoustache(portrait);
    Solid(portrait,
          "M -1.02,-.52 C -1.06,-1.1 -.62,-1.40 0,-1.40 C .66,-1.40 1.08,-1.1 1.02,-.52 C .4,-.78 -.4,-.78 "
          "-1.02,-.52 Z",
          who.trim);
    Solid(portrait,
          "M -1.03,-.48 C -1.06,-.62 -1.04,-.72 -1.02,-.80 C -.4,-1.06 .4,-1.06 1.02,-.80 C 1.05,-.7 "
          "1.06,-.6 1.03,-.48 C .4,-.74 -.4,-.74 -1.03,-.48 Z",
          who.cloth);
    Line(portrait, "M -1.02,-.80 C -.4,-1.06 .4,-1.06 1.02,-.80", kBrass, 1.5);
    Line(portrait,
         "M -.7,-.72 L -.62,-.84 L -.54,-.77 M -.08,-.82 L 0,-.94 L .08,-.82 M .54,-.77 L .62,-.84 L .7,-.72",
         kBrass, 1.2);
    Solid(portrait, "E 0,-1.38 .10,.08", kBrassLight);
    Line(portrait, "M 0,-1.40 C .5,-1.52 1.06,-1.3 1.16,-.72", kBrass, 1.8);
    Solid(portrait, "M 1.10,-.74 L 1.22,-.74 L 1.27,-.42 L 1.05,-.42 Z", kBrassLight);
}

// --- Pip: a boy with hair like straw, freckles and a striped jersey ---

void PaintJersey(Portrait& portrait) {
    const QPainterPath body = In(portrait, kShoulders);
    Solid(portrait, kShoulders, portrait.sitter.cloth);
    portrait.painter.save();
    portrait.painter.setClipPath(body);
    for (const char* stripe :
         {"M -62,58 Q 0,46 62,58 L 62,63 Q 0,51 -62,63 Z", "M -62,69 Q 0,57 62,69 L 62,74 Q 0,62 -62,74 Z"}) {
        Solid(portrait, stripe, portrait.sitter.trim);
    }
    portrait.painter.restore();
    Solid(portrait, "M -18,34 C -10,42 10,42 18,34 L 20,39 C 10,48 -10,48 -20,39 Z", portrait.sitter.trim);
}

void PaintStrawHair(Portrait& portrait) {
    Solid(portrait,
          "M -1.06,.04 C -1.16,-.34 -1.12,-.62 -1.02,-.78 L -1.26,-.98 L -.86,-1.02 L -.92,-1.38 L "
          "-.52,-1.16 L -.36,-1.52 "
          "L -.10,-1.22 L .18,-1.54 L .34,-1.20 L .72,-1.42 L .72,-1.06 L 1.12,-1.10 L 1.02,-.78 C 1.14,-.56 "
          "1.14,-.3 1.06,.04 "
          "C .98,-.16 .90,-.34 .72,-.56 L .56,-.40 L .40,-.66 L .14,-.42 L -.02,-.70 L -.30,-.40 L -.44,-.66 "
          "C -.8,-.44 -.96,-.2 -1.06,.04 Z",
          portrait.sitter.hair);
    Line(portrait,
         "M -.82,-.9 L -.92,-1.2 M -.46,-.96 L -.4,-1.3 M -.06,-.98 L .1,-1.32 M -.92,-.3 C -.94,-.5 "
         "-.86,-.7 -.76,-.82 M -.3,-.6 L -.2,-.86",
         HairLight(portrait), 1.5, 0.8);
    Line(portrait,
         "M .36,-.98 L .58,-1.24 M .70,-.86 L .92,-1.0 M .92,-.3 C .94,-.5 .86,-.7 .76,-.78 M .3,-.6 L "
         ".26,-.84 M .58,-.56 L .5,-.8",
         HairDark(portrait), 1.5, 0.6);
}

void PaintFreckles(Portrait& portrait) {
    for (const double side : {-1.0, 1.0}) {
        for (const auto& [x, y] : {QPointF(0.44, 0.28), QPointF(0.56, 0.36), QPointF(0.66, 0.26),
                                   QPointF(0.50, 0.42), QPointF(0.36, 0.38)}) {
            FillEllipse(portrait.painter, {side * x * portrait.unit.x(), y * portrait.unit.y()}, 1.3, 1.2,
                        Sheer(Rgb(0x5A2C12), 0.7));
        }
    }
}

// --- Zenobia: a golden head wrap with a stone, long earrings ---

void PaintGown(Portrait& portrait) {
    const Sitter& who = portrait.sitter;
    Solid(portrait, kShoulders, who.cloth);
    Solid(portrait, "E 0,40 23,7.6", who.trim);
    Flat(portrait, "E 0,37.6 18.6,6", portrait.Skin(0.5));
    Solid(portrait, "M -15,20 L 15,20 L 14,38 Q 0,45 -14,38 Z", portrait.Skin(0.34));
    Flat(portrait, "M -14,24 C -6,34 8,36 14,26 L 14,36 C 4,42 -8,40 -14,34 Z", portrait.Skin(0.8), 0.5);
    Line(portrait, "M -50,58 Q 0,44 50,58 M -54,66 Q 0,51 54,66", who.trim, 1.6, 0.8);
}

void PaintHeadWrap(Portrait& portrait) {
    const Sitter& who = portrait.sitter;
    const QColor fold = Darker(who.trim, 0.6);
    Solid(portrait,
          "M -1.08,-.10 C -1.52,-.9 -.8,-1.66 .04,-1.60 C .92,-1.66 1.50,-.9 1.08,-.10 C .9,-.44 .5,-.66 "
          "0,-.66 C -.5,-.66 -.9,-.44 -1.08,-.10 Z",
          who.trim);
    Solid(portrait,
          "M -.5,-.70 C -.9,-1.1 -.5,-1.5 .06,-1.58 C .5,-1.5 .9,-1.1 .5,-.70 C .2,-.80 -.2,-.80 -.5,-.70 Z",
          Lighter(who.trim, 0.05));
    Line(portrait,
         "M -1.14,-.34 C -.9,-.72 -.5,-.92 -.2,-1.0 M -1.22,-.62 C -1.0,-1.0 -.6,-1.2 -.26,-1.22 M -1.1,-1.0 "
         "C -.9,-1.3 -.5,-1.46 -.16,-1.44",
         fold, 1.6, 0.75);
    Line(portrait,
         "M 1.14,-.34 C .9,-.72 .5,-.92 .2,-1.0 M 1.22,-.62 C 1.0,-1.0 .6,-1.2 .26,-1.22 M 1.1,-1.0 C "
         ".9,-1.3 .5,-1.46 .16,-1.44",
         fold, 1.6, 0.75);
    Line(portrait, "M -1.02,-.3 C -.8,-.6 -.5,-.76 -.24,-.82 M -1.16,-.8 C -.98,-1.08 -.7,-1.24 -.4,-1.3",
         Lighter(who.trim, 0.5), 1.3, 0.6);
    Solid(portrait, "E 0,-1.02 .20,.20", kBrassDark);
    Solid(portrait, "E 0,-1.03 .14,.145", kMadderLight);
    Flat(portrait, "E -.04,-1.08 .04,.035", kWhite);
}

void PaintLongEarrings(Portrait& portrait) {
    for (const double side : {-1.0, 1.0}) {
        portrait.painter.save();
        portrait.painter.scale(side, 1);
        Solid(portrait, "E .99,.34 .08,.065", kBrassLight);
        Line(portrait, "M .99,.40 L .99,.50", kBrass, 1.2);
        Solid(portrait, "M .99,.48 L 1.14,.74 Q .99,.84 .84,.74 Z", kBrassLight);
        Flat(portrait, "E .99,.70 .045,.04", kMadderLight);
        portrait.painter.restore();
    }
}

}  // namespace

// name, yellow text, head, jaw, chin; kind, eyes, nose, width of the brows, painted lips; skin, hair, brows,
// lips, cloth, trim, backdrop

const Sitter kMarguerite = {"Marguerite",
                            true,
                            80,
                            88,
                            0.80,
                            0.34,
                            Kind::Person,
                            EyeShape::Calm,
                            NoseShape::Small,
                            2.2,
                            false,
                            Rgb(0xB07E62),
                            Rgb(0x8D8F9C),
                            Rgb(0x6E6668),
                            Rgb(0x4A2A22),
                            Rgb(0x5E4A7E),
                            Rgb(0x8A6FA6),
                            Rgb(0x3A2F52),
                            PaintShawl,
                            PaintBun,
                            PaintGreyHair,
                            PaintSpectacles};

const Sitter kBartleby = {"Bartleby",    false,          66,
                          104,           0.72,           0.32,
                          Kind::Person,  EyeShape::Calm, NoseShape::Long,
                          1.8,           false,          Rgb(0xB0866A),
                          Rgb(0x4A3424), Rgb(0x241810),  Rgb(0x4A2A22),
                          Rgb(0x2E3850), Rgb(0x8C8674),  Rgb(0x2C3F4A),
                          PaintSuit,     PaintNothing,   PaintPartedHair,
                          PaintEarQuill};

const Sitter kOctavia = {"Octavia",
                         false,
                         76,
                         92,
                         0.76,
                         0.32,
                         Kind::Person,
                         EyeShape::Almond,
                         NoseShape::Small,
                         2.8,
                         true,
                         Rgb(0x7E4C32),
                         Rgb(0x2C1A14),
                         Rgb(0x140E10),
                         Rgb(0xA03A40),
                         Rgb(0x8C2F39),
                         Rgb(0xB44B4F),
                         Rgb(0x24424A),
                         PaintWrapDress,
                         PaintCurlsBehind,
                         PaintCurlsInFront,
                         PaintHoops};

const Sitter kErasmus = {"Erasmus",
                         true,
                         82,
                         90,
                         0.94,
                         0.44,
                         Kind::Person,
                         EyeShape::Calm,
                         NoseShape::Red,
                         4.6,
                         false,
                         Rgb(0xA8765A),
                         Rgb(0x98989A),
                         Rgb(0x9C968A),
                         Rgb(0x3A2A26),
                         Rgb(0x3B4A34),
                         Rgb(0x5F7350),
                         Rgb(0x33402C),
                         PaintCoat,
                         PaintNothing,
                         PaintBeard,
                         PaintSmokingCap};

const Sitter kPip = {"Pip",
                     false,
                     82,
                     84,
                     0.82,
                     0.38,
                     Kind::Person,
                     EyeShape::Round,
                     NoseShape::Snub,
                     2.0,
                     false,
                     Rgb(0xB8845E),
                     Rgb(0xA8561E),
                     Rgb(0x6A3412),
                     Rgb(0x5A2A1E),
                     Rgb(0x2F5C6E),
                     Rgb(0x8AA8B0),
                     Rgb(0x2B3A5C),
                     PaintJersey,
                     PaintNothing,
                     PaintStrawHair,
                     PaintFreckles};

const Sitter kZenobia = {"Zenobia",
                         true,
                         72,
                         94,
                         0.66,
                         0.26,
                         Kind::Person,
                         EyeShape::Almond,
                         NoseShape::Small,
                         2.4,
                         true,
                         Rgb(0x6A4430),
                         Rgb(0x241614),
                         Rgb(0x120A0A),
                         Rgb(0x94323C),
                         Rgb(0x8A6A1E),
                         Rgb(0xC59A45),
                         Rgb(0x4A2530),
                         PaintGown,
                         PaintNothing,
                         PaintHeadWrap,
                         PaintLongEarrings};

}  // namespace quillet
