// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <map>

#include <QAbstractItemModelTester>
#include <QHeaderView>
#include <QSignalSpy>
#include <QTableView>
#include <QtTest>

#include "app/activity_log_model.h"
#include "app/event_log_model.h"
#include "app/running_activities_model.h"
#include "app/tarn_client_info_model.h"
#include "resources/pictures.h"

using hessiancln::activity_log_info;
using hessiancln::ActivityType;
using hessiancln::event_log_info;
using hessiancln::EventCategory;
using hessiancln::EventLogType;
using hessiancln::running_activity_info;

namespace {

constexpr std::int64_t now = 1'700'000'000;
constexpr auto strict = QAbstractItemModelTester::FailureReportingMode::QtTest;

activity_log_info logged(std::int32_t id, std::int32_t start = 0, std::int32_t end = 0) {
    activity_log_info info;
    info.id = id;
    info.start_time = start;
    info.end_time = end;
    return info;
}

running_activity_info running(std::int32_t id, std::int64_t start = now) {
    running_activity_info info;
    info.activity_id = id;
    info.start_time = static_cast<std::int32_t>(start);
    return info;
}

QString text(const QAbstractItemModel& model, int row, int column, int role = Qt::DisplayRole) {
    return model.index(row, column).data(role).toString();
}

/// The icon of a record's type, as a picture.
QImage iconOf(const QAbstractItemModel& model) {
    return model.index(0, 0).data(Qt::DecorationRole).value<QIcon>().pixmap(16).toImage();
}

QImage picture(const char* name) {
    const QImage image =
        QIcon(QStringLiteral(":/icons/%1.png").arg(QLatin1String(name))).pixmap(16).toImage();
    if (image.isNull())
        qFatal("There is no picture %s", name);
    return image;
}

QStringList headers(const QAbstractItemModel& model) {
    QStringList headers;
    for (int column = 0; column < model.columnCount(); ++column)
        headers << model.headerData(column, Qt::Horizontal).toString();
    return headers;
}

QStringList words(const char* text) {
    return QString::fromUtf8(text).split(QLatin1Char('|'));
}

/// The time 86400 in the long format of the system, which names the zone on Linux only.
QString secondDayInFull() {
    const QString format = QLocale::system().dateTimeFormat(QLocale::LongFormat);
    return QLatin1String("Friday, January 2, 1970 12:00:00 AM") +
           (format.contains(QLatin1Char('t')) ? QLatin1String(" UTC") : QLatin1String(""));
}

template <class Model>
std::vector<std::int32_t> ids(const Model& model) {
    std::vector<std::int32_t> ids;
    for (const auto& record : model.records())
        ids.push_back(record.id);
    return ids;
}

/// The changes reported by the running model, as in "+1 +2 -3".
class Reports {
public:
    explicit Reports(RunningActivitiesModel& model) {
        QObject::connect(&model, &RunningActivitiesModel::activityChangeDetected, &model,
                         [this](const auto& appeared, const auto& disappeared) {
                             for (const auto& info : appeared)
                                 text_ += QStringLiteral("+%1 ").arg(info.activity_id);
                             for (const auto& info : disappeared)
                                 text_ += QStringLiteral("-%1 ").arg(info.activity_id);
                         });
    }
    QString take() { return std::exchange(text_, QString()).trimmed(); }

private:
    QString text_;
};

} // namespace

class TableModelsTest : public QObject {
    Q_OBJECT
public:
    static void initMain() {
        qputenv("LC_ALL", "en_US.UTF-8");
        qputenv("TZ", "UTC");
    }

private slots:
    void initTestCase() { resources::initPictures(); }

    void headersOfAllModels();
    void rowsOfTheActivityLog();
    void anActivityThatRunsHasNoEndAndSortsByItsRawValue();
    void rowsWithErrorsAreRedAndWithWarningsDarkYellow();
    void everyColumnOfTheActivityLogSorts();
    void aRefillKeepsTheSort();
    void aRefillSignalsOnlyTheDifferenceInRows();
    void aRefillKeepsTheSelectionByRow();
    void columnsOutOfRangeDoNotSort();
    void rowsOfRunningActivities();
    void theToolTipOfARunningActivity();
    void theProgressSaysHowFastAndHowLong();
    void everyOtherColumnOfRunningActivitiesSorts();
    void theProgressColumnDoesNotSort();
    void theFirstListAfterAClearIsNotCompared();
    void aLoginReportsOnlyYoungActivities();
    void idsAreKeptWhileNobodyListens();
    void aDisconnectLeavesNothingToReport();
    void activitiesOnASet();
    void rowsOfTheEventLog();
    void eventNumbersAboveTheirBoundAreHexadecimal();
    void unknownEventsHaveAFallback();
    void aFailedRefreshLeavesTheRows();
};

void TableModelsTest::headersOfAllModels() {
    QCOMPARE(headers(ActivityLogModel()),
             words("Type|Description|Errors|Warnings|Start|End|Duration|Files|Data size"));
    QCOMPARE(headers(RunningActivitiesModel()),
             words("Type|Start Time|User Name|Progress|Description"));
    QCOMPARE(headers(EventLogModel()),
             words("Type|Time|User|Category|Event #|Activity|Detail|Description"));
    QCOMPARE(headers(TarnClientInfoModel()), words("Item|Value"));
}

void TableModelsTest::rowsOfTheActivityLog() {
    ActivityLogModel model;
    QAbstractItemModelTester tester(&model, strict);
    activity_log_info info = logged(1, 86400, 86400 + 3661);
    info.type = ActivityType::Restore;
    info.description = "Gr\xC3\xBC\xC3\x9F"
                       "e";
    info.errors = 1000;
    info.warnings = 2000;
    info.file_count = 3000;
    info.data_size = 5'000'000'000;
    model.setRecords({info});
    QStringList shown;
    for (int column = 0; column < 9; ++column)
        shown << text(model, 0, column);
    QCOMPARE(shown, words("Restore|Gr\xC3\xBC\xC3\x9F"
                          "e|1,000|2,000|1/2/70 12:00 AM|1/2/70 1:01 AM|1:01:01|3,000|"
                          "5,000,000,000"));
    const std::map<int, int> alignments{
        {ActivityLogModel::errors, Qt::AlignCenter},
        {ActivityLogModel::warnings, Qt::AlignCenter},
        {ActivityLogModel::files, Qt::AlignRight | Qt::AlignVCenter},
        {ActivityLogModel::dataSize, Qt::AlignRight | Qt::AlignVCenter},
    };
    for (int column = 0; column < 9; ++column) {
        const auto found = alignments.find(column);
        QCOMPARE(model.index(0, column).data(Qt::TextAlignmentRole),
                 found == alignments.end() ? QVariant() : QVariant(found->second));
    }
    QCOMPARE(iconOf(model), picture("activity_restore"));
    QVERIFY(!model.index(0, 1).data(Qt::DecorationRole).isValid());
    QCOMPARE(model.at(0).id, 1);
}

void TableModelsTest::anActivityThatRunsHasNoEndAndSortsByItsRawValue() {
    ActivityLogModel model;
    model.setRecords({logged(1, 100, 200), logged(2, 300, 0), logged(3, 50, 60)});
    QCOMPARE(text(model, 1, ActivityLogModel::end), QString());
    QCOMPARE(text(model, 1, ActivityLogModel::duration), QString());
    model.sort(ActivityLogModel::end, Qt::AscendingOrder);
    QCOMPARE(ids(model), (std::vector<std::int32_t>{2, 3, 1}));
    model.sort(ActivityLogModel::duration, Qt::AscendingOrder);
    QCOMPARE(ids(model), (std::vector<std::int32_t>{2, 3, 1}));
}

void TableModelsTest::rowsWithErrorsAreRedAndWithWarningsDarkYellow() {
    ActivityLogModel model;
    activity_log_info bad = logged(1);
    bad.errors = 1;
    bad.warnings = 1;
    activity_log_info doubtful = logged(2);
    doubtful.warnings = 1;
    model.setRecords({bad, doubtful, logged(3)});
    for (int column = 0; column < 9; ++column) {
        const auto brush = [&](int row) {
            return model.index(row, column).data(Qt::ForegroundRole);
        };
        QCOMPARE(brush(0).value<QBrush>().color(), QColor(Qt::red));
        QCOMPARE(brush(1).value<QBrush>().color(), QColor(Qt::darkYellow));
        QVERIFY(!brush(2).isValid());
    }
}

void TableModelsTest::everyColumnOfTheActivityLogSorts() {
    activity_log_info low = logged(1, 1, 2);
    low.description = "A";
    low.type = ActivityType::Backup;
    activity_log_info high = logged(2, 3, 9);
    high.description = "a";
    high.type = ActivityType::Restore;
    high.errors = high.warnings = high.file_count = 1;
    high.data_size = 1;
    ActivityLogModel model;
    QAbstractItemModelTester tester(&model, strict);
    model.setRecords({low, high});
    for (int column = 0; column < model.columnCount(); ++column) {
        model.sort(column, Qt::DescendingOrder);
        QCOMPARE(ids(model), (std::vector<std::int32_t>{2, 1}));
        model.sort(column, Qt::AscendingOrder);
        QCOMPARE(ids(model), (std::vector<std::int32_t>{1, 2}));
        QCOMPARE(model.sortColumn(), column);
    }
}

void TableModelsTest::aRefillKeepsTheSort() {
    ActivityLogModel model;
    QAbstractItemModelTester tester(&model, strict);
    model.sort(ActivityLogModel::start, Qt::DescendingOrder);
    model.setRecords({logged(1, 10), logged(2, 30), logged(3, 20)});
    QCOMPARE(ids(model), (std::vector<std::int32_t>{2, 3, 1}));
    model.setRecords({logged(4, 1), logged(5, 2)});
    QCOMPARE(ids(model), (std::vector<std::int32_t>{5, 4}));
    model.clear();
    QCOMPARE(model.rowCount(), 0);
}

void TableModelsTest::aRefillSignalsOnlyTheDifferenceInRows() {
    ActivityLogModel model;
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    model.setRecords({logged(1), logged(2)});
    QCOMPARE(inserted.takeFirst().mid(1), (QVariantList{0, 1}));
    model.setRecords({logged(1), logged(2), logged(3), logged(4)});
    QCOMPARE(inserted.takeFirst().mid(1), (QVariantList{2, 3}));
    model.setRecords({logged(5)});
    QCOMPARE(removed.takeFirst().mid(1), (QVariantList{1, 3}));
    model.setRecords({logged(6)});
    QVERIFY(inserted.isEmpty() && removed.isEmpty());
    QCOMPARE(changed.count(), 4);
    QCOMPARE(changed.last().at(0).toModelIndex(), model.index(0, 0));
    QCOMPARE(changed.last().at(1).toModelIndex(), model.index(0, 8));
}

void TableModelsTest::aRefillKeepsTheSelectionByRow() {
    ActivityLogModel model;
    QTableView view;
    view.setModel(&model);
    view.setSelectionBehavior(QAbstractItemView::SelectRows);
    model.setRecords({logged(1), logged(2), logged(3)});
    view.selectRow(1);
    model.setRecords({logged(7), logged(8), logged(9), logged(10)});
    QCOMPARE(view.selectionModel()->selectedRows().value(0).row(), 1);
    QCOMPARE(view.selectionModel()->selectedRows().size(), 1);
}

void TableModelsTest::columnsOutOfRangeDoNotSort() {
    ActivityLogModel model;
    model.setRecords({logged(2, 1), logged(1, 2)});
    for (const int column : {-1, 9})
        model.sort(column, Qt::AscendingOrder);
    QCOMPARE(model.sortColumn(), -1);
    QCOMPARE(ids(model), (std::vector<std::int32_t>{2, 1}));
}

void TableModelsTest::rowsOfRunningActivities() {
    RunningActivitiesModel model;
    QAbstractItemModelTester tester(&model, strict);
    running_activity_info info = running(1, 86400);
    info.type = ActivityType::Backup;
    info.user = "ann";
    info.description = "Documents";
    info.files_processed = 1000;
    info.files_left = 1;
    model.setActivities({info});
    QStringList shown;
    for (int column = 0; column < 5; ++column)
        shown << text(model, 0, column);
    QCOMPARE(shown, words("Backup|1/2/70 12:00 AM|ann|1,000 files|Documents"));
    QCOMPARE(iconOf(model), picture("activity_backup"));
}

void TableModelsTest::theToolTipOfARunningActivity() {
    RunningActivitiesModel model;
    running_activity_info plain = running(1, 86400);
    running_activity_info full = plain;
    full.status_msg = "Sending <a>";
    full.process_dir = "C:\\R&D";
    model.setActivities({plain, full});
    const QString head =
        QStringLiteral("<html><h3>Backup</h3><table><tr><td><b>Start:</b></td> <td>%1</<td></tr>")
            .arg(secondDayInFull());
    QCOMPARE(text(model, 0, 4, Qt::ToolTipRole), head + QStringLiteral("</table></html>"));
    QCOMPARE(text(model, 1, 0, Qt::ToolTipRole),
             head + QStringLiteral("<tr><td><b>Status:</b></td> <td>Sending &lt;a&gt;</<td></tr>"
                                   "<tr><td><b>Directory:</b></td><td>C:\\R&amp;D</<td></tr>"
                                   "</table></html>"));
}

void TableModelsTest::theProgressSaysHowFastAndHowLong() {
    std::int64_t now = 86400;
    RunningActivitiesModel model(nullptr, [&now] { return now; });
    running_activity_info info = running(1, 86400);
    constexpr std::int64_t mebibyte = 1 << 20;
    const auto pass = [&](std::int64_t seconds, std::int64_t done, std::int64_t left) {
        now += seconds;
        info.size_processed = done * mebibyte;
        info.size_left = left * mebibyte;
        model.setActivities({info});
    };
    const auto spoken = [&model] { return text(model, 0, 3, Qt::AccessibleTextRole); };
    const auto tip = [&model](int column) { return text(model, 0, column, Qt::ToolTipRole); };
    pass(0, 0, 600);
    const QString plain = tip(3);
    pass(30, 60, 540);
    QCOMPARE(spoken(), text(model, 0, 3) + QStringLiteral(", 2.00 MB/s, 4 minutes left"));
    QCOMPARE(tip(3), plain + QStringLiteral("<p>2.00 MB/s, 4 minutes left</p>"));
    QCOMPARE(tip(1), plain);
    pass(240, 60, 540);
    QCOMPARE(spoken(), text(model, 0, 3) + QStringLiteral(", no progress for 4 min"));
    // The totals go.
    pass(30, 120, 0);
    QVERIFY2(spoken().endsWith(QStringLiteral("/s")), qPrintable(spoken()));
}

void TableModelsTest::everyOtherColumnOfRunningActivitiesSorts() {
    running_activity_info low = running(1, 10);
    low.type = ActivityType::Restore;
    low.user = low.description = "Z";
    running_activity_info high = running(2, 20);
    // Sorted by label, not by number.
    high.type = ActivityType::CacheCopy;
    high.user = high.description = "a";
    RunningActivitiesModel model;
    model.setActivities({low, high});
    for (const int column : {1, 2, 4}) {
        model.sort(column, Qt::DescendingOrder);
        QCOMPARE(model.at(0).activity_id, 2);
        model.sort(column, Qt::AscendingOrder);
        QCOMPARE(model.at(0).activity_id, 1);
    }
    model.sort(0, Qt::AscendingOrder);
    QCOMPARE(model.at(0).activity_id, 2);
    model.sort(0, Qt::DescendingOrder);
    QCOMPARE(model.at(0).activity_id, 1);
}

void TableModelsTest::theProgressColumnDoesNotSort() {
    RunningActivitiesModel model;
    QTableView view;
    view.setModel(&model);
    view.setSortingEnabled(true);
    models::keepSortArrow(view, model);
    view.sortByColumn(RunningActivitiesModel::startTime, Qt::DescendingOrder);
    model.setActivities({running(1, 10), running(2, 20)});
    view.sortByColumn(RunningActivitiesModel::progress, Qt::AscendingOrder);
    QCOMPARE(model.at(0).activity_id, 2);
    QCOMPARE(model.sortColumn(), int(RunningActivitiesModel::startTime));
    QCOMPARE(view.horizontalHeader()->sortIndicatorSection(),
             int(RunningActivitiesModel::startTime));
    QCOMPARE(view.horizontalHeader()->sortIndicatorOrder(), Qt::DescendingOrder);
    view.sortByColumn(RunningActivitiesModel::userName, Qt::AscendingOrder);
    QCOMPARE(view.horizontalHeader()->sortIndicatorSection(),
             int(RunningActivitiesModel::userName));
}

void TableModelsTest::theFirstListAfterAClearIsNotCompared() {
    RunningActivitiesModel model(nullptr, [] { return now; });
    Reports reports(model);
    model.setActivities({running(1)});
    QCOMPARE(reports.take(), QString());
    // The first list is no baseline, so what started with it is reported now.
    model.setActivities({running(1), running(2)});
    QCOMPARE(reports.take(), QStringLiteral("+1 +2"));
    model.setActivities({running(2)});
    QCOMPARE(reports.take(), QStringLiteral("-1"));
}

void TableModelsTest::aLoginReportsOnlyYoungActivities() {
    RunningActivitiesModel model(nullptr, [] { return now; });
    Reports reports(model);
    const std::vector<running_activity_info> list{running(1, now - 3600), running(2, now - 5)};
    model.setActivities(list);
    model.setActivities(list);
    QCOMPARE(reports.take(), QStringLiteral("+2"));
    model.setActivities({});
    QCOMPARE(reports.take(), QStringLiteral("-1 -2"));
}

void TableModelsTest::idsAreKeptWhileNobodyListens() {
    RunningActivitiesModel model(nullptr, [] { return now; });
    model.setActivities({});
    model.setActivities({running(1)});
    Reports reports(model);
    model.setActivities({running(1)});
    QCOMPARE(reports.take(), QString());
}

void TableModelsTest::aDisconnectLeavesNothingToReport() {
    RunningActivitiesModel model(nullptr, [] { return now; });
    Reports reports(model);
    model.setActivities({});
    model.setActivities({running(1)});
    QCOMPARE(reports.take(), QStringLiteral("+1"));
    model.clear();
    QCOMPARE(model.rowCount(), 0);
    // An activity of the next session may have the same number.
    model.setActivities({running(1)});
    model.setActivities({});
    QCOMPARE(reports.take(), QString());
}

void TableModelsTest::activitiesOnASet() {
    RunningActivitiesModel model;
    running_activity_info info = running(1);
    info.set_id = 7;
    model.setActivities({running(2), info});
    QVERIFY(model.hasActivityOnSet(7));
    QVERIFY(!model.hasActivityOnSet(8));
}

void TableModelsTest::rowsOfTheEventLog() {
    EventLogModel model;
    QAbstractItemModelTester tester(&model, strict);
    event_log_info info;
    info.type = EventLogType::Warning;
    info.when = 86400;
    info.user = "ann";
    info.category = EventCategory::OperatingSystem;
    info.event_id = 1234;
    info.activity_id = 5678;
    info.extra_info = "more";
    info.description = "what";
    model.setRecords({info});
    QStringList shown;
    for (int column = 0; column < 8; ++column)
        shown << text(model, 0, column);
    QCOMPARE(shown, QStringList({QStringLiteral("Warn"), secondDayInFull()}) +
                        words("ann|Operating System|1,234|5,678|more|what"));
    for (int column = 0; column < 8; ++column) {
        const QVariant alignment = model.index(0, column).data(Qt::TextAlignmentRole);
        const bool number =
            column == EventLogModel::eventNumber || column == EventLogModel::activity;
        QCOMPARE(alignment, number ? QVariant(int(Qt::AlignRight | Qt::AlignVCenter)) : QVariant());
    }
    const char* categories[] = {
        "Application", "Socket", "Message", "Database", "Exception", "I/O", "Operating System",
        "Security",    "MAPI",   "Novell",  "Oracle",   "RMAN",      "XML", "DB2"};
    int category = 0;
    for (const char* label : categories) {
        info.category = EventCategory{category++};
        model.setRecords({info});
        QCOMPARE(text(model, 0, EventLogModel::category), QString::fromLatin1(label));
    }
    const char* const severities[][2] = {
        {"Info", "event_info"}, {"Warn", "event_warning"}, {"Err", "event_error"}};
    int type = 0;
    for (const auto& [label, icon] : severities) {
        info.type = EventLogType{type++};
        model.setRecords({info});
        QCOMPARE(text(model, 0, EventLogModel::type), QString::fromLatin1(label));
        QCOMPARE(iconOf(model), picture(icon));
    }
}

void TableModelsTest::eventNumbersAboveTheirBoundAreHexadecimal() {
    EventLogModel model;
    event_log_info info;
    const auto shown = [&](std::int32_t number) {
        info.event_id = number;
        model.setRecords({info});
        return text(model, 0, EventLogModel::eventNumber);
    };
    QCOMPARE(shown(16777215), QStringLiteral("16,777,215"));
    QCOMPARE(shown(16777216), QStringLiteral("0x01000000"));
    QCOMPARE(shown(INT32_MAX), QStringLiteral("0x7fffffff"));
    QCOMPARE(shown(-1), QStringLiteral("-1"));
}

void TableModelsTest::unknownEventsHaveAFallback() {
    EventLogModel model;
    event_log_info info;
    info.type = EventLogType{3};
    info.category = EventCategory{14};
    model.setRecords({info});
    QCOMPARE(text(model, 0, EventLogModel::type), QStringLiteral("???"));
    QCOMPARE(text(model, 0, EventLogModel::category), QStringLiteral("???"));
    QCOMPARE(iconOf(model), picture("icon_unknown"));
}

void TableModelsTest::aFailedRefreshLeavesTheRows() {
    ActivityLogModel log;
    log.setRecords({logged(1)});
    QVERIFY_EXCEPTION_THROWN(log.refresh(0, 1), std::exception);
    QCOMPARE(log.rowCount(), 1);
    EventLogModel events;
    events.setRecords({event_log_info()});
    QVERIFY_EXCEPTION_THROWN(events.refresh(0, 1, 0), std::exception);
    QCOMPARE(events.rowCount(), 1);
    RunningActivitiesModel activities(nullptr, [] { return now; });
    activities.setActivities({});
    activities.setActivities({running(1)});
    QVERIFY_EXCEPTION_THROWN(activities.refresh(), std::exception);
    QCOMPARE(activities.rowCount(), 1);
    Reports reports(activities);
    activities.setActivities({});
    QCOMPARE(reports.take(), QStringLiteral("-1"));
}

QTEST_MAIN(TableModelsTest)
#include "table_models_test.moc"
