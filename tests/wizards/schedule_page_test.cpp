// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QSignalSpy>

#include "tests/wizards/schedule_page_fixture.h"

namespace {

using Calls = PageFixture::Calls;
using hessiancln::ScheduleDetailType;

using Page = ShownSchedulePage;

QString name(const char* text) {
    return QString::fromLatin1(text);
}

} // namespace

/// When a set is backed up: what the page shows, and what it lets the user choose.
class SchedulePageTest : public QObject, private SchedulePageFixture {
    Q_OBJECT
private slots:
    void init() { start(); }
    void cleanup() { end(); }

    void theDefaultsComeFromTheAgent();
    void anAgentThatFailsFailsTheConstructor();
    void theTypeDecidesWhatIsShown();
    void whatIsHiddenKeepsItsPlace();
    void theFocusBeginsOnTheCheckedKind_data();
    void theFocusBeginsOnTheCheckedKind();

    void aSetWithoutAScheduleIsNotScheduled();
    void aScheduleWithoutDetailsLeavesTheDefaults();
    void aWeeklyScheduleIsShown();
    void aMonthlyScheduleIsShown();
    void aDetailOfAnotherKindLeavesTheType();
    void anEndHourOf30IsTheNextDayAtSix();
    void anHourlyScheduleWithoutAnEndGetsOne();
    void onlyTheFirstDetailIsShown();
    void whatCannotBeShownIsShownAsTheNearest();

    void occursEveryBringsTheStopToTheSameDay();
    void occursEveryTurnsAnEarlyStopIntoMidnight();
    void occursEveryNeedsAStop();
    void aLaterDaySwitchesOccursEveryOff();
    void noStopSwitchesOccursEveryOff();

    void dailyNeedsADay();
    void anEarlyStopBlocksEvenWhatIsNotScheduled();
    void equalTimesPass();
    void theBoxesOfTheTimesTellTheWizard();

    void aFaultWhileLoadingGoesToTheCaller();
};

void SchedulePageTest::theDefaultsComeFromTheAgent() {
    Page page;
    QCOMPARE(takeCalls(), (Calls{"ClientConnection.getConfigurationManager()",
                                 "ClientConfiguration.getClientNumber()",
                                 "ClientConfiguration.getAdvancedConfigNumber(\"ScheduleMiss\")"}));
    QCOMPARE(page.checkedType(), name("radioDaily"));
    QCOMPARE(page.shownDays(), name("frameDaily"));
    QCOMPARE(page.days(), name("MoTuWeThFr"));
    QCOMPARE(page.time("timeStart").time(), QTime(20, 30));
    QVERIFY(page.box("checkStop").isChecked());
    QCOMPARE(page.time("timeStop").time(), QTime(6, 0));
    QCOMPARE(page.stopDay().currentIndex(), 1);
    QVERIFY(!page.box("checkOccurEvery").isChecked());
    QVERIFY(!page.spin("spinOccurEvery").isEnabled());
    QCOMPARE(page.spin("spinMissedSchedule").value(), 4);
    QVERIFY(page.spin("spinMissedSchedule").isEnabled());
    QVERIFY(page->isComplete());
}

void SchedulePageTest::anAgentThatFailsFailsTheConstructor() {
    agent().inject("getAdvancedConfigNumber", simulator::Fault{"No such number."});
    QCOMPARE(errorOf([] { ScheduleSelectPage page; }), name("No such number."));
    agent().inject("getConfigurationManager", simulator::NullResult{});
    QCOMPARE(errorOf([] { ScheduleSelectPage page; }),
             name("The agent did not return the requested object."));
}

void SchedulePageTest::theTypeDecidesWhatIsShown() {
    Page page;
    const QSignalSpy changes(&*page, &QWizardPage::completeChanged);
    page.radio("radioMonthly").click();
    QCOMPARE(page.shownDays(), name("frameMonthly"));
    QVERIFY(page.widget("groupTime").isVisible());
    QCOMPARE(changes.count(), 1);
    page.radio("radioNotScheduled").click();
    QCOMPARE(page.shownDays(), QString());
    QVERIFY(!page.widget("groupTime").isVisible());
    QVERIFY(page.widget("groupGlobal").isVisible());
    QCOMPARE(changes.count(), 2);
    page.radio("radioDaily").click();
    QCOMPARE(page.shownDays(), name("frameDaily"));
    QVERIFY(page.widget("groupTime").isVisible());
    QCOMPARE(changes.count(), 3);
}

void SchedulePageTest::whatIsHiddenKeepsItsPlace() {
    QWizard wizard;
    auto* page = new ScheduleSelectPage;
    wizard.addPage(page);
    support::child<QRadioButton>(*page, "radioNotScheduled").click();
    wizard.show();
    const QSize size = wizard.size();
    support::child<QRadioButton>(*page, "radioDaily").click();
    QTRY_VERIFY(support::child<QWidget>(*page, "checkSunday").height() > 0);
    for (QWidget* widget : page->findChildren<QWidget*>())
        if (widget->isVisible() && !widget->objectName().startsWith(name("qt_")))
            QVERIFY2(widget->height() >= widget->minimumSizeHint().height(),
                     qPrintable(widget->objectName()));
    QCOMPARE(wizard.size(), size);
}

void SchedulePageTest::theFocusBeginsOnTheCheckedKind_data() {
    QTest::addColumn<QString>("kind");
    for (const char* kind : {"radioNotScheduled", "radioDaily", "radioMonthly"})
        QTest::newRow(kind) << name(kind);
}

void SchedulePageTest::theFocusBeginsOnTheCheckedKind() {
    QFETCH(QString, kind);
    QWizard wizard;
    auto* page = new ScheduleSelectPage;
    wizard.addPage(page);
    auto& radio = support::child<QRadioButton>(*page, qPrintable(kind));
    radio.setChecked(true);
    wizard.show();
    QVERIFY(QTest::qWaitForWindowActive(&wizard));
    QTRY_COMPARE(wizard.focusWidget(), &radio);
}

void SchedulePageTest::aSetWithoutAScheduleIsNotScheduled() {
    Page page;
    const Set set = openSet(music);
    page->load(set);
    QCOMPARE(takeCalls(), Calls{"BackupSet.getSchedule()"});
    QCOMPARE(page.checkedType(), name("radioNotScheduled"));
    QCOMPARE(page.shownDays(), QString());
    QVERIFY(!page.widget("groupTime").isVisible());
}

void SchedulePageTest::aScheduleWithoutDetailsLeavesTheDefaults() {
    give(music, "Empty", {});
    Page page;
    const Set set = openSet(music);
    page->load(set);
    QCOMPARE(takeCalls(), (Calls{"BackupSet.getSchedule()", "Schedule.getDetails()"}));
    QCOMPARE(page.checkedType(), name("radioDaily"));
    QCOMPARE(page.time("timeStart").time(), QTime(20, 30));
}

void SchedulePageTest::aWeeklyScheduleIsShown() {
    give(music, "Some days",
         {{ScheduleDetailType::Weekly, 1 + 8 + 64, {21, 45, 0}, {{23, 15, 0}}, 3, 1}});
    Page page;
    page.radio("radioMonthly").click();
    const Set set = openSet(music);
    page->load(set);
    QCOMPARE(takeCalls(),
             (Calls{"BackupSet.getSchedule()", "Schedule.getDetails()",
                    "Schedule.isUsingNetworkDetection()", "ScheduleDetail.getType()",
                    "ScheduleDetail.types()", "WeeklyScheduleDetail.getScheduleDays()",
                    "ScheduleDetail.getStartTime()", "ScheduleDetail.hasEndTime()",
                    "ScheduleDetail.getEndTime()", "ScheduleDetail.getHourlyFrequency()"}));
    QCOMPARE(page.checkedType(), name("radioDaily"));
    QCOMPARE(page.shownDays(), name("frameDaily"));
    QCOMPARE(page.days(), name("MoThSu"));
    QCOMPARE(page.time("timeStart").time(), QTime(21, 45));
    QCOMPARE(page.time("timeStop").time(), QTime(23, 15));
    QCOMPARE(page.stopDay().currentIndex(), 0);
    QVERIFY(page.box("checkOccurEvery").isChecked());
    QCOMPARE(page.spin("spinOccurEvery").value(), 3);
    QVERIFY(page.spin("spinOccurEvery").isEnabled());
    QVERIFY(!page.spin("spinMissedSchedule").isEnabled());
    QVERIFY(!page.box("checkCloudConnection").isChecked());
}

void SchedulePageTest::aMonthlyScheduleIsShown() {
    Page page;
    const Set set = openSet(projects);
    page->load(set);
    QCOMPARE(takeCalls(), (Calls{"BackupSet.getSchedule()", "Schedule.getDetails()",
                                 "Schedule.isUsingNetworkDetection()", "ScheduleDetail.getType()",
                                 "ScheduleDetail.types()", "MonthlyScheduleDetail.getScheduleDay()",
                                 "ScheduleDetail.getStartTime()", "ScheduleDetail.hasEndTime()",
                                 "ScheduleDetail.getHourlyFrequency()"}));
    QCOMPARE(page.checkedType(), name("radioMonthly"));
    QCOMPARE(page.shownDays(), name("frameMonthly"));
    QCOMPARE(page.spin("spinDayOfMonth").value(), 1);
    QCOMPARE(page.time("timeStart").time(), QTime(19, 30));
    QVERIFY(!page.box("checkStop").isChecked());
    QVERIFY(!page.time("timeStop").isEnabled());
    QVERIFY(!page.stopDay().isEnabled());
}

void SchedulePageTest::aDetailOfAnotherKindLeavesTheType() {
    give(music, "On start-up", {{ScheduleDetailType(0), 1, {8, 15, 0}, {{12, 30, 0}}, 0, 3}});
    Page page;
    const Set set = openSet(music);
    page->load(set);
    QCOMPARE(takeCalls(),
             (Calls{"BackupSet.getSchedule()", "Schedule.getDetails()",
                    "Schedule.isUsingNetworkDetection()", "ScheduleDetail.getType()",
                    "ScheduleDetail.getStartTime()", "ScheduleDetail.hasEndTime()",
                    "ScheduleDetail.getEndTime()", "ScheduleDetail.getHourlyFrequency()"}));
    QCOMPARE(page.checkedType(), name("radioDaily"));
    QCOMPARE(page.days(), name("MoTuWeThFr"));
    QCOMPARE(page.time("timeStart").time(), QTime(8, 15));
    QCOMPARE(page.time("timeStop").time(), QTime(12, 30));
}

void SchedulePageTest::anEndHourOf30IsTheNextDayAtSix() {
    give(music, "Night", {{ScheduleDetailType::Weekly, 127, {22, 0, 0}, {{30, 0, 0}}, 0, 1}});
    Page page;
    page.stopDay().setCurrentIndex(3);
    page.time("timeStop").setTime(QTime(1, 2));
    page->load(openSet(music));
    QCOMPARE(page.time("timeStop").time(), QTime(6, 0));
    QCOMPARE(page.stopDay().currentText(), name("next day"));
}

void SchedulePageTest::anHourlyScheduleWithoutAnEndGetsOne() {
    give(music, "Hourly", {{ScheduleDetailType::Weekly, 127, {8, 0, 0}, {}, 2, 1}});
    Page page;
    page->load(openSet(music));
    QVERIFY(page.box("checkOccurEvery").isChecked());
    QCOMPARE(page.spin("spinOccurEvery").value(), 2);
    QVERIFY(page.box("checkStop").isChecked());
    QVERIFY(page.time("timeStop").isEnabled());
    // Of the stop offered, at 06:00 on the next day.
    QCOMPARE(page.time("timeStop").time(), QTime(23, 59));
    QCOMPARE(page.stopDay().currentText(), name("same day"));
}

void SchedulePageTest::onlyTheFirstDetailIsShown() {
    give(music, "Two",
         {{ScheduleDetailType::Monthly, 17, {22, 0, 0}, {}, 0, 1},
          {ScheduleDetailType::Weekly, 127, {1, 0, 0}, {{2, 0, 0}}, 0, 1}});
    Page page;
    page->load(openSet(music));
    QCOMPARE(page.checkedType(), name("radioMonthly"));
    QCOMPARE(page.spin("spinDayOfMonth").value(), 17);
    QCOMPARE(page.time("timeStart").time(), QTime(22, 0));
}

void SchedulePageTest::whatCannotBeShownIsShownAsTheNearest() {
    give(music, "Odd", {{ScheduleDetailType::Monthly, 31, {99, 0, 0}, {{1000, 99, 0}}, 0, 1}});
    Page page;
    page->load(openSet(music));
    QCOMPARE(page.spin("spinDayOfMonth").value(), 28);
    QCOMPARE(page.time("timeStart").time(), QTime(23, 59));
    QCOMPARE(page.time("timeStop").time(), QTime(23, 59));
    QCOMPARE(page.stopDay().currentIndex(), 6);
    give(music, "Odder", {{ScheduleDetailType::Weekly, -1, {-5, -5, 0}, {{-1, 0, 0}}, 1000, 1}});
    page->load(openSet(music));
    QCOMPARE(page.days(), name("MoTuWeThFrSaSu"));
    QCOMPARE(page.time("timeStart").time(), QTime(0, 0));
    QCOMPARE(page.time("timeStop").time(), QTime(0, 0));
    QCOMPARE(page.stopDay().currentIndex(), 0);
    QCOMPARE(page.spin("spinOccurEvery").value(), 24);
}

void SchedulePageTest::occursEveryBringsTheStopToTheSameDay() {
    Page page;
    page.time("timeStart").setTime(QTime(18, 0));
    page.time("timeStop").setTime(QTime(22, 0));
    page.stopDay().setCurrentIndex(3);
    page.box("checkOccurEvery").click();
    QVERIFY(page.box("checkOccurEvery").isChecked());
    QCOMPARE(page.stopDay().currentText(), name("same day"));
    QCOMPARE(page.time("timeStop").time(), QTime(22, 0));
    QVERIFY(page.spin("spinOccurEvery").isEnabled());
    QVERIFY(page.widget("labelOccurEvery").isEnabled());
}

void SchedulePageTest::occursEveryTurnsAnEarlyStopIntoMidnight() {
    Page page;
    page.stopDay().setCurrentIndex(3);
    page.box("checkOccurEvery").click();
    QCOMPARE(page.stopDay().currentText(), name("same day"));
    QCOMPARE(page.time("timeStop").time(), QTime(23, 59));
    QVERIFY(page->isComplete());
}

void SchedulePageTest::occursEveryNeedsAStop() {
    Page page;
    page.box("checkStop").click();
    QVERIFY(!page.time("timeStop").isEnabled());
    page.box("checkOccurEvery").click();
    QVERIFY(page.box("checkStop").isChecked());
    QVERIFY(page.time("timeStop").isEnabled());
    QVERIFY(page.stopDay().isEnabled());
    QVERIFY(page.box("checkOccurEvery").isChecked());
}

void SchedulePageTest::aLaterDaySwitchesOccursEveryOff() {
    Page page;
    page.box("checkOccurEvery").click();
    page.stopDay().setCurrentIndex(1);
    QVERIFY(!page.box("checkOccurEvery").isChecked());
    QVERIFY(!page.spin("spinOccurEvery").isEnabled());
    QVERIFY(!page.widget("labelOccurEvery").isEnabled());
    QVERIFY(page.spin("spinMissedSchedule").isEnabled());
    QCOMPARE(page.stopDay().currentIndex(), 1);
}

void SchedulePageTest::noStopSwitchesOccursEveryOff() {
    Page page;
    page.box("checkOccurEvery").click();
    page.box("checkStop").click();
    QVERIFY(!page.box("checkStop").isChecked());
    QVERIFY(!page.box("checkOccurEvery").isChecked());
}

void SchedulePageTest::dailyNeedsADay() {
    Page page;
    const QSignalSpy changes(&*page, &QWizardPage::completeChanged);
    for (const char* day : {"checkMonday", "checkTuesday", "checkWednesday", "checkThursday"})
        page.box(day).click();
    QVERIFY(page->isComplete());
    page.box("checkFriday").click();
    QVERIFY(!page->isComplete());
    QCOMPARE(changes.count(), 5);
    page.box("checkSunday").click();
    QVERIFY(page->isComplete());
    page.box("checkSunday").click();
    page.radio("radioMonthly").click();
    QVERIFY(page->isComplete());
}

void SchedulePageTest::anEarlyStopBlocksEvenWhatIsNotScheduled() {
    Page page;
    page.radio("radioNotScheduled").click();
    QVERIFY(page->isComplete());
    const QSignalSpy changes(&*page, &QWizardPage::completeChanged);
    page.stopDay().setCurrentIndex(0);
    QVERIFY(!page->isComplete());
    QCOMPARE(changes.count(), 1);
    page.box("checkStop").click();
    QVERIFY(page->isComplete());
}

void SchedulePageTest::equalTimesPass() {
    Page page;
    page.stopDay().setCurrentIndex(0);
    const QSignalSpy changes(&*page, &QWizardPage::completeChanged);
    page.time("timeStop").setTime(QTime(20, 30));
    QVERIFY(page->isComplete());
    page.time("timeStart").setTime(QTime(20, 31));
    QVERIFY(!page->isComplete());
    QCOMPARE(changes.count(), 2);
}

void SchedulePageTest::theBoxesOfTheTimesTellTheWizard() {
    Page page;
    page.box("checkOccurEvery").click();
    QSignalSpy changes(&*page, &QWizardPage::completeChanged);
    page.box("checkOccurEvery").click();
    QCOMPARE(changes.count(), 1);
    QCOMPARE(page.stopDay().currentIndex(), 0);
    page.box("checkStop").click();
    changes.clear();
    page.box("checkStop").click();
    QCOMPARE(changes.count(), 1);
}

void SchedulePageTest::aFaultWhileLoadingGoesToTheCaller() {
    Page page;
    const Set set = openSet(documents);
    agent().inject("getStartTime", simulator::Fault{"The clock stands still."});
    QCOMPARE(errorOf([&] { page->load(set); }), name("The clock stands still."));
    agent().inject("getDetails", simulator::Fault{"No details."});
    QCOMPARE(errorOf([&] { page->load(set); }), name("No details."));
}

QTEST_MAIN(SchedulePageTest)
#include "schedule_page_test.moc"
