// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <map>

#include <QFile>
#include <QIcon>
#include <QPixmap>
#include <QTest>

#include "resources/pictures.h"
#include "ui/activity_type_text.h"

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
        const QString twice =
            path.left(path.size() - suffix.size()) + QStringLiteral("@2x") + suffix;
        const QImage large(twice);
        QCOMPARE(large.size(), 2 * plain.size());
        QVERIFY(showsSomething(large));
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

private:
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
