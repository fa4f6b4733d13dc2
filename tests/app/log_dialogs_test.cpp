// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QCheckBox>
#include <QDateTimeEdit>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QTableView>
#include <QtTest>

#include "app/about_dlg.h"
#include "app/event_log_viewer.h"
#include "resources/pictures.h"
#include "tests/support/gui_modal_driver.h"
#include "ui/branding_resources.h"

namespace {

using support::child;

const QDateTime from({2026, 1, 1}, {0, 0});
const QDateTime to({2026, 1, 2}, {23, 59, 59, 999});

void expectNoSession(support::ModalDriver& modals) {
    modals.expectErrorBox(QStringLiteral("Error"), QStringLiteral("No API connection exists"));
}

/// Every widget that a user can reach has a text or a name for those who don't see it.
void verifyNames(const QWidget& window) {
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (widget->focusPolicy() == Qt::NoFocus ||
            widget->objectName().startsWith(QLatin1String("qt_")))
            continue;
        const QString text = widget->property("text").toString();
        QVERIFY2(!widget->accessibleName().isEmpty() || !text.isEmpty() ||
                     widget->inherits("QHeaderView") || widget->inherits("QScrollBar"),
                 qPrintable(widget->objectName()));
    }
}

} // namespace

/// The dialogs without a session; what they ask an agent is tested with one.
class LogDialogsTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() {
        resources::initPictures();
        ui::g_branding.load();
    }

    void theViewerIsLaidOutAsDesigned();
    void withoutASessionTheViewerShowsTheErrorAndKeepsItsRows();
    void anActivityIdSwitchesTheTimesOff();
    void idZeroSwitchesTheFilterByActivityOff();
    void eachChangeOfTheFilterAsksOnce();
    void theButtonClosesTheViewer();
    void everyWidgetHasAName();
    void theAboutBoxWithoutASession();
};

void LogDialogsTest::theViewerIsLaidOutAsDesigned() {
    EventLogViewer viewer;
    QCOMPARE(viewer.windowTitle(), QStringLiteral("Event Log Viewer"));
    QCOMPARE(viewer.size(), QSize(869, 394));
    auto& table = child<QTableView>(viewer, "tableEvents");
    const int widths[] = {60, 220, 80, 100, 80, 80, 80, 1500};
    for (int column = 0; column < 8; ++column)
        QCOMPARE(table.columnWidth(column), widths[column]);
    QCOMPARE(viewer.model().sortColumn(), 1);
    QCOMPARE(viewer.model().sortOrder(), Qt::DescendingOrder);
    auto& spin = child<QSpinBox>(viewer, "spinActivityID");
    QCOMPARE(spin.minimum(), 1);
    QCOMPARE(spin.maximum(), 99999999);
    for (const char* name : {"timeFrom", "timeTo"}) {
        auto& editor = child<QDateTimeEdit>(viewer, name);
        QVERIFY(editor.calendarPopup());
        QCOMPARE(editor.displayFormat(), QStringLiteral("yyyy-MM-dd HH:mm"));
    }
    QCOMPARE(child<QLabel>(viewer, "labelFrom").buddy(), &child<QWidget>(viewer, "timeFrom"));
    QCOMPARE(child<QLabel>(viewer, "labelTo").buddy(), &child<QWidget>(viewer, "timeTo"));
}

void LogDialogsTest::withoutASessionTheViewerShowsTheErrorAndKeepsItsRows() {
    EventLogViewer viewer;
    viewer.model().setRecords({hessiancln::event_log_info()});
    support::ModalDriver modals;
    expectNoSession(modals);
    viewer.showFor(from, to, 0);
    QVERIFY(modals.done());
    QCOMPARE(viewer.model().rowCount(), 1);
}

void LogDialogsTest::anActivityIdSwitchesTheTimesOff() {
    EventLogViewer viewer;
    support::ModalDriver modals;
    expectNoSession(modals);
    viewer.showFor(from, to, 42);
    QVERIFY(modals.done());
    QVERIFY(child<QCheckBox>(viewer, "checkActivityID").isChecked());
    QCOMPARE(child<QSpinBox>(viewer, "spinActivityID").value(), 42);
    QVERIFY(child<QSpinBox>(viewer, "spinActivityID").isEnabled());
    for (const char* name : {"timeFrom", "timeTo", "labelFrom", "labelTo"})
        QVERIFY(!child<QWidget>(viewer, name).isEnabled());
}

void LogDialogsTest::idZeroSwitchesTheFilterByActivityOff() {
    EventLogViewer viewer;
    support::ModalDriver modals;
    expectNoSession(modals);
    viewer.showFor(from, to, 0);
    QVERIFY(modals.done());
    QVERIFY(!child<QCheckBox>(viewer, "checkActivityID").isChecked());
    QVERIFY(!child<QSpinBox>(viewer, "spinActivityID").isEnabled());
    for (const char* name : {"timeFrom", "timeTo", "labelFrom", "labelTo"})
        QVERIFY(child<QWidget>(viewer, name).isEnabled());
    QCOMPARE(child<QDateTimeEdit>(viewer, "timeFrom").dateTime(), from);
    QCOMPARE(child<QDateTimeEdit>(viewer, "timeTo").dateTime(), to);
}

void LogDialogsTest::eachChangeOfTheFilterAsksOnce() {
    EventLogViewer viewer;
    support::ModalDriver modals;
    expectNoSession(modals);
    child<QDateTimeEdit>(viewer, "timeFrom").setDateTime(from);
    QVERIFY(modals.done());
    expectNoSession(modals);
    child<QDateTimeEdit>(viewer, "timeTo").setDateTime(to);
    QVERIFY(modals.done());
    expectNoSession(modals);
    child<QCheckBox>(viewer, "checkActivityID").click();
    QVERIFY(modals.done());
    QVERIFY(child<QSpinBox>(viewer, "spinActivityID").isEnabled());
    expectNoSession(modals);
    child<QSpinBox>(viewer, "spinActivityID").setValue(5);
    QVERIFY(modals.done());
}

void LogDialogsTest::theButtonClosesTheViewer() {
    EventLogViewer viewer;
    viewer.show();
    child<QPushButton>(viewer, "buttonClose").click();
    QVERIFY(!viewer.isVisible());
    QCOMPARE(viewer.result(), int(QDialog::Accepted));
}

void LogDialogsTest::everyWidgetHasAName() {
    EventLogViewer viewer;
    verifyNames(viewer);
    AboutDlg about;
    verifyNames(about);
}

void LogDialogsTest::theAboutBoxWithoutASession() {
    AboutDlg about;
    about.show();
    QCOMPARE(about.windowTitle(), QStringLiteral("Tarn-Mobile User"));
    auto& name = child<QLabel>(about, "labelName");
    QCOMPARE(name.text(), QStringLiteral("Tarn-Mobile User"));
    QCOMPARE(name.font().pointSize(), 16);
    QCOMPARE(name.font().weight(), 75);
    auto& version = child<QLabel>(about, "labelVersion");
    QVERIFY(version.text().startsWith(QLatin1String("Version 14.2.0.0\n")));
    QVERIFY(version.text().contains(QLatin1String("Copyright")));
    QCOMPARE(version.font().pointSize(), 10);
    QCOMPARE(child<QLabel>(about, "labelIcon").pixmap(Qt::ReturnByValue).width(), 64);
    QVERIFY(!child<QGroupBox>(about, "groupInfo").isVisible());
    auto& table = child<QTableView>(about, "tableInfo");
    QCOMPARE(table.columnWidth(0), 140);
    child<QPushButton>(about, "buttonClose").click();
    QVERIFY(!about.isVisible());
}

QTEST_MAIN(LogDialogsTest)
#include "log_dialogs_test.moc"
