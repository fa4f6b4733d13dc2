// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QAbstractItemModelTester>
#include <QCheckBox>
#include <QDateTimeEdit>
#include <QGroupBox>
#include <QHeaderView>
#include <QHelpEvent>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QTableView>
#include <QToolTip>
#include <QtTest>

#include "app/about_dlg.h"
#include "app/event_log_viewer.h"
#include "resources/pictures.h"
#include "tests/support/gui_form_texts.h"
#include "tests/support/gui_modal_driver.h"
#include "tests/support/gui_translation.h"
#include "ui/branding_resources.h"
#include "ui/fitting_text_delegate.h"

namespace {

using support::child;

const QDateTime from({2026, 1, 1}, {0, 0});
const QDateTime to({2026, 1, 2}, {23, 59, 59, 999});

void expectNoSession(support::ModalDriver& modals) {
    modals.expectErrorBox(QStringLiteral("Error"), QStringLiteral("No API connection exists"));
}

hessiancln::event_log_info warning() {
    hessiancln::event_log_info event;
    event.type = hessiancln::EventLogType::Warning;
    event.when = 1795231417;
    event.user = "anna";
    event.event_id = 0x01000020;
    event.extra_info = "error 32, <b>not bold</b> in C:\\Users\\Anna";
    return event;
}

/// A viewer with one event, in a font of the size common on desktops.
class ViewerOfOne : public EventLogViewer {
public:
    ViewerOfOne() {
        table().setFont(QFont(QStringLiteral("DejaVu Sans"), 9));
        model().setRecords({warning()});
        show();
    }
    QTableView& table() { return child<QTableView>(*this, "tableEvents"); }

    /// The style option used to draw the event's cell in this column.
    QStyleOptionViewItem cell(int column) {
        const QModelIndex index = model().index(0, column);
        auto* delegate = qobject_cast<ui::FittingTextDelegate*>(table().itemDelegate(index));
        if (!delegate)
            qFatal("Column %d has another delegate", column);
        QStyleOptionViewItem option;
        option.initFrom(&table());
        option.font = table().font();
        option.widget = &table();
        option.rect = table().visualRect(index);
        option.decorationSize = table().iconSize().isValid() ? table().iconSize() : QSize(16, 16);
        option.decorationPosition = QStyleOptionViewItem::Left;
        return delegate->fitted(option, index);
    }

    /// The tool tip of the event's cell in this column.
    QString toolTip(int column) {
        QToolTip::showText({}, QString());
        QWidget* viewport = table().viewport();
        const QPoint at = table().visualRect(model().index(0, column)).center();
        QHelpEvent event(QEvent::ToolTip, at, viewport->mapToGlobal(at));
        QCoreApplication::sendEvent(viewport, &event);
        return QToolTip::isVisible() ? QToolTip::text() : QString();
    }
};

/// Checks that every widget the user can reach has a text or an accessible name.
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

/// The dialogs without a session; their calls are tested with an agent elsewhere.
class LogDialogsTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() {
        resources::initPictures();
        ui::g_branding.load();
    }

    void theViewerIsLaidOutAsDesigned();
    void everyColumnOfTheEventsSorts();
    void withoutASessionTheViewerShowsTheErrorAndKeepsItsRows();
    void anActivityIdSwitchesTheTimesOff();
    void idZeroSwitchesTheFilterByActivityOff();
    void eachChangeOfTheFilterAsksOnce();
    void whatIsTypedAsksOnceAtItsEnd();
    void whatIsHalfTypedGoesWithTheViewer_data();
    void whatIsHalfTypedGoesWithTheViewer();
    void theButtonClosesTheViewer();
    void aTextThatIsALittleTooWideIsDrawnNarrower();
    void aTextThatIsMuchTooWideIsCutAndHasAToolTip();
    void timesAndLabelsAreShownInFull_data();
    void timesAndLabelsAreShownInFull();
    void theTabKeyPassesTheSearchBeforeTheTable();
    void everyWidgetHasAName();
    void theAboutBoxWithoutASession();
    void theAgentsInformationLeavesOutWhatIsForPrograms();
    void noSessionLeavesTheInformationEmpty();
};

void LogDialogsTest::theViewerIsLaidOutAsDesigned() {
    EventLogViewer viewer;
    QCOMPARE(viewer.windowTitle(), QStringLiteral("Event Log Viewer"));
    support::compareWindowIcon(viewer);
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
    support::compareBuddies(viewer, {{"labelFrom", "timeFrom"}, {"labelTo", "timeTo"}});
    support::compareTexts(viewer, {{"groupBox", "Viewing Filter"},
                                   {"labelFrom", "&From:"},
                                   {"labelTo", "&To:"},
                                   {"checkActivityID", "&Activity ID:"},
                                   {"buttonClose", "&Close"}});
    support::compareIcon(viewer, "buttonClose", ":/button/ok");
    QVERIFY(table.isSortingEnabled());
    QCOMPARE(table.selectionBehavior(), QAbstractItemView::SelectRows);
    QVERIFY(table.verticalHeader()->isHidden());
}

void LogDialogsTest::everyColumnOfTheEventsSorts() {
    hessiancln::event_log_info first;
    first.type = hessiancln::EventLogType::Error;
    first.category = hessiancln::EventCategory::DB2;
    first.when = first.event_id = first.activity_id = 9;
    first.user = first.extra_info = first.description = "Z";
    first.node_id = 1;
    hessiancln::event_log_info second;
    // Only their labels sort both of them last.
    second.type = hessiancln::EventLogType::Information;
    second.category = hessiancln::EventCategory::IO;
    second.when = second.event_id = second.activity_id = 10;
    second.user = second.extra_info = second.description = "a";
    second.node_id = 2;
    EventLogModel model;
    model.setRecords({second, first});
    for (int column = 0; column < 8; ++column) {
        model.sort(column, Qt::AscendingOrder);
        QCOMPARE(model.at(0).node_id, 1);
        model.sort(column, Qt::DescendingOrder);
        QCOMPARE(model.at(0).node_id, 2);
    }
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

void LogDialogsTest::whatIsTypedAsksOnceAtItsEnd() {
    EventLogViewer viewer;
    viewer.show();
    support::ModalDriver modals; // any box fails the test
    expectNoSession(modals);
    child<QCheckBox>(viewer, "checkActivityID").click();
    QVERIFY(modals.done());
    auto& id = child<QSpinBox>(viewer, "spinActivityID");
    id.setFocus();
    id.selectAll();
    QTest::keyClicks(&id, QStringLiteral("1201"));
    expectNoSession(modals);
    QTest::keyClick(&id, Qt::Key_Return);
    QVERIFY(modals.done());
    QCOMPARE(id.value(), 1201);
    QVERIFY(viewer.isVisible());
}

void LogDialogsTest::whatIsHalfTypedGoesWithTheViewer_data() {
    QTest::addColumn<QString>("name");
    for (const char* name : {"timeFrom", "timeTo"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void LogDialogsTest::whatIsHalfTypedGoesWithTheViewer() {
    QFETCH(QString, name);
    const support::ModalDriver modals; // any box fails the test
    for (const bool byButton : {true, false}) {
        EventLogViewer viewer;
        viewer.show();
        auto* field = viewer.findChild<QDateTimeEdit*>(name);
        field->setSelectedSection(QDateTimeEdit::DaySection);
        QTest::keyClicks(field,
                         field->date().day() == 15 ? QStringLiteral("16") : QStringLiteral("15"));
        if (byButton)
            QTest::mouseClick(&child<QPushButton>(viewer, "buttonClose"), Qt::LeftButton);
        else
            viewer.close();
        QVERIFY(!viewer.isVisible());
    }
}

void LogDialogsTest::theButtonClosesTheViewer() {
    EventLogViewer viewer;
    viewer.show();
    child<QPushButton>(viewer, "buttonClose").click();
    QVERIFY(!viewer.isVisible());
    QCOMPARE(viewer.result(), int(QDialog::Accepted));
}

void LogDialogsTest::aTextThatIsALittleTooWideIsDrawnNarrower() {
    ViewerOfOne viewer;
    for (const int column : {EventLogModel::type, EventLogModel::eventNumber}) {
        const QStyleOptionViewItem cell = viewer.cell(column);
        QVERIFY2(cell.font.stretch() >= 80 && cell.font.stretch() < 100, qPrintable(cell.text));
        QVERIFY2(ui::FittingTextDelegate::showsAll(cell), qPrintable(cell.text));
        QCOMPARE(viewer.toolTip(column), QString());
    }
    const QStyleOptionViewItem user = viewer.cell(EventLogModel::user);
    QCOMPARE(user.font.stretch(), viewer.table().font().stretch());
    QVERIFY(ui::FittingTextDelegate::showsAll(user));
    QCOMPARE(viewer.toolTip(EventLogModel::user), QString());
}

void LogDialogsTest::aTextThatIsMuchTooWideIsCutAndHasAToolTip() {
    ViewerOfOne viewer;
    const QStyleOptionViewItem detail = viewer.cell(EventLogModel::detail);
    QVERIFY(!ui::FittingTextDelegate::showsAll(detail));
    QCOMPARE(detail.textElideMode, Qt::ElideRight);
    // It is shown as plain text, whatever it looks like.
    const QString tip = viewer.toolTip(EventLogModel::detail);
    QVERIFY2(tip.contains(QLatin1String("&lt;b&gt;not bold&lt;/b&gt;")), qPrintable(tip));

    viewer.table().setColumnWidth(EventLogModel::time, 100);
    const QStyleOptionViewItem time = viewer.cell(EventLogModel::time);
    QVERIFY(!ui::FittingTextDelegate::showsAll(time));
    QCOMPARE(time.textElideMode, Qt::ElideMiddle);
    QVERIFY(viewer.toolTip(EventLogModel::time).contains(time.text));
}

void LogDialogsTest::timesAndLabelsAreShownInFull_data() {
    QTest::addColumn<QString>("language");
    QTest::newRow("English") << QString();
    for (const QString& language : support::languages())
        QTest::newRow(qPrintable(language)) << language;
}

void LogDialogsTest::timesAndLabelsAreShownInFull() {
    QFETCH(QString, language);
    std::unique_ptr<support::Translation> texts;
    if (!language.isEmpty())
        texts = std::make_unique<support::Translation>(language);
    ViewerOfOne viewer;
    support::ModalDriver modals;
    modals.expectErrorBox(EventLogViewer::tr("Error"), QStringLiteral("No API connection exists"));
    viewer.showFor(from, to, 0);
    QVERIFY(modals.done());
    hessiancln::event_log_info event = warning();
    event.when = 1790183417; // a Wednesday in September
    event.category = hessiancln::EventCategory::OperatingSystem;
    viewer.model().setRecords({event});
    for (const int column : {EventLogModel::type, EventLogModel::time, EventLogModel::category}) {
        const QStyleOptionViewItem cell = viewer.cell(column);
        QVERIFY2(ui::FittingTextDelegate::showsAll(cell), qPrintable(cell.text));
        QCOMPARE(cell.font.stretch(), viewer.table().font().stretch());
    }
}

void LogDialogsTest::theTabKeyPassesTheSearchBeforeTheTable() {
    ViewerOfOne viewer;
    const QWidget* first = &child<QWidget>(viewer, "editSearch");
    QStringList order;
    const QWidget* widget = first;
    do {
        if (widget->isVisible() && widget->isEnabled() && !widget->focusProxy() &&
            (widget->focusPolicy() & Qt::TabFocus) != 0)
            order << widget->objectName();
        widget = widget->nextInFocusChain();
    } while (widget != first);
    QCOMPARE(order, QStringList({QStringLiteral("editSearch"), QStringLiteral("comboSeverity"),
                                 QStringLiteral("buttonExport"), QStringLiteral("tableEvents"),
                                 QStringLiteral("timeFrom"), QStringLiteral("timeTo"),
                                 QStringLiteral("checkActivityID"),
                                 QStringLiteral("spinActivityID"), QStringLiteral("buttonClose")}));
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
    support::compareWindowIcon(about);
    auto& name = child<QLabel>(about, "labelName");
    QCOMPARE(name.text(), QStringLiteral("Tarn-Mobile User"));
    QCOMPARE(name.font().pointSize(), 16);
    QCOMPARE(name.font().weight(), 75);
    auto& version = child<QLabel>(about, "labelVersion");
    QVERIFY(version.text().startsWith(QLatin1String("Version 14.2.0.0\n")));
    QVERIFY(version.text().contains(QLatin1String("\nRelease " TARN_RELEASE "\nCopyright")));
    QCOMPARE(version.font().pointSize(), 10);
    QCOMPARE(child<QLabel>(about, "labelIcon").pixmap(Qt::ReturnByValue).toImage(),
             QIcon(QStringLiteral(":/icons/tarn_mobile_icon")).pixmap(64).toImage());
    QVERIFY(!child<QGroupBox>(about, "groupInfo").isVisible());
    auto& table = child<QTableView>(about, "tableInfo");
    QCOMPARE(table.columnWidth(0), 140);
    QCOMPARE(table.selectionMode(), QAbstractItemView::SingleSelection);
    QCOMPARE(table.selectionBehavior(), QAbstractItemView::SelectRows);
    QVERIFY(table.verticalHeader()->isHidden());
    support::compareTexts(about, {{"groupInfo", "Tarn-Client Info"}, {"buttonClose", "&Close"}});
    support::compareIcon(about, "buttonClose", ":/button/ok");
    QCOMPARE(about.size(), QSize(470, 330));
    child<QPushButton>(about, "buttonClose").click();
    QVERIFY(!about.isVisible());
}

void LogDialogsTest::theAgentsInformationLeavesOutWhatIsForPrograms() {
    TarnClientInfoModel model;
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setInformation(
        {{"Version", "1"}, {"InitialClient", "No"}, {"Name", "x"}, {"InitialClient", "Yes"}});
    QCOMPARE(model.rowCount(), 2);
    const auto text = [&model](int row, int column) {
        return model.index(row, column).data().toString();
    };
    QCOMPARE(text(0, 0), QStringLiteral("Version"));
    QCOMPARE(text(1, 1), QStringLiteral("x"));
    for (const int column : {0, 1})
        QCOMPARE(model.index(0, column).data(Qt::TextAlignmentRole).toInt(),
                 int(Qt::AlignLeft | Qt::AlignVCenter));
    model.sort(0, Qt::AscendingOrder);
    QCOMPARE(text(0, 0), QStringLiteral("Version"));
}

void LogDialogsTest::noSessionLeavesTheInformationEmpty() {
    TarnClientInfoModel model;
    model.refresh();
    QCOMPARE(model.rowCount(), 0);
}

QTEST_MAIN(LogDialogsTest)
#include "log_dialogs_test.moc"
