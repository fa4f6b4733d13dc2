// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0

// The window that finds files with a simulated agent: its calls, and what it shows.

#include <optional>

#include <QtTest>

#include "api/client_connection.h"
#include "insight/find_file_window.h"
#include "resources/pictures.h"
#include "simulator/world/health_scenarios.h"
#include "tests/insight/session_of_windows.h"
#include "tests/support/gui_form_texts.h"
#include "tests/support/gui_modal_driver.h"
#include "tests/support/gui_timers.h"
#include "ui/branding_resources.h"
#include "ui/size_text.h"
#include "wizards/restore_flow.h"
#include "wizards/select_generation_dlg.h"

Q_DECLARE_METATYPE(wizards::RestoreFile)

using simulator::Scenario;
using support::child;
using support::letTimersFire;
using namespace insight_windows;

namespace {

constexpr int fileSizeColumn = 1; ///< of the list of generations

} // namespace

class FindFileWindowTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() {
        resources::initPictures();
        ui::g_branding.load();
        qRegisterMetaType<std::int32_t>("std::int32_t");
        qRegisterMetaType<wizards::RestoreFile>("wizards::RestoreFile");
    }

    void aFileIsFoundInAThousandFolders();
    void aSearchIsCancelledAtOnce();
    void aGenerationLeadsToItsRestore();
};

void FindFileWindowTest::aFileIsFoundInAThousandFolders() {
    Session session(Scenario::ManyFolders);
    FindFileWindow window(session::getConnection);
    support::compareWindowIcon(window);
    window.setSetNames({{1, "Archive"}});
    window.show();
    QVERIFY(!child<QPushButton>(window, "buttonFind").isEnabled());
    child<QLineEdit>(window, "editName").setText(QStringLiteral("needle*.odt"));
    QTest::mouseClick(&child<QPushButton>(window, "buttonFind"), Qt::LeftButton);
    QTRY_VERIFY_WITH_TIMEOUT(!window.isSearching(), patience);
    const auto& table = child<QTableView>(window, "tableFound");
    QCOMPARE(column(table, FoundFilesModel::name), QStringList(name(simulator::health::needle)));
    QCOMPARE(cell(table, 0, FoundFilesModel::folder),
             QStringLiteral("D:\\Archive\\Year 2019\\Case 98"));
    QCOMPARE(cell(table, 0, FoundFilesModel::generations), QStringLiteral("1"));
    QCOMPARE(cell(table, 0, FoundFilesModel::set), QStringLiteral("Archive"));
    const auto methods = session.methods();
    QCOMPARE(std::count(methods.begin(), methods.end(), "prepare_restore"), 1);
    // The top level, the drive, the set's folder, and its content.
    QCOMPARE(std::count(methods.begin(), methods.end(), "getSubItems"),
             static_cast<std::ptrdiff_t>(simulator::health::folders + 3));
    QCOMPARE(session.views(), 0);
}

void FindFileWindowTest::aSearchIsCancelledAtOnce() {
    Session session(Scenario::ManyFolders);
    FindFileWindow window(session::getConnection);
    window.setSetNames({{1, "Archive"}});
    window.show();
    child<QLineEdit>(window, "editName").setText(QStringLiteral("letter"));
    QTest::mouseClick(&child<QPushButton>(window, "buttonFind"), Qt::LeftButton);
    QTRY_VERIFY_WITH_TIMEOUT(child<QTableView>(window, "tableFound").model()->rowCount() > 0,
                             patience);
    QVERIFY(window.isSearching());
    QTest::mouseClick(&child<QPushButton>(window, "buttonCancel"), Qt::LeftButton);
    QVERIFY(!window.isSearching());
    QVERIFY(child<QLabel>(window, "labelProgress").text().startsWith(QStringLiteral("Cancelled")));
    QTRY_COMPARE(session.views(), 0);
    session.agent.clearCallLog();
    letTimersFire();
    QCOMPARE(session.methods(), std::vector<std::string>());
}

void FindFileWindowTest::aGenerationLeadsToItsRestore() {
    Session session(Scenario::Generations);
    FindFileWindow window(session::getConnection);
    window.setSetNames({{1, "Two years of generations"}});
    window.show();
    QSignalSpy restore(&window, &FindFileWindow::restoreRequested);
    child<QLineEdit>(window, "editName").setText(QStringLiteral("diary"));
    QTest::mouseClick(&child<QPushButton>(window, "buttonFind"), Qt::LeftButton);
    QTRY_VERIFY_WITH_TIMEOUT(!window.isSearching(), patience);
    auto& table = child<QTableView>(window, "tableFound");
    QCOMPARE(table.model()->rowCount(), 1);
    table.selectRow(0);
    const QStringList path{QStringLiteral("C:"), QStringLiteral("Users"), QStringLiteral("ann"),
                           QStringLiteral("Diary.odt")};
    QTest::mouseClick(&child<QPushButton>(window, "buttonRestore"), Qt::LeftButton);
    QCOMPARE(restore.size(), 1);
    const auto latest = restore[0][1].value<wizards::RestoreFile>();
    QCOMPARE(latest.path, path);
    QVERIFY(!latest.upTo);
    QCOMPARE(ui::sizeToString(static_cast<double>(latest.size.value())),
             cell(table, 0, FoundFilesModel::size));

    support::ModalDriver modals;
    QString size;
    modals.expect(QStringLiteral("generations"), support::isDialog<SelectGenerationDlg>,
                  [&size](QWidget& dialog) {
                      auto& list = child<QTableView>(dialog, "listGenerations");
                      list.selectRow(2);
                      size = cell(list, 2, fileSizeColumn);
                      child<QPushButton>(dialog, "buttonSelect").click();
                  });
    QTest::mouseClick(&child<QPushButton>(window, "buttonGenerations"), Qt::LeftButton);
    QVERIFY(modals.done());
    QCOMPARE(restore.size(), 2);
    const auto older = restore[1][1].value<wizards::RestoreFile>();
    QCOMPARE(older.path, path);
    QVERIFY(older.upTo.has_value());
    QVERIFY(older.size != latest.size);
    QCOMPARE(ui::sizeToString(static_cast<double>(older.size.value())), size);
    QCOMPARE(session.views(), 0);
}

QTEST_MAIN(FindFileWindowTest)
#include "find_file_window_test.moc"
