// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QGroupBox>
#include <QLabel>
#include <QSignalSpy>
#include <QTableView>

#include "resources/pictures.h"
#include "tests/config/tfa_fixture.h"
#include "tests/support/gui_form_texts.h"
#include "tests/support/gui_main_window.h"
#include "ui/branding_resources.h"

using namespace steps;
using simulator::Fault;
using simulator::World;
using support::child;
using support::isDialog;
using support::MainWindowDriver;

namespace {

const Calls reading{"ClientConnection.getTFAManager()", "TFAManager.getUserEmails()",
                    "TFAManager.Release()"};

QStringList rows(QWidget& viewer) {
    const QAbstractItemModel& model = *child<QTableView>(viewer, "tableUsers").model();
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row) {
        QStringList fields;
        for (int column = 0; column < model.columnCount(); ++column)
            fields << model.index(row, column).data().toString();
        texts << fields.join(QLatin1Char(';'));
    }
    return texts;
}

void select(QWidget& viewer, int row) {
    child<QTableView>(viewer, "tableUsers").selectRow(row);
}

} // namespace

/// The dialogs about two-factor codes, against an agent.
class TFADialogsTest : public QObject, private TFAFixture {
    Q_OBJECT
private slots:
    void initTestCase() {
        resources::initPictures();
        // Only Qt's own file dialog has widgets that a test can use.
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        ui::g_branding.load();
    }
    void init() { start(); }
    void cleanup() { end(); }

    void theCommandOpensTheList();
    void openingReadsTheList();
    void aListThatCantBeReadIsEmpty();
    void aRowIsAdded();
    void aUserWhoIsThereTwiceGetsTheAddressOnce();
    void aRowThatBreaksARuleStaysInItsDialog_data();
    void aRowThatBreaksARuleStaysInItsDialog();
    void theSelectedRowIsEdited();
    void aDoubleClickEditsToo();
    void theSelectedRowIsDeleted();
    void theRowThatLooksSelectedIsSelected();
    void withoutASelectionNothingIsEditedOrDeleted();
    void aFileIsImported_data();
    void aFileIsImported();
    void aLongFileIsImportedAtOnce();
    void aFileOfAnotherNameIsNotRead();
    void aFileThatCantBeReadIsNone();
    void aFileThatIsTooLargeIsRefused();
    void givingUpTheImportChangesNothing();
    void forwardingSendsTheWholeList();
    void givingUpTheCodeSendsNothing();
    void aListThatIsRefusedIsReported();
    void closingForgetsWhatWasChanged();
    void aCodeIsAskedForAtOnce();
    void anotherCodeIsSentOnDemand();
    void aWrongCodeLeavesTheDialogOpen();
    void aCodeThatCantBeSentLeavesTheDialogOpen();
    void theCodeDialogSaysWhatItWants();
    void anAgentWithoutAManagerOfCodesIsReported();
    void theDialogsFollowTheLanguage();
};

void TFADialogsTest::theCommandOpensTheList() {
    MainWindowDriver driver;
    agent_->withWorld([](World& world) { world.twoFactor = false; });
    driver.logIn(*agent_);
    QVERIFY(!driver.isEnabled("actionTFASettings"));
    agent_->withWorld([](World& world) { world.twoFactor = true; });
    driver.beat();
    QVERIFY(driver.isEnabled("actionTFASettings"));
    agent_->clearCallLog();
    modals_->expect(q("list"), isDialog<TFAUsersViewer>, [&driver](QWidget& viewer) {
        QCOMPARE(viewer.parentWidget(), &driver.window());
        support::compareWindowIcon(viewer);
        QCOMPARE(rows(viewer).size(), 2);
        press(viewer, "btnClose");
    });
    driver.trigger("actionTFASettings");
    QCOMPARE(agent_->callTexts(), reading);
}

void TFADialogsTest::openingReadsTheList() {
    withViewer([](QWidget& viewer) {
        QCOMPARE(viewer.windowTitle(), q("User Email Settimgs"));
        QCOMPARE(rows(viewer),
                 (QStringList{q("Ada;Home;ada@example.org"), q("bob;;bob@example.org")}));
        QStringList labels;
        for (const char* name :
             {"btnAdd", "btnEdit", "btnDelete", "btnImport", "btnUpdate", "btnClose"})
            labels << child<QPushButton>(viewer, name).text();
        QCOMPARE(labels,
                 (QStringList{q("&Add"), q("&Edit"), q("&Delete"), q("Import from csv file"),
                              q("&Forward to Tarn-System"), q("&Close")}));
    });
    QCOMPARE(agent_->callTexts(), reading);
}

void TFADialogsTest::aListThatCantBeReadIsEmpty() {
    agent_->inject("getUserEmails", Fault{"Out of order."});
    QStringList seen{q("untouched")};
    modals_->expectErrorBox(q("Error"), q("Out of order."));
    withViewer([&seen](QWidget& viewer) { seen = rows(viewer); });
    QCOMPARE(seen, QStringList());
}

void TFADialogsTest::aRowIsAdded() {
    withViewer([this](QWidget& viewer) {
        expectUser([](QWidget& dialog) {
            QCOMPARE(dialog.windowTitle(), q("Edit User Email"));
            support::compareWindowIcon(dialog);
            QCOMPARE(child<QGroupBox>(dialog, "groupUser").title(), q("User and Email"));
            type(dialog, "editUsername", "Jürgen");
            type(dialog, "editEmail", "j@example.org");
            press(dialog, "btnOK");
        });
        press(viewer, "btnAdd");
        expectUser([](QWidget& dialog) {
            type(dialog, "editUsername", "ADA");
            type(dialog, "editDomain", "home");
            type(dialog, "editEmail", "new@example.org");
            press(dialog, "btnOK");
        });
        press(viewer, "btnAdd");
        expectUser([](QWidget& dialog) {
            type(dialog, "editUsername", "nobody");
            type(dialog, "editEmail", "n@example.org");
            press(dialog, "btnCancel");
        });
        press(viewer, "btnAdd");
        QCOMPARE(rows(viewer),
                 (QStringList{q("Ada;Home;new@example.org"), q("bob;;bob@example.org"),
                              q("Jürgen;;j@example.org")}));
    });
    QCOMPARE(agent_->callTexts(), reading);
}

void TFADialogsTest::aUserWhoIsThereTwiceGetsTheAddressOnce() {
    agent_->withWorld([](World& world) {
        world.userEmails.push_back({"ADA", "home", "second@example.org"});
    });
    withViewer([this](QWidget& viewer) {
        expectUser([](QWidget& dialog) {
            type(dialog, "editUsername", "ada");
            type(dialog, "editDomain", "Home");
            type(dialog, "editEmail", "new@example.org");
            press(dialog, "btnOK");
        });
        press(viewer, "btnAdd");
        QCOMPARE(rows(viewer),
                 (QStringList{q("Ada;Home;new@example.org"), q("bob;;bob@example.org"),
                              q("ADA;home;second@example.org")}));
    });
}

void TFADialogsTest::aRowThatBreaksARuleStaysInItsDialog_data() {
    QTest::addColumn<QString>("user");
    QTest::addColumn<QString>("email");
    QTest::addColumn<QString>("message");
    QTest::newRow("no user") << q("") << q("a@example.org") << q("Username is required.");
    QTest::newRow("no address") << q("ada") << q("") << q("Email is required.");
    QTest::newRow("bad address") << q("ada") << q("example.org") << q("Not a valid Email address.");
}

void TFADialogsTest::aRowThatBreaksARuleStaysInItsDialog() {
    QFETCH(QString, user);
    QFETCH(QString, email);
    QFETCH(QString, message);
    withViewer([&](QWidget& viewer) {
        expectUser([&](QWidget& dialog) {
            child<QLineEdit>(dialog, "editUsername").setText(user);
            child<QLineEdit>(dialog, "editEmail").setText(email);
            press(dialog, "btnOK");
            QVERIFY(dialog.isVisible());
            QCOMPARE(child<QLineEdit>(dialog, "editUsername").text(), user);
            type(dialog, "editUsername", "dan");
            type(dialog, "editEmail", "dan@example.org");
            press(dialog, "btnOK");
        });
        modals_->expectErrorBox(q("Error"), message);
        press(viewer, "btnAdd");
        QCOMPARE(rows(viewer).last(), q("dan;;dan@example.org"));
    });
}

void TFADialogsTest::theSelectedRowIsEdited() {
    withViewer([this](QWidget& viewer) {
        select(viewer, 0);
        expectUser([](QWidget& dialog) {
            QCOMPARE(child<QLineEdit>(dialog, "editUsername").text(), q("Ada"));
            QCOMPARE(child<QLineEdit>(dialog, "editDomain").text(), q("Home"));
            QCOMPARE(child<QLineEdit>(dialog, "editEmail").text(), q("ada@example.org"));
            type(dialog, "editDomain", "Work");
            press(dialog, "btnOK");
        });
        press(viewer, "btnEdit");
        QCOMPARE(rows(viewer),
                 (QStringList{q("Ada;Work;ada@example.org"), q("bob;;bob@example.org")}));
    });
    QCOMPARE(agent_->callTexts(), reading);
}

void TFADialogsTest::aDoubleClickEditsToo() {
    withViewer([this](QWidget& viewer) {
        auto& table = child<QTableView>(viewer, "tableUsers");
        const QPoint place = table.visualRect(table.model()->index(1, 0)).center();
        expectUser([](QWidget& dialog) {
            QCOMPARE(child<QLineEdit>(dialog, "editUsername").text(), q("bob"));
            press(dialog, "btnCancel");
        });
        QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(table.viewport(), Qt::LeftButton, {}, place);
        QCOMPARE(rows(viewer).size(), 2);
    });
}

void TFADialogsTest::theSelectedRowIsDeleted() {
    withViewer([](QWidget& viewer) {
        select(viewer, 0);
        press(viewer, "btnDelete");
        QCOMPARE(rows(viewer), QStringList(q("bob;;bob@example.org")));
    });
    QCOMPARE(agent_->callTexts(), reading);
}

/// The current row has a frame.
void TFADialogsTest::theRowThatLooksSelectedIsSelected() {
    const auto selectedIs = [](QWidget& viewer, int row) {
        const auto& table = child<QTableView>(viewer, "tableUsers");
        const QModelIndexList rows = table.selectionModel()->selectedRows();
        QCOMPARE(rows.size(), 1);
        QCOMPARE(rows.first().row(), row);
        QCOMPARE(table.currentIndex().row(), row);
        QVERIFY(child<QPushButton>(viewer, "btnEdit").isEnabled());
        QVERIFY(child<QPushButton>(viewer, "btnDelete").isEnabled());
    };
    withViewer([&](QWidget& viewer) {
        selectedIs(viewer, 0);
        auto& table = child<QTableView>(viewer, "tableUsers");
        QTest::mouseClick(table.viewport(), Qt::LeftButton, Qt::ControlModifier,
                          table.visualRect(table.model()->index(0, 0)).center());
        QCoreApplication::processEvents();
        selectedIs(viewer, 0);
        press(viewer, "btnDelete");
        selectedIs(viewer, 0);
        press(viewer, "btnDelete");
        QVERIFY(!child<QPushButton>(viewer, "btnEdit").isEnabled());
        QVERIFY(!child<QPushButton>(viewer, "btnDelete").isEnabled());
        expectUser([](QWidget& dialog) {
            type(dialog, "editUsername", "dan");
            type(dialog, "editEmail", "dan@example.org");
            press(dialog, "btnOK");
        });
        press(viewer, "btnAdd");
        viewer.activateWindow();
        child<QTableView>(viewer, "tableUsers").setFocus();
        selectedIs(viewer, 0);
    });
}

void TFADialogsTest::withoutASelectionNothingIsEditedOrDeleted() {
    withViewer([](QWidget& viewer) {
        child<QTableView>(viewer, "tableUsers").clearSelection();
        QVERIFY(!child<QPushButton>(viewer, "btnEdit").isEnabled());
        QVERIFY(!child<QPushButton>(viewer, "btnDelete").isEnabled());
        QVERIFY(QMetaObject::invokeMethod(&viewer, "on_btnEdit_clicked"));
        QVERIFY(QMetaObject::invokeMethod(&viewer, "on_btnDelete_clicked"));
        QCOMPARE(rows(viewer).size(), 2);
    });
}

void TFADialogsTest::aFileIsImported_data() {
    QTest::addColumn<QString>("name");
    QTest::newRow("small letters") << q("users.csv");
    QTest::newRow("capital letters") << q("USERS.CSV");
}

void TFADialogsTest::aFileIsImported() {
    QFETCH(QString, name);
    const QString path = writeFile(qPrintable(name), "dan,home,dan@example.org\r\n"
                                                     "eve|e.example.org\r\n"
                                                     "fay|home|f.example.org\r\n"
                                                     "BOB\t\tnew@example.org,ignored\r\n");
    withViewer([&](QWidget& viewer) {
        expectFile(path);
        press(viewer, "btnImport");
        QCOMPARE(rows(viewer),
                 (QStringList{q("Ada;Home;ada@example.org"), q("bob;;new@example.org"),
                              q("dan;home;dan@example.org")}));
        QCOMPARE(child<QLabel>(viewer, "labImport").text(),
                 q("Users imported: 2. Lines skipped: 2."));
    });
    QCOMPARE(agent_->callTexts(), reading);
}

void TFADialogsTest::aLongFileIsImportedAtOnce() {
    QByteArray bytes;
    for (int line = 0; line < 20'000; ++line)
        bytes += "user" + QByteArray::number(line) + ",home,a@example.org\n";
    const QString path = writeFile("long.csv", bytes);
    withViewer([&](QWidget& viewer) {
        expectFile(path);
        const QAbstractItemModel& users = *child<QTableView>(viewer, "tableUsers").model();
        const QSignalSpy insertions(&users, &QAbstractItemModel::rowsInserted);
        press(viewer, "btnImport");
        QCOMPARE(users.rowCount(), 20'002);
        // One signal: a view notified of each row would take minutes.
        QCOMPARE(insertions.size(), 1);
    });
}

void TFADialogsTest::aFileOfAnotherNameIsNotRead() {
    const QString path = writeFile("users.txt", "dan,home,dan@example.org\n");
    withViewer([&](QWidget& viewer) {
        expectFile(path);
        press(viewer, "btnImport");
        QCOMPARE(rows(viewer).size(), 2);
    });
}

void TFADialogsTest::aFileThatCantBeReadIsNone() {
    const QString path = writeFile("gone.csv", "dan,home,dan@example.org\n");
    withViewer([&](QWidget& viewer) {
        modals_->expect(q("file"), isDialog<QFileDialog>, [&](QWidget& dialog) {
            child<QLineEdit>(dialog, "fileNameEdit").setText(path);
            static_cast<QDialog&>(dialog).accept();
            QVERIFY(QFile::remove(path));
        });
        press(viewer, "btnImport");
        QCOMPARE(rows(viewer).size(), 2);
    });
}

void TFADialogsTest::aFileThatIsTooLargeIsRefused() {
    const QString path = writeFile("long.csv", QByteArray(65 * 1024, 'x'));
    withViewer([&](QWidget& viewer) {
        expectFile(path);
        modals_->expectErrorBox(q("Configuration Error"),
                                q("\"%1\" has a line of more than 64 KiB.").arg(path));
        press(viewer, "btnImport");
        QCOMPARE(rows(viewer).size(), 2);
        QVERIFY(child<QLabel>(viewer, "labImport").isHidden());
    });
}

void TFADialogsTest::givingUpTheImportChangesNothing() {
    withViewer([this](QWidget& viewer) {
        modals_->expect(q("file"), isDialog<QFileDialog>,
                        [](QWidget& dialog) { static_cast<QDialog&>(dialog).reject(); });
        press(viewer, "btnImport");
        QCOMPARE(rows(viewer).size(), 2);
    });
}

void TFADialogsTest::forwardingSendsTheWholeList() {
    withViewer([this](QWidget& viewer) {
        select(viewer, 0);
        press(viewer, "btnDelete");
        agent_->clearCallLog();
        expectCode([](QWidget& dialog) {
            type(dialog, "editCode", "314159");
            press(dialog, "btnValidate");
        });
        expectNews(*modals_, "Forward to Tarn-System",
                   "User email list is successfully sent to Tarn-System.");
        press(viewer, "btnUpdate");
        QCOMPARE(agent_->callTexts(),
                 (Calls{"ClientConnection.getTFAManager()", "TFAManager.requestCode(1)",
                        "TFAManager.Release()", "ClientConnection.getTFAManager()",
                        "TFAManager.validateCode(\"314159\", 1)", "TFAManager.Release()",
                        "ClientConnection.getTFAManager()",
                        "TFAManager.setUserEmails([{username=\"bob\", domain=\"\", "
                        "email=\"bob@example.org\"}])",
                        "TFAManager.Release()"}));
    });
    agent_->withWorld([](World& world) { QCOMPARE(world.userEmails.size(), std::size_t{1}); });
}

void TFADialogsTest::givingUpTheCodeSendsNothing() {
    withViewer([this](QWidget& viewer) {
        select(viewer, 0);
        press(viewer, "btnDelete");
        agent_->clearCallLog();
        expectCode([](QWidget& dialog) { press(dialog, "btnCancel"); });
        press(viewer, "btnUpdate");
        QCOMPARE(support::methodsOf(*agent_), (Calls{"getTFAManager", "requestCode"}));
        QCOMPARE(rows(viewer), QStringList(q("bob;;bob@example.org")));
    });
    agent_->withWorld([](World& world) { QCOMPARE(world.userEmails.size(), std::size_t{2}); });
}

void TFADialogsTest::aListThatIsRefusedIsReported() {
    agent_->inject("setUserEmails", Fault{"Out of order."});
    withViewer([this](QWidget& viewer) {
        expectCode([](QWidget& dialog) {
            type(dialog, "editCode", "314159");
            press(dialog, "btnValidate");
        });
        modals_->expectErrorBox(q("Configuration Error"), q("Out of order."));
        press(viewer, "btnUpdate");
        QVERIFY(viewer.isVisible());
    });
}

void TFADialogsTest::closingForgetsWhatWasChanged() {
    withViewer([](QWidget& viewer) {
        select(viewer, 1);
        press(viewer, "btnDelete");
    });
    QCOMPARE(agent_->callTexts(), reading);
    withViewer([](QWidget& viewer) { QCOMPARE(rows(viewer).size(), 2); });
}

void TFADialogsTest::aCodeIsAskedForAtOnce() {
    expectCode([](QWidget& dialog) {
        auto& address = child<QLineEdit>(dialog, "editEmail");
        QCOMPARE(address.text(), q("administrator@example.net"));
        QVERIFY(address.isReadOnly());
        press(dialog, "btnCancel");
    });
    QCOMPARE(TFACodeDlg(2, nullptr).exec(), int(QDialog::Rejected));
    QCOMPARE(agent_->callTexts(), (Calls{"ClientConnection.getTFAManager()",
                                         "TFAManager.requestCode(2)", "TFAManager.Release()"}));
}

void TFADialogsTest::anotherCodeIsSentOnDemand() {
    expectCode([this](QWidget& dialog) {
        agent_->withWorld([](World& world) { world.twoFactorAddress = "other@example.net"; });
        agent_->clearCallLog();
        press(dialog, "btnResend");
        QCOMPARE(support::methodsOf(*agent_), (Calls{"getTFAManager", "requestCode"}));
        QCOMPARE(child<QLineEdit>(dialog, "editEmail").text(), q("other@example.net"));
        type(dialog, "editCode", "314159");
        press(dialog, "btnValidate");
    });
    QCOMPARE(TFACodeDlg(2, nullptr).exec(), int(QDialog::Accepted));
}

void TFADialogsTest::aWrongCodeLeavesTheDialogOpen() {
    expectCode([this](QWidget& dialog) {
        type(dialog, "editCode", "1");
        modals_->expectErrorBox(q("Error"), q("The authentication code is wrong."));
        press(dialog, "btnValidate");
        QVERIFY(dialog.isVisible());
        QCOMPARE(child<QLineEdit>(dialog, "editCode").text(), q("1"));
        type(dialog, "editCode", "314159");
        press(dialog, "btnValidate");
    });
    QCOMPARE(TFACodeDlg(1, nullptr).exec(), int(QDialog::Accepted));
}

void TFADialogsTest::aCodeThatCantBeSentLeavesTheDialogOpen() {
    agent_->inject("requestCode", Fault{"Kein Postbüro."});
    modals_->expectErrorBox(q("Error"), q("Kein Postbüro."));
    expectCode([](QWidget& dialog) {
        QCOMPARE(child<QLineEdit>(dialog, "editEmail").text(), QString());
        press(dialog, "btnResend");
        QCOMPARE(child<QLineEdit>(dialog, "editEmail").text(), q("administrator@example.net"));
        press(dialog, "btnCancel");
    });
    QCOMPARE(TFACodeDlg(1, nullptr).exec(), int(QDialog::Rejected));
}

void TFADialogsTest::anAgentWithoutAManagerOfCodesIsReported() {
    const auto expectBox = [this](const char* title) {
        modals_->expectErrorBox(q(title), q("The agent did not return the requested object."));
    };
    agent_->inject("getTFAManager", simulator::NullResult{}, simulator::Times::UntilCleared);
    expectBox("Error");
    expectCode([&](QWidget& dialog) {
        expectBox("Error");
        press(dialog, "btnValidate");
        press(dialog, "btnCancel");
    });
    QCOMPARE(TFACodeDlg(1, nullptr).exec(), int(QDialog::Rejected));
    expectBox("Error");
    withViewer([&](QWidget& viewer) {
        agent_->clearInjections();
        expectCode([this](QWidget& dialog) {
            type(dialog, "editCode", "314159");
            press(dialog, "btnValidate");
            agent_->inject("getTFAManager", simulator::NullResult{});
        });
        expectBox("Configuration Error");
        press(viewer, "btnUpdate");
    });
}

void TFADialogsTest::theCodeDialogSaysWhatItWants() {
    expectCode([](QWidget& dialog) {
        QCOMPARE(dialog.windowTitle(), q("Two-factor Authentication Validation"));
        support::compareWindowIcon(dialog);
        QCOMPARE(child<QLabel>(dialog, "labelExplanation").text(),
                 q("An email with an authentication code has been sent to the following email "
                   "address. Enter the authentication code below, and then click Validate."));
        QCOMPARE(child<QLabel>(dialog, "labelEmail").text(), q("Email address:"));
        QCOMPARE(child<QLabel>(dialog, "labelCode").text(), q("Authentication Code:"));
        QCOMPARE(child<QPushButton>(dialog, "btnResend").text(), q("&Resend Code"));
        QCOMPARE(child<QPushButton>(dialog, "btnValidate").text(), q("&Validate"));
        QCOMPARE(child<QPushButton>(dialog, "btnCancel").text(), q("&Cancel"));
        press(dialog, "btnCancel");
    });
    TFACodeDlg(1, nullptr).exec();
}

void TFADialogsTest::theDialogsFollowTheLanguage() {
    TFAUsersViewer viewer;
    TFAUserDlg user({"Ada", "Home", "ada@example.org"});
    TFACodeDlg code(1, nullptr);
    const std::pair<QWidget*, const char*> titles[] = {
        {&viewer, "User Email Settimgs"},
        {&user, "Edit User Email"},
        {&code, "Two-factor Authentication Validation"}};
    for (const auto& [dialog, title] : titles) {
        // The language change sets the texts of the current language again.
        dialog->setWindowTitle({});
        QEvent change(QEvent::LanguageChange);
        QCoreApplication::sendEvent(dialog, &change);
        QCOMPARE(dialog->windowTitle(), q(title));
    }
    QCOMPARE(child<QLineEdit>(user, "editUsername").text(), q("Ada"));
}

QTEST_MAIN(TFADialogsTest)
#include "tfa_dialogs_test.moc"
