// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QDateTimeEdit>
#include <QHeaderView>
#include <QSignalSpy>
#include <QTableView>
#include <QtTest>

#include "app/activity_tables.h"
#include "resources/pictures.h"

using hessiancln::activity_log_info;
using hessiancln::running_activity_info;

namespace {

/// Tables set up as in the main window's form.
struct Tables {
    Tables() {
        for (QTableView* view : {&runningView, &logView}) {
            view->setSelectionBehavior(QAbstractItemView::SelectRows);
            view->setSelectionMode(QAbstractItemView::ExtendedSelection);
            view->setSortingEnabled(true);
        }
    }

    /// Records with these ids, newest first.
    template <class R>
    static std::vector<R> records(std::initializer_list<std::int32_t> ids, std::int32_t R::*id) {
        std::vector<R> all;
        for (const std::int32_t number : ids) {
            R record;
            record.*id = number;
            record.start_time = 1'000 - static_cast<std::int32_t>(all.size());
            all.push_back(record);
        }
        return all;
    }

    void run(std::initializer_list<std::int32_t> ids) {
        tables.running().setActivities(records(ids, &running_activity_info::activity_id));
    }
    void log(std::initializer_list<std::int32_t> ids) {
        tables.log().setRecords(records(ids, &activity_log_info::id));
    }

    /// There is no session to fetch rows from.
    void refreshWithoutAgent() { QVERIFY_EXCEPTION_THROWN(tables.refresh(), std::exception); }

    static void select(QTableView& view, std::initializer_list<int> rows) {
        view.clearSelection();
        for (const int row : rows)
            view.selectionModel()->select(view.model()->index(row, 0),
                                          QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }

    QTableView runningView;
    QTableView logView;
    QDateTimeEdit from;
    QDateTimeEdit to;
    QDate today = QDate(2026, 11, 21);
    app::ActivityTables tables{{runningView, logView, from, to}, [this] { return today; }};
};

} // namespace

class ActivityTablesTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { resources::initPictures(); }

    void theLogBeginsWithYesterdayAndToday() {
        const Tables shown;
        QCOMPARE(shown.from.dateTime(), QDateTime(QDate(2026, 11, 20), QTime(0, 0)));
        QCOMPARE(shown.to.dateTime(), QDateTime(QDate(2026, 11, 21), QTime(23, 59, 59, 999)));
    }

    void theSpanMovesOnWithTheDay() {
        Tables shown;
        shown.today = QDate(2026, 11, 23);
        shown.refreshWithoutAgent();
        QCOMPARE(shown.from.dateTime(), QDateTime(QDate(2026, 11, 22), QTime(0, 0)));
        QCOMPARE(shown.to.dateTime(), QDateTime(QDate(2026, 11, 23), QTime(23, 59, 59, 999)));
        shown.today = QDate(2026, 11, 24);
        shown.refreshWithoutAgent();
        QCOMPARE(shown.from.date(), QDate(2026, 11, 23));
    }

    void aSpanOfTheUserStays_data() {
        QTest::addColumn<bool>("from");
        QTest::newRow("from") << true;
        QTest::newRow("to") << false;
    }

    void aSpanOfTheUserStays() {
        QFETCH(bool, from);
        Tables shown;
        QDateTimeEdit& field = from ? shown.from : shown.to;
        field.setDateTime(field.dateTime().addSecs(-60));
        const QDateTime first = shown.from.dateTime();
        const QDateTime last = shown.to.dateTime();
        shown.today = QDate(2026, 11, 23);
        shown.refreshWithoutAgent();
        QCOMPARE(shown.from.dateTime(), first);
        QCOMPARE(shown.to.dateTime(), last);
    }

    void theYoungestComeFirst() {
        Tables shown;
        QCOMPARE(shown.logView.horizontalHeader()->sortIndicatorSection(), 4);
        QCOMPARE(shown.logView.horizontalHeader()->sortIndicatorOrder(), Qt::DescendingOrder);
        QCOMPARE(shown.runningView.horizontalHeader()->sortIndicatorSection(), 1);
        QCOMPARE(shown.runningView.horizontalHeader()->sortIndicatorOrder(), Qt::DescendingOrder);
    }

    void theSelectedActivitiesAreGivenFromTopToBottom() {
        Tables shown;
        shown.run({5, 6, 7, 8});
        QVERIFY(!shown.tables.anyRunningSelected());
        QCOMPARE(shown.tables.selectedRunning(), std::vector<std::int32_t>());
        Tables::select(shown.runningView, {3, 0, 1});
        QVERIFY(shown.tables.anyRunningSelected());
        QCOMPARE(shown.tables.selectedRunning(), (std::vector<std::int32_t>{5, 6, 8}));
    }

    void theTopmostSelectedEntryOfTheLogCounts() {
        Tables shown;
        shown.log({5, 6, 7});
        QVERIFY(!shown.tables.selectedLogEntry());
        Tables::select(shown.logView, {2, 1});
        QCOMPARE(shown.tables.selectedLogEntry()->id, 6);
    }

    void clearEmptiesBoth() {
        Tables shown;
        shown.run({5, 6});
        shown.log({5, 6, 7});
        shown.tables.clear();
        QCOMPARE(shown.tables.running().rowCount(), 0);
        QCOMPARE(shown.tables.log().rowCount(), 0);
        // Activities of the cleared list don't count as ended.
        const QSignalSpy changes(&shown.tables.running(),
                                 &RunningActivitiesModel::activityChangeDetected);
        shown.run({});
        shown.run({});
        QCOMPARE(changes.count(), 0);
    }

    void withoutASessionARefreshRaisesAndKeepsTheRows() {
        Tables shown;
        shown.run({5, 6});
        shown.log({5, 6, 7});
        QVERIFY_EXCEPTION_THROWN(shown.tables.refresh(), std::exception);
        QCOMPARE(shown.tables.running().rowCount(), 2);
        QCOMPARE(shown.tables.log().rowCount(), 3);
    }
};

QTEST_MAIN(ActivityTablesTest)
#include "activity_tables_test.moc"
