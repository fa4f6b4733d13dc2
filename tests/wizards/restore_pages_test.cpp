// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTreeView>

#include "tests/support/gui_selected_row_look.h"
#include "tests/support/gui_tree.h"
#include "tests/wizards/page_fixture.h"
#include "wizards/restore_directory_destination.h"
#include "wizards/restore_location_page.h"
#include "wizards/select_data_source_page.h"

using support::child;
using support::rowAt;

namespace {

QString q(const char* text) {
    return QString::fromUtf8(text);
}

void changeLanguage(QWidget& widget) {
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&widget, &change);
}

/// The pages after the first one, in a hidden wizard.
struct LocationPages {
    explicit LocationPages(const PageFixture::Set& set)
        : location(*new RestoreLocationPage(set, &wizard))
        , source(*new SelectDataSourcePage(&wizard))
        , directory(*new RestoreDirectoryDestination(&wizard)) {
        directory.setLocationPageId(wizard.addPage(&location));
        location.setDataSourcePageId(wizard.addPage(&source));
        location.setDirectoryPageId(wizard.addPage(&directory));
        source.initForRestore(set);
    }

    QComboBox& reasons() { return child<QComboBox>(location, "cmbRestoreReason"); }
    void choose(const char* radio) { child<QRadioButton>(location, radio).setChecked(true); }
    QLineEdit& path() { return child<QLineEdit>(directory, "editRestoreTo"); }
    QPushButton& browse() { return child<QPushButton>(directory, "btnRestoreTo"); }
    QTreeView& tree() { return child<QTreeView>(directory, "treeAvailableDirectories"); }
    QString selected() {
        const auto* selection = tree().selectionModel();
        return selection && selection->hasSelection()
                   ? selection->selectedIndexes().first().data().toString()
                   : QString();
    }
    bool isTreeInFront() {
        return child<QStackedWidget>(directory, "treeDisplayStack").currentWidget() == &tree();
    }

    QWizard wizard;
    RestoreLocationPage& location;
    SelectDataSourcePage& source;
    RestoreDirectoryDestination& directory;
};

} // namespace

/// The pages of the restore wizard that select the destination.
class RestorePagesTest : public QObject, private PageFixture {
    Q_OBJECT
private slots:
    void init() { start(); }
    void cleanup() { end(); }

    void textsOfTheLocationPage();
    void aReasonIsCompulsory();
    void aHeadingMovesToItsFirstReason_data();
    void aHeadingMovesToItsFirstReason();
    void keysPassOverAHeading();
    void aNotebookHasNoOtherComputer();
    void theOriginalPlaceIsTheEnd();
    void theSourcePageIsAskedForCredentials();
    void theSourcePageIsAskedForTheDestination();
    void otherCredentialsAreForTheSetsComputer();
    void textsOfTheDirectoryPage();
    void theFirstPresetIsOffered();
    void withoutPresetsADirectoryIsWanted();
    void theTreeGoesToTheTypedDirectory();
    void aMissingDirectorySelectsWhatIsAboveIt();
    void nothingIsSelectedForAnUnknownDrive();
    void theTreeIsFetchedWhenItIsShown();
    void directoriesOfUnixHaveSlashes();
    void theTreeOfAnotherComputerReplacesTheFirst();
    void theDestinationHasItsOwnDirectory();
};

void RestorePagesTest::textsOfTheLocationPage() {
    LocationPages pages(openSet(documents));
    RestoreLocationPage& page = pages.location;
    QCOMPARE(page.windowTitle(), q("WizardPage"));
    QCOMPARE(page.title(), q("Restore Destination"));
    QCOMPARE(page.subTitle(), q("Select the destination for the restore"));
    QCOMPARE(child<QGroupBox>(page, "grpLocation").title(), q("Restore Destination"));
    QCOMPARE(child<QGroupBox>(page, "grpReason").title(), q("Restore Reason"));
    for (const auto& [name, text] :
         {std::pair("radioOriginal", "&Original location"),
          {"radioAlternateDir", "O&riginal computer, alternate directory"},
          {"radioAlternateComputer", "&Alternate computer/directory"}})
        QCOMPARE(child<QRadioButton>(page, name).text(), q(text));
    QVERIFY(child<QRadioButton>(page, "radioOriginal").isChecked());
    QVERIFY(!child<QRadioButton>(page, "radioAlternateComputer").isHidden());
    QCOMPARE(pages.reasons().count(), 12);
    QCOMPARE(pages.reasons().itemText(1), q("    Device lost or stolen"));
    QCOMPARE(pages.reasons().itemData(1, Qt::UserRole).toInt(), 3);
    pages.reasons().setCurrentIndex(11);
    changeLanguage(page);
    QCOMPARE(pages.reasons().currentText(), q("    Power outages"));
    QCOMPARE(pages.reasons().currentData().toInt(), 9);
}

void RestorePagesTest::aReasonIsCompulsory() {
    LocationPages pages(openSet(documents));
    QCOMPARE(pages.reasons().currentIndex(), -1);
    QVERIFY(!pages.location.isComplete());
    QSignalSpy changes(&pages.location, &QWizardPage::completeChanged);
    pages.reasons().setCurrentIndex(4);
    QVERIFY(pages.location.isComplete());
    QVERIFY(!changes.isEmpty());
}

void RestorePagesTest::aHeadingMovesToItsFirstReason_data() {
    QTest::addColumn<int>("heading");
    QTest::addColumn<int>("code");
    QTest::newRow("human factor") << 0 << 3;
    QTest::newRow("internal cause") << 6 << 4;
    QTest::newRow("external cause") << 9 << 8;
}

void RestorePagesTest::aHeadingMovesToItsFirstReason() {
    QFETCH(int, heading);
    QFETCH(int, code);
    LocationPages pages(openSet(documents));
    QCOMPARE(pages.reasons().itemData(heading).toInt(), 13);
    pages.reasons().setCurrentIndex(heading);
    QCOMPARE(pages.reasons().currentIndex(), heading + 1);
    QCOMPARE(pages.reasons().currentData().toInt(), code);
}

void RestorePagesTest::keysPassOverAHeading() {
    LocationPages pages(openSet(documents));
    QComboBox& reasons = pages.reasons();
    for (int heading : {0, 6, 9})
        QVERIFY(!(reasons.model()->flags(reasons.model()->index(heading, 0)) & Qt::ItemIsEnabled));
    reasons.setCurrentIndex(7);
    QTest::keyClick(&reasons, Qt::Key_Up);
    QCOMPARE(reasons.currentIndex(), 5);
    QTest::keyClick(&reasons, Qt::Key_Down);
    QCOMPARE(reasons.currentIndex(), 7);
    QTest::keyClick(&reasons, Qt::Key_Home);
    QCOMPARE(reasons.currentIndex(), 1);
}

void RestorePagesTest::aNotebookHasNoOtherComputer() {
    end();
    start(simulator::Scenario::Notebook);
    RestoreLocationPage page(openSet(documents));
    QVERIFY(child<QRadioButton>(page, "radioAlternateComputer").isHidden());
    QVERIFY(!child<QRadioButton>(page, "radioAlternateDir").isHidden());
}

void RestorePagesTest::theOriginalPlaceIsTheEnd() {
    LocationPages pages(openSet(documents));
    QCOMPARE(pages.location.nextId(), -1);
    QSignalSpy changes(&pages.location, &QWizardPage::completeChanged);
    pages.choose("radioAlternateDir");
    QVERIFY(!changes.isEmpty());
    QVERIFY(!pages.location.isFinalPage());
    pages.choose("radioOriginal");
    QVERIFY(pages.location.isFinalPage());
}

void RestorePagesTest::theSourcePageIsAskedForCredentials() {
    LocationPages pages(openSet(documents));
    pages.choose("radioAlternateDir");
    QCOMPARE(pages.location.nextId(), pages.wizard.pageIds().at(1));
    for (const bool again : {false, true}) {
        if (again)
            changeLanguage(pages.source);
        QCOMPARE(pages.source.title(), q("Use other credentials"));
        QCOMPARE(pages.source.subTitle(), q("Enter the credentials to be used during restore"));
        QVERIFY(child<QGroupBox>(pages.source, "groupDataSource").isHidden());
        QVERIFY(child<QCheckBox>(pages.source, "chkUseTarnClientAccount").isHidden());
    }
    QVERIFY(!child<QLineEdit>(pages.source, "editComputerName").isEnabled());
}

void RestorePagesTest::theSourcePageIsAskedForTheDestination() {
    LocationPages pages(openSet(documents));
    pages.choose("radioAlternateDir");
    pages.location.nextId();
    pages.choose("radioAlternateComputer");
    QCOMPARE(pages.location.nextId(), pages.wizard.pageIds().at(1));
    for (const bool again : {false, true}) {
        if (again)
            changeLanguage(pages.source);
        QCOMPARE(pages.source.title(), q("Restore Destination Computer"));
        QCOMPARE(pages.source.subTitle(),
                 q("Select the computer where the data will be restored to"));
        const auto& group = child<QGroupBox>(pages.source, "groupDataSource");
        QVERIFY(!group.isHidden());
        QCOMPARE(group.title(), q("Destination"));
        QCOMPARE(child<QLabel>(pages.source, "labelItemsFrom").text(),
                 q("Data will be restored to:"));
        QVERIFY(child<QCheckBox>(pages.source, "chkUseTarnClientAccount").isHidden());
    }
}

/// An earlier selection for another computer is then ignored and hidden.
void RestorePagesTest::otherCredentialsAreForTheSetsComputer() {
    LocationPages pages(openSet(documents));
    pages.choose("radioAlternateComputer");
    pages.location.nextId();
    child<QPushButton>(pages.source, "btnShowNetDiscovery").setChecked(true);
    auto& network = child<QTreeView>(pages.source, "treeNetworkDiscovery");
    network.model()->fetchMore({});
    network.setCurrentIndex(rowAt(network, "Unix Hosts"));
    QCOMPARE(pages.source.computerName(), q("Unix Hosts"));
    QVERIFY(!pages.source.isComplete());
    pages.choose("radioAlternateDir");
    pages.location.nextId();
    QVERIFY(pages.source.isComplete());
    takeCalls();
    QVERIFY(pages.source.validatePage());
    QCOMPARE(takeCalls(), (Calls{"DataSourceBrowser.getCurrentCredentials()",
                                 "BackupSetCredentials.check(\"My Computer\")"}));
    pages.choose("radioAlternateComputer");
    pages.location.nextId();
    QCOMPARE(pages.source.computerName(), q("Unix Hosts"));
    QVERIFY(!pages.source.isComplete());
}

void RestorePagesTest::textsOfTheDirectoryPage() {
    LocationPages pages(openSet(documents));
    RestoreDirectoryDestination& page = pages.directory;
    QCOMPARE(page.title(), q("Select Restore Directory"));
    const QString subTitle = page.subTitle();
    const QRegularExpression form(
        q("^Select the directory where the restore should be performed in\\. The restored data "
          "will be placed in a subdirectory named "
          "''restore_\\d{4}_[^_]+_\\d\\d_\\d\\d-\\d\\d-\\d\\d''$"));
    QVERIFY2(form.match(subTitle).hasMatch(), qPrintable(subTitle));
    changeLanguage(page);
    QCOMPARE(page.subTitle(), subTitle);
    QCOMPARE(child<QLabel>(page, "labelRestoreTo").text(), q("Restore to:"));
    QCOMPARE(pages.browse().text(), q(">"));
    QVERIFY(pages.browse().isCheckable() && !pages.browse().isChecked());
    QVERIFY(!pages.isTreeInFront());
}

void RestorePagesTest::theFirstPresetIsOffered() {
    LocationPages pages(openSet(documents));
    pages.choose("radioAlternateDir");
    takeCalls();
    pages.directory.initializePage();
    QCOMPARE(pages.path().text(), q("C:\\Users\\anna\\Documents"));
    QVERIFY(pages.directory.isComplete());
    QCOMPARE(takeCalls(), (Calls{"BackupSet.getComputerName()",
                                 "DataSourceBrowser.getPredefinedItems(\"My Computer\")"}));
}

void RestorePagesTest::withoutPresetsADirectoryIsWanted() {
    LocationPages pages(openSet(documents));
    pages.choose("radioAlternateComputer");
    child<QLineEdit>(pages.source, "editComputerName").setText(q("FILESRV"));
    pages.path().setText(q("left over"));
    pages.directory.initializePage();
    QCOMPARE(pages.path().text(), QString());
    QVERIFY(!pages.directory.isComplete());
    pages.path().setText(q("C$"));
    QVERIFY(pages.directory.isComplete());
}

void RestorePagesTest::theTreeGoesToTheTypedDirectory() {
    LocationPages pages(openSet(documents));
    pages.choose("radioAlternateDir");
    pages.directory.initializePage();
    pages.path().setText(q("c:\\USERS\\anna"));
    pages.browse().setChecked(true);
    QVERIFY(pages.isTreeInFront());
    QVERIFY(pages.path().isReadOnly());
    QCOMPARE(pages.selected(), q("anna"));
    pages.directory.show();
    QVERIFY(lightPointsOfPicture(pages.tree(), pages.tree().currentIndex()) > 5);
    QCOMPARE(pages.path().text(), q("C:\\Users\\anna"));
    pages.browse().setChecked(false);
    QVERIFY(!pages.isTreeInFront());
    QVERIFY(!pages.path().isReadOnly());
}

void RestorePagesTest::aMissingDirectorySelectsWhatIsAboveIt() {
    LocationPages pages(openSet(documents));
    pages.choose("radioAlternateDir");
    pages.directory.initializePage();
    pages.path().setText(q("D:\\Projects\\Nowhere\\at all"));
    pages.browse().setChecked(true);
    QCOMPARE(pages.selected(), q("Projects"));
    QCOMPARE(pages.path().text(), q("D:\\Projects"));
}

void RestorePagesTest::nothingIsSelectedForAnUnknownDrive() {
    LocationPages pages(openSet(documents));
    pages.choose("radioAlternateDir");
    pages.directory.initializePage();
    pages.browse().setChecked(true);
    pages.tree().setCurrentIndex(rowAt(pages.tree(), "D:"));
    pages.browse().setChecked(false);
    pages.path().setText(q("Q:\\x"));
    pages.browse().setChecked(true);
    QCOMPARE(pages.selected(), QString());
    QCOMPARE(pages.path().text(), q("Q:\\x"));
}

void RestorePagesTest::theTreeIsFetchedWhenItIsShown() {
    LocationPages pages(openSet(documents));
    pages.choose("radioAlternateDir");
    pages.directory.initializePage();
    pages.path().setText(QString());
    takeCalls();
    pages.browse().setChecked(true);
    QCOMPARE(takeCalls(), Calls{"DataSourceBrowser.getSubItems(\"My Computer\", \"\")"});
    // Files aren't shown.
    QVERIFY(pages.tree().model()->rowCount() > 0);
    for (int row = 0; row < pages.tree().model()->rowCount(); ++row)
        QVERIFY(pages.tree().model()->index(row, 0).data().toString().endsWith(QLatin1Char(':')));
}

void RestorePagesTest::directoriesOfUnixHaveSlashes() {
    end();
    start(simulator::Scenario::Unix);
    LocationPages pages(openSet(1));
    pages.choose("radioAlternateDir");
    pages.directory.initializePage();
    QCOMPARE(pages.path().text(), q("/home"));
    pages.browse().setChecked(true);
    QCOMPARE(pages.selected(), QString());
    QCOMPARE(pages.path().text(), q("/home"));
    pages.tree().setCurrentIndex(rowAt(pages.tree(), "/usr/local"));
    QCOMPARE(pages.path().text(), q("/usr/local"));
}

void RestorePagesTest::theTreeOfAnotherComputerReplacesTheFirst() {
    LocationPages pages(openSet(documents));
    pages.choose("radioAlternateComputer");
    auto& computer = child<QLineEdit>(pages.source, "editComputerName");
    computer.setText(q("My Computer"));
    pages.directory.initializePage();
    pages.browse().setChecked(true);
    pages.tree().expand(rowAt(pages.tree(), "C:"));
    takeCalls();
    computer.setText(q("Unix Hosts\\nas01"));
    pages.directory.initializePage();
    QCOMPARE(pages.path().text(), q("/\\volume1"));
    QVERIFY(pages.path().isReadOnly());
    QVERIFY(pages.isTreeInFront());
    QCOMPARE(takeCalls(), (Calls{"DataSourceBrowser.getPredefinedItems(\"Unix Hosts\\\\nas01\")",
                                 "DataSourceBrowser.getSubItems(\"Unix Hosts\\\\nas01\", \"\")"}));
    QCOMPARE(pages.selected(), QString());
}

void RestorePagesTest::theDestinationHasItsOwnDirectory() {
    LocationPages pages(openSet(documents));
    pages.path().setText(q("D:\\Back"));
    const QString name = pages.directory.subTitle().section(q("''"), 1, 1);
    QCOMPARE(pages.directory.destinationPath(), q("D:\\Back/") + name + q("/"));
}

QTEST_MAIN(RestorePagesTest)
#include "restore_pages_test.moc"
