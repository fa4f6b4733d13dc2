// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QAccessible>
#include <QCheckBox>
#include <QDateTimeEdit>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTableView>
#include <QTreeView>

#include "tests/support/gui_form_texts.h"
#include "tests/support/gui_selected_row_look.h"
#include "tests/support/gui_tree.h"
#include "tests/support/time_zone.h"
#include "tests/wizards/page_fixture.h"
#include "ui/branding_resources.h"
#include "wizards/field_memo.h"
#include "wizards/restore_select_page.h"
#include "wizards/select_generation_dlg.h"

using support::child;
using support::rowAt;

namespace {

constexpr std::int32_t firstTime = 1'700'000'000;
constexpr std::int32_t secondTime = 1'730'000'000;

QString q(const char* text) {
    return QString::fromUtf8(text);
}

/// Requests the generations of the selected file, and picks the one in that row.
void pickGeneration(RestoreSelectPage& page, int row) {
    support::ModalDriver modals;
    modals.expect(q("generations"), support::isDialog<SelectGenerationDlg>, [row](QWidget& dialog) {
        child<QTableView>(dialog, "listGenerations").selectRow(row);
        child<QPushButton>(dialog, "buttonSelect").click();
    });
    child<QPushButton>(page, "buttonGenerations").click();
    QVERIFY(modals.done());
}

/// Types the minutes without confirming them.
void typeMinutes(QDateTimeEdit& field, const char* minutes) {
    field.setSelectedSection(QDateTimeEdit::MinuteSection);
    for (const char digit : std::string_view(minutes))
        QTest::keyClick(&field, digit);
}

} // namespace

/// The selection page of the restore wizard, its dialog, and how its fields are restored.
class RestoreSelectPageTest : public QObject, private PageFixture {
    Q_OBJECT
private slots:
    void initTestCase() { ui::g_branding.load(); }
    void init() { start(); }
    void cleanup() { end(); }

    void textsOfTheSelectPage();
    void checkFromFromCodeAsksForNothing();
    void theOtherBoxesAskFromCodeToo();
    void eachValueOfTheFilterAsksAgain();
    void aTypedDateAsksOnce();
    void aTypedDateCountsWithoutLeavingItsField();
    void theGenerationsWantAFile();
    void aFileThatTheFilterHidesHasNoGenerations();
    void aScreenReaderSeesTheFilesOfTheFolder();
    void theGenerationsOfNoFileAreNotShown();
    void theGenerationInTheFilterIsMarked();
    void aGenerationOfAForgottenBackup();
    void aFilterThatWasOffHidesNoGeneration();
    void aGenerationOfAFileThatIsCalledLikeAFolder_data();
    void aGenerationOfAFileThatIsCalledLikeAFolder();
    void aGenerationOfTheHourThatComesTwice_data();
    void aGenerationOfTheHourThatComesTwice();
    void textsOfTheGenerations();
    void aGenerationHasToBeSelected();
    void fieldsArePutBackInSilence();

private:
    Set setWithFiles();
};

PageFixture::Set RestoreSelectPageTest::setWithFiles() {
    change(documents, [](simulator::BackupSetState& set, simulator::World&) {
        set.sessions = {{firstTime, firstTime + 60, 1, 1, 1},
                        {secondTime, secondTime + 60, 1, 1, 2}};
        set.stored = std::make_shared<simulator::StoredData>();
        for (const char* path : {"C:\\docs\\b.txt", "C:\\notes.txt"})
            set.stored->addFile(
                path, {{firstTime, firstTime + 60, 10, 8}, {secondTime, secondTime + 60, 0, 0}});
    });
    return openSet(documents);
}

void RestoreSelectPageTest::textsOfTheSelectPage() {
    RestoreSelectPage page(setWithFiles());
    QCOMPARE(page.windowTitle(), q("Delete Items"));
    QCOMPARE(page.title(), q("Select Items"));
    QCOMPARE(page.subTitle(), q("Select the files and/or directories to restore"));
    QCOMPARE(child<QGroupBox>(page, "groupItems").title(), q("Items to Restore"));
    QCOMPARE(child<QLabel>(page, "labelFilter").text(), q("File &Filter:"));
    QCOMPARE(child<QLabel>(page, "labelFilter").buddy(), &child<QLineEdit>(page, "editFilter"));
    QCOMPARE(child<QLineEdit>(page, "editFilter").text(), q("*"));
    auto& generations = child<QPushButton>(page, "buttonGenerations");
    QCOMPARE(generations.text(), q("&Generations"));
    support::compareIcon(page, "buttonGenerations", ":/button/generations");
    QVERIFY(!generations.isEnabled());
    for (const auto& [name, text] : {std::pair("checkFilter", "Time f&ilter"),
                                     {"checkFrom", "Backed up on/&after:"},
                                     {"checkTo", "Backed up on/&before:"},
                                     {"checkRemoved", "&Hide files removed on/before:"}}) {
        QCOMPARE(child<QCheckBox>(page, name).text(), q(text));
        QVERIFY(!child<QCheckBox>(page, name).isChecked());
    }
    QVERIFY(child<QWidget>(page, "filterDisplay").isHidden());
    for (const char* name : {"dateFrom", "dateTo", "dateRemoved"}) {
        const auto& date = child<QDateTimeEdit>(page, name);
        QCOMPARE(date.displayFormat(), q("M/d/yy HH:mm"));
        QVERIFY(date.calendarPopup() && !date.isEnabled());
    }
    QVERIFY(!child<QListView>(page, "listSelection").sizeHint().isValid());
}

void RestoreSelectPageTest::checkFromFromCodeAsksForNothing() {
    RestoreSelectPage page(setWithFiles());
    child<QCheckBox>(page, "checkFilter").setChecked(true);
    takeCalls();
    child<QCheckBox>(page, "checkFrom").setChecked(true);
    QCOMPARE(takeCalls(), Calls{});
    QVERIFY(!child<QDateTimeEdit>(page, "dateFrom").isEnabled());
    child<QCheckBox>(page, "checkFrom").setChecked(false);
    child<QCheckBox>(page, "checkFrom").click();
    QCOMPARE(takeCalls().front(), std::string("BackupSet.prepare_restore(1700000000, 0, 0)"));
    QVERIFY(child<QDateTimeEdit>(page, "dateFrom").isEnabled());
}

void RestoreSelectPageTest::theOtherBoxesAskFromCodeToo() {
    RestoreSelectPage page(setWithFiles());
    takeCalls();
    child<QCheckBox>(page, "checkFilter").setChecked(true);
    const Calls on = takeCalls();
    QCOMPARE(on.at(0), std::string("BackupSet.backup_times()"));
    QCOMPARE(on.at(1), std::string("BackupSet.prepare_restore(0, 0, 0)"));
    child<QCheckBox>(page, "checkTo").setChecked(true);
    QCOMPARE(takeCalls().front(), std::string("BackupSet.prepare_restore(0, 1730000060, 0)"));
    child<QCheckBox>(page, "checkRemoved").setChecked(true);
    QCOMPARE(takeCalls().front(),
             std::string("BackupSet.prepare_restore(0, 1730000060, 1730000060)"));
    auto& to = child<QDateTimeEdit>(page, "dateTo");
    to.setDateTime(to.dateTime().addSecs(-60));
    QCOMPARE(takeCalls().front(),
             std::string("BackupSet.prepare_restore(0, 1730000000, 1730000060)"));
}

void RestoreSelectPageTest::eachValueOfTheFilterAsksAgain() {
    RestoreSelectPage page(setWithFiles());
    for (const char* box : {"checkFilter", "checkFrom", "checkTo", "checkRemoved"})
        child<QCheckBox>(page, box).click();
    for (const char* name : {"dateFrom", "dateTo", "dateRemoved"})
        QVERIFY(child<QDateTimeEdit>(page, name).isEnabled());
    takeCalls();
    const auto callFor = [&](const char* name, int seconds) {
        auto& date = child<QDateTimeEdit>(page, name);
        date.setDateTime(date.dateTime().addSecs(seconds));
        return takeCalls().front();
    };
    QCOMPARE(callFor("dateFrom", 7),
             std::string("BackupSet.prepare_restore(1700000007, 1730000060, 1730000060)"));
    QCOMPARE(callFor("dateTo", -20),
             std::string("BackupSet.prepare_restore(1700000007, 1730000040, 1730000060)"));
    QCOMPARE(callFor("dateRemoved", -30),
             std::string("BackupSet.prepare_restore(1700000007, 1730000040, 1730000030)"));
}

void RestoreSelectPageTest::aTypedDateAsksOnce() {
    RestoreSelectPage page(setWithFiles());
    for (const char* box : {"checkFilter", "checkTo"})
        child<QCheckBox>(page, box).click();
    takeCalls();
    auto& to = child<QDateTimeEdit>(page, "dateTo");
    typeMinutes(to, "17");
    QCOMPARE(takeCalls(), Calls{});
    QTest::keyClick(&to, Qt::Key_Return);
    // Changes 03:34 to 03:17.
    QCOMPARE(takeCalls().front(), std::string("BackupSet.prepare_restore(0, 1729999040, 0)"));
    QTest::keyClick(&to, Qt::Key_Return);
    QCOMPARE(takeCalls(), Calls{});
}

void RestoreSelectPageTest::aTypedDateCountsWithoutLeavingItsField() {
    RestoreSelectPage page(setWithFiles());
    for (const char* box : {"checkFilter", "checkFrom"})
        child<QCheckBox>(page, box).click();
    auto& list = child<QListView>(page, "listSelection");
    list.model()->setData(list.model()->index(0, 0, list.rootIndex()), Qt::Checked,
                          Qt::CheckStateRole);
    QVERIFY(page.validatePage());
    typeMinutes(child<QDateTimeEdit>(page, "dateFrom"), "45");
    takeCalls();
    // Changes 22:13 to 22:45: a new view, in which nothing is marked yet.
    QVERIFY(!page.validatePage());
    QCOMPARE(takeCalls().front(), std::string("BackupSet.prepare_restore(1700001920, 0, 0)"));
}

void RestoreSelectPageTest::theGenerationsWantAFile() {
    RestoreSelectPage page(setWithFiles());
    auto& list = child<QListView>(page, "listSelection");
    auto& tree = child<QTreeView>(page, "treeSelection");
    auto& button = child<QPushButton>(page, "buttonGenerations");
    list.setCurrentIndex(list.model()->index(0, 0, list.rootIndex()));
    QVERIFY(button.isEnabled());
    list.clearSelection();
    QVERIFY(!button.isEnabled());
    list.setCurrentIndex(list.model()->index(0, 0, list.rootIndex()));
    tree.setCurrentIndex(rowAt(tree, "C:/docs"));
    QVERIFY(!button.isEnabled());
    QVERIFY(!list.selectionModel()->hasSelection());
}

void RestoreSelectPageTest::aFileThatTheFilterHidesHasNoGenerations() {
    RestoreSelectPage page(setWithFiles());
    auto& list = child<QListView>(page, "listSelection");
    auto& filter = child<QLineEdit>(page, "editFilter");
    auto& button = child<QPushButton>(page, "buttonGenerations");
    list.setCurrentIndex(list.model()->index(0, 0, list.rootIndex()));
    filter.setText(q("notes*"));
    QVERIFY(list.selectionModel()->hasSelection());
    QVERIFY(button.isEnabled());
    filter.setText(q("*.ods"));
    QVERIFY(!button.isEnabled());
    filter.setText(q("*"));
    QVERIFY(!list.selectionModel()->hasSelection());
    QVERIFY(!button.isEnabled());
}

void RestoreSelectPageTest::aScreenReaderSeesTheFilesOfTheFolder() {
    const Set set = setWithFiles();
    change(documents, [](simulator::BackupSetState& state, simulator::World&) {
        for (const char* path : {"C:\\docs\\c.txt", "C:\\docs\\d.ods"})
            state.stored->addFile(path, {{firstTime, firstTime + 60, 10, 8}});
    });
    RestoreSelectPage page(set);
    auto& tree = child<QTreeView>(page, "treeSelection");
    auto& face = *QAccessible::queryAccessibleInterface(&child<QListView>(page, "listSelection"));
    const auto texts = [&face] {
        QStringList rows;
        for (int row = 0; row < face.tableInterface()->rowCount(); ++row)
            rows << face.tableInterface()->cellAt(row, 0)->text(QAccessible::Name);
        return rows;
    };
    tree.expand(rowAt(tree, "C:"));
    tree.setCurrentIndex(rowAt(tree, "C:/docs"));
    QCOMPARE(texts(), QStringList({q("b.txt"), q("c.txt"), q("d.ods")}));
    child<QLineEdit>(page, "editFilter").setText(q("*.ods"));
    QCOMPARE(texts(), QStringList(q("d.ods")));
    tree.setCurrentIndex(rowAt(tree, "C:"));
    child<QLineEdit>(page, "editFilter").setText(q("*"));
    QCOMPARE(texts(), QStringList(q("notes.txt")));
}

void RestoreSelectPageTest::theGenerationsOfNoFileAreNotShown() {
    RestoreSelectPage page(setWithFiles());
    auto& button = child<QPushButton>(page, "buttonGenerations");
    takeCalls();
    button.setEnabled(true);
    button.click();
    QVERIFY(!button.isEnabled());
    QCOMPARE(takeCalls(), Calls{});
}

void RestoreSelectPageTest::theGenerationInTheFilterIsMarked() {
    RestoreSelectPage page(setWithFiles());
    auto& list = child<QListView>(page, "listSelection");
    child<QCheckBox>(page, "checkFilter").setChecked(true);
    child<QCheckBox>(page, "checkTo").setChecked(true);
    child<QDateTimeEdit>(page, "dateTo").setDateTime(QDateTime::fromSecsSinceEpoch(secondTime));
    list.setCurrentIndex(list.model()->index(0, 0, list.rootIndex()));
    support::ModalDriver modals;
    modals.expect(q("generations"), support::isDialog<SelectGenerationDlg>, [](QWidget& dialog) {
        const auto& model = *child<QTableView>(dialog, "listGenerations").model();
        const auto picture = [&model](int row) {
            return model.index(row, 0).data(Qt::DecorationRole).value<QPixmap>().toImage();
        };
        QCOMPARE(model.rowCount(), 2);
        QCOMPARE(picture(0), QPixmap(q(":/tree/file")).toImage());
        QCOMPARE(picture(1), QPixmap(q(":/tree/selected_file")).toImage());
        QVERIFY(!child<QTableView>(dialog, "listGenerations").selectionModel()->hasSelection());
        dialog.close();
    });
    child<QPushButton>(page, "buttonGenerations").click();
    QVERIFY(modals.done());
}

void RestoreSelectPageTest::aGenerationOfAForgottenBackup() {
    const Set set = setWithFiles();
    change(documents, [](simulator::BackupSetState& state, simulator::World&) {
        state.sessions.erase(state.sessions.begin());
    });
    RestoreSelectPage page(set);
    auto& list = child<QListView>(page, "listSelection");
    list.setCurrentIndex(list.model()->index(0, 0, list.rootIndex()));
    takeCalls();
    pickGeneration(page, 1);
    QCOMPARE(child<QDateTimeEdit>(page, "dateTo").dateTime().toSecsSinceEpoch(), firstTime + 60);
    QCOMPARE(takeCalls().at(2), std::string("BackupSet.prepare_restore(0, 1700000060, 0)"));
    QVERIFY(page.isComplete());
}

/// The fields of the disabled filter would hide the very generation that is picked.
void RestoreSelectPageTest::aFilterThatWasOffHidesNoGeneration() {
    RestoreSelectPage page(setWithFiles());
    for (const char* box : {"checkFilter", "checkFrom", "checkRemoved"})
        child<QCheckBox>(page, box).click();
    child<QDateTimeEdit>(page, "dateFrom").setDateTime(QDateTime::fromSecsSinceEpoch(secondTime));
    child<QCheckBox>(page, "checkFilter").click();
    auto& list = child<QListView>(page, "listSelection");
    const auto file = [&list] { return list.model()->index(0, 0, list.rootIndex()); };
    list.setCurrentIndex(file());
    takeCalls();
    pickGeneration(page, 1);
    QCOMPARE(takeCalls().at(1), std::string("BackupSet.prepare_restore(0, 1700000060, 0)"));
    QCOMPARE(file().data().toString(), q("notes.txt"));
    QCOMPARE(file().data(Qt::CheckStateRole).toInt(), 2);
    for (const auto& [box, date] :
         {std::pair("checkFrom", "dateFrom"), std::pair("checkRemoved", "dateRemoved")}) {
        QVERIFY(!child<QCheckBox>(page, box).isChecked());
        QVERIFY(!child<QDateTimeEdit>(page, date).isEnabled());
    }
}

void RestoreSelectPageTest::aGenerationOfAFileThatIsCalledLikeAFolder_data() {
    QTest::addColumn<bool>("below");
    QTest::newRow("behind the folder") << false;
    QTest::newRow("in a folder behind a file") << true;
}

void RestoreSelectPageTest::aGenerationOfAFileThatIsCalledLikeAFolder() {
    QFETCH(bool, below);
    const Set set = setWithFiles();
    change(documents, [below](simulator::BackupSetState& state, simulator::World&) {
        state.stored = std::make_shared<simulator::StoredData>();
        const auto& stored =
            state.stored->addFile("C:\\x\\old.txt", {{firstTime, firstTime + 60, 10, 8},
                                                     {secondTime, secondTime + 60, 9, 7}});
        auto file = std::make_shared<simulator::StoredNode>(stored);
        file->name = "x";
        auto& all = state.stored->root().children.front()->children;
        all.insert(below ? all.begin() : all.end(), file);
    });
    RestoreSelectPage page(set);
    auto& tree = child<QTreeView>(page, "treeSelection");
    auto& list = child<QListView>(page, "listSelection");
    tree.expand(rowAt(tree, "C:"));
    tree.setCurrentIndex(rowAt(tree, below ? "C:/x" : "C:"));
    const auto file = [&list] { return list.model()->index(0, 0, list.rootIndex()); };
    QCOMPARE(file().data().toString(), q(below ? "old.txt" : "x"));
    list.setCurrentIndex(file());
    pickGeneration(page, 1);
    QCOMPARE(file().data(Qt::CheckStateRole).toInt(), 2);
    QCOMPARE(rowAt(tree, "C:").data(Qt::CheckStateRole).toInt(), 1);
    QCOMPARE(rowAt(tree, "C:/x").data(Qt::CheckStateRole).toInt(), below ? 2 : 0);
}

void RestoreSelectPageTest::aGenerationOfTheHourThatComesTwice_data() {
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("call");
    QTest::newRow("second") << 1 << q("BackupSet.prepare_restore(0, 1761442200, 0)");
    QTest::newRow("first") << 2 << q("BackupSet.prepare_restore(0, 1761438600, 0)");
}

/// At three the clocks are put back to two, and both backups were made at half past two.
void RestoreSelectPageTest::aGenerationOfTheHourThatComesTwice() {
    QFETCH(int, row);
    QFETCH(QString, call);
    const support::TimeZone zone("CET-1CEST,M3.5.0,M10.5.0/3");
    constexpr std::int32_t times[] = {1'761'438'600, 1'761'442'200, 1'761'500'000};
    const Set set = setWithFiles();
    change(documents, [&](simulator::BackupSetState& state, simulator::World&) {
        state.sessions.clear();
        state.stored = std::make_shared<simulator::StoredData>();
        std::vector<simulator::StoredGeneration> generations;
        for (const std::int32_t time : times) {
            state.sessions.push_back({time, time, 1, 1, time});
            generations.push_back({time, time, 10, 8});
        }
        state.stored->addFile("C:\\notes.txt", generations);
    });
    RestoreSelectPage page(set);
    auto& list = child<QListView>(page, "listSelection");
    list.setCurrentIndex(list.model()->index(0, 0, list.rootIndex()));
    takeCalls();
    pickGeneration(page, row);
    QCOMPARE(q(takeCalls().at(2).c_str()), call);
    // A time typed since then is a different one.
    child<QDateTimeEdit>(page, "dateTo").setTime(QTime(1, 0));
    QCOMPARE(takeCalls().front(), std::string("BackupSet.prepare_restore(0, 1761433200, 0)"));
}

void RestoreSelectPageTest::textsOfTheGenerations() {
    SelectGenerationDlg dialog({{firstTime, firstTime, 0, 0}, {secondTime, secondTime, 2048, 10}});
    QCOMPARE(dialog.windowTitle(), q("Select a file generation to restore"));
    support::compareWindowIcon(dialog);
    auto& table = child<QTableView>(dialog, "listGenerations");
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QCOMPARE(std::tuple(table.columnWidth(0), table.columnWidth(1), table.columnWidth(2)),
             std::tuple(180, 150, 180));
    QCOMPARE(table.model()->index(0, 1).data().toString(), q("2.00 KB"));
    QCOMPARE(table.model()->index(1, 1).data().toString(), q("Empty"));
    auto& select = child<QPushButton>(dialog, "buttonSelect");
    auto& close = child<QPushButton>(dialog, "buttonClose");
    QCOMPARE(select.text(), q("&Select"));
    QCOMPARE(close.text(), q("&Close"));
    support::compareIcon(dialog, "buttonSelect", ":/button/ok");
    support::compareIcon(dialog, "buttonClose", ":/button/cancel");
    close.click();
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
}

void RestoreSelectPageTest::aGenerationHasToBeSelected() {
    SelectGenerationDlg dialog({{firstTime, firstTime, 0, 0}, {secondTime, secondTime, 2048, 10}});
    auto& table = child<QTableView>(dialog, "listGenerations");
    auto& select = child<QPushButton>(dialog, "buttonSelect");
    QVERIFY(!select.isEnabled());
    QVERIFY(!dialog.chosenTime());
    table.selectRow(1);
    QVERIFY(select.isEnabled());
    QCOMPARE(*dialog.chosenTime(), firstTime);
    table.clearSelection();
    QVERIFY(!select.isEnabled());
    table.selectRow(0);
    dialog.show();
    QVERIFY(lightPointsOfPicture(table, table.model()->index(0, 0)) > 5);
    select.click();
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(*dialog.chosenTime(), secondTime);
}

void RestoreSelectPageTest::fieldsArePutBackInSilence() {
    QCheckBox box;
    QGroupBox group;
    group.setCheckable(true);
    QDateTimeEdit date;
    QSpinBox number;
    wizards::FieldMemo memo;
    for (QWidget* field : {static_cast<QWidget*>(&box), static_cast<QWidget*>(&group),
                           static_cast<QWidget*>(&date), static_cast<QWidget*>(&number)})
        memo.remember(*field);
    date.setDateTime(QDateTime::fromSecsSinceEpoch(firstTime));
    memo.rememberAll();
    box.setChecked(true);
    group.setChecked(false);
    date.setDateTime(QDateTime::fromSecsSinceEpoch(secondTime));
    number.setValue(7);
    QSignalSpy boxes(&box, &QCheckBox::toggled);
    QSignalSpy dates(&date, &QDateTimeEdit::dateTimeChanged);
    memo.putBack();
    QVERIFY(!box.isChecked() && group.isChecked());
    QCOMPARE(date.dateTime().toSecsSinceEpoch(), firstTime);
    QCOMPARE(number.value(), 0);
    QVERIFY(boxes.isEmpty() && dates.isEmpty());
}

QTEST_MAIN(RestoreSelectPageTest)
#include "restore_select_page_test.moc"
