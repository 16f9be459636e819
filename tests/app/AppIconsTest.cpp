// SPDX-License-Identifier: MIT
#include "app/AppIcons.h"

#include "support/IconPixels.h"
#include "support/WindowTest.h"

#include <QTest>

class AppIconsTest : public QObject {
    Q_OBJECT

  private slots:
    void EveryIconHasItsPicture() {
        QCOMPARE(Path(AppIcon::Program), ":/icons/qorvix.svg");
        QCOMPARE(Path(AppIcon::Open), ":/icons/open.svg");
        QCOMPARE(Path(AppIcon::SaveArchive), ":/icons/save-archive.svg");
        QCOMPARE(Path(AppIcon::Filter), ":/icons/filter.svg");
        QCOMPARE(Path(AppIcon::FilterInForce), ":/icons/filter-in-force.svg");
        QCOMPARE(Path(AppIcon::Refresh), ":/icons/refresh.svg");
        for (const AppIcon icon : All) {
            QVERIFY(!MakeAppIcon(icon).isNull());
            QVERIFY(HasPicture(Path(icon)));
        }
    }

    void ToolbarIconsStandOutFromLightAndDark() {
        for (const AppIcon icon : Toolbar)
            for (const int size : {16, 24, 32, 48})
                StandsOut(icon, size);
    }

    void TheProgramIconWorksAtEverySize() {
        for (const int size : {16, 32, 48, 128, 256})
            StandsOut(AppIcon::Program, size);
    }

    // A disabled toolbar button shows a paler picture, made from the same file.
    void DisabledToolbarIconsDiffer() {
        for (const AppIcon icon : Toolbar) {
            const QIcon picture = MakeAppIcon(icon);
            const QImage disabled = picture.pixmap(QSize(24, 24), 1.0, QIcon::Disabled).toImage();
            QVERIFY(!disabled.isNull());
            QVERIFY(disabled != picture.pixmap(QSize(24, 24), 1.0).toImage());
        }
    }

  private:
    static constexpr std::array Toolbar{AppIcon::Open, AppIcon::SaveArchive, AppIcon::Filter,
                                        AppIcon::FilterInForce, AppIcon::Refresh};
    static constexpr std::array All{AppIcon::Program, AppIcon::Open,          AppIcon::SaveArchive,
                                    AppIcon::Filter,  AppIcon::FilterInForce, AppIcon::Refresh};

    static QString Path(AppIcon icon) { return AppIconPaths.at(static_cast<std::size_t>(icon)); }

    // At least an eighth of the picture is told from a white and from a dark background.
    static void StandsOut(AppIcon icon, int size) {
        for (const QColor& background : {LightBackground, DarkBackground}) {
            const int pixels = PixelsThatStandOut(background, MakeAppIcon(icon), size);
            QVERIFY2(8 * pixels >= size * size, qPrintable(Path(icon) + " " + QString::number(size)));
        }
    }
};

QORVIX_WINDOW_TEST(AppIconsTest)
#include "AppIconsTest.moc"
