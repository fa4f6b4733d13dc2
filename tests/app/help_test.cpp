// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "app/help.h"

class HelpTest : public QObject {
    Q_OBJECT

public slots:
    void open(const QUrl& url) {
        opened_ << url;
        folder_ = QDir::currentPath();
    }

private slots:
    void initTestCase();
    void theGuideOfTheLanguage_data();
    void theGuideOfTheLanguage();
    void theFirstFolderWithAGuideCounts();
    void withoutAGuideTheLastFolderIsNamed();
    void aMissingFileDoesNotOpen();
    void aFileOpens();
    void theOtherProgramDoesNotRunInTheCurrentFolder();

private:
    static void make(const QDir& folder, const QString& name) {
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }

    QTemporaryDir temporary_;
    QDir both_;
    QDir english_;
    QDir empty_;
    QList<QUrl> opened_;
    QString folder_;
};

void HelpTest::initTestCase() {
    const QDir root(temporary_.path());
    for (const char* name : {"both", "english", "empty"})
        QVERIFY(root.mkdir(QLatin1String(name)));
    both_.setPath(root.filePath(QStringLiteral("both")));
    english_.setPath(root.filePath(QStringLiteral("english")));
    empty_.setPath(root.filePath(QStringLiteral("empty")));
    make(both_, QStringLiteral("user-guide.pdf"));
    make(both_, QStringLiteral("user-guide.de.pdf"));
    make(english_, QStringLiteral("user-guide.pdf"));
}

void HelpTest::theGuideOfTheLanguage_data() {
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("file");
    QTest::newRow("English") << QString() << QStringLiteral("user-guide.pdf");
    QTest::newRow("German") << QStringLiteral("de") << QStringLiteral("user-guide.de.pdf");
    QTest::newRow("another") << QStringLiteral("fr") << QStringLiteral("user-guide.pdf");
}

void HelpTest::theGuideOfTheLanguage() {
    QFETCH(QString, language);
    QFETCH(QString, file);
    QCOMPARE(app::guideIn({both_.path()}, language), QUrl::fromLocalFile(both_.filePath(file)));
}

void HelpTest::theFirstFolderWithAGuideCounts() {
    const QStringList folders{empty_.path(), english_.path(), both_.path()};
    QCOMPARE(app::guideIn(folders, QStringLiteral("de")),
             QUrl::fromLocalFile(english_.filePath(QStringLiteral("user-guide.pdf"))));
}

void HelpTest::withoutAGuideTheLastFolderIsNamed() {
    const QStringList folders{QStringLiteral("/nowhere"), empty_.path()};
    QCOMPARE(app::guideIn(folders, QStringLiteral("de")),
             QUrl::fromLocalFile(empty_.filePath(QStringLiteral("user-guide.pdf"))));
}

void HelpTest::aMissingFileDoesNotOpen() {
    QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "open");
    QVERIFY(!app::openGuide(QUrl::fromLocalFile(empty_.filePath(QStringLiteral("x.pdf")))));
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
    QCOMPARE(opened_, QList<QUrl>());
}

void HelpTest::aFileOpens() {
    const QUrl guide = QUrl::fromLocalFile(both_.filePath(QStringLiteral("user-guide.pdf")));
    QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "open");
    QVERIFY(app::openGuide(guide));
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
    QCOMPARE(opened_, QList<QUrl>{guide});
}

void HelpTest::theOtherProgramDoesNotRunInTheCurrentFolder() {
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(both_.path()));
    const QString current = QDir::currentPath();
    QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "open");
    app::openGuide(QUrl::fromLocalFile(both_.filePath(QStringLiteral("user-guide.pdf"))));
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
    const QString after = QDir::currentPath();
    QVERIFY(QDir::setCurrent(before));
    QCOMPARE(QDir(folder_).canonicalPath(), QDir::home().canonicalPath());
    QCOMPARE(after, current);
}

QTEST_MAIN(HelpTest)
#include "help_test.moc"
