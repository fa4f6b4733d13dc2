// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QApplication>
#include <QDirIterator>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include "app/start_up.h"
#include "resources/pictures.h"
#include "tests/tour/album.h"
#include "tests/tour/stories.h"

namespace {

/// Every program with fonts has Fontconfig write there while the system's own cache of a folder
/// with fonts is older than the folder.
bool isOfFontconfig(const QString& home, const QString& entry) {
    const QString cache = home + QStringLiteral("/.cache");
    const QString fonts = cache + QStringLiteral("/fontconfig");
    return entry == fonts || entry.startsWith(fonts + QLatin1Char('/')) ||
           (entry == cache &&
            QDir(cache).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot) ==
                QStringList(QStringLiteral("fontconfig")));
}

} // namespace

/// The program keeps nothing in the user's home, whatever screens were open, and its menu bar stays
/// in its window: the desktop would trigger commands even during a call.
class HomeTest : public QObject {
    Q_OBJECT
private slots:
    void doesNotGetTheMenuBar() {
        QVERIFY(QCoreApplication::testAttribute(Qt::AA_DontUseNativeMenuBar));
    }

    /// The desktop's own would keep a list of recently used files there.
    void doesNotGetTheFilesOfDialogs() {
        QVERIFY(QCoreApplication::testAttribute(Qt::AA_DontUseNativeDialogs));
    }

    void staysEmpty() {
        const QString home = QDir::homePath();
        QCOMPARE(QFile::encodeName(home), qgetenv("HOME"));
        tour::Album album(QStringLiteral("Out of order."));
        tour::takeAll(album);
        QCOMPARE(album.missing(), QStringList());
        QStringList left;
        QDirIterator entries(home, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                             QDirIterator::Subdirectories);
        while (entries.hasNext())
            if (const QString entry = entries.next(); !isOfFontconfig(home, entry))
                left << entry;
        QVERIFY2(left.isEmpty(), qPrintable(left.join(QLatin1Char('\n'))));
    }
};

int main(int argc, char** argv) {
    const QTemporaryDir home;
    qputenv("HOME", QFile::encodeName(home.path()));
    for (const char* folder :
         {"XDG_CACHE_HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME"})
        qunsetenv(folder);
    app::prepareToolkit();
    QApplication application(argc, argv);
    app::adjustToolkit(application);
    resources::initPictures();
    HomeTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "home_test.moc"
