// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <stdexcept>

#include <QLabel>
#include <QtTest>

#include "app/set_details_panel.h"
#include "tests/support/gui_modal_driver.h"

using support::ModalDriver;

namespace {

const QString boxTitle = QStringLiteral("Error checking backup set properties");

/// A panel about sets with as many files as their id, unless the agent is out of order.
struct ShownPanel {
    ShownPanel() { page.show(); }

    QStringList texts() const {
        return {lastBackup.text(), files.text(),    size.text(),
                items.text(),      schedule.text(), retention.text()};
    }

    bool outOfOrder = false;
    QList<int> asked;
    QWidget page;
    QLabel lastBackup, files, size, items, schedule, retention;
    app::SetDetailsPanel panel{
        page, {lastBackup, files, size, items, schedule, retention}, [this](std::int32_t id) {
            asked << id;
            if (outOfOrder)
                throw std::runtime_error("Out of order.");
            app::SetDetailsPanel::Facts facts;
            facts.overview.status.on_line_file_count = id;
            facts.overview.status.on_line_data_size = 2048;
            facts.overview.schedule_id = -1;
            facts.overview.min_gen = 1;
            facts.overview.max_gen = 3;
            return facts;
        }};
};

const QStringList expectedTexts{
    QStringLiteral("UNKNOWN"),       QStringLiteral("12"),
    QStringLiteral("2.00 KB"),       QStringLiteral("File System"),
    QStringLiteral("Not Scheduled"), QStringLiteral("1 to 3 generations")};

} // namespace

class SetDetailsPanelTest : public QObject {
    Q_OBJECT
private slots:
    void eachTextHasItsLabel() {
        ShownPanel shown;
        shown.panel.show(12);
        QCOMPARE(shown.asked, QList<int>{12});
        QCOMPARE(shown.texts(), expectedTexts);
        QVERIFY(shown.panel.hasBackedUpData());
        shown.panel.show(0);
        QCOMPARE(shown.texts().at(0), QStringLiteral("Never backed up"));
        QVERIFY(!shown.panel.hasBackedUpData());
    }

    void clearingEmptiesTheTextsOnly() {
        ShownPanel shown;
        shown.panel.show(12);
        shown.panel.clear();
        QCOMPARE(shown.texts().join(QString()), QString());
        QVERIFY(shown.panel.hasBackedUpData());
        QCOMPARE(shown.asked.size(), 1);
    }

    void aFailureIsShownAndLeavesTheTexts() {
        ShownPanel shown;
        shown.panel.show(12);
        shown.outOfOrder = true;
        ModalDriver modals;
        modals.expectErrorBox(boxTitle, QStringLiteral("Out of order."));
        shown.panel.show(0);
        QVERIFY(modals.done());
        QCOMPARE(shown.texts(), expectedTexts);
        QVERIFY(shown.panel.hasBackedUpData());
    }

    void asksNothingWhileABoxIsOpen() {
        ShownPanel shown;
        shown.outOfOrder = true;
        // As a heartbeat does while the box is open.
        QTimer::singleShot(0, &shown.page, [&shown] { shown.panel.show(2); });
        ModalDriver modals;
        modals.expectErrorBox(boxTitle, QStringLiteral("Out of order."));
        shown.panel.show(1);
        QVERIFY(modals.done());
        QCOMPARE(shown.asked, QList<int>{1});
        // Afterwards it asks again.
        shown.outOfOrder = false;
        shown.panel.show(12);
        QCOMPARE(shown.texts(), expectedTexts);
    }
};

QTEST_MAIN(SetDetailsPanelTest)
#include "set_details_panel_test.moc"
