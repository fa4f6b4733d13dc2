// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QCheckBox>
#include <QLineEdit>
#include <QSpinBox>
#include <QTextDocument>
#include <QTimeEdit>

#include "tests/support/gui_form_texts.h"
#include "tests/wizards/page_fixture.h"
#include "wizards/delete_select_page.h"
#include "wizards/items_select_page.h"
#include "wizards/retention_select_page.h"
#include "wizards/schedule_select_page.h"
#include "wizards/select_data_source_page.h"
#include "wizards/set_name_page.h"
#include "wizards/set_options_page.h"

using support::compareBuddies;
using support::compareIcon;
using support::compareTexts;
using support::entriesOf;
using Text = support::FormText;

namespace {

struct Range {
    const char* name;
    int minimum;
    int maximum;
    int value;
};

void compareRanges(QWidget& page, std::initializer_list<Range> ranges) {
    for (const auto& [name, minimum, maximum, value] : ranges) {
        const auto& spin = support::child<QSpinBox>(page, name);
        QCOMPARE(std::tuple(spin.minimum(), spin.maximum(), spin.value()),
                 std::tuple(minimum, maximum, value));
    }
}

} // namespace

/// The content of the pages for items, schedule, retention and deletion before any input.
class PageFormsTest : public QObject, private PageFixture {
    Q_OBJECT
private slots:
    void init() { start(); }
    void cleanup() { end(); }

    void textsOfTheItemsPage();
    void iconsOfTheItemsPage();
    void extensionsOfTheKindsOfFile();
    void textsOfTheSchedulePage();
    void rangesOfTheSchedulePage();
    void textsOfTheRetentionPage();
    void rangesOfTheRetentionPage();
    void pagesFollowTheLanguage();
    void textsOfTheDeletePage();
    void rangesOfTheDeletePage();
};

void PageFormsTest::textsOfTheItemsPage() {
    ShownPage<ItemsSelectPage> page;
    QCOMPARE(page->title(), QStringLiteral("Select Items"));
    QCOMPARE(page->subTitle(), QStringLiteral("Select the items to backup"));
    compareTexts(*page, {{"groupFiles", "Files To Backup"},
                         {"checkEverything", "&All Files"},
                         {"checkDocuments", "&Documents"},
                         {"checkVideo", "&Video"},
                         {"checkPictures", "&Pictures"},
                         {"checkMusic", "&Music"},
                         {"checkEmail", "&Email"},
                         {"checkCustomInc", "Cus&tom file extensions (separate by \"|\"):"},
                         {"checkTempFiles", "E&xclude temporary files"},
                         {"checkBakFiles", "Exclu&de backup files"},
                         {"checkCustomExc", "Exc&lude file extensions (separate by \"|\"):"},
                         {"groupLocations", "Data Location"},
                         {"radioSpecificLocation", "&Specific Location:"},
                         {"radioCustom", "C&ustom:"}});
    for (const auto& [name, tip] :
         {Text{"checkTempFiles", "*.tmp, *.swp"}, {"checkBakFiles", "*.bak"}})
        QCOMPARE(page.child<QCheckBox>(name).toolTip(), QString::fromUtf8(tip));
}

void PageFormsTest::iconsOfTheItemsPage() {
    ShownPage<ItemsSelectPage> page;
    for (const auto& [name, resource] : {Text{"checkEverything", ":/filetypes/everything"},
                                         {"checkDocuments", ":/filetypes/document"},
                                         {"checkVideo", ":/filetypes/video"},
                                         {"checkPictures", ":/filetypes/picture"},
                                         {"checkMusic", ":/filetypes/audio"},
                                         {"checkEmail", ":/filetypes/email"},
                                         {"checkCustomInc", ":/tree/file"},
                                         {"checkTempFiles", ":/filetypes/excluded"}})
        compareIcon(*page, name, resource);
}

void PageFormsTest::extensionsOfTheKindsOfFile() {
    ShownPage<ItemsSelectPage> page;
    for (const auto& [name, begin, end] :
         {std::tuple{"checkDocuments", "*.accdb, *.accde,", "*.xltx"},
          {"checkVideo", "*.asf, *.avi,", "*.wmx"},
          {"checkPictures", "*.ai, *.bmp,", "*.wmf"},
          {"checkMusic", "*.a3c, *.aac,", "*.xm"}}) {
        const QString tip = page.child<QCheckBox>(name).toolTip();
        QVERIFY2(tip.startsWith(QString::fromUtf8(begin)), qPrintable(tip));
        QVERIFY2(tip.endsWith(QString::fromUtf8(end)), qPrintable(tip));
        QVERIFY2(!Qt::mightBeRichText(tip), qPrintable(tip));
    }
    const QString email = page.child<QCheckBox>("checkEmail").toolTip();
    QVERIFY2(Qt::mightBeRichText(email), qPrintable(email));
    QVERIFY2(email.contains(QStringLiteral("*.MsMessageStore")), qPrintable(email));
    QVERIFY2(email.contains(QStringLiteral("*.snm")), qPrintable(email));
}

void PageFormsTest::textsOfTheSchedulePage() {
    ShownPage<ScheduleSelectPage> page;
    QCOMPARE(page->title(), QStringLiteral("Select Schedule"));
    QCOMPARE(page->subTitle(), QStringLiteral("Provide the scheduling for this backup set"));
    compareTexts(*page, {{"groupSchedulingType", "Scheduling Type"},
                         {"radioNotScheduled", "No&t Scheduled (Manual on-demand backups only)"},
                         {"radioDaily", "&Daily Backup"},
                         {"radioMonthly", "&Monthly Backup"},
                         {"groupTime", "Start && End Time"},
                         {"labelStartAt", "Start &At:"},
                         {"checkStop", "&Stop if not finished by:"},
                         {"checkCloudConnection", "&Only if connected to the cloud"},
                         {"checkOccurEvery", "Occurs Every"},
                         {"labelOccurEvery", "hour(s)"},
                         {"frameMonthly", "Scheduling Day"},
                         {"labelDayOfmonth", "Day of mont&h:"},
                         {"frameDaily", "Scheduling Day(s)"},
                         {"checkMonday", "Monda&y"},
                         {"checkTuesday", "Tu&esday"},
                         {"checkWednesday", "&Wednesday"},
                         {"checkThursday", "T&hursday"},
                         {"checkFriday", "Fr&iday"},
                         {"checkSaturday", "Satu&rday"},
                         {"checkSunday", "S&unday"},
                         {"groupGlobal", "Global Configuration For All Schedules"},
                         {"labelMissedSchedule", "Missed schedule will be triggered in"},
                         {"labelMissedScheduleHours", "hour(s)"}});
    QCOMPARE(entriesOf(page.child<QComboBox>("comboStopInDays")),
             (QStringList{QStringLiteral("same day"), QStringLiteral("next day"),
                          QStringLiteral("in 2 days"), QStringLiteral("in 3 days"),
                          QStringLiteral("in 4 days"), QStringLiteral("in 5 days"),
                          QStringLiteral("in 6 days")}));
    for (const char* name : {"timeStart", "timeStop"})
        QCOMPARE(page.child<QTimeEdit>(name).displayFormat(), QStringLiteral("hh:mm"));
}

void PageFormsTest::rangesOfTheSchedulePage() {
    ShownPage<ScheduleSelectPage> page;
    compareRanges(*page, {{"spinOccurEvery", 1, 24, 1}, {"spinDayOfMonth", 1, 28, 1}});
    const auto& missed = page.child<QSpinBox>("spinMissedSchedule");
    QCOMPARE(std::pair(missed.minimum(), missed.maximum()), std::pair(1, 16));
}

void PageFormsTest::textsOfTheRetentionPage() {
    ShownPage<RetentionSelectPage> page;
    QCOMPARE(page->title(), QStringLiteral("Select Retention"));
    QCOMPARE(page->subTitle(),
             QStringLiteral("Provide the data retention configuration for this backup set"));
    compareTexts(*page, {{"groupRetentionPara", "Time-based Retention"},
                         {"checkLatestGen", "Keep most recent generations:"},
                         {"checkOnePerDay", "Keep one generation per &day for 1 week"},
                         {"checkOnePerWeek", "Keep one generation per &week for 1 month"},
                         {"checkOnePerMonth", "Keep one generation per &month for 1 year"},
                         {"groupDeletionRules", "Deletion of Files"},
                         {"checkCleanupFiles", "&If files are removed from source after:"},
                         {"labeCleanuplKeepGens", "&Keep generations:"},
                         {"groupLocalStorage", "Local Storage Retention"},
                         {"checkLocalKeepAllGens", "Keep &all generations for"},
                         {"labelUnits", "day(s)"}});
    QCOMPARE(entriesOf(page.child<QComboBox>("comboCleanupAfterUnit")),
             (QStringList{QStringLiteral("day(s)"), QStringLiteral("week(s)"),
                          QStringLiteral("month(s)"), QStringLiteral("year(s)")}));
    const auto& latest = page.child<QCheckBox>("checkLatestGen");
    QVERIFY(latest.isChecked() && !latest.isEnabled());
}

void PageFormsTest::rangesOfTheRetentionPage() {
    ShownPage<RetentionSelectPage> page;
    compareRanges(*page, {{"spinMaxGens", 1, 9999, 3},
                          {"spinCleanupAfterPeriod", 0, 999, 30},
                          {"spinCleanupKeepGens", 0, 999, 0},
                          {"spinLocalKeepAllGens", 1, 30, 1}});
}

void PageFormsTest::pagesFollowTheLanguage() {
    SelectDataSourcePage source;
    ItemsSelectPage items;
    ScheduleSelectPage schedule;
    RetentionSelectPage retention;
    SetOptionsPage options;
    SetNamePage name;
    auto& kind = support::child<QCheckBox>(items, "checkMusic");
    auto& day = support::child<QComboBox>(schedule, "comboStopInDays");
    auto& unit = support::child<QComboBox>(retention, "comboCleanupAfterUnit");
    kind.setToolTip({});
    day.setCurrentIndex(3);
    unit.setCurrentIndex(2);
    const std::pair<QWizardPage*, const char*> titles[] = {
        {&source, "Data Source and Login Information"},
        {&items, "Select Items"},
        {&schedule, "Select Schedule"},
        {&retention, "Select Retention"},
        {&options, "Backup Options"},
        {&name, "Select Backup Set Name"}};
    for (const auto& [page, title] : titles) {
        // The language change sets the texts of the current language again.
        page->setTitle({});
        QEvent change(QEvent::LanguageChange);
        QCoreApplication::sendEvent(page, &change);
        QCOMPARE(page->title(), QString::fromUtf8(title));
    }
    QVERIFY(kind.toolTip().startsWith(QStringLiteral("*.a3c, ")));
    QCOMPARE(day.currentText(), QStringLiteral("in 3 days"));
    QCOMPARE(unit.currentText(), QStringLiteral("month(s)"));
}

void PageFormsTest::textsOfTheDeletePage() {
    DeleteSelectPage page(openSet(documents));
    QCOMPARE(page.windowTitle(), QStringLiteral("Delete Items"));
    QCOMPARE(page.title(), QStringLiteral("Select Items"));
    QCOMPARE(page.subTitle(), QStringLiteral("Select the files and/or directories to delete from "
                                             "the backup set storage"));
    compareTexts(page, {{"groupItems", "Items to Delete"},
                        {"labelFilter", "File F&ilter:"},
                        {"groupFilter", "Fil&ter:"},
                        {"checkFrom", "Backed up on/&after:"},
                        {"checkRemoved", "Only files &removed since:"},
                        {"checkTo", "Backed up on/&before:"},
                        {"checkKeep", "Do not delete the &last:"}});
    compareBuddies(page, {{"labelFilter", "editFilter"}});
    QCOMPARE(support::child<QLineEdit>(page, "editFilter").text(), QStringLiteral("*"));
}

void PageFormsTest::rangesOfTheDeletePage() {
    DeleteSelectPage page(openSet(documents));
    compareRanges(page, {{"spinKeep", 1, 99, 1}});
    QCOMPARE(support::child<QSpinBox>(page, "spinKeep").suffix(), QStringLiteral(" generation(s)"));
    for (const char* name : {"dateFrom", "dateTo", "dateRemoved"}) {
        const auto& date = support::child<QDateTimeEdit>(page, name);
        QCOMPARE(date.displayFormat(), QStringLiteral("M/d/yy HH:mm"));
        QVERIFY(date.calendarPopup());
    }
}

QTEST_MAIN(PageFormsTest)
#include "page_forms_test.moc"
