// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <algorithm>

#include <QAbstractButton>
#include <QCheckBox>
#include <QDateTimeEdit>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QTreeView>

#include "api/data_view_records.h"
#include "hessian/value.h"
#include "resources/pictures.h"
#include "simulator/world/world.h"
#include "tests/gui/restore_wizard_calls.h"
#include "tests/gui/restore_wizard_steps.h"
#include "tests/support/gui_wizard.h"
#include "wizards/restore_select_page.h"
#include "wizards/select_generation_dlg.h"

using namespace gui;
using simulator::World;
using support::child;
using support::difference;
using support::isDialog;

namespace {

QWizardPage& pageOf(QWidget& wizard) {
    return *static_cast<QWizard&>(wizard).currentPage();
}

QAbstractButton& button(QWidget& wizard, QWizard::WizardButton which) {
    return *static_cast<QWizard&>(wizard).button(which);
}

void selectFile(QWidget& page, const char* name) {
    listOf(page).setCurrentIndex(fileNamed(page, name));
}

QDateTimeEdit& date(QWidget& page, const char* name) {
    return child<QDateTimeEdit>(page, name);
}

QCheckBox& box(QWidget& page, const char* name) {
    return child<QCheckBox>(page, name);
}

/// The calls of the set.
Calls ofSet(const Calls& calls) {
    Calls result;
    for (const std::string& call : calls)
        if (call.rfind("BackupSet.", 0) == 0)
            result.push_back(call);
    return result;
}

} // namespace

/// The first page of the restore wizard: the time it shows, and its calls.
class RestoreFilterTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { resources::initPictures(); }
    void init();
    void cleanup() { test_.end(); }

    void theFormIsAsItBegins();
    void nextWaitsForACheckMark();
    void anOldGenerationNarrowsTheFilter();
    void theNewestGenerationOfAllNarrowsItToo();
    void aGenerationBeforeTheFilterMovesItBack();
    void aGenerationThatTheFilterShowsChangesNothing();
    void generationsBeforeTheFilterHaveNoSign();
    void aFileIsFoundAgainByItsOwnCase();
    void aGenerationThatIsNotPicked();
    void aChangedFilterKeepsTheTreeAndDropsTheMarks();
    void theFileFilterIsKept();
    void datesReachTheAgent();
    void aDateThatIsHalfTypedGoesWithTheWizard_data() { support::addWaysToLeave(); }
    void aDateThatIsHalfTypedGoesWithTheWizard();
    void theTreeScrollsToWhatIsLookedAt();
    void theUserSeesThatAViewTakesItsTime();

private:
    /// Opens the wizard for one act on its first page, then cancels it.
    void atFirstPage(const support::AtPage& act);
    void expectGeneration(int row, const std::function<void(QTableView&)>& look = {});
    Calls calls() { return restoreCallsOf(*test_.agent, {}); }

    support::WizardTest test_;
};

void RestoreFilterTest::init() {
    test_.start(simulator::Scenario::Default, [](World& world) { storeFiles(world); });
    test_.driver->sets().selectRow(restoredRow);
}

void RestoreFilterTest::atFirstPage(const support::AtPage& act) {
    test_.modals->expect(q("wizard"), isDialog<QWizard>, [act](QWidget& wizard) {
        act(pageOf(wizard));
        static_cast<QWizard&>(wizard).reject();
    });
    test_.run("OnRestore");
}

void RestoreFilterTest::expectGeneration(int row, const std::function<void(QTableView&)>& look) {
    test_.modals->expect(q("generations"), isDialog<SelectGenerationDlg>, [=](QWidget& dialog) {
        auto& table = child<QTableView>(dialog, "listGenerations");
        if (look)
            look(table);
        auto& select = child<QPushButton>(dialog, "buttonSelect");
        QVERIFY(!select.isEnabled());
        if (row < 0) {
            QTest::mouseClick(&child<QPushButton>(dialog, "buttonClose"), Qt::LeftButton);
            return;
        }
        table.selectRow(row);
        QTest::mouseClick(&select, Qt::LeftButton);
    });
}

void RestoreFilterTest::theFormIsAsItBegins() {
    atFirstPage([](QWizardPage& page) {
        QVERIFY(!child<QWidget>(page, "filterDisplay").isVisible());
        QVERIFY(!child<QPushButton>(page, "buttonGenerations").isEnabled());
        box(page, "checkFilter").click();
        QVERIFY(child<QWidget>(page, "filterDisplay").isVisible());
        // It fits without enlarging the wizard.
        QCoreApplication::processEvents();
        QVERIFY(child<QLineEdit>(page, "editFilter").geometry().top() >=
                child<QWidget>(page, "splitter").geometry().bottom());
        for (const char* name : {"dateFrom", "dateTo", "dateRemoved"}) {
            QVERIFY(!date(page, name).isEnabled());
            QCOMPARE(date(page, name).minimumDate(),
                     QDateTime::fromSecsSinceEpoch(firstBackup).date());
            QCOMPARE(date(page, name).maximumDate(),
                     QDateTime::fromSecsSinceEpoch(lastBackup).date());
        }
        QCOMPARE(date(page, "dateFrom").dateTime().toSecsSinceEpoch(), firstBackup);
        QCOMPARE(date(page, "dateTo").dateTime().toSecsSinceEpoch(), lastBackup);
        QCOMPARE(date(page, "dateRemoved").dateTime().toSecsSinceEpoch(), lastBackup);
        box(page, "checkFilter").click();
        QVERIFY(!child<QWidget>(page, "filterDisplay").isVisible());
    });
}

void RestoreFilterTest::nextWaitsForACheckMark() {
    atFirstPage([](QWizardPage& page) {
        QWidget& wizard = *page.window();
        QVERIFY(!button(wizard, QWizard::NextButton).isEnabled());
        check(page, "D:");
        QVERIFY(button(wizard, QWizard::NextButton).isEnabled());
        treeOf(page).model()->setData(rowAt(treeOf(page), "D:"), Qt::Unchecked, Qt::CheckStateRole);
        QVERIFY(!button(wizard, QWizard::NextButton).isEnabled());
    });
}

void RestoreFilterTest::anOldGenerationNarrowsTheFilter() {
    test_.expectWizard([this](QWizardPage& page) {
        if (!qobject_cast<RestoreSelectPage*>(&page)) {
            wishing({})(page);
            return;
        }
        selectFile(page, "notes.txt");
        expectGeneration(1, [](QTableView& table) {
            QCOMPARE(table.model()->rowCount(), 3);
            QCOMPARE(table.model()->index(1, 1).data().toString(), q("15 Byte(s)"));
        });
        test_.agent->clearCallLog();
        child<QPushButton>(page, "buttonGenerations").click();
        QCOMPARE(difference(calls(), {"BackupSetRestoreView.getItemGenerations(4)",
                                      "BackupSet.backup_times()",
                                      "BackupSet.prepare_restore(0, 1730000060, 0)",
                                      "BackupSetRestoreView.getSubItems(-1)",
                                      "BackupSetRestoreView.getSubItems(1)"}),
                 QString());
        QVERIFY(box(page, "checkFilter").isChecked());
        QVERIFY(child<QWidget>(page, "filterDisplay").isVisible());
        QVERIFY(!box(page, "checkFrom").isChecked());
        QVERIFY(box(page, "checkTo").isChecked());
        QVERIFY(date(page, "dateTo").isEnabled());
        QCOMPARE(date(page, "dateTo").dateTime().toSecsSinceEpoch(), middleBackup + 60);
        QCOMPARE(checkStateOf(page, "notes.txt"), 2);
        QCOMPARE(checkStateOf(page, "budget.ods"), 0);
        QVERIFY(!child<QPushButton>(page, "buttonGenerations").isEnabled());
    });
    test_.run("OnRestore");
    const Calls all = calls();
    const Calls restored = restoredToOrigin("4", 3);
    QVERIFY(std::search(all.begin(), all.end(), restored.begin(), restored.end()) != all.end());
}

void RestoreFilterTest::theNewestGenerationOfAllNarrowsItToo() {
    atFirstPage([this](QWizardPage& page) {
        selectFile(page, "notes.txt");
        expectGeneration(0);
        child<QPushButton>(page, "buttonGenerations").click();
        QCOMPARE(date(page, "dateTo").dateTime().toSecsSinceEpoch(), lastBackup);
        QCOMPARE(checkStateOf(page, "notes.txt"), 2);
    });
    QCOMPARE(ofSet(calls()).back(), std::string("BackupSet.prepare_restore(0, 1760000000, 0)"));
}

void RestoreFilterTest::aGenerationBeforeTheFilterMovesItBack() {
    atFirstPage([this](QWizardPage& page) {
        box(page, "checkFilter").click();
        box(page, "checkTo").click();
        box(page, "checkFrom").click();
        date(page, "dateFrom").setDateTime(QDateTime::fromSecsSinceEpoch(middleBackup));
        selectFile(page, "notes.txt");
        expectGeneration(2, [](QTableView& table) { QCOMPARE(table.model()->rowCount(), 3); });
        test_.agent->clearCallLog();
        child<QPushButton>(page, "buttonGenerations").click();
        QCOMPARE(
            difference(ofSet(calls()), {"BackupSet.prepare_restore(1700000060, 1700000060, 0)"}),
            QString());
        QVERIFY(box(page, "checkFrom").isChecked());
        QCOMPARE(date(page, "dateFrom").dateTime().toSecsSinceEpoch(), firstBackup + 60);
        QCOMPARE(date(page, "dateTo").dateTime().toSecsSinceEpoch(), firstBackup + 60);
        QCOMPARE(checkStateOf(page, "notes.txt"), 2);
    });
}

void RestoreFilterTest::aGenerationThatTheFilterShowsChangesNothing() {
    atFirstPage([this](QWizardPage& page) {
        box(page, "checkFilter").click();
        box(page, "checkTo").click();
        box(page, "checkFrom").click();
        // The earliest value that needs no adjustment.
        date(page, "dateFrom").setDateTime(QDateTime::fromSecsSinceEpoch(lastBackup));
        selectFile(page, "notes.txt");
        expectGeneration(0);
        test_.agent->clearCallLog();
        child<QPushButton>(page, "buttonGenerations").click();
        QCOMPARE(difference(calls(), {"BackupSetRestoreView.getItemGenerations(4)"}), QString());
        QCOMPARE(checkStateOf(page, "notes.txt"), 2);
    });
}

void RestoreFilterTest::generationsBeforeTheFilterHaveNoSign() {
    const std::vector<hessiancln::file_generations> old{{firstBackup, firstBackup, 10, 8},
                                                        {firstBackup, middleBackup, 15, 12}};
    std::string reply("r\x01\0", 3);
    hessianser::writeValue(old, reply);
    atFirstPage([&](QWizardPage& page) {
        box(page, "checkFilter").click();
        box(page, "checkFrom").click();
        date(page, "dateFrom").setDateTime(QDateTime::fromSecsSinceEpoch(middleBackup + 60));
        selectFile(page, "notes.txt");
        expectGeneration(-1, [](QTableView& table) {
            QCOMPARE(table.model()->rowCount(), 2);
            for (int row = 0; row < 2; ++row)
                QCOMPARE(table.model()
                             ->index(row, 0)
                             .data(Qt::DecorationRole)
                             .value<QPixmap>()
                             .toImage(),
                         QPixmap(q(":/tree/file")).toImage());
        });
        test_.agent->inject("getItemGenerations", simulator::RawReply{reply + 'z'});
        child<QPushButton>(page, "buttonGenerations").click();
    });
}

void RestoreFilterTest::aFileIsFoundAgainByItsOwnCase() {
    test_.agent->withWorld([](World& world) {
        storeFiles(world, {"C:\\NOTES.txt", "C:\\notes.txt", "C:\\Notes.txt"});
    });
    atFirstPage([this](QWizardPage& page) {
        selectFile(page, "notes.txt");
        expectGeneration(1);
        child<QPushButton>(page, "buttonGenerations").click();
        QCOMPARE(checkStateOf(page, "NOTES.txt"), 0);
        QCOMPARE(checkStateOf(page, "notes.txt"), 2);
        QCOMPARE(checkStateOf(page, "Notes.txt"), 0);
    });
}

void RestoreFilterTest::aGenerationThatIsNotPicked() {
    atFirstPage([this](QWizardPage& page) {
        selectFile(page, "notes.txt");
        expectGeneration(-1);
        test_.agent->clearCallLog();
        child<QPushButton>(page, "buttonGenerations").click();
        QCOMPARE(difference(calls(), {"BackupSetRestoreView.getItemGenerations(4)"}), QString());
        QVERIFY(!box(page, "checkFilter").isChecked());
        QCOMPARE(checkStateOf(page, "notes.txt"), 0);
        QVERIFY(child<QPushButton>(page, "buttonGenerations").isEnabled());
    });
}

void RestoreFilterTest::aChangedFilterKeepsTheTreeAndDropsTheMarks() {
    atFirstPage([this](QWizardPage& page) {
        QTreeView& tree = treeOf(page);
        tree.expand(rowAt(tree, "C:"));
        tree.expand(rowAt(tree, "C:/docs"));
        tree.setCurrentIndex(rowAt(tree, "C:/docs"));
        check(page, "C:");
        box(page, "checkFilter").click();
        box(page, "checkTo").click();
        box(page, "checkTo").click();
        box(page, "checkFilter").click();
        QVERIFY(tree.isExpanded(rowAt(tree, "C:")));
        QVERIFY(tree.isExpanded(rowAt(tree, "C:/docs")));
        QVERIFY(tree.selectionModel()->isSelected(rowAt(tree, "C:/docs")));
        QCOMPARE(tree.selectionModel()->selectedRows().size(), 1);
        QCOMPARE(filesIn(page), QStringList{q("b.txt")});
        QCOMPARE(rowAt(tree, "C:").data(Qt::CheckStateRole).toInt(), 0);
        QVERIFY(!button(*page.window(), QWizard::NextButton).isEnabled());
        check(page, "D:");
        QVERIFY(button(*page.window(), QWizard::NextButton).isEnabled());
        QCOMPARE(support::liveObjectsOf(*test_.agent, "BackupSetRestoreView"), 1);
    });
}

void RestoreFilterTest::theFileFilterIsKept() {
    atFirstPage([](QWizardPage& page) {
        child<QLineEdit>(page, "editFilter").setText(q("*.ods"));
        QCOMPARE(filesIn(page), QStringList{q("budget.ods")});
        box(page, "checkFilter").click();
        QCOMPARE(filesIn(page), QStringList{q("budget.ods")});
        child<QLineEdit>(page, "editFilter").clear();
        QCOMPARE(filesIn(page), (QStringList{q("budget.ods"), q("notes.txt")}));
    });
}

void RestoreFilterTest::datesReachTheAgent() {
    atFirstPage([this](QWizardPage& page) {
        test_.agent->clearCallLog();
        for (const char* name :
             {"checkFilter", "checkFrom", "checkTo", "checkFrom", "checkRemoved", "checkFilter"})
            box(page, name).click();
        box(page, "checkFilter").click();
        QCOMPARE(difference(ofSet(calls()),
                            {"BackupSet.backup_times()", "BackupSet.prepare_restore(0, 0, 0)",
                             "BackupSet.prepare_restore(1700000000, 0, 0)",
                             "BackupSet.prepare_restore(1700000000, 1760000000, 0)",
                             "BackupSet.prepare_restore(0, 1760000000, 0)",
                             "BackupSet.prepare_restore(0, 1760000000, 1760000000)",
                             "BackupSet.prepare_restore(0, 0, 0)",
                             "BackupSet.prepare_restore(0, 1760000000, 1760000000)"}),
                 QString());
    });
}

void RestoreFilterTest::aDateThatIsHalfTypedGoesWithTheWizard() {
    QFETCH(support::Leave, leave);
    test_.expectHalfTyped("dateTo", q("5"), leave, [](QWizardPage& page) {
        box(page, "checkFilter").click();
        box(page, "checkTo").click();
    });
    test_.run("OnRestore");
}

void RestoreFilterTest::theTreeScrollsToWhatIsLookedAt() {
    test_.agent->withWorld([](World& world) {
        std::vector<std::string> paths;
        for (int folder = 10; folder < 90; ++folder)
            paths.push_back("C:\\" + std::to_string(folder) + "\\sub\\a.txt");
        storeFiles(world, paths);
    });
    atFirstPage([this](QWizardPage& page) {
        QTreeView& tree = treeOf(page);
        tree.expand(rowAt(tree, "C:"));
        tree.expand(rowAt(tree, "C:/50"));
        QCOMPARE(tree.visualRect(rowAt(tree, "C:/50")).top(), 0);
        tree.setCurrentIndex(rowAt(tree, "C:/50/sub"));
        tree.scrollToTop();
        selectFile(page, "a.txt");
        expectGeneration(1);
        child<QPushButton>(page, "buttonGenerations").click();
        const int seen = tree.visualRect(rowAt(tree, "C:/50/sub")).center().y();
        const int height = tree.viewport()->height();
        QVERIFY2(seen > height / 3 && seen < 2 * height / 3, qPrintable(QString::number(seen)));
    });
}

void RestoreFilterTest::theUserSeesThatAViewTakesItsTime() {
    atFirstPage([](QWizardPage& page) {
        int waited = 0;
        connect(&page, &QWizardPage::completeChanged, [&waited] {
            const QCursor* cursor = QGuiApplication::overrideCursor();
            waited += cursor && cursor->shape() == Qt::WaitCursor ? 1 : 0;
        });
        box(page, "checkFilter").click();
        QCOMPARE(waited, 1);
        QVERIFY(!QGuiApplication::overrideCursor());
    });
}

QTEST_MAIN(RestoreFilterTest)
#include "restore_filter_test.moc"
