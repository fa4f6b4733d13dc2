// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QCheckBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTest>
#include <QToolTip>
#include <QTreeView>
#include <QWizard>

#include "api/client_connection.h"
#include "resources/pictures.h"
#include "session/connection.h"
#include "session/text.h"
#include "simulator/world/world.h"
#include "tests/support/gui_agent.h"
#include "tests/support/gui_click.h"
#include "tests/support/gui_modal_driver.h"
#include "tests/support/gui_selected_row_look.h"
#include "ui/wizard_frame.h"
#include "wizards/select_data_source_page.h"
#include "wizards/set_name_page.h"
#include "wizards/set_options_page.h"

using simulator::Scenario;
using support::child;
using support::ModalDriver;

namespace {

using Lines = std::vector<std::string>;
using Set = boost::shared_ptr<hessiancln::BackupSet>;

QString fromUtf8(const char* text) {
    return QString::fromUtf8(text);
}

/// An agent with a session, and the first of its sets.
struct Session {
    explicit Session(Scenario scenario = Scenario::Default)
        : agent({.scenario = scenario}) {
        session::connectToAgent(agent.address(), "demo", "demo", 1);
        agent.clearCallLog();
    }
    ~Session() { support::resetSession(); }

    Lines takeCalls() {
        Lines taken;
        for (const std::string& call : agent.callTexts())
            if (call.find(".Release()") == std::string::npos)
                taken.push_back(call);
        agent.clearCallLog();
        return taken;
    }

    /// The set with these options.
    Set set(bool copy, bool cache, const std::string& path) {
        std::int32_t id = 0;
        agent.withWorld([&](simulator::World& world) {
            simulator::BackupSetState& first = *world.sets().front();
            first.localStoragePath = path;
            first.info.using_local_storage = copy;
            first.usingLocalTransmissionCache = cache;
            id = first.info.id;
        });
        Set set = session::getConnection()->backup_set(id);
        agent.clearCallLog();
        return set;
    }

    void verifyAllReleased() {
        QCOMPARE(agent.liveObjects().size(), std::size_t(1));
        QCOMPARE(agent.violations(), Lines{});
    }

    support::GuiAgent agent;
};

QString folder(const SetOptionsPage& page) {
    return child<QLineEdit>(const_cast<SetOptionsPage&>(page), "editLocalPath").text();
}

void click(QWidget& page, const char* button) {
    support::clickBox(child<QAbstractButton>(page, button));
}

QString selectedFolder(QWidget& page) {
    const auto& tree = child<QTreeView>(page, "treeAvailableDirectories");
    if (!tree.selectionModel() || !tree.selectionModel()->hasSelection())
        return {};
    return tree.selectionModel()->selectedIndexes().first().data().toString();
}

bool isTreeInFront(QWidget& page) {
    return child<QStackedWidget>(page, "treeDisplayStack").currentWidget() ==
           &child<QTreeView>(page, "treeAvailableDirectories");
}

std::string listed(const std::string& path) {
    return R"(DataSourceBrowser.getSubItems("Tarn-Client Computer", ")" + path + R"("))";
}

} // namespace

class OptionsAndNameTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { resources::initPictures(); }
    void cleanup() { support::resetSession(); }

    void theOptionsAreNamed();
    void theKindOfPathsIsAskedForOnce();
    void aFolderIsWantedByEitherBox();
    void optionsOfASetAreShown();
    void optionsOfASetWithoutLocalStorageAreShown();
    void aMissingFolderSelectsItsParent();
    void aMissingFolderSelectsItsParentOnUnix();
    void namesOfWindowsAgreeInAnyCase();
    void namesOfUnixDoNot();
    void aSelectedFolderIsWritten();
    void theTreeIsFetchedWhenItComesToTheFront();
    void theTreeIsNewWheneverThePageIsEntered();
    void optionsAreWritten_data();
    void optionsAreWritten();
    void whatFailsIsRaised();

    void theNameIsAskedFor();
    void aNameIsWanted();
    void aTakenNameIsRefused();
    void aFreeNameIsWritten();
    void aFailedLookAtTheNamesEndsTheWizard();
};

void OptionsAndNameTest::theOptionsAreNamed() {
    Session session;
    SetOptionsPage page;
    QCOMPARE(page.title(), QStringLiteral("Backup Options"));
    QCOMPARE(page.subTitle(), QStringLiteral("Choose the options for this backup set"));
    QCOMPARE(child<QGroupBox>(page, "grpOptions").title(), QStringLiteral("Local Storage Options"));
    QCOMPARE(child<QCheckBox>(page, "chkLocalCopy").text(),
             QStringLiteral("&Also save backup data on local storage"));
    QCOMPARE(child<QCheckBox>(page, "chkLocalCache").text(),
             QStringLiteral("&Use local storage as a transmission cache if Tarn-System connection "
                            "is lost"));
    const auto& warning = child<QLabel>(page, "labWarning");
    QCOMPARE(warning.text(), QStringLiteral("NOTE: THIS FOLDER CANNOT BE SELECTED FOR BACKUP."));
    QVERIFY(warning.font().bold());
    QCOMPARE(warning.styleSheet(), QStringLiteral("color: rgb(255, 0, 0);"));
    const auto& button = child<QPushButton>(page, "btnLocalPath");
    QCOMPARE(button.text(), QStringLiteral(">"));
    QCOMPARE(button.maximumWidth(), 40);
    QVERIFY(button.isCheckable() && !button.isChecked());
    QVERIFY(!isTreeInFront(page));
    const auto& tree = child<QTreeView>(page, "treeAvailableDirectories");
    QVERIFY(tree.uniformRowHeights());
    QVERIFY(!tree.header()->stretchLastSection());
    QCOMPARE(page.dataSourcePageId(), -1);
    for (const char* name : {"editLocalPath", "btnLocalPath", "treeAvailableDirectories"})
        QVERIFY(!child<QWidget>(page, name).accessibleName().isEmpty());
}

void OptionsAndNameTest::theKindOfPathsIsAskedForOnce() {
    Session session;
    {
        SetOptionsPage page;
        page.initializePage();
    }
    QCOMPARE(session.takeCalls(), (Lines{"ClientConnection.getConfigurationManager()",
                                         "ClientConfiguration.getClientOSType()"}));
    session.verifyAllReleased();
}

void OptionsAndNameTest::aFolderIsWantedByEitherBox() {
    Session session;
    SetOptionsPage page;
    page.initializePage();
    page.show();
    QSignalSpy changes(&page, &QWizardPage::completeChanged);
    const auto shown = [&page] {
        int count = 0;
        for (const char* name : {"editLocalPath", "btnLocalPath", "treeDisplayStack", "labWarning"})
            count += child<QWidget>(page, name).isVisible() ? 1 : 0;
        return count;
    };
    QCOMPARE(shown(), 0);
    QVERIFY(page.isComplete());
    click(page, "chkLocalCopy");
    QCOMPARE(shown(), 4);
    QVERIFY(!page.isComplete());
    click(page, "chkLocalCache");
    click(page, "chkLocalCopy");
    QCOMPARE(shown(), 4);
    QCOMPARE(changes.count(), 3);
    QVERIFY(!page.isComplete());
    QTest::keyClicks(&child<QLineEdit>(page, "editLocalPath"), QStringLiteral("D"));
    QCOMPARE(changes.count(), 4);
    QVERIFY(page.isComplete());
    click(page, "chkLocalCache");
    QCOMPARE(shown(), 0);
    QVERIFY(page.isComplete());
    // An entered page follows the boxes, no matter who checked them.
    child<QCheckBox>(page, "chkLocalCache").setChecked(true);
    page.initializePage();
    QCOMPARE(shown(), 4);
    QVERIFY(page.validatePage());
}

void OptionsAndNameTest::optionsOfASetAreShown() {
    Session session;
    Set set = session.set(true, false, "D:\\Projects\\Tower\\");
    {
        SetOptionsPage page;
        session.takeCalls();
        QVERIFY(page.load(set));
        QCOMPARE(session.takeCalls(),
                 (Lines{"BackupSet.dataBrowser()", "BackupSet.isUsingLocalStorage()",
                        "BackupSet.isUsingLocalTransmissionCache()",
                        "BackupSet.getLocalStoragePath()", listed(""), listed("D:"),
                        listed("D:\\\\Projects"), listed("D:\\\\Projects\\\\Tower")}));
        QVERIFY(child<QCheckBox>(page, "chkLocalCopy").isChecked());
        QVERIFY(!child<QCheckBox>(page, "chkLocalCache").isChecked());
        QVERIFY(child<QPushButton>(page, "btnLocalPath").isChecked());
        QVERIFY(child<QLineEdit>(page, "editLocalPath").isReadOnly());
        QVERIFY(isTreeInFront(page));
        QVERIFY(!child<QLineEdit>(page, "editLocalPath").isHidden());
        QVERIFY(!child<QWidget>(page, "labWarning").isHidden());
        QCOMPARE(selectedFolder(page), QStringLiteral("Tower"));
        QCOMPARE(folder(page), QStringLiteral("D:\\Projects\\Tower"));
    }
    set.reset();
    session.verifyAllReleased();
}

void OptionsAndNameTest::optionsOfASetWithoutLocalStorageAreShown() {
    Session session;
    const Set set = session.set(false, false, "");
    SetOptionsPage page;
    QVERIFY(page.load(set));
    page.show();
    QVERIFY(!child<QCheckBox>(page, "chkLocalCopy").isChecked());
    QVERIFY(!child<QWidget>(page, "editLocalPath").isVisible());
    QCOMPARE(selectedFolder(page), QString());
    QCOMPARE(folder(page), QString());
    QVERIFY(page.isComplete());
}

void OptionsAndNameTest::aMissingFolderSelectsItsParent() {
    Session session;
    const Set set = session.set(false, true, "D:\\Projects\\Gone\\Deeper\\");
    SetOptionsPage page;
    QVERIFY(page.load(set));
    QVERIFY(child<QCheckBox>(page, "chkLocalCache").isChecked());
    QCOMPARE(selectedFolder(page), QStringLiteral("Projects"));
    QCOMPARE(folder(page), QStringLiteral("D:\\Projects"));
}

void OptionsAndNameTest::aMissingFolderSelectsItsParentOnUnix() {
    Session session(Scenario::Unix);
    const Set set = session.set(true, false, "/srv/gone\\");
    SetOptionsPage page;
    session.takeCalls();
    QVERIFY(page.load(set));
    QCOMPARE(session.takeCalls(),
             (Lines{"BackupSet.dataBrowser()", "BackupSet.isUsingLocalStorage()",
                    "BackupSet.isUsingLocalTransmissionCache()", "BackupSet.getLocalStoragePath()",
                    listed(""), listed("/"), listed("/\\\\srv")}));
    QCOMPARE(selectedFolder(page), QStringLiteral("srv"));
    QCOMPARE(folder(page), QStringLiteral("/srv"));
}

void OptionsAndNameTest::namesOfWindowsAgreeInAnyCase() {
    Session session;
    const Set set = session.set(true, false, "d:\\pROJECTS\\");
    SetOptionsPage page;
    QVERIFY(page.load(set));
    QCOMPARE(folder(page), QStringLiteral("D:\\Projects"));
}

void OptionsAndNameTest::namesOfUnixDoNot() {
    Session session(Scenario::Unix);
    const Set set = session.set(true, false, "/Srv\\");
    SetOptionsPage page;
    QVERIFY(page.load(set));
    QCOMPARE(selectedFolder(page), QStringLiteral("/"));
    QCOMPARE(folder(page), QStringLiteral("/"));
}

void OptionsAndNameTest::aSelectedFolderIsWritten() {
    Session session(Scenario::Unix);
    const Set set = session.set(true, false, "");
    SetOptionsPage page;
    QVERIFY(page.load(set));
    auto& tree = child<QTreeView>(page, "treeAvailableDirectories");
    const QModelIndex root = tree.model()->index(0, 0);
    QModelIndex home;
    for (int row = 0; row < tree.model()->rowCount(root); ++row)
        if (tree.model()->index(row, 0, root).data().toString() == QLatin1String("home"))
            home = tree.model()->index(row, 0, root);
    QVERIFY(home.isValid());
    tree.selectionModel()->select(tree.model()->index(0, 0, home),
                                  QItemSelectionModel::ClearAndSelect);
    QCOMPARE(folder(page), QStringLiteral("/home/anna"));
    page.show();
    tree.setCurrentIndex(home);
    QVERIFY(lightPointsOfPicture(tree, home) > 5);
    tree.setCurrentIndex(tree.model()->index(0, 0, home));
    tree.clearSelection();
    QCOMPARE(folder(page), QStringLiteral("/home/anna"));
}

void OptionsAndNameTest::theTreeIsFetchedWhenItComesToTheFront() {
    Session session;
    QWizard wizard;
    auto* source = new SelectDataSourcePage(&wizard);
    const int sourceId = wizard.addPage(source);
    auto* page = new SetOptionsPage(&wizard);
    page->setDataSourcePageId(sourceId);
    wizard.addPage(page);
    wizard.show();
    wizard.next();
    QCOMPARE(wizard.currentPage(), page);
    session.takeCalls();
    click(*page, "chkLocalCopy");
    QCoreApplication::processEvents();
    QCOMPARE(session.takeCalls(), Lines{});
    child<QLineEdit>(*page, "editLocalPath").setText(QStringLiteral("E:\\"));
    click(*page, "btnLocalPath");
    QCOMPARE(session.takeCalls(), (Lines{listed(""), listed("E:")}));
    QCOMPARE(selectedFolder(*page), QStringLiteral("E:"));
    QVERIFY(child<QLineEdit>(*page, "editLocalPath").isReadOnly());
    click(*page, "btnLocalPath");
    QVERIFY(!isTreeInFront(*page));
    QVERIFY(!child<QLineEdit>(*page, "editLocalPath").isReadOnly());
}

void OptionsAndNameTest::theTreeIsNewWheneverThePageIsEntered() {
    Session session;
    const Set set = session.set(true, false, "D:\\Projects\\");
    QWizard wizard;
    auto* source = new SelectDataSourcePage(&wizard);
    auto* page = new SetOptionsPage(&wizard);
    QVERIFY(page->load(set));
    page->setDataSourcePageId(wizard.addPage(source));
    wizard.addPage(page);
    QCOMPARE(selectedFolder(*page), QStringLiteral("Projects"));
    wizard.show();
    wizard.next();
    QCOMPARE(wizard.currentPage(), page);
    QCOMPARE(selectedFolder(*page), QString());
    QCOMPARE(folder(*page), QStringLiteral("D:\\Projects"));
    QVERIFY(isTreeInFront(*page));
}

void OptionsAndNameTest::optionsAreWritten_data() {
    QTest::addColumn<bool>("copy");
    QTest::addColumn<bool>("cache");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("sent");
    QTest::newRow("a copy") << true << false << "D:\\Copies"
                            << R"("D:\\Copies\\")";
    QTest::newRow("a cache") << false << true << "D:\\Copies"
                             << R"("D:\\Copies\\")";
    QTest::newRow("both") << true << true << "D:\\Copies\\"
                          << R"("D:\\Copies\\")";
    QTest::newRow("neither") << false << false << "D:\\Copies"
                             << R"("")";
    QTest::newRow("blanks and slashes") << true << false << "  D:\\Copies\\ / "
                                        << R"("D:\\Copies\\")";
    QTest::newRow("Unix") << true << false << "/srv/storage/"
                          << R"("/srv/storage\\")";
}

void OptionsAndNameTest::optionsAreWritten() {
    QFETCH(bool, copy);
    QFETCH(bool, cache);
    QFETCH(QString, typed);
    QFETCH(QString, sent);
    Session session;
    const Set set = session.set(false, false, "");
    SetOptionsPage page;
    child<QCheckBox>(page, "chkLocalCopy").setChecked(copy);
    child<QCheckBox>(page, "chkLocalCache").setChecked(cache);
    child<QLineEdit>(page, "editLocalPath").setText(typed);
    session.takeCalls();
    page.apply(set);
    const auto text = [](bool value) { return std::string(value ? "true" : "false"); };
    QCOMPARE(session.takeCalls(),
             (Lines{"BackupSet.setLocalStoragePath(" + session::toWire(sent) + ")",
                    "BackupSet.setUsingLocalStorage(" + text(copy) + ")",
                    "BackupSet.setUsingLocalTransmissionCache(" + text(cache) + ")"}));
}

void OptionsAndNameTest::whatFailsIsRaised() {
    Session session;
    const Set set = session.set(true, false, "D:\\");
    SetOptionsPage page;
    for (const char* method : {"dataBrowser", "isUsingLocalStorage",
                               "isUsingLocalTransmissionCache", "getLocalStoragePath"}) {
        session.agent.inject(method, simulator::Fault{"Locked."});
        QVERIFY_EXCEPTION_THROWN(page.load(set), std::exception);
    }
    for (const char* method :
         {"setLocalStoragePath", "setUsingLocalStorage", "setUsingLocalTransmissionCache"}) {
        session.agent.inject(method, simulator::Fault{"Locked."});
        QVERIFY_EXCEPTION_THROWN(page.apply(set), std::exception);
    }
    session.agent.inject("getClientOSType", simulator::Fault{"Locked."});
    QVERIFY_EXCEPTION_THROWN(SetOptionsPage(), std::exception);
    QCOMPARE(session.agent.waitingInjections(), std::size_t(0));
}

void OptionsAndNameTest::theNameIsAskedFor() {
    SetNamePage page;
    QCOMPARE(page.title(), QStringLiteral("Select Backup Set Name"));
    QCOMPARE(page.subTitle(), QStringLiteral("Choose the name for this backup set"));
    QCOMPARE(child<QGroupBox>(page, "groupSetName").title(), QStringLiteral("Backup Set Name"));
    auto& edit = child<QLineEdit>(page, "editSetName");
    QCOMPARE(edit.text(), QString());
    QCOMPARE(edit.maxLength(), 80);
    QVERIFY(!edit.accessibleName().isEmpty());
}

void OptionsAndNameTest::aNameIsWanted() {
    SetNamePage page;
    QSignalSpy changes(&page, &QWizardPage::completeChanged);
    auto& edit = child<QLineEdit>(page, "editSetName");
    QVERIFY(!page.isComplete());
    QTest::keyClicks(&edit, QStringLiteral("  "));
    QVERIFY(!page.isComplete());
    QTest::keyClicks(&edit, QStringLiteral("a"));
    QVERIFY(page.isComplete());
    QCOMPARE(changes.count(), 3);
}

void OptionsAndNameTest::aTakenNameIsRefused() {
    Session session;
    std::string name;
    session.agent.withWorld([&name](simulator::World& world) {
        world.sets().back()->info.name = "Bücher";
        name = world.sets().back()->info.name;
    });
    SetNamePage page;
    page.show();
    QVERIFY(QTest::qWaitForWindowActive(&page));
    auto& edit = child<QLineEdit>(page, "editSetName");
    for (const char* typed : {"Bücher", "bÜCHER", "  BÜCHER "}) {
        edit.setText(fromUtf8(typed));
        edit.clearFocus();
        QToolTip::hideText();
        session.takeCalls();
        QVERIFY(!page.validatePage());
        QCOMPARE(session.takeCalls(), Lines{"ClientConnection.backup_sets_info()"});
        QVERIFY(edit.hasFocus());
        QCOMPARE(QToolTip::text(), QStringLiteral("A backup set with the same name already exists. "
                                                  "\nPlease choose a different name."));
    }
}

void OptionsAndNameTest::aFreeNameIsWritten() {
    Session session;
    const Set set = session.set(false, false, "");
    SetNamePage page;
    child<QLineEdit>(page, "editSetName").setText(fromUtf8("  Über alles "));
    session.takeCalls();
    QVERIFY(page.validatePage());
    page.apply(set);
    QCOMPARE(session.takeCalls(),
             (Lines{"ClientConnection.backup_sets_info()", "BackupSet.setName(\"Über alles\")"}));
}

void OptionsAndNameTest::aFailedLookAtTheNamesEndsTheWizard() {
    Session session;
    QWizard wizard;
    auto* page = new SetNamePage(&wizard);
    wizard.addPage(page);
    session.agent.inject("backup_sets_info", simulator::Fault{"Locked."});
    ModalDriver modals;
    modals.expect(QStringLiteral("wizard"), support::isDialog<QWizard>, [](QWidget& shown) {
        child<QLineEdit>(shown, "editSetName").setText(QStringLiteral("Documents"));
        static_cast<QWizard&>(shown).button(QWizard::FinishButton)->click();
    });
    try {
        ui::runWizard(wizard);
        QFAIL("Nothing was raised");
    } catch (const std::exception& error) {
        QCOMPARE(error.what(), "Locked.");
    }
    QVERIFY(modals.done());
}

QTEST_MAIN(OptionsAndNameTest)
#include "options_and_name_test.moc"
