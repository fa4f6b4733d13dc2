// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0

// When the search line prepares a search, which must not wait for the first key.

#include <QHBoxLayout>
#include <QStandardItemModel>
#include <QTableView>
#include <QtTest>

#include "insight/log_search_bar.h"
#include "tests/support/gui_agent.h"
#include "tests/support/gui_modal_driver.h"

namespace {

/// A log that counts its preparations.
class CountingLog final : public insight::SearchedLog {
public:
    CountingLog(QAbstractItemModel& model, int& preparations)
        : model_(model)
        , preparations_(preparations) {}

    void prepare() override { ++preparations_; }
    void setFilter(const insight::LogFilter&, const insight::SetNames&) override {}
    const QAbstractItemModel& model() const override { return model_; }
    int shownRows() const override { return model_.rowCount(); }
    int allRows() const override { return model_.rowCount(); }
    std::size_t recordOf(int row) const override { return static_cast<std::size_t>(row); }
    int rowOf(std::size_t record) const override { return static_cast<int>(record); }
    QByteArray csv() const override { return {}; }

private:
    QAbstractItemModel& model_;
    int& preparations_;
};

} // namespace

class LogSearchBarTest : public QObject {
    Q_OBJECT
private slots:
    void aSearchIsPreparedWhenTheLineGetsTheFocus();
    void andAfterEachRefreshWhileItHasTheFocus();
};

namespace {

struct Window : QWidget {
    Window()
        : model(3, 1)
        , table(new QTableView)
        , bar(new LogSearchBar) {
        auto* row = new QHBoxLayout(this);
        row->addWidget(table);
        row->addWidget(bar);
        table->setModel(&model);
        bar->attach(*table, std::make_unique<CountingLog>(model, preparations));
        show();
        activateWindow();
        table->setFocus();
    }

    QStandardItemModel model;
    int preparations = 0;
    QTableView* table;
    LogSearchBar* bar;
};

} // namespace

void LogSearchBarTest::aSearchIsPreparedWhenTheLineGetsTheFocus() {
    Window window;
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QCOMPARE(window.preparations, 0);
    support::child<QLineEdit>(*window.bar, "editSearch").setFocus();
    QCOMPARE(window.preparations, 1);
}

void LogSearchBarTest::andAfterEachRefreshWhileItHasTheFocus() {
    Window window;
    QVERIFY(QTest::qWaitForWindowActive(&window));
    window.model.setData(window.model.index(0, 0), QStringLiteral("away"));
    QCoreApplication::processEvents();
    QCOMPARE(window.preparations, 0);
    support::child<QLineEdit>(*window.bar, "editSearch").setFocus();
    window.model.setData(window.model.index(0, 0), QStringLiteral("new"));
    QTRY_COMPARE(window.preparations, 2);
}

QTEST_MAIN(LogSearchBarTest)
#include "log_search_bar_test.moc"
