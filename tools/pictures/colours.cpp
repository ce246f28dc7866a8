#include "colours.h"

#include <algorithm>
#include <cmath>

namespace quillet {
namespace {

double Linear(int value) {
    const double c = value / 255.0;
    return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

int Encoded(double linear) {
    const double c = linear <= 0.0031308 ? 12.92 * linear : 1.055 * std::pow(linear, 1 / 2.4) - 0.055;
    return std::clamp(static_cast<int>(c * 255), 0, 255);
}

}  // namespace

QColor Mix(QColor a, QColor b, double part) {
    const auto between = [part](int from, int to) {
        return static_cast<int>(std::lround(from + (to - from) * part));
    };
    return {between(a.red(), b.red()), between(a.green(), b.green()), between(a.blue(), b.blue())};
}

QColor Lighter(QColor colour, double part) { return Mix(colour, palette::kWhite, part); }
QColor Darker(QColor colour, double part) { return Mix(colour, palette::kBlack, part); }

QColor Sheer(QColor colour, double opacity) {
    colour.setAlphaF(static_cast<float>(opacity));
    return colour;
}

double Luminance(QColor colour) {
    return 0.2126 * Linear(colour.red()) + 0.7152 * Linear(colour.green()) + 0.0722 * Linear(colour.blue());
}

QColor Capped(QColor colour, double luminance) {
    const double own = Luminance(colour);
    if (own <= luminance) return colour;
    const double part = luminance / own;
    return {Encoded(Linear(colour.red()) * part), Encoded(Linear(colour.green()) * part),
            Encoded(Linear(colour.blue()) * part), colour.alpha()};
}

}  // namespace quillet
