// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QAbstractButton>
#include <QDateTimeEdit>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>
#include <QTableView>
#include <QTest>

#include "resources/pictures.h"
#include "tests/gui/delete_wizard_steps.h"
#include "tests/support/gui_form_texts.h"

using namespace gui;
using simulator::World;
using support::callsOf;
using support::child;
using support::difference;
using support::isDialog;

/// The delete wizard, clicked through against an agent, and all of its calls.
class DeleteWizardTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { resources::initPictures(); }
    void init() {
        test_.start(simulator::Scenario::Default, [](World& world) { store(world); });
        test_.driver->sets().selectRow(setRow);
    }
    void cleanup() { test_.end(); }

    void theWizardIsFramed();
    void theFormIsAsItBegins();
    void finishWaitsForACheckMark();
    void withoutACheckMarkNothingIsPrepared();
    void theReturnKeyDeletesNothing();
    void aSelectionIsDeleted();
    void aFileIsDeleted();
    void aGroupGoesAsWhatItHolds();
    void theCodeComesBeforeTheDeletion();
    void cancellingTheCodeDeletesNothing();
    void cancellingTheWizardDeletesNothing();
    void everythingWithTheRemoval();
    void everythingWithoutTheRemoval();
    void cancellingTheCodeAfterYesRemovesNothing();
    void aFilterNeverOffersTheRemoval();
    void aFromAtMidnightOfTheFirstDayIsNoFilter();
    void aFromLaterOnTheFirstDayIsAFilter();
    void theLastGenerationsAreAFilter();
    void datesReachTheAgent();
    void aChangedFilterKeepsTheTreeAndDropsTheMarks();
    void theFileFilterIsKept();

private:
    void protect() {
        test_.agent->withWorld([](World& world) { world.twoFactor = true; });
        test_.driver->beat();
    }
    void expectRemovalQuestion(QMessageBox::StandardButton answer);
    Calls calls() const { return support::steadyCallsOf(*test_.agent); }

    support::WizardTest test_;
};

void DeleteWizardTest::expectRemovalQuestion(QMessageBox::StandardButton answer) {
    test_.modals->expect(q("question"), isDialog<QMessageBox>, [=, this](QWidget& widget) {
        auto& box = static_cast<QMessageBox&>(widget);
        QCOMPARE(box.windowTitle(), q("Remove backup set?"));
        QCOMPARE(box.text(), q("You have selected all data to be deleted.\n"
                               "Would you like to remove the backup set?"));
        QCOMPARE(box.standardButtons(), QMessageBox::Yes | QMessageBox::No);
        QCOMPARE(box.defaultButton(), static_cast<QPushButton*>(box.button(QMessageBox::No)));
        QCOMPARE(box.parentWidget(), &test_.driver->window());
        QTest::mouseClick(box.button(answer), Qt::LeftButton);
    });
}

void DeleteWizardTest::theWizardIsFramed() {
    test_.modals->expect(q("wizard"), isDialog<QWizard>, [&](QWidget& widget) {
        auto& wizard = static_cast<QWizard&>(widget);
        QCOMPARE(wizard.parentWidget(), &test_.driver->window());
        QCOMPARE(wizard.windowTitle(), q("Delete from backup set"));
        support::compareWindowIcon(wizard);
        QCOMPARE(wizard.pixmap(QWizard::WatermarkPixmap).toImage(),
                 QPixmap(q(":/images/wizard_delete.png")).toImage());
        QCOMPARE(wizard.maximumSize(), QSize(65536, 65536));
        QCOMPARE(wizard.button(QWizard::FinishButton)->text(), q("&Finish"));
        QCOMPARE(wizard.pageIds().size(), 1);
        wizard.reject();
    });
    test_.run("OnDelete");
    QCOMPARE(difference(calls(), wizardOpened), QString());
}

void DeleteWizardTest::theFormIsAsItBegins() {
    test_.modals->expect(q("wizard"), isDialog<QWizard>, [](QWidget& widget) {
        QWizardPage& page = *static_cast<QWizard&>(widget).currentPage();
        QCOMPARE(page.windowTitle(), q("Delete Items"));
        QCOMPARE(page.title(), q("Select Items"));
        QCOMPARE(page.subTitle(), q("Select the files and/or directories to delete from the "
                                    "backup set storage"));
        QCOMPARE(child<QLineEdit>(page, "editFilter").text(), q("*"));
        auto& group = child<QGroupBox>(page, "groupFilter");
        QVERIFY(group.isCheckable() && !group.isChecked());
        group.setChecked(true);
        for (const auto& [box, text, value] :
             {std::tuple("checkFrom", "Backed up on/&after:", "dateFrom"),
              std::tuple("checkTo", "Backed up on/&before:", "dateTo"),
              std::tuple("checkRemoved", "Only files &removed since:", "dateRemoved"),
              std::tuple("checkKeep", "Do not delete the &last:", "spinKeep")}) {
            QCOMPARE(child<QCheckBox>(page, box).text(), q(text));
            QVERIFY(!child<QWidget>(page, value).isEnabled());
            child<QCheckBox>(page, box).setChecked(true);
            QVERIFY(child<QWidget>(page, value).isEnabled());
        }
        for (const char* name : {"dateFrom", "dateTo", "dateRemoved"}) {
            auto& date = child<QDateTimeEdit>(page, name);
            QCOMPARE(date.displayFormat(), q("M/d/yy HH:mm"));
            QVERIFY(date.calendarPopup());
            QCOMPARE(date.minimumDate(), QDateTime::fromSecsSinceEpoch(firstBackup).date());
            QCOMPARE(date.maximumDate(), QDateTime::fromSecsSinceEpoch(lastBackup).date());
        }
        QCOMPARE(child<QDateTimeEdit>(page, "dateFrom").dateTime().toSecsSinceEpoch(), firstBackup);
        QCOMPARE(child<QDateTimeEdit>(page, "dateRemoved").dateTime().toSecsSinceEpoch(),
                 lastBackup);
        auto& keep = child<QSpinBox>(page, "spinKeep");
        QCOMPARE(keep.minimum(), 1);
        QCOMPARE(keep.maximum(), 99);
        QCOMPARE(keep.suffix(), q(" generation(s)"));
        widget.close();
    });
    test_.run("OnDelete");
}

void DeleteWizardTest::finishWaitsForACheckMark() {
    test_.modals->expect(q("wizard"), isDialog<QWizard>, [](QWidget& widget) {
        auto& wizard = static_cast<QWizard&>(widget);
        QVERIFY(!wizard.button(QWizard::FinishButton)->isEnabled());
        check(widget, "D:");
        QVERIFY(wizard.button(QWizard::FinishButton)->isEnabled());
        wizard.reject();
    });
    test_.run("OnDelete");
}

void DeleteWizardTest::withoutACheckMarkNothingIsPrepared() {
    test_.modals->expect(q("wizard"), isDialog<QWizard>, [](QWidget& widget) {
        checkAll(widget);
        QTreeView& tree = treeOf(widget);
        for (const char* drive : {"C:", "D:"})
            tree.model()->setData(rowAt(tree, drive), Qt::Unchecked, Qt::CheckStateRole);
        auto& wizard = static_cast<QWizard&>(widget);
        QTest::mouseClick(wizard.button(QWizard::FinishButton), Qt::LeftButton);
        QTest::keyClick(&wizard, Qt::Key_Return);
        QVERIFY(wizard.isVisible());
        wizard.reject();
    });
    test_.run("OnDelete");
    QCOMPARE(difference(calls(), wizardOpened), QString());
}

void DeleteWizardTest::theReturnKeyDeletesNothing() {
    test_.modals->expect(q("wizard"), isDialog<QWizard>, [](QWidget& widget) {
        auto& wizard = static_cast<QWizard&>(widget);
        switchOn(widget, "checkFrom");
        check(widget, "D:");
        QVERIFY(wizard.button(QWizard::FinishButton)->isEnabled());
        for (const char* name : {"editFilter", "dateFrom", "treeSelection", "listSelection"})
            for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
                QTest::keyClick(&child<QWidget>(widget, name), key);
                QVERIFY2(wizard.isVisible(), name);
            }
        wizard.reject();
    });
    test_.run("OnDelete");
    for (const std::string& call : calls())
        QVERIFY2(call.find("prepareDelete") == std::string::npos, call.c_str());
}

void DeleteWizardTest::aSelectionIsDeleted() {
    test_.expectWizard([](QWizardPage& page) { check(page, "C:/docs"); });
    test_.run("OnDelete");
    QCOMPARE(difference(calls(), wizardOpened + deleted("3") + refreshed), QString());
}

void DeleteWizardTest::aFileIsDeleted() {
    test_.expectWizard([](QWizardPage& page) {
        QListView& list = listOf(page);
        QCOMPARE(filesIn(page), (QStringList{q("budget.ods"), q("notes.txt")}));
        list.model()->setData(list.model()->index(0, 0, list.rootIndex()), Qt::Checked,
                              Qt::CheckStateRole);
    });
    test_.run("OnDelete");
    QCOMPARE(difference(calls(), wizardOpened + deleted("5") + refreshed), QString());
}

void DeleteWizardTest::aGroupGoesAsWhatItHolds() {
    test_.agent->withWorld([](World& world) { storeGroup(world); });
    test_.expectWizard([](QWizardPage& page) { check(page, "Group"); });
    test_.run("OnDelete");
    QCOMPARE(difference(calls(), wizardOpened + Calls{"BackupSetDeleteView.getSubItems(0)"} +
                                     deleted("6") + refreshed),
             QString());
}

void DeleteWizardTest::theCodeComesBeforeTheDeletion() {
    protect();
    test_.expectWizard([](QWizardPage& page) { check(page, "D:"); });
    test_.expectCode(true);
    test_.run("OnDelete");
    QCOMPARE(difference(calls(), wizardOpened + support::callsForCode() + deleted("2") + refreshed),
             QString());
}

void DeleteWizardTest::cancellingTheCodeDeletesNothing() {
    protect();
    const QString statusBefore = test_.driver->status();
    test_.expectWizard([](QWizardPage& page) { check(page, "D:"); });
    test_.expectCode(false);
    test_.run("OnDelete");
    const Calls asked{"ClientConnection.getTFAManager()", "TFAManager.requestCode(2)"};
    QCOMPARE(difference(calls(), wizardOpened + asked + refreshed), QString());
    QCOMPARE(test_.driver->status(), statusBefore);
}

void DeleteWizardTest::cancellingTheWizardDeletesNothing() {
    test_.modals->expect(q("wizard"), isDialog<QWizard>, [](QWidget& wizard) {
        checkAll(wizard);
        support::cancelWizard(wizard, 0);
    });
    test_.run("OnDelete");
    QCOMPARE(difference(calls(), wizardOpened), QString());
}

void DeleteWizardTest::everythingWithTheRemoval() {
    test_.expectWizard(checkAll);
    expectRemovalQuestion(QMessageBox::Yes);
    test_.run("OnDelete");
    QCOMPARE(difference(calls(), wizardOpened + removedCalls + refreshed), QString());
}

void DeleteWizardTest::everythingWithoutTheRemoval() {
    test_.expectWizard(checkAll);
    expectRemovalQuestion(QMessageBox::No);
    test_.run("OnDelete");
    QCOMPARE(difference(calls(), wizardOpened + deleted("1, 2") + refreshed), QString());
}

void DeleteWizardTest::cancellingTheCodeAfterYesRemovesNothing() {
    protect();
    const QString statusBefore = test_.driver->status();
    test_.expectWizard(checkAll);
    expectRemovalQuestion(QMessageBox::Yes);
    test_.expectCode(false);
    test_.run("OnDelete");
    const Calls asked{"ClientConnection.getTFAManager()", "TFAManager.requestCode(2)"};
    QCOMPARE(difference(calls(), wizardOpened + asked + refreshed), QString());
    QCOMPARE(test_.driver->status(), statusBefore);
}

void DeleteWizardTest::aFilterNeverOffersTheRemoval() {
    test_.expectWizard([](QWizardPage& page) {
        switchOn(page, "checkTo");
        auto& to = child<QDateTimeEdit>(page, "dateTo");
        to.setDateTime(to.dateTime().addSecs(-3600));
        checkAll(page);
    });
    test_.run("OnDelete");
    const Calls all = calls();
    QCOMPARE(std::count(all.begin(), all.end(), deleted("1, 2").front()), 1);
    QCOMPARE(std::count(all.begin(), all.end(), removedCalls.back()), 0);
}

void DeleteWizardTest::aFromAtMidnightOfTheFirstDayIsNoFilter() {
    const QDate firstDay = QDateTime::fromSecsSinceEpoch(firstBackup).date();
    const auto midnight = static_cast<std::int32_t>(firstDay.startOfDay().toSecsSinceEpoch());
    test_.agent->withWorld(
        [&](World& world) { world.set(setId)->sessions.front().start_time = midnight; });
    test_.expectWizard([&](QWizardPage& page) {
        switchOn(page, "checkFrom");
        QCOMPARE(child<QDateTimeEdit>(page, "dateFrom").dateTime().toSecsSinceEpoch(), midnight);
        checkAll(page);
    });
    expectRemovalQuestion(QMessageBox::No);
    test_.run("OnDelete");
    const Calls all = calls();
    QCOMPARE(std::count(all.begin(), all.end(), deleted("1, 2").front()), 1);
}

void DeleteWizardTest::aFromLaterOnTheFirstDayIsAFilter() {
    test_.expectWizard([&](QWizardPage& page) {
        switchOn(page, "checkFrom");
        QCOMPARE(child<QDateTimeEdit>(page, "dateFrom").dateTime().toSecsSinceEpoch(), firstBackup);
        checkAll(page);
    });
    test_.run("OnDelete");
    const Calls all = calls();
    QCOMPARE(std::count(all.begin(), all.end(), deleted("1, 2").front()), 1);
    QCOMPARE(std::count(all.begin(), all.end(), removedCalls.back()), 0);
}

void DeleteWizardTest::theLastGenerationsAreAFilter() {
    test_.expectWizard([this](QWizardPage& page) {
        child<QGroupBox>(page, "groupFilter").setChecked(true);
        test_.agent->clearCallLog();
        child<QCheckBox>(page, "checkKeep").setChecked(true);
        checkAll(page);
    });
    test_.run("OnDelete");
    QCOMPARE(difference(calls(), Calls{"BackupSet.prepare_delete(0, 0, 0, 1, 0)",
                                       "BackupSetDeleteView.getSubItems(-1)",
                                       "BackupSetDeleteView.getSubItems(1)"} +
                                     deleted("1, 2") + refreshed),
             QString());
}

void DeleteWizardTest::datesReachTheAgent() {
    test_.modals->expect(q("wizard"), isDialog<QWizard>, [this](QWidget& page) {
        test_.agent->clearCallLog();
        child<QGroupBox>(page, "groupFilter").setChecked(true);
        child<QCheckBox>(page, "checkFrom").setChecked(true);
        child<QCheckBox>(page, "checkTo").setChecked(true);
        child<QCheckBox>(page, "checkFrom").setChecked(false);
        child<QCheckBox>(page, "checkRemoved").setChecked(true);
        child<QGroupBox>(page, "groupFilter").setChecked(false);
        child<QGroupBox>(page, "groupFilter").setChecked(true);
        Calls asked;
        for (const std::string& call : callsOf(*test_.agent))
            if (call.rfind("BackupSet.", 0) == 0)
                asked.push_back(call);
        QCOMPARE(difference(asked,
                            {"BackupSet.backup_times()", "BackupSet.prepare_delete(0, 0, 0, 0, 0)",
                             "BackupSet.prepare_delete(1700000000, 0, 0, 0, 0)",
                             "BackupSet.prepare_delete(1700000000, 1760000000, 0, 0, 0)",
                             "BackupSet.prepare_delete(0, 1760000000, 0, 0, 0)",
                             "BackupSet.prepare_delete(0, 1760000000, 1760000000, 0, 0)",
                             "BackupSet.prepare_delete(0, 0, 0, 0, 0)",
                             "BackupSet.prepare_delete(0, 1760000000, 1760000000, 0, 0)"}),
                 QString());
        page.close();
    });
    test_.run("OnDelete");
}

void DeleteWizardTest::aChangedFilterKeepsTheTreeAndDropsTheMarks() {
    test_.modals->expect(q("wizard"), isDialog<QWizard>, [this](QWidget& widget) {
        QTreeView& tree = treeOf(widget);
        tree.expand(rowAt(tree, "C:"));
        tree.expand(rowAt(tree, "C:/docs"));
        tree.setCurrentIndex(rowAt(tree, "C:/docs"));
        check(widget, "C:");
        int waited = 0;
        connect(static_cast<QWizard&>(widget).currentPage(), &QWizardPage::completeChanged,
                [&] { waited += QGuiApplication::overrideCursor() ? 1 : 0; });
        switchOn(widget, "checkKeep");
        child<QCheckBox>(widget, "checkKeep").setChecked(false);
        QCOMPARE(waited, 3);
        QVERIFY(tree.isExpanded(rowAt(tree, "C:")));
        QVERIFY(tree.isExpanded(rowAt(tree, "C:/docs")));
        QVERIFY(tree.selectionModel()->isSelected(rowAt(tree, "C:/docs")));
        QCOMPARE(tree.selectionModel()->selectedRows().size(), 1);
        QCOMPARE(filesIn(widget), QStringList{q("b.txt")});
        QCOMPARE(rowAt(tree, "C:").data(Qt::CheckStateRole).toInt(), 0);
        QCOMPARE(support::liveObjectsOf(*test_.agent, "BackupSetDeleteView"), 1);
        auto& wizard = static_cast<QWizard&>(widget);
        QVERIFY(!wizard.button(QWizard::FinishButton)->isEnabled());
        check(widget, "D:");
        QVERIFY(wizard.button(QWizard::FinishButton)->isEnabled());
        wizard.reject();
    });
    test_.run("OnDelete");
}

void DeleteWizardTest::theFileFilterIsKept() {
    test_.modals->expect(q("wizard"), isDialog<QWizard>, [](QWidget& widget) {
        child<QLineEdit>(widget, "editFilter").setText(q("*.ods"));
        QCOMPARE(filesIn(widget), QStringList{q("budget.ods")});
        switchOn(widget, "checkKeep");
        QCOMPARE(filesIn(widget), QStringList{q("budget.ods")});
        child<QLineEdit>(widget, "editFilter").setText(q("*.none"));
        QTRY_COMPARE(child<QLabel>(widget, "emptyNote").text(),
                     q("No files of this folder match the file filter."));
        QVERIFY(child<QLabel>(widget, "emptyNote").isVisible());
        child<QLineEdit>(widget, "editFilter").clear();
        QCOMPARE(filesIn(widget), (QStringList{q("budget.ods"), q("notes.txt")}));
        QTRY_VERIFY(!child<QLabel>(widget, "emptyNote").isVisible());
        widget.close();
    });
    test_.run("OnDelete");
}

QTEST_MAIN(DeleteWizardTest)
#include "delete_wizard_test.moc"
