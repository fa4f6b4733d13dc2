// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <map>

#include <QApplication>
#include <QDirIterator>
#include <QFile>
#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QTest>

#include "resources/pictures.h"
#include "ui/activity_type_text.h"
#include "ui/readable_colour.h"
#include "ui/shared_icon.h"

namespace {

QPalette paletteOf(const QColor& window, const QColor& text) {
    return {text,
            window.lighter(110),
            window.lighter(150),
            window.darker(150),
            window,
            text,
            Qt::white,
            window,
            window};
}

const QPalette lightPalette = paletteOf("#eff0f1", "#232629");
const QPalette darkPalette = paletteOf("#2a2e32", "#fcfcfc");
const QPalette blackPalette = paletteOf(Qt::black, Qt::white);

/// The share of a picture's opaque pixels that stand out from a background as a symbol must (WCAG
/// 2.1, 1.4.11).
double shareSeen(const QImage& picture, const QColor& background) {
    constexpr double contrastOfSymbols = 3;
    int opaque = 0;
    int seen = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) {
            const QColor colour = picture.pixelColor(x, y);
            if (colour.alpha() < 200)
                continue;
            ++opaque;
            if (ui::contrast(QColor(colour.rgb()), background) >= contrastOfSymbols)
                ++seen;
        }
    return opaque == 0 ? 0 : double(seen) / opaque;
}

} // namespace

/// Every name under which a screen may request a picture.
class PicturesTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { resources::initPictures(); }

    void isThere_data() {
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("name");
        add("tree", "hdd file no_access folder sql_db selected_file exclusion unknown folder_open");
        add("icons",
            "quit tarn_mobile_icon tarn_notebook_icon event_error.png button_delete.png "
            "activity_restore.png toolbar_restore.png icon_edit.png backup_set_unlock.png "
            "activity_delete.png config backup_set_icon.png about.png icon_tfa.png "
            "browse_computer.png activity_sync.png norvel_logo backup_set_lock.png "
            "icon_remove.png icon_add.png connect disconnect credential activity_backup.png "
            "overlay_user.png activity_admin.png browse_network.png recovery reg_info.png "
            "help.png toolbar_backup.png toolbar_new_set.png event_warning.png event_info.png "
            "overlay_warning.png overlay_sync.png icon_unknown.png");
        add("filetypes", "audio email video document picture everything excluded");
        add("button",
            "ok back stop items cancel delete generations schedule retention event_log forward");
        add("images", "wizard_schedule.png wizard_restore.png wizard_newset.png wizard_items.png "
                      "wizard_delete.png wizard_retention.png");
    }
    void isThere() {
        QFETCH(QString, folder);
        QFETCH(QString, name);
        const QString path = QStringLiteral(":/%1/%2").arg(folder, name);
        const QPixmap plain(path);
        QVERIFY(!plain.isNull());
        const QString suffix =
            name.endsWith(QLatin1String(".png")) ? QStringLiteral(".png") : QString();
        const QString bare = path.left(path.size() - suffix.size());
        const QImage large(bare + QStringLiteral("@2x") + suffix);
        QCOMPARE(large.size(), 2 * plain.size());
        QVERIFY(showsSomething(large));
        QCOMPARE(QImage(bare + QStringLiteral(".png")), QImage(path));
        QCOMPARE(QImage(bare + QStringLiteral("@2x.png")), large);
    }

    void aSuffixMayBeLeftOut() {
        QVERIFY(!QPixmap(QStringLiteral(":/images/wizard_newset")).isNull());
        QVERIFY(!QIcon(QStringLiteral(":/icons/about.png")).isNull());
    }

    void anActivityHasThePictureOfItsType() {
        const std::map<int, const char*> known{
            {0, "activity_backup"}, {1, "activity_backup"}, {2, "activity_restore"},
            {3, "activity_admin"},  {4, "activity_admin"},  {5, "activity_delete"},
            {7, "activity_sync"},
        };
        for (int type = -1; type <= 31; ++type) {
            const auto found = known.find(type);
            const QString name =
                QLatin1String(found == known.end() ? "icon_unknown" : found->second);
            QVERIFY2(picture(ui::activityTypeIcon(hessiancln::ActivityType{type})) ==
                         picture(QIcon(QStringLiteral(":/icons/%1.png").arg(name))),
                     qPrintable(QString::number(type)));
        }
    }

    void theLogoHasTheSizeOfItsBar() {
        QCOMPARE(QPixmap(QStringLiteral(":/icons/norvel_logo")).size(), QSize(280, 50));
    }

    void aDatabaseInATreeHasNoPicture() { QVERIFY(!QFile::exists(QStringLiteral(":/tree/db"))); }

    void isSeenOnEachPalette_data() {
        QTest::addColumn<QPalette>("palette");
        QTest::newRow("light") << lightPalette;
        QTest::newRow("dark") << darkPalette;
        QTest::newRow("high contrast") << blackPalette;
    }
    void isSeenOnEachPalette() {
        QFETCH(QPalette, palette);
        QApplication::setPalette(palette);
        QStringList unseen;
        for (const char* folder : {":/button", ":/icons"}) {
            QDirIterator names(QString::fromLatin1(folder));
            while (names.hasNext()) {
                const QString name = names.next();
                if (name.contains(QLatin1Char('@')) || isOwnBackground(name))
                    continue;
                const QImage large = QIcon(name).pixmap(32).toImage();
                if (shareSeen(large, palette.color(QPalette::Window)) < 0.4)
                    unseen << name;
            }
        }
        QCOMPARE(unseen.join(QLatin1Char(' ')), QString());
    }

    void followsThePaletteWhileItIsShown() {
        const QString name = QStringLiteral(":/button/ok");
        const QIcon icon = ui::sharedIcon(name);
        QApplication::setPalette(lightPalette);
        const QImage onLight = picture(icon);
        QCOMPARE(onLight, QPixmap(name).toImage());
        QApplication::setPalette(darkPalette);
        QVERIFY(picture(icon) != onLight);
        QVERIFY(shareSeen(picture(icon), darkPalette.color(QPalette::Window)) > 0.4);
        QApplication::setPalette(lightPalette);
        QCOMPARE(picture(icon), onLight);
    }

    void followsTheSelectionInItsRow() {
        QPalette palette = lightPalette;
        palette.setColor(QPalette::Highlight, Qt::black);
        palette.setColor(QPalette::HighlightedText, Qt::white);
        QApplication::setPalette(palette);
        const QImage selected =
            QIcon(QStringLiteral(":/button/ok")).pixmap(16, QIcon::Selected).toImage();
        QVERIFY(shareSeen(selected, Qt::black) > 0.4);
    }

    void isGreyWhereItIsDisabled() {
        QApplication::setPalette(darkPalette);
        const QIcon icon(QStringLiteral(":/button/ok"));
        QVERIFY(icon.pixmap(16, QIcon::Disabled).toImage() != picture(icon));
    }

    void hasTheSizesOfAPlainIcon_data() {
        QTest::addColumn<QString>("name");
        QTest::newRow("in two colours") << QStringLiteral(":/button/ok.png");
        QTest::newRow("in one") << QStringLiteral(":/tree/folder.png");
    }
    void hasTheSizesOfAPlainIcon() {
        QFETCH(QString, name);
        QApplication::setPalette(lightPalette);
        QIcon plain;
        plain.addPixmap(QPixmap(name));
        const QIcon icon(name);
        QCOMPARE(icon.availableSizes(), plain.availableSizes());
        for (const int size : {8, 16, 24, 100}) {
            QCOMPARE(icon.actualSize({size, size}), plain.actualSize({size, size}));
            QCOMPARE(icon.pixmap(size).toImage(), plain.pixmap(size).toImage());
            QImage painted(size, size, QImage::Format_ARGB32_Premultiplied);
            painted.fill(0);
            QImage expected = painted;
            QPainter first(&painted);
            icon.paint(&first, painted.rect());
            QPainter second(&expected);
            plain.paint(&second, expected.rect());
            QCOMPARE(painted, expected);
        }
    }

    void isTheSameOnEachPaletteIfItHasOneColour() {
        const QString name = QStringLiteral(":/tree/folder.png");
        const QIcon icon(name);
        for (const QPalette& palette : {lightPalette, darkPalette}) {
            QApplication::setPalette(palette);
            for (const auto mode : {QIcon::Normal, QIcon::Selected})
                QCOMPARE(icon.pixmap(16, mode).toImage(), QPixmap(name).toImage());
        }
    }

    void anotherPictureTakesItsPlace() {
        QIcon logo(QStringLiteral(":/icons/norvel_logo"));
        QPixmap own(280, 50);
        own.fill(Qt::red);
        for (const auto mode : {QIcon::Normal, QIcon::Disabled})
            logo.addPixmap(own, mode);
        for (const auto mode : {QIcon::Normal, QIcon::Disabled, QIcon::Active})
            QCOMPARE(logo.pixmap({280, 50}, mode).toImage(), own.toImage());
    }

    void cleanup() { QApplication::setPalette(QPalette()); }

private:
    /// A picture that brings its own background.
    static bool isOwnBackground(const QString& name) {
        for (const char* part : {"backup_set_", "event_", "overlay_", "health_", "_icon", "_logo"})
            if (name.contains(QLatin1String(part)) && !name.contains(QLatin1String("button/")))
                return true;
        return false;
    }

    static void add(const char* folder, const char* names) {
        for (const QString& name : QString::fromLatin1(names).split(QLatin1Char(' ')))
            QTest::newRow(qPrintable(name)) << QString::fromLatin1(folder) << name;
    }

    static QImage picture(const QIcon& icon) {
        const QImage image = icon.pixmap(16).toImage();
        if (image.isNull())
            qFatal("There is no picture");
        return image;
    }

    static bool showsSomething(const QImage& image) {
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (qAlpha(image.pixel(x, y)) > 0)
                    return true;
        return false;
    }
};

QTEST_MAIN(PicturesTest)
#include "pictures_test.moc"
