// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>
#include <QIcon>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cmath>

// Measures how visible an icon's picture is, for tests.

inline const QColor LightBackground(255, 255, 255);
inline const QColor DarkBackground(0x2b, 0x2b, 0x2b);

// Whether the program carries a drawing, or a picture in its place.
inline bool HasPicture(const QString& drawing) {
    return QFile::exists(drawing) || QFile::exists(drawing + ".16.png");
}

// The icon painted on a background, at exactly size × size pixels.
inline QImage PaintedOn(const QColor& background, const QIcon& icon, int size) {
    QImage image(size, size, QImage::Format_RGB32);
    image.fill(background);
    QPainter painter(&image);
    painter.drawPixmap(0, 0, icon.pixmap(QSize(size, size), 1.0));
    return image;
}

// Relative luminance as the accessibility guidelines define it: 0 is black, 1 is white.
inline double Luminance(const QColor& color) {
    const auto linear = [](double channel) {
        return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

// 1 for equal colours, 21 for black on white; graphics need 3 to stand out from their background.
inline double Contrast(const QColor& a, const QColor& b) {
    const double lighter = std::max(Luminance(a), Luminance(b));
    const double darker = std::min(Luminance(a), Luminance(b));
    return (lighter + 0.05) / (darker + 0.05);
}

// The number of the icon's pixels with a contrast of 3 or more to the background.
inline int PixelsThatStandOut(const QColor& background, const QIcon& icon, int size) {
    const QImage image = PaintedOn(background, icon, size);
    int count = 0;
    for (int y = 0; y < size; ++y)
        for (int x = 0; x < size; ++x)
            count += Contrast(image.pixelColor(x, y), background) >= 3 ? 1 : 0;
    return count;
}
