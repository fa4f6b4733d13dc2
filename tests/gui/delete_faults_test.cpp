// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QAbstractButton>
#include <QTest>

#include "resources/pictures.h"
#include "tests/gui/delete_wizard_steps.h"

using namespace gui;
using simulator::Fault;
using simulator::World;
using support::child;
using support::difference;
using support::isDialog;

/// The delete wizard with an agent that fails or has less than it claims.
class DeleteFaultsTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { resources::initPictures(); }
    void init() {
        test_.start(simulator::Scenario::Default, [](World& world) { store(world); });
        test_.driver->sets().selectRow(setRow);
    }
    void cleanup() { test_.end(); }

    void aFaultBeforeTheWizard_data();
    void aFaultBeforeTheWizard();
    void aFaultOfTheDeletion_data();
    void aFaultOfTheDeletion();
    void aFaultOfAFilterLeavesThePage_data();
    void aFaultOfAFilterLeavesThePage();
    void aFolderThatFailsIsReportedOnce();
    void aGroupThatFailsEndsTheDeletion();
    void aGroupThatHoldsNothingDeletesNothing();

private:
    Calls calls() const { return support::steadyCallsOf(*test_.agent); }

    support::WizardTest test_;
};

void DeleteFaultsTest::aFaultBeforeTheWizard_data() {
    QTest::addColumn<QString>("method");
    for (const char* method : {"backup_set", "getCurrentStatus", "prepare_delete", "getSubItems"})
        QTest::newRow(method) << q(method);
}

void DeleteFaultsTest::aFaultBeforeTheWizard() {
    QFETCH(QString, method);
    test_.agent->inject(method.toStdString(), Fault{"Außer Betrieb."});
    test_.modals->expectErrorBox(q("Error"), q("Außer Betrieb."));
    test_.run("OnDelete");
    QCOMPARE(support::methodsOf(*test_.agent).back(), method.toStdString());
}

void DeleteFaultsTest::aFaultOfTheDeletion_data() {
    QTest::addColumn<QString>("method");
    for (const char* method : {"prepareDelete", "DeleteActivityInitiator.start"})
        QTest::newRow(method) << q(method);
}

void DeleteFaultsTest::aFaultOfTheDeletion() {
    QFETCH(QString, method);
    test_.agent->inject(method.toStdString(), Fault{"Außer Betrieb."});
    test_.expectWizard([](QWizardPage& page) { check(page, "D:"); });
    test_.modals->expectErrorBox(q("Error"), q("Außer Betrieb."));
    test_.run("OnDelete");
    QCOMPARE(support::methodsOf(*test_.agent).back(),
             method.section(QLatin1Char('.'), -1).toStdString());
}

void DeleteFaultsTest::aFaultOfAFilterLeavesThePage_data() {
    QTest::addColumn<QString>("method");
    for (const char* method : {"backup_times", "prepare_delete", "getSubItems"})
        QTest::newRow(method) << q(method);
}

void DeleteFaultsTest::aFaultOfAFilterLeavesThePage() {
    QFETCH(QString, method);
    test_.modals->expect(q("wizard"), isDialog<QWizard>, [&](QWidget& widget) {
        check(widget, "C:/docs");
        test_.agent->inject(method.toStdString(), Fault{"Außer Betrieb."});
        test_.modals->expectErrorBox(q("Error"), q("Außer Betrieb."));
        auto& filter = child<QGroupBox>(widget, "groupFilter");
        filter.setChecked(true);
        // The filter must match the tree: what the tree shows is what would be deleted.
        QVERIFY(!filter.isChecked());
        QCOMPARE(rowAt(treeOf(widget), "C:/docs").data(Qt::CheckStateRole).toInt(), 2);
        filter.setChecked(true);
        QVERIFY(filter.isChecked());
        check(widget, "C:/docs");
        for (const auto& [box, value] :
             {std::pair("checkFrom", "dateFrom"), std::pair("checkTo", "dateTo"),
              std::pair("checkRemoved", "dateRemoved"), std::pair("checkKeep", "spinKeep")}) {
            test_.agent->inject("prepare_delete", Fault{"Außer Betrieb."});
            test_.modals->expectErrorBox(q("Error"), q("Außer Betrieb."));
            child<QCheckBox>(widget, box).setChecked(true);
            QVERIFY(!child<QCheckBox>(widget, box).isChecked());
            QVERIFY(!child<QWidget>(widget, value).isEnabled());
            QVERIFY(filter.isChecked());
        }
        QCOMPARE(rowAt(treeOf(widget), "C:/docs").data(Qt::CheckStateRole).toInt(), 2);
        QVERIFY(static_cast<QWizard&>(widget).button(QWizard::FinishButton)->isEnabled());
        QVERIFY(!QGuiApplication::overrideCursor());
        widget.close();
    });
    test_.run("OnDelete");
}

void DeleteFaultsTest::aFolderThatFailsIsReportedOnce() {
    test_.agent->withWorld([](World& world) {
        for (const char* path : {"C:\\locked", "C:\\too"})
            world.set(setId)->stored->addFolder(path).denied = "Keep out.";
    });
    test_.modals->expect(q("wizard"), isDialog<QWizard>, [&](QWidget& widget) {
        QTreeView& tree = treeOf(widget);
        tree.expand(rowAt(tree, "C:"));
        test_.modals->expectErrorBox(q("Error"), q("Keep out."));
        tree.setCurrentIndex(rowAt(tree, "C:/locked"));
        QCOMPARE(tree.model()->rowCount(rowAt(tree, "C:/too")), 0);
        QTRY_VERIFY(!tree.model()->hasChildren(rowAt(tree, "C:/locked")));
        QCOMPARE(filesIn(widget), QStringList());
        QCoreApplication::processEvents();
        widget.close();
    });
    test_.run("OnDelete");
}

void DeleteFaultsTest::aGroupThatFailsEndsTheDeletion() {
    test_.agent->withWorld([](World& world) {
        auto& group = world.set(setId)->stored->addFolder("Group");
        group.isGroup = true;
        group.denied = "Keep out.";
    });
    test_.expectWizard([](QWizardPage& page) { check(page, "Group"); });
    test_.modals->expectErrorBox(q("Error"), q("Keep out."));
    test_.run("OnDelete");
    // A group has no id that could be sent in place of its contents.
    QCOMPARE(difference(calls(), wizardOpened + Calls{"BackupSetDeleteView.getSubItems(0)"}),
             QString());
}

void DeleteFaultsTest::aGroupThatHoldsNothingDeletesNothing() {
    test_.agent->withWorld([](World& world) { storeGroup(world); });
    test_.expectWizard([this](QWizardPage& page) {
        check(page, "Group");
        test_.agent->inject("getSubItems", support::emptyList());
    });
    test_.run("OnDelete");
    QCOMPARE(
        difference(calls(), wizardOpened + Calls{"BackupSetDeleteView.getSubItems(0)"} + refreshed),
        QString());
}

QTEST_MAIN(DeleteFaultsTest)
#include "delete_faults_test.moc"
