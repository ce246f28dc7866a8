// One picture that shows all others, to look them over.
#pragma once

#include <QImage>
#include <QString>
#include <vector>

namespace quillet {

struct ShownPicture {
    QString path;  // its folder groups it with others
    QImage image;
};

// In the order given; every folder begins a new line under its name.
QImage ContactSheet(const std::vector<ShownPicture>& pictures);

}  // namespace quillet
