// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <algorithm>

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QTest>

#include "resources/pictures.h"
#include "tests/support/gui_translation.h"
#include "tests/tour/album.h"
#include "tests/tour/catalogue.h"
#include "tests/tour/stories.h"

namespace {

QString q(const char* text) {
    return QString::fromUtf8(text);
}

QString contentOf(const QString& path) {
    QFile file(QStringLiteral(TARN_SOURCE_DIR "/") + path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("Can't read %s", qPrintable(path));
    return QString::fromUtf8(file.readAll());
}

QStringList sourcesEndingIn(const char* ending) {
    QStringList paths;
    const QDir root(QStringLiteral(TARN_SOURCE_DIR));
    QDirIterator files(root.filePath(q("src")), {q(ending)}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext())
        paths << root.relativeFilePath(files.next());
    paths.sort();
    return paths;
}

/// The literals in a piece of code, each of them in one piece.
QStringList literalsIn(const QString& code) {
    static const QRegularExpression literal(q(R"re(("([^"\\\n]|\\.)*"\s*)+)re"));
    QStringList texts;
    for (auto match = literal.globalMatch(code); match.hasNext();) {
        QString text = match.next().captured();
        static const QRegularExpression seam(q(R"re(\"\s+\")re"));
        text = text.trimmed();
        text.remove(seam);
        text = text.mid(1, text.size() - 2);
        text.replace(q("\\\""), q("\"")).replace(q("\\n"), q("\n"));
        texts << text;
    }
    return texts;
}

/// The code from each place that the pattern finds up to the end of the statement.
QStringList statementsAt(const QString& code, const QRegularExpression& start) {
    QStringList statements;
    for (auto match = start.globalMatch(code); match.hasNext();) {
        const int begin = match.next().capturedStart();
        statements << code.mid(begin, code.indexOf(q(";\n"), begin) - begin);
    }
    return statements;
}

/// What the code of the program says in boxes of its own: their titles and their texts, without
/// those of the agent.
QStringList boxTextsOfCode() {
    static const QRegularExpression boxes(q(
        R"re(ui::(showError|showInformation|asks|confirms)\(|QMessageBox::(information|question|warning|critical)\(|QFileDialog dialog\()re"));
    static const QRegularExpression actions(q(R"re(ui::remoteAction\()re"));
    static const QRegularExpression problems(q(R"re(return Texts::tr\()re"));
    QStringList texts;
    for (const QString& path : sourcesEndingIn("*.cpp")) {
        const QString code = contentOf(path);
        for (const QString& statement : statementsAt(code, boxes))
            texts << literalsIn(statement);
        for (const QString& statement : statementsAt(code, actions))
            texts << literalsIn(statement).mid(0, 1);
        if (code.contains(q("QString problemOf(")))
            for (const QString& statement : statementsAt(code, problems))
                texts << literalsIn(statement);
    }
    texts.removeDuplicates();
    return texts;
}

/// Whether one of the texts is that of the code, with anything in the places of its arguments.
bool isSeen(const QString& text, const QStringList& seen) {
    static const QRegularExpression argument(q("%\\d"));
    QStringList parts;
    for (const QString& part : text.split(argument))
        parts << QRegularExpression::escape(part);
    const QRegularExpression whole(QRegularExpression::anchoredPattern(parts.join(q(".*"))),
                                   QRegularExpression::DotMatchesEverythingOption);
    return seen.indexOf(whole) >= 0;
}

/// Letters that the texts of the dialog give twice; a second press goes on to the other one.
const char* const givenTwice[] = {
    "registration-first: Alt+O stands for labAccountNum \"Acc&ount #\" and labAccountKeyConfirm "
    "\"C&onfirm\"",
    "registration-first: Alt+T stands for labPrivateKeyType \"&Type\" and chkRegister \"Connect to "
    "&Tarn-System and verify information\""};

void check(const tour::Album& album) {
    for (const QString& screen : album.missing())
        QTest::qFail(qPrintable(screen + q(" has no picture")), __FILE__, __LINE__);
    for (const QString& defect : album.defects())
        if (std::none_of(std::begin(givenTwice), std::end(givenTwice),
                         [&](const char* twice) { return defect == q(twice); }))
            QTest::qFail(qPrintable(defect), __FILE__, __LINE__);
}

} // namespace

/// Every screen of the program can be had, in both languages, and is in order.
class TourTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { resources::initPictures(); }

    void inEnglish();
    void inEachLanguage_data();
    void inEachLanguage();
    void everyFormHasAChapter();
    void everyBoxIsTaken();
    void theReadmeTellsWhereEachScreenStands();
    void thePageShowsEveryScreen();

private:
    QStringList boxTexts_;
};

void TourTest::inEnglish() {
    tour::Album album(q("Out of order."));
    tour::takeAll(album);
    boxTexts_ = album.boxTexts();
    check(album);
}

void TourTest::inEachLanguage_data() {
    QTest::addColumn<QString>("language");
    for (const QString& language : support::languages())
        QTest::newRow(qPrintable(language)) << language;
}

void TourTest::inEachLanguage() {
    QFETCH(QString, language);
    const support::Translation texts(language);
    tour::Album album(q("Außer Betrieb."));
    tour::takeAll(album);
    check(album);
}

void TourTest::everyFormHasAChapter() {
    static const QRegularExpression name(q("<class>(\\w+)</class>"));
    QStringList forms;
    for (const QString& path : sourcesEndingIn("*.ui"))
        forms << name.match(contentOf(path)).captured(1) + q(" ") + path;
    QStringList chapters;
    for (const tour::Chapter& chapter : tour::catalogue())
        if (*chapter.className)
            chapters << q(chapter.className) + q(" ") + q(chapter.file);
    forms.sort();
    chapters.sort();
    QCOMPARE(chapters, forms);
}

void TourTest::everyBoxIsTaken() {
    // What is run under this title doesn't fail: the list is read when it is on the screen.
    const QString never = q("2FA Settings Error");
    QVERIFY(!boxTexts_.isEmpty());
    const QStringList texts = boxTextsOfCode();
    QVERIFY(texts.contains(q("No backup set selected.")));
    QVERIFY(texts.contains(q("Credential check failed")));
    QVERIFY(texts.contains(q("Please select a country.")));
    QStringList unseen;
    for (const QString& text : texts)
        if (text != never && !isSeen(text, boxTexts_))
            unseen << text;
    QCOMPARE(unseen.join(QLatin1Char('\n')), QString());
}

void TourTest::theReadmeTellsWhereEachScreenStands() {
    const QString readme = contentOf(q("README.md"));
    for (const tour::Chapter& chapter : tour::catalogue())
        if (*chapter.className) {
            const QString row = q("| %1 | `%2` | [%3](%3) |\n")
                                    .arg(q(chapter.title), q(chapter.className), q(chapter.file));
            QVERIFY2(readme.contains(row), qPrintable(row));
        }
}

void TourTest::thePageShowsEveryScreen() {
    const QString page = contentOf(q("docs/tour.md"));
    for (const tour::Chapter& chapter : tour::catalogue())
        for (const tour::Screen& screen : chapter.screens)
            for (const QString& language : QStringList(q("en")) + support::languages()) {
                const QString picture = q("tour/%1/%2.png").arg(language, q(screen.name));
                QVERIFY2(page.contains(picture), screen.name);
                QVERIFY2(QFile::exists(QStringLiteral(TARN_SOURCE_DIR "/docs/") + picture),
                         screen.name);
            }
}

QTEST_MAIN(TourTest)
#include "tour_test.moc"
