// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <memory>
#include <stdexcept>

#include <QContextMenuEvent>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QtTest>

#include "app/backup_set_view_item.h"
#include "resources/pictures.h"
#include "session/process_values.h"
#include "tests/support/gui_modal_driver.h"
#include "ui/elided_label.h"
#include "ui/readable_colour.h"

namespace {

using support::child;

hessiancln::backup_set_info healthySet(const char* name = "Documents") {
    hessiancln::backup_set_info set;
    set.id = 7;
    set.name = name;
    set.computer = "notebook";
    set.in_sync = true;
    set.has_items = true;
    return set;
}

/// A visible card, and the renames it requested, as in "7=Name".
struct ShownCard {
    explicit ShownCard(std::function<void()> failure = [] {})
        : card(nullptr, [this, failure](std::int32_t id, const QString& name) {
            renames << QStringLiteral("%1=%2").arg(id).arg(name);
            editingWhileRenaming = card.editingName();
            failure();
        }) {
        card.setRecord(healthySet());
        card.show();
        if (!QTest::qWaitForWindowActive(&card))
            qFatal("The card doesn't become active");
    }

    QLabel& name() { return child<QLabel>(card, "labelSetName"); }
    QLineEdit& editor() { return child<QLineEdit>(card, "nameEditor"); }
    void doubleClick(QPoint at) { QTest::mouseDClick(&card, Qt::LeftButton, {}, at); }
    void startRename() {
        doubleClick(name().geometry().center());
        QVERIFY(card.editingName());
    }

    QStringList renames;
    bool editingWhileRenaming = false;
    BackupSetViewItem card;
};

} // namespace

class BackupSetViewItemTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { resources::initPictures(); }
    void init() { session::g_isCentrallyManaged = false; }

    void showsTheSet();
    void showsItsStateByPictureColourAndToolTip();
    void itsRedIsReadOnADarkDesktop();
    void anUnchangedCardIsNotRedrawn();
    void aCardThatRecoversLosesItsColour();
    void markupInANameIsText();
    void aNameThatIsTooLongEndsInTheCard();
    void theSelectionColoursTheBackground();
    void aDoubleClickOnTheNameOpensTheEditor();
    void aDoubleClickElsewhereDoesNot();
    void underCentralManagementNothingIsRenamed();
    void returnSendsTheTrimmedNameOnce();
    void losingTheFocusSendsTheName();
    void anEmptyNameIsSentAsItIs();
    void aNameOfMoreThan80CharactersIsCut();
    void aCardThatGoesWhileItIsEditedRenamesNothing();
    void aFailedRenameIsShownAndKeepsTheOldName();
    void withoutASessionTheRenameFails();
    void theContextMenuIsAskedFor();
};

void BackupSetViewItemTest::showsTheSet() {
    ShownCard shown;
    QCOMPARE(shown.name().text(), QStringLiteral("Documents"));
    QCOMPARE(child<QLabel>(shown.card, "labelAdditionalInfo").text(),
             QStringLiteral("Backup of: notebook"));
    QCOMPARE(shown.name().font().pointSize(), 16);
    QCOMPARE(shown.name().font().weight(), 75);
    QCOMPARE(shown.card.record().id, 7);
    QVERIFY(shown.card.autoFillBackground());
    QCOMPARE(shown.card.size(), QSize(539, 78));
    QCOMPARE(shown.card.layout()->contentsMargins(), QMargins(5, 0, 5, 0));
}

void BackupSetViewItemTest::showsItsStateByPictureColourAndToolTip() {
    BackupSetViewItem card;
    const auto picture = [&] {
        return child<QLabel>(card, "labelImageDisplay").pixmap(Qt::ReturnByValue).toImage();
    };
    card.setRecord(healthySet());
    const QImage healthy = picture();
    QCOMPARE(healthy, QPixmap(QStringLiteral(":/icons/backup_set_icon.png")).toImage());
    QVERIFY(!healthy.isNull());
    QVERIFY(card.styleSheet().isEmpty() && card.toolTip().isEmpty());

    auto set = healthySet();
    set.has_items = false;
    card.setRecord(set);
    QVERIFY(picture() != healthy);
    QVERIFY(card.styleSheet().isEmpty());
    QCOMPARE(card.toolTip(),
             QStringLiteral("This backup set is a recovered backup set. You must edit\nthe "
                            "backup set items, schedule and the retention for this\nbackup set "
                            "using the buttons on the right."));

    set.in_sync = false;
    const QImage recovered = picture();
    card.setRecord(set);
    QVERIFY(picture() != healthy && picture() != recovered);
    QVERIFY(card.styleSheet().contains(QLatin1String("color: red")));
    QVERIFY(card.toolTip().isEmpty());
}

void BackupSetViewItemTest::itsRedIsReadOnADarkDesktop() {
    QPalette dark(QColor("#31363b"), QColor("#2a2e32"));
    for (const auto role : {QPalette::Base, QPalette::AlternateBase})
        dark.setColor(role, "#2a2e32");
    ShownCard shown;
    auto set = healthySet();
    set.in_sync = false;
    shown.card.setRecord(set);
    const auto contrast = [&] {
        return ui::contrast(shown.name().palette().color(shown.name().foregroundRole()),
                            shown.card.palette().color(shown.card.backgroundRole()));
    };
    const QString formSheet = shown.card.styleSheet();
    QCOMPARE(shown.name().palette().color(QPalette::WindowText), QColor(Qt::red));
    // The desktop changes while the program runs.
    QApplication::setPalette(dark);
    QTRY_VERIFY(contrast() >= 4.5);
    shown.card.setSelected(true);
    QTRY_VERIFY(contrast() >= 4.5);
    QApplication::setPalette(QPalette());
    QTRY_COMPARE(shown.card.styleSheet(), formSheet);
}

void BackupSetViewItemTest::anUnchangedCardIsNotRedrawn() {
    ShownCard shown;
    auto set = healthySet();
    set.in_sync = false;
    shown.card.setRecord(set);
    QCoreApplication::processEvents();

    struct Counter : QObject {
        bool eventFilter(QObject*, QEvent* event) override {
            styleChanges += event->type() == QEvent::StyleChange;
            paints += event->type() == QEvent::Paint;
            return false;
        }
        int styleChanges = 0;
        int paints = 0;
    } counter;
    shown.card.installEventFilter(&counter);
    auto& picture = child<QLabel>(shown.card, "labelImageDisplay");
    picture.installEventFilter(&counter);
    const qint64 key = picture.pixmap(Qt::ReturnByValue).cacheKey();
    for (int i = 0; i < 10; ++i)
        shown.card.setRecord(set);
    QCoreApplication::processEvents();
    QCOMPARE(counter.styleChanges, 0);
    QCOMPARE(counter.paints, 0);
    QCOMPARE(picture.pixmap(Qt::ReturnByValue).cacheKey(), key);
}

void BackupSetViewItemTest::aCardThatRecoversLosesItsColour() {
    BackupSetViewItem card;
    auto set = healthySet();
    set.in_sync = false;
    card.setRecord(set);
    QEvent languageChange(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&card, &languageChange);
    QVERIFY(!card.styleSheet().isEmpty());
    card.setRecord(healthySet());
    QVERIFY(card.styleSheet().isEmpty());
}

void BackupSetViewItemTest::markupInANameIsText() {
    BackupSetViewItem card;
    card.setRecord(healthySet("<b>x</b>"));
    QCOMPARE(child<QLabel>(card, "labelSetName").textFormat(), Qt::PlainText);
    QCOMPARE(child<QLabel>(card, "labelAdditionalInfo").textFormat(), Qt::PlainText);
}

void BackupSetViewItemTest::aNameThatIsTooLongEndsInTheCard() {
    ShownCard shown;
    const std::string name(80, 'W');
    auto set = healthySet(name.c_str());
    set.computer = std::string(200, 'W');
    shown.card.setRecord(set);
    QCoreApplication::processEvents();
    QCOMPARE(shown.card.size(), QSize(539, 78));
    for (const char* label : {"labelSetName", "labelAdditionalInfo"}) {
        auto& line = child<ui::ElidedLabel>(shown.card, label);
        QVERIFY(line.isCut());
        QVERIFY(shown.card.rect().contains(line.geometry()));
    }
}

void BackupSetViewItemTest::theSelectionColoursTheBackground() {
    QWidget parent;
    BackupSetViewItem card(&parent);
    const QPalette::ColorRole before = card.backgroundRole();
    card.setSelected(true);
    QCOMPARE(card.backgroundRole(), QPalette::Highlight);
    card.setSelected(false);
    QCOMPARE(card.backgroundRole(), before);
}

void BackupSetViewItemTest::aDoubleClickOnTheNameOpensTheEditor() {
    ShownCard shown;
    shown.startRename();
    QVERIFY(shown.editor().isVisible());
    QVERIFY(!shown.name().isVisible());
    QVERIFY(shown.editor().hasFocus());
    QCOMPARE(child<QLayout>(shown.card, "layoutNameAndData").itemAt(0)->widget(), &shown.editor());
    QCOMPARE(shown.editor().text(), QStringLiteral("Documents"));
    QCOMPARE(shown.editor().selectedText(), QStringLiteral("Documents"));
    QCOMPARE(shown.editor().font(), shown.name().font());
    QVERIFY(!shown.editor().accessibleName().isEmpty());
    QVERIFY(shown.renames.isEmpty());
}

void BackupSetViewItemTest::aDoubleClickElsewhereDoesNot() {
    ShownCard shown;
    for (const char* label : {"labelImageDisplay", "labelAdditionalInfo"}) {
        shown.doubleClick(child<QLabel>(shown.card, label).geometry().center());
        QVERIFY(!shown.card.editingName());
    }
}

void BackupSetViewItemTest::underCentralManagementNothingIsRenamed() {
    session::g_isCentrallyManaged = true;
    ShownCard shown;
    shown.doubleClick(shown.name().geometry().center());
    QVERIFY(!shown.card.editingName());
    QVERIFY(shown.name().isVisible());
}

void BackupSetViewItemTest::returnSendsTheTrimmedNameOnce() {
    ShownCard shown;
    shown.startRename();
    shown.editor().setText(QStringLiteral("  New name "));
    QTest::keyClick(&shown.editor(), Qt::Key_Return);
    QCOMPARE(shown.renames, QStringList{QStringLiteral("7=New name")});
    QVERIFY(shown.editingWhileRenaming);
    QVERIFY(!shown.card.editingName());
    QVERIFY(shown.name().isVisible());
    QVERIFY(!shown.editor().isVisible());
    QVERIFY(shown.card.hasFocus());
    QCOMPARE(shown.name().text(), QStringLiteral("New name"));
}

void BackupSetViewItemTest::losingTheFocusSendsTheName() {
    ShownCard shown;
    shown.startRename();
    shown.editor().setText(QStringLiteral("Other"));
    shown.card.setFocus();
    QCOMPARE(shown.renames, QStringList{QStringLiteral("7=Other")});
    QVERIFY(!shown.card.editingName());
}

void BackupSetViewItemTest::anEmptyNameIsSentAsItIs() {
    ShownCard shown;
    shown.startRename();
    shown.editor().setText(QStringLiteral("   "));
    QTest::keyClick(&shown.editor(), Qt::Key_Return);
    QCOMPARE(shown.renames, QStringList{QStringLiteral("7=")});
}

void BackupSetViewItemTest::aNameOfMoreThan80CharactersIsCut() {
    ShownCard shown;
    shown.startRename();
    QCOMPARE(shown.editor().maxLength(), 80);
}

void BackupSetViewItemTest::aCardThatGoesWhileItIsEditedRenamesNothing() {
    int renames = 0;
    auto shown = std::make_unique<ShownCard>([&] { ++renames; });
    shown->startRename();
    shown.reset();
    QCOMPARE(renames, 0);
}

void BackupSetViewItemTest::aFailedRenameIsShownAndKeepsTheOldName() {
    ShownCard shown([] { throw std::runtime_error("No such set"); });
    shown.startRename();
    shown.editor().setText(QStringLiteral("New name"));
    support::ModalDriver modals;
    modals.expectErrorBox(QStringLiteral("Rename backup set error"), QStringLiteral("No such set"));
    QTest::keyClick(&shown.editor(), Qt::Key_Return);
    QVERIFY(modals.done());
    QCOMPARE(shown.renames.size(), 1);
    QVERIFY(!shown.card.editingName());
    QVERIFY(shown.name().isVisible());
    QCOMPARE(shown.name().text(), QStringLiteral("Documents"));
}

void BackupSetViewItemTest::withoutASessionTheRenameFails() {
    QVERIFY_EXCEPTION_THROWN(BackupSetViewItem::renameOnAgent(1, QStringLiteral("x")),
                             std::exception);
}

void BackupSetViewItemTest::theContextMenuIsAskedFor() {
    ShownCard shown;
    BackupSetViewItem* source = nullptr;
    QPoint at;
    connect(&shown.card, &BackupSetViewItem::contextMenuNeedsDisplay, this,
            [&](BackupSetViewItem* card, QContextMenuEvent* event) {
                source = card;
                at = event->globalPos();
            });
    QContextMenuEvent event(QContextMenuEvent::Mouse, {3, 4}, {30, 40});
    QCoreApplication::sendEvent(&shown.card, &event);
    QCOMPARE(source, &shown.card);
    QCOMPARE(at, QPoint(30, 40));
}

QTEST_MAIN(BackupSetViewItemTest)
#include "backup_set_view_item_test.moc"
