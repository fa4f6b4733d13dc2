// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <algorithm>

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTest>
#include <QXmlStreamReader>

#include "resources/pictures.h"
#include "tests/support/gui_screen_reader.h"
#include "tests/support/gui_translation.h"
#include "tests/tour/album.h"
#include "tests/tour/catalogue.h"
#include "tests/tour/pseudo_language.h"
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

/// The string literals in a piece of code, with adjacent ones joined.
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

/// The code from each match of the pattern to the end of the statement.
QStringList statementsAt(const QString& code, const QRegularExpression& start) {
    QStringList statements;
    for (auto match = start.globalMatch(code); match.hasNext();) {
        const int begin = match.next().capturedStart();
        statements << code.mid(begin, code.indexOf(q(";\n"), begin) - begin);
    }
    return statements;
}

/// The titles and texts of the boxes in the program's code, without those from the agent.
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

/// Whether a text of the code was seen, with anything in place of its arguments.
bool isSeen(const QString& text, const QStringList& seen) {
    static const QRegularExpression argument(q("%\\d"));
    QStringList parts;
    for (const QString& part : text.split(argument))
        parts << QRegularExpression::escape(part);
    const QRegularExpression whole(QRegularExpression::anchoredPattern(parts.join(q(".*"))),
                                   QRegularExpression::DotMatchesEverythingOption);
    return seen.indexOf(whole) >= 0;
}

/// Mnemonics that the dialog's own texts use twice; pressing the key again moves to the other
/// widget.
const char* const givenTwice[] = {
    "registration-first: Alt+O stands for labAccountNum \"Acc&ount #\" and labAccountKeyConfirm "
    "\"C&onfirm\"",
    "registration-first: Alt+T stands for labPrivateKeyType \"&Type\" and chkRegister \"Connect to "
    "&Tarn-System and verify information\"",
    "ssh-source: Alt+T stands for labelSudo \"SUDO &to:\" and chkUseTarnClientAccount \"Use "
    "&Tarn-Client Account\""};

/// Objects that show names, numbers and dates from the agent.
const char* const agentsWords[] = {
    "BackupSetViewItem", "cmbAccountKeyType",      "cmbPrivateKeyType", "comboDomain",
    "comboSet",          "comboSpecificLocations", "labelSetName",      "lookInCombo",
    "txtAccountNum",     "txtClientNum",           "valLastBackup"};

/// Texts that are the same in all languages: the names of the program and of its maker, the agent's
/// texts, and the error of a missing translation, which can't have one.
const char* const sameInAllLanguages[] = {"Tarn-Mobile User",
                                          "Norvel Inc",
                                          "Unknown user name or bad password.",
                                          "No API connection exists",
                                          "The authentication code is wrong.",
                                          "Translation error",
                                          "Failed to load translation data from sg_i18n_xx"};

template <class Texts>
bool isAmong(const Texts& texts, const QString& wanted) {
    return std::any_of(std::begin(texts), std::end(texts),
                       [&](const char* text) { return wanted == q(text); });
}

/// The program's texts in English, as in its sources.
QSet<QString> sourceTexts() {
    static const QRegularExpression source(q("<source>([^<]*)</source>"));
    QSet<QString> texts;
    const QString file = contentOf(q("src/resources/translations/sg_i18n_") +
                                   support::languages().first() + q(".ts"));
    for (auto match = source.globalMatch(file); match.hasNext();)
        texts << match.next().captured(1);
    return texts;
}

/// Whether a text is in the pseudo-language, or isn't one of the program's. A row may show anything
/// except a source text.
bool isTranslated(const tour::SeenText& seen) {
    static const QRegularExpression letter(q("[A-Za-z]"));
    static const QRegularExpression patterns(q(R"re(^(\*\.\w+[,\s]*)+$)re"));
    static const QSet<QString> english = sourceTexts();
    if (!seen.text.contains(letter) || tour::PseudoLanguage::isSpokenIn(seen.text))
        return true;
    // These two show the agent's names, some of which the program also has as texts.
    if (seen.isOfRow)
        return !english.contains(seen.text) || seen.owner == q("tableInfo") ||
               seen.owner == q("treeNetworkDiscovery");
    return patterns.match(seen.text).hasMatch() || isAmong(sameInAllLanguages, seen.text) ||
           isAmong(agentsWords, seen.owner);
}

/// The widgets of a form that are switched off, by themselves or by the box in their title, and
/// hold others.
QStringList containersSwitchedOff(const QString& form) {
    struct Widget {
        QString name;
        bool isOff = false;
        bool holdsOthers = false;
    };
    QStringList found;
    QList<Widget> open{{}};
    QXmlStreamReader xml(form);
    while (!xml.atEnd()) {
        xml.readNext();
        const bool isWidget = xml.name() == QLatin1String("widget");
        const QString name = xml.attributes().value(q("name")).toString();
        if (xml.isStartElement() && isWidget) {
            open.last().holdsOthers = true;
            open.append({name});
        } else if (xml.isStartElement() && (name == q("enabled") || name == q("checked"))) {
            xml.readNextStartElement();
            open.last().isOff |= xml.readElementText() == q("false");
        } else if (xml.isEndElement() && isWidget) {
            const Widget widget = open.takeLast();
            if (widget.isOff && widget.holdsOthers)
                found << widget.name;
        }
    }
    if (xml.hasError())
        qFatal("%s", qPrintable(xml.errorString()));
    return found;
}

void checkAllIsTaken(const tour::Album& album) {
    for (const QString& screen : album.missing())
        QTest::qFail(qPrintable(screen + q(" has no picture")), __FILE__, __LINE__);
}

void check(const tour::Album& album) {
    checkAllIsTaken(album);
    for (const QString& defect : album.defects())
        if (!isAmong(givenTwice, defect))
            QTest::qFail(qPrintable(defect), __FILE__, __LINE__);
}

} // namespace

/// Every screen of the program can be reached, in every language, and has no defects.
class TourTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() {
        resources::initPictures();
        // Only Qt's own file dialog has widgets that a test can use.
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    }

    void inEnglish();
    void inEachLanguage_data();
    void inEachLanguage();
    void inAPseudoLanguage();
    void everyFormHasAChapter();
    void noFormDisablesWhatIsStillEmpty();
    void everyBoxIsTaken();
    void thePageListsTheFormOfEachScreen();
    void thePageShowsEveryScreen();

private:
    support::ScreenReader reader_; ///< looks at all, as early as one does
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

void TourTest::inAPseudoLanguage() {
    tour::PseudoLanguage language;
    QVERIFY(QCoreApplication::installTranslator(&language));
    QCOMPARE(QGuiApplication::layoutDirection(), Qt::RightToLeft);
    tour::Album album(tour::PseudoLanguage::textOf(q("Out of order.")));
    tour::takeAll(album);
    QCoreApplication::removeTranslator(&language);
    checkAllIsTaken(album);
    // Its letters and so its mnemonics are those of the English texts. No real language has words
    // as long on the smallest screen.
    for (const QString& defect : album.defects())
        if (!defect.contains(q(" stands for ")) && !defect.contains(q(": needs ")))
            QTest::qFail(qPrintable(defect), __FILE__, __LINE__);
    const auto& screens = album.seenTexts();
    for (auto screen = screens.cbegin(); screen != screens.cend(); ++screen)
        for (const tour::SeenText& seen : screen.value())
            if (!isTranslated(seen))
                QTest::qFail(qPrintable(q("%1: untranslated is %2 \"%3\"")
                                            .arg(screen.key(), seen.owner, seen.text)),
                             __FILE__, __LINE__);
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

/// A widget that is created in a disabled one emits an event, so that a running screen reader
/// inspects it before it is complete.
void TourTest::noFormDisablesWhatIsStillEmpty() {
    QCOMPARE(containersSwitchedOff(
                 q("<widget name='box'><property name='checked'><bool>false</bool></property>"
                   "<widget name='field'><property name='enabled'><bool>false</bool></property>"
                   "</widget></widget>")),
             QStringList{q("box")});
    for (const QString& path : sourcesEndingIn("*.ui"))
        QCOMPARE(path + containersSwitchedOff(contentOf(path)).join(QLatin1Char(' ')), path);
}

void TourTest::everyBoxIsTaken() {
    // The action with this title can't fail: the list is read once it is on the screen.
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

void TourTest::thePageListsTheFormOfEachScreen() {
    const QString page = contentOf(q("docs/tour.md"));
    for (const tour::Chapter& chapter : tour::catalogue())
        if (*chapter.className) {
            const QString row = q("| %1 | `%2` | [%3](../%3) |\n")
                                    .arg(q(chapter.title), q(chapter.className), q(chapter.file));
            QVERIFY2(page.contains(row), qPrintable(row));
        }
}

void TourTest::thePageShowsEveryScreen() {
    const QString page = contentOf(q("docs/tour.md"));
    for (const tour::Chapter& chapter : tour::catalogue())
        for (const tour::Screen& screen : chapter.screens)
            for (const char* language : {"en", "de"}) {
                const QString picture = q("tour/%1/%2.png").arg(q(language), q(screen.name));
                QVERIFY2(page.contains(picture), screen.name);
                QVERIFY2(QFile::exists(QStringLiteral(TARN_SOURCE_DIR "/docs/") + picture),
                         screen.name);
            }
}

QTEST_MAIN(TourTest)
#include "tour_test.moc"
