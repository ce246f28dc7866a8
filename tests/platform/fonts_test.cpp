// Text: its measures, and the masks that it is drawn with.
#include "platform/fonts.h"
#include "support/testing.h"

namespace quillet {
namespace {

constexpr Font kFonts[] = {{"Arial", 8}, {"Times New Roman Bold", 12}, {"Courier New", 9}};
constexpr std::string_view kSample = "Illinois Wight 1234567890 (Quizzify), fjord";

TEST(FontContract, MasksStayWithinTheMeasuresAtEveryScale) {
    for (const Font& font : kFonts) {
        const FontMetrics metrics = MetricsOf(font);
        const int width = TextWidth(font, kSample);
        for (int scale : {1, 2, 3}) {
            SCOPED_TRACE(std::string(font.face) + " at scale " + std::to_string(scale));
            const TextMask mask = MaskOfText(font, kSample, scale);
            EXPECT_EQ(mask.coverage.size(), static_cast<std::size_t>(mask.width * mask.height));
            EXPECT_GE(mask.left, -2 * scale);
            EXPECT_LE(mask.left + mask.width, (width + 1) * scale);
            EXPECT_GE(mask.left + mask.width, (width - 3) * scale);
            EXPECT_GE(mask.top, -(metrics.height - metrics.descent + 1) * scale);
            EXPECT_LE(mask.top + mask.height, (metrics.descent + 1) * scale);
            EXPECT_THAT(mask.coverage, Contains(testing::Gt(200)));
        }
    }
}

TEST(FontContract, NothingAndSpacesLeaveNoMark) {
    for (const Font& font : kFonts) {
        EXPECT_EQ(TextWidth(font, ""), 0);
        EXPECT_GT(TextWidth(font, " "), 0);
        for (std::string_view text : {"", "  "}) {
            EXPECT_THAT(MaskOfText(font, text, 1).coverage, testing::Each(0)) << text;
        }
    }
}

TEST(FontContract, FixedPitchIsTheSameForEveryCharacterAtEveryScale) {
    for (int points : {8, 9}) {
        const Font font{"Courier New", points};
        const int width = MetricsOf(font).averageWidth;
        EXPECT_EQ(TextWidth(font, "iiiiiiiiii"), 10 * width);
        EXPECT_EQ(TextWidth(font, "MMMMMMMMMM"), 10 * width);
        for (int scale : {1, 2, 3}) {
            // The tenth character stands where nine others end.
            const TextMask alone = MaskOfText(font, "|", scale);
            const TextMask tenth = MaskOfText(font, "|        |", scale);
            EXPECT_EQ(tenth.left, alone.left);
            EXPECT_EQ(tenth.width - alone.width, 9 * width * scale);
        }
    }
}

}  // namespace
}  // namespace quillet
