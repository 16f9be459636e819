// SPDX-License-Identifier: MIT
#include "list/RowIcons.h"

#include "support/IconPixels.h"
#include "support/WindowTest.h"

#include <QFile>
#include <QRegularExpression>
#include <QTest>

#include <bitset>

class RowIconsTest : public QObject {
    Q_OBJECT

  private slots:
    void EveryNumberHasItsPicture_data() { AddImages(1, 2 * HighlightedImageOffset); }
    void EveryNumberHasItsPicture() {
        QFETCH(int, image);
        QVERIFY(HasPicture(Path(image)));
        for (const int size : {RowIconSize, 2 * RowIconSize}) {
            const QImage picture = Icons.Icon(image).pixmap(QSize(size, size), 1.0).toImage();
            QCOMPARE(picture.size(), QSize(size, size));
            QVERIFY(PaintedOn(LightBackground, Icons.Icon(image), size) !=
                    PaintedOn(LightBackground, QIcon(), size));
        }
    }

    void PicturesShowWhatTheNumberStandsFor() {
        QCOMPARE(Path(Images::Info), ":/row/info.svg");
        QCOMPARE(Path(Images::Warning), ":/row/warning.svg");
        QCOMPARE(Path(Images::Error), ":/row/error.svg");
        QCOMPARE(Path(Images::Fatal), ":/row/fatal.svg");
        QCOMPARE(Path(Images::Key), ":/row/key.svg");
        QCOMPARE(Path(Images::Mouse), ":/row/mouse.svg");
        QCOMPARE(Path(Images::Restart), ":/row/restart.svg");
        QCOMPARE(Path(Images::StatusOn), ":/row/status-on.svg");
        QCOMPARE(Path(Images::StatusBlink), ":/row/status-blink.svg");
        QCOMPARE(Path(Images::StatusOff), ":/row/status-off.svg");
        QCOMPARE(Path(Images::DebugSend), ":/row/debug-send.svg");
        QCOMPARE(Path(Images::DebugReceive), ":/row/debug-receive.svg");
        QCOMPARE(Path(Images::ErrorCleared), ":/row/error-cleared.svg");
    }

    void NumbersWithoutAPictureGiveANullIcon() {
        for (const int image : {-1, 0, 29, 32767})
            QVERIFY(Icons.Icon(image).isNull());
    }

    // Colour dropped, any two kinds differ in at least 30 of their 256 pixels and in a third of what they
    // cover.
    void KindsAreToldByShape() {
        for (int a = 1; a <= HighlightedImageOffset; ++a)
            for (int b = a + 1; b <= HighlightedImageOffset; ++b) {
                const Mask first = Shape(Icons.Icon(a));
                const Mask second = Shape(Icons.Icon(b));
                const std::size_t differing = (first ^ second).count();
                QVERIFY2(differing >= 30 && 3 * differing >= (first | second).count(),
                         qPrintable(Path(a) + " and " + Path(b)));
            }
    }

    void HighlightedPicturesHaveThePlainShape_data() { AddImages(1, HighlightedImageOffset); }
    void HighlightedPicturesHaveThePlainShape() {
        QFETCH(int, image);
        QCOMPARE(Path(image + HighlightedImageOffset), Path(image).replace(".svg", "-highlighted.svg"));
        const QString plain = DrawnShape(image);
        QVERIFY(!plain.isEmpty());
        QCOMPARE(DrawnShape(image + HighlightedImageOffset), plain);
    }

    // On either background the highlight changes the brightness of at least half the pixels by a tenth of the
    // way from black to white.
    void HighlightIsToldWithoutColour_data() { AddImages(1, HighlightedImageOffset); }
    void HighlightIsToldWithoutColour() {
        QFETCH(int, image);
        for (const QColor& background : {LightBackground, DarkBackground}) {
            const QImage plain = PaintedOn(background, Icons.Icon(image), RowIconSize);
            const QImage highlighted =
                PaintedOn(background, Icons.Icon(image + HighlightedImageOffset), RowIconSize);
            int changed = 0;
            for (int y = 0; y < RowIconSize; ++y)
                for (int x = 0; x < RowIconSize; ++x) {
                    const double change =
                        Luminance(plain.pixelColor(x, y)) - Luminance(highlighted.pixelColor(x, y));
                    changed += std::abs(change) >= 0.1 ? 1 : 0;
                }
            QVERIFY2(changed >= RowIconSize * RowIconSize / 2, qPrintable(QString::number(changed)));
        }
    }

    void PicturesStandOutFromLightAndDark_data() { AddImages(1, 2 * HighlightedImageOffset); }
    void PicturesStandOutFromLightAndDark() {
        QFETCH(int, image);
        QVERIFY(PixelsThatStandOut(LightBackground, Icons.Icon(image), RowIconSize) >= 32);
        QVERIFY(PixelsThatStandOut(DarkBackground, Icons.Icon(image), RowIconSize) >= 32);
    }

  private:
    // The pixels of a picture that carry its shape: inked, and not the white drawn into it.
    using Mask = std::bitset<std::size_t{RowIconSize} * RowIconSize>;

    static void AddImages(int first, int last) {
        QTest::addColumn<int>("image");
        for (int image = first; image <= last; ++image)
            QTest::newRow(qPrintable(Path(image))) << image;
    }

    static QString Path(int image) { return RowIconPaths.at(static_cast<std::size_t>(image - 1)); }

    static Mask Shape(const QIcon& icon) {
        const QImage picture = PaintedOn(LightBackground, icon, RowIconSize);
        Mask mask;
        for (int y = 0; y < RowIconSize; ++y)
            for (int x = 0; x < RowIconSize; ++x)
                mask.set(static_cast<std::size_t>(y * RowIconSize + x),
                         Luminance(picture.pixelColor(x, y)) < 0.5);
        return mask;
    }

    // The outlines in the group of a picture file, without the tone that they are drawn in.
    static QString DrawnShape(int image) {
        QFile file(Path(image).replace(":/row", QORVIX_SOURCE_FOLDER "/src/list/icons"));
        if (!file.open(QIODevice::ReadOnly))
            return {};
        const QString content = QString::fromUtf8(file.readAll());
        const QRegularExpression group("<g fill=\"(#[0-9a-f]{6})\">(.*)</g>",
                                       QRegularExpression::DotMatchesEverythingOption);
        const QRegularExpressionMatch match = group.match(content);
        return match.captured(2).replace(match.captured(1), "tone");
    }

    const RowIcons Icons;
};

QORVIX_WINDOW_TEST(RowIconsTest)
#include "RowIconsTest.moc"
