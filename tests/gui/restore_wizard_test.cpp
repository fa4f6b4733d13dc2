// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <algorithm>

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QTest>
#include <QTreeView>

#include "resources/pictures.h"
#include "simulator/world/world.h"
#include "tests/gui/restore_wizard_calls.h"
#include "tests/gui/restore_wizard_steps.h"
#include "tests/support/gui_form_texts.h"
#include "tests/support/gui_wizard.h"
#include "wizards/enter_simple_user_psw.h"
#include "wizards/restore_directory_destination.h"
#include "wizards/restore_select_page.h"
#include "wizards/select_data_source_page.h"

Q_DECLARE_METATYPE(std::vector<std::string>)

using namespace gui;
using simulator::World;
using support::child;
using support::difference;
using support::isDialog;

namespace {

const char otherDirectory[] = "C:\\Users";

/// The calls of the source page when another computer was typed.
const Calls computerTyped{"DataSourceBrowser.expandToFullPath(\"FILESRV\")",
                          "DataSourceBrowser.getCurrentCredentials()",
                          "BackupSetCredentials.types()",
                          "BackupSetCredentials.types()",
                          "Win32FS_Generic_BackupSetCredentials.getUserName()",
                          "DataSourceBrowser.setCurrentCredentials(BackupSetCredentials(guest))"};
const Calls loginGiven{"DataSourceBrowser.getCurrentCredentials()",
                       "BackupSetCredentials.types()",
                       "BackupSetCredentials.types()",
                       "Win32FS_Generic_BackupSetCredentials.getUserName()",
                       "Win32FS_Generic_BackupSetCredentials.setCredentials(\"anna\", ***)",
                       "DataSourceBrowser.setCurrentCredentials(BackupSetCredentials(anna))"};

QWizardPage& pageOf(QWidget& wizard) {
    return *static_cast<QWizard&>(wizard).currentPage();
}

QAbstractButton& button(QWidget& wizard, QWizard::WizardButton which) {
    return *static_cast<QWizard&>(wizard).button(which);
}

void press(QWidget& wizard, QWizard::WizardButton which) {
    QVERIFY(button(wizard, which).isEnabled());
    QTest::mouseClick(&button(wizard, which), Qt::LeftButton);
}

} // namespace

/// The restore wizard, clicked through against an agent, and all of its calls.
class RestoreWizardTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { resources::initPictures(); }
    void init() {
        startWith([](World& world) { storeFiles(world); });
    }
    void cleanup() { test_.end(); }

    void theWizardIsFramed();
    void toTheOriginalPlace();
    void aFileToTheOriginalPlace();
    void toAnotherDirectory();
    void threeSharesWhoseNamesCollide();
    void toAnotherComputerWithOtherCredentials();
    void aPickedDirectory();
    void goingBackToTheOriginalPlace();
    void withoutAReasonThePageIsNotLeft();
    void theKeyboardIsAtTheCredentials();
    void theHeadNamesTheDirectory();
    void cancelling_data();
    void cancelling();
    void aGroupThatFailsEndsTheRestore();
    void aGroupThatHoldsNothingRestoresNothing();
    void aSetWithoutDataHasNoWizard();
    void aHeartbeatUnderTheWizardDoesntDisturbIt();

private:
    void startWith(const std::function<void(World&)>& change);
    /// Runs the wizard to its end.
    void restore(const RestoreWishes& wishes);
    Calls calls() { return restoreCallsOf(*test_.agent, name_); }

    support::WizardTest test_;
    QString name_; ///< of the directory created by the restore
};

void RestoreWizardTest::startWith(const std::function<void(World&)>& change) {
    if (test_.agent)
        test_.end();
    name_.clear();
    test_.start(simulator::Scenario::Default, change);
    test_.driver->sets().selectRow(restoredRow);
}

void RestoreWizardTest::restore(const RestoreWishes& wishes) {
    test_.expectWizard(wishing(wishes, &name_));
    test_.run("OnRestore");
}

void RestoreWizardTest::theWizardIsFramed() {
    test_.modals->expect(q("wizard"), isDialog<QWizard>, [&](QWidget& widget) {
        auto& wizard = static_cast<QWizard&>(widget);
        QCOMPARE(wizard.parentWidget(), &test_.driver->window());
        QCOMPARE(wizard.windowTitle(), q("Restore Data"));
        support::compareWindowIcon(wizard);
        QCOMPARE(wizard.pixmap(QWizard::WatermarkPixmap).toImage(),
                 QPixmap(q(":/images/wizard_restore.png")).toImage());
        QCOMPARE(wizard.maximumSize(), QSize(65536, 65536));
        QCOMPARE(wizard.button(QWizard::NextButton)->text(), q("&Next"));
        QCOMPARE(wizard.pageIds().size(), 4);
        wizard.reject();
    });
    test_.run("OnRestore");
    QCOMPARE(difference(calls(), restoreOpenedCalls), QString());
}

void RestoreWizardTest::toTheOriginalPlace() {
    restore({.checked = {"C:/docs"}, .reason = 5});
    QCOMPARE(
        difference(calls(), restoreOpenedCalls + restoredToOrigin("3", 11) + refreshedAfterRestore),
        QString());
    QCOMPARE(test_.driver->rows("tableCurrentActivities"), 2);
}

void RestoreWizardTest::aFileToTheOriginalPlace() {
    test_.expectWizard([](QWizardPage& page) {
        if (qobject_cast<RestoreSelectPage*>(&page))
            listOf(page).model()->setData(fileNamed(page, "notes.txt"), Qt::Checked,
                                          Qt::CheckStateRole);
        else
            wishing({})(page);
    });
    test_.run("OnRestore");
    QCOMPARE(
        difference(calls(), restoreOpenedCalls + restoredToOrigin("4", 3) + refreshedAfterRestore),
        QString());
}

void RestoreWizardTest::toAnotherDirectory() {
    restore({.checked = {"C:/docs/2024"},
             .location = "radioAlternateDir",
             .reason = 2,
             .directory = otherDirectory});
    const std::string mapping =
        R"({source_share="C:", destination_path="C:\\Users/NAME/", truncate_level=1})";
    QCOMPARE(difference(calls(), restoreOpenedCalls + Calls{"BackupSetRestoreView.getSubItems(3)"} +
                                     directoryWanted + restoredToDirectory("6", 1, mapping, 1) +
                                     refreshedAfterRestore),
             QString());
    QVERIFY2(
        test_.driver->status().endsWith(q(": Restore started for 'Kundenprojekte Müller & Söhne'")),
        qPrintable(test_.driver->status()));
    QVERIFY2(QRegularExpression(q("^restore_\\d{4}_[^_]+_\\d\\d_\\d\\d-\\d\\d-\\d\\d$"))
                 .match(name_)
                 .hasMatch(),
             qPrintable(name_));
}

void RestoreWizardTest::threeSharesWhoseNamesCollide() {
    startWith([](World& world) { storeFiles(world, {"C:\\a.txt", "C\\b.txt", "C*\\c.txt"}); });
    restore({.checked = {"C:", "C", "C*"},
             .location = "radioAlternateDir",
             .directory = otherDirectory});
    const std::string mappings =
        R"({source_share="C:", destination_path="C:\\Users/NAME/\\C", truncate_level=0}, )"
        R"({source_share="C", destination_path="C:\\Users/NAME/\\C_0001", truncate_level=0}, )"
        R"({source_share="C*", destination_path="C:\\Users/NAME/\\C_0001_0002", truncate_level=0})";
    // Sorted by name, and numbered in storage order.
    QCOMPARE(difference(calls(), restoreOpened("2") + directoryWanted +
                                     restoredToDirectory("2, 3, 1", 3, mappings, 0) +
                                     refreshedAfterRestore),
             QString());
}

void RestoreWizardTest::toAnotherComputerWithOtherCredentials() {
    test_.modals->expect(q("wizard"), isDialog<QWizard>, [this](QWidget& wizard) {
        const auto wishes = wishing(
            {.checked = {"D:"}, .location = "radioAlternateComputer", .directory = "Shares\\Sales"},
            &name_);
        test_.modals->expect(q("login"), isDialog<CEnterSimpleUserPsw>, [](QWidget& login) {
            child<QLineEdit>(login, "editUserName").setText(q("anna"));
            auto& password = child<QLineEdit>(login, "editPassword");
            password.clear();
            QTest::keyClicks(&password, q("sesame"));
            QTest::mouseClick(&child<QPushButton>(login, "btnOK"), Qt::LeftButton);
        });
        support::finishWizard(wizard, [&](QWizardPage& page) {
            wishes(page);
            if (!qobject_cast<SelectDataSourcePage*>(&page))
                return;
            auto& computer = child<QLineEdit>(page, "editComputerName");
            QCOMPARE(computer.text(), q("My Computer"));
            computer.setFocus();
            computer.setText(q("FILESRV"));
            child<QWidget>(page, "btnConnectAs").setFocus();
            QTest::mouseClick(&child<QPushButton>(page, "btnConnectAs"), Qt::LeftButton);
        });
    });
    test_.run("OnRestore");
    const std::string computer = R"("Microsoft Windows Network\\OFFICE\\FILESRV")";
    const Calls wanted{"DataSourceBrowser.getCurrentCredentials()",
                       "BackupSetCredentials.check(" + computer + ")",
                       "DataSourceBrowser.getPredefinedItems(" + computer + ")"};
    const Calls restored{"BackupSetRestoreView.prepareRestore([2])",
                         "RestoreActivityInitiator.setRestoreReason(3)",
                         "RestoreActivityInitiator.selected_shares()",
                         "RestoreActivityInitiator.start(DataSourceBrowser, " + computer +
                             R"(, [{source_share="D:", destination_path="Shares\\Sales/NAME/", )" +
                             "truncate_level=0}], 0)"};
    QCOMPARE(difference(calls(), restoreOpenedCalls + computerTyped + loginGiven + wanted +
                                     restored + refreshedAfterRestore),
             QString());
}

void RestoreWizardTest::aPickedDirectory() {
    test_.modals->expect(q("wizard"), isDialog<QWizard>, [this](QWidget& wizard) {
        const auto wishes = wishing({.checked = {"D:"}, .location = "radioAlternateDir"}, &name_);
        support::finishWizard(wizard, [&](QWizardPage& page) {
            wishes(page);
            if (!qobject_cast<RestoreDirectoryDestination*>(&page))
                return;
            QCOMPARE(child<QLineEdit>(page, "editRestoreTo").text(),
                     q("C:\\Users\\anna\\Documents"));
            child<QPushButton>(page, "btnRestoreTo").click();
            auto& tree = child<QTreeView>(page, "treeAvailableDirectories");
            tree.setCurrentIndex(rowAt(tree, "D:/Projects/Tower"));
        });
    });
    test_.run("OnRestore");
    const std::string mapping =
        R"({source_share="D:", destination_path="D:\\Projects\\Tower/NAME/", truncate_level=0})";
    const Calls all = calls();
    for (const std::string& call : restoredToDirectory("2", 3, mapping, 0))
        QVERIFY2(std::count(all.begin(), all.end(), call) >= 1, call.c_str());
}

void RestoreWizardTest::goingBackToTheOriginalPlace() {
    test_.modals->expect(q("wizard"), isDialog<QWizard>, [](QWidget& wizard) {
        const auto wishes = wishing({.checked = {"D:"}, .location = "radioAlternateDir"});
        for (int page = 0; page < 3; ++page) {
            wishes(pageOf(wizard));
            press(wizard, QWizard::NextButton);
        }
        QVERIFY(qobject_cast<RestoreDirectoryDestination*>(&pageOf(wizard)));
        press(wizard, QWizard::BackButton);
        press(wizard, QWizard::BackButton);
        QVERIFY(!button(wizard, QWizard::FinishButton).isVisible());
        child<QRadioButton>(pageOf(wizard), "radioOriginal").click();
        QVERIFY(button(wizard, QWizard::FinishButton).isVisible());
        QVERIFY(!button(wizard, QWizard::NextButton).isVisible());
        press(wizard, QWizard::FinishButton);
    });
    test_.run("OnRestore");
    QCOMPARE(difference(calls(), restoreOpenedCalls + directoryWanted + restoredToOrigin("2", 3) +
                                     refreshedAfterRestore),
             QString());
}

void RestoreWizardTest::withoutAReasonThePageIsNotLeft() {
    test_.modals->expect(q("wizard"), isDialog<QWizard>, [](QWidget& wizard) {
        check(pageOf(wizard), "D:");
        press(wizard, QWizard::NextButton);
        QVERIFY(button(wizard, QWizard::FinishButton).isVisible());
        QVERIFY(!button(wizard, QWizard::FinishButton).isEnabled());
        child<QRadioButton>(pageOf(wizard), "radioAlternateDir").click();
        QVERIFY(button(wizard, QWizard::NextButton).isVisible());
        QVERIFY(!button(wizard, QWizard::NextButton).isEnabled());
        auto& reasons = child<QComboBox>(pageOf(wizard), "cmbRestoreReason");
        reasons.setCurrentIndex(6);
        QCOMPARE(reasons.currentText(), q("    Data loss - Hardware malfunction"));
        QVERIFY(button(wizard, QWizard::NextButton).isEnabled());
        child<QRadioButton>(pageOf(wizard), "radioOriginal").click();
        press(wizard, QWizard::FinishButton);
    });
    test_.run("OnRestore");
    QCOMPARE(
        difference(calls(), restoreOpenedCalls + restoredToOrigin("2", 4) + refreshedAfterRestore),
        QString());
}

void RestoreWizardTest::theKeyboardIsAtTheCredentials() {
    test_.modals->expect(q("wizard"), isDialog<QWizard>, [](QWidget& wizard) {
        const auto wishes = wishing({.checked = {"D:"}, .location = "radioAlternateDir"});
        for (int page = 0; page < 2; ++page) {
            wishes(pageOf(wizard));
            press(wizard, QWizard::NextButton);
        }
        QTRY_VERIFY(child<QPushButton>(pageOf(wizard), "btnConnectAs").hasFocus());
        static_cast<QWizard&>(wizard).reject();
    });
    test_.run("OnRestore");
    QCOMPARE(difference(calls(), restoreOpenedCalls), QString());
}

/// A wizard's header has room for two lines.
void RestoreWizardTest::theHeadNamesTheDirectory() {
    test_.modals->expect(q("wizard"), isDialog<QWizard>, [](QWidget& wizard) {
        const auto wishes = wishing({.checked = {"D:"}, .location = "radioAlternateDir"});
        for (int page = 0; page < 3; ++page) {
            wishes(pageOf(wizard));
            press(wizard, QWizard::NextButton);
        }
        const QString subTitle = pageOf(wizard).subTitle();
        QCoreApplication::processEvents();
        int seen = 0;
        for (const QLabel* label : wizard.findChildren<QLabel*>())
            if (label->text() == subTitle) {
                ++seen;
                QVERIFY(label->heightForWidth(label->width()) <= label->height());
            }
        QCOMPARE(seen, 1);
        static_cast<QWizard&>(wizard).reject();
    });
    test_.run("OnRestore");
}

void RestoreWizardTest::cancelling_data() {
    QTest::addColumn<int>("page");
    QTest::addColumn<Calls>("asked");
    QTest::newRow("items") << 0 << Calls{};
    QTest::newRow("location") << 1 << Calls{};
    QTest::newRow("credentials") << 2 << Calls{};
    QTest::newRow("directory") << 3 << directoryWanted;
}

void RestoreWizardTest::cancelling() {
    QFETCH(int, page);
    QFETCH(Calls, asked);
    test_.modals->expect(q("wizard"), isDialog<QWizard>, [page](QWidget& wizard) {
        support::cancelWizard(wizard, page,
                              wishing({.checked = {"D:"}, .location = "radioAlternateDir"}));
    });
    test_.run("OnRestore");
    QCOMPARE(difference(calls(), restoreOpenedCalls + asked), QString());
}

void RestoreWizardTest::aGroupThatFailsEndsTheRestore() {
    startWith([](World& world) {
        storeFiles(world);
        auto& group = world.set(restoredId)->stored->addFolder("Group");
        group.isGroup = true;
        group.denied = "Keep out.";
    });
    test_.expectWizard(wishing({.checked = {"Group"}}));
    test_.modals->expectErrorBox(q("Error"), q("Keep out."));
    test_.run("OnRestore");
    QCOMPARE(difference(calls(), restoreOpenedCalls + Calls{"BackupSetRestoreView.getSubItems(0)"}),
             QString());
}

void RestoreWizardTest::aGroupThatHoldsNothingRestoresNothing() {
    startWith([](World& world) {
        storeFiles(world, {"C:\\a.txt", "Group\\Team\\c.txt"});
        world.set(restoredId)->stored->addFolder("Group").isGroup = true;
    });
    test_.expectWizard([this](QWizardPage& page) {
        wishing({.checked = {"Group"}})(page);
        if (qobject_cast<RestoreSelectPage*>(&page))
            test_.agent->inject("getSubItems", support::emptyList());
    });
    const QString statusBefore = test_.driver->status();
    test_.run("OnRestore");
    QCOMPARE(difference(calls(), restoreOpenedCalls + Calls{"BackupSetRestoreView.getSubItems(0)"} +
                                     refreshedAfterRestore),
             QString());
    QCOMPARE(test_.driver->status(), statusBefore);
}

void RestoreWizardTest::aSetWithoutDataHasNoWizard() {
    startWith([](World& world) { world.set(restoredId)->info.online_file_count = 0; });
    test_.modals->expect(q("box"), isDialog<QMessageBox>, [this](QWidget& widget) {
        auto& info = static_cast<QMessageBox&>(widget);
        QCOMPARE(info.windowTitle(), q("No data backed up"));
        QCOMPARE(info.text(), q("The selected backup set has no backed up data."));
        QCOMPARE(info.icon(), QMessageBox::Information);
        QCOMPARE(info.parentWidget(), &test_.driver->window());
        QTest::mouseClick(info.button(QMessageBox::Ok), Qt::LeftButton);
    });
    test_.run("OnRestore");
    QCOMPARE(
        difference(calls(), {"ClientConnection.backup_set(4)", "BackupSet.getCurrentStatus()"}),
        QString());
}

void RestoreWizardTest::aHeartbeatUnderTheWizardDoesntDisturbIt() {
    int pages = 0;
    test_.expectWizard([&](QWizardPage& page) {
        wishing({.checked = {"D:"}, .location = "radioAlternateDir", .directory = otherDirectory})(
            page);
        const QWidget* focus = QApplication::focusWidget();
        test_.driver->beat();
        QCOMPARE(QApplication::focusWidget(), focus);
        QVERIFY(page.isVisible() && page.isComplete());
        ++pages;
    });
    test_.run("OnRestore");
    QCOMPARE(pages, 4);
    const Calls all = calls();
    const std::string start = "RestoreActivityInitiator.start(";
    QCOMPARE(std::count_if(all.begin(), all.end(),
                           [&](const std::string& call) { return call.starts_with(start); }),
             1);
}

QTEST_MAIN(RestoreWizardTest)
#include "restore_wizard_test.moc"
