#include "contact_sheet.h"

#include <QFileInfo>
#include <QPainter>
#include <algorithm>

#include "brush.h"

namespace quillet {
namespace {

constexpr int kWidth = 1160, kGap = 8, kHeadingHeight = 22;

struct Placed {
    const ShownPicture* picture;
    QPoint at;
};

struct Heading {
    QString text;
    int baseline;
};

struct Sheet {
    std::vector<Placed> pictures;
    std::vector<Heading> headings;
    int height = 0;
};

Sheet Arrange(const std::vector<ShownPicture>& pictures) {
    Sheet sheet;
    QString folder;
    QPoint at(kGap, kGap);
    int rowHeight = 0;
    const auto beginRow = [&] {
        at = QPoint(kGap, at.y() + (rowHeight > 0 ? rowHeight + kGap : 0));
        rowHeight = 0;
    };
    for (const ShownPicture& picture : pictures) {
        const QString itsFolder = QFileInfo(picture.path).path();
        if (itsFolder != folder) {
            folder = itsFolder;
            beginRow();
            sheet.headings.push_back({folder, at.y() + kHeadingHeight - 8});
            at.ry() += kHeadingHeight;
        }
        if (at.x() + picture.image.width() + kGap > kWidth) beginRow();
        sheet.pictures.push_back({&picture, at});
        at.rx() += picture.image.width() + kGap;
        rowHeight = std::max(rowHeight, picture.image.height());
    }
    sheet.height = at.y() + rowHeight + kGap;
    return sheet;
}

}  // namespace

QImage ContactSheet(const std::vector<ShownPicture>& pictures) {
    const Sheet sheet = Arrange(pictures);
    return Draw(
               kWidth, sheet.height, 1,
               [&](QPainter& painter) {
                   for (const auto& [picture, at] : sheet.pictures) painter.drawImage(at, picture->image);
                   painter.setFont(PixelFont(Face::SansBold, 12));
                   painter.setPen(palette::kVellum);
                   for (const auto& [text, baseline] : sheet.headings) painter.drawText(kGap, baseline, text);
               },
               Darker(palette::kCloth, 0.35))
        .convertToFormat(QImage::Format_RGB32);
}

}  // namespace quillet
