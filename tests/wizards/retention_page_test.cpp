// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QCheckBox>
#include <QComboBox>
#include <QSpinBox>

#include "tests/wizards/page_fixture.h"
#include "wizards/retention_select_page.h"

namespace {

using Calls = PageFixture::Calls;
using hessiancln::RetentionTimeUnit;
using simulator::RetentionOptionState;
using simulator::RetentionRuleState;

constexpr RetentionTimeUnit hours{2};

class Page : public ShownPage<RetentionSelectPage> {
public:
    QCheckBox& box(const char* name) { return child<QCheckBox>(name); }
    QSpinBox& spin(const char* name) { return child<QSpinBox>(name); }
    QComboBox& unit() { return child<QComboBox>("comboCleanupAfterUnit"); }
    QWidget& widget(const char* name) { return child<QWidget>(name); }

    /// The checked intervals: "D", "W", "M".
    QString intervals() {
        QString text;
        for (const auto& [name, letter] : {std::pair{"checkOnePerDay", "D"},
                                           {"checkOnePerWeek", "W"},
                                           {"checkOnePerMonth", "M"}})
            if (box(name).isChecked())
                text += QString::fromLatin1(letter);
        return text;
    }
};

std::shared_ptr<RetentionOptionState> validFor(RetentionTimeUnit unit) {
    return std::make_shared<RetentionOptionState>(
        RetentionOptionState{true, {2, unit}, {1, RetentionTimeUnit::Days}});
}

/// The last calls for a rule from a page that still has its defaults.
const Calls defaultEnd{"RetentionRule.setCleanupRemovedFiles(false)",
                       "RetentionRule.setLocalStorageRetention({period=0, unit=3})"};

Calls operator+(Calls first, const Calls& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

} // namespace

/// How long a set's data is kept: what the page shows, requests and writes.
class RetentionPageTest : public QObject, private PageFixture {
    Q_OBJECT
private slots:
    void init() { start(); }
    void cleanup() { end(); }

    void theFocusBeginsOnTheFirstField();
    void theDefaultsNeedNoAgent();
    void aSetWithoutARuleLeavesTheDefaults();
    void theRuleOfTheSetIsShown();
    void aRuleWithoutOptionsChecksNoInterval();
    void aBoxIsChosenByHowLongItsOptionHolds();
    void otherUnitsLeaveTheBoxesAlone();
    void aCleanupPeriodOfZeroIsShown();
    void aUnitThatIsNotOfferedLeavesTheListEmpty();
    void whatCannotBeShownIsShownAsTheNearest();
    void theLocalStorageFollowsTheSet();
    void otherClientsSeeNoLocalStorage();
    void theBoxesEnableTheirFields();

    void aSharedRuleIsLeftAlone();
    void theOwnRuleIsRewritten();
    void anOwnRuleThatTheSetLostIsTakenAgain();
    void aSetWithoutARuleGetsOne();
    void intervalsAreWrittenInTheirOrder();
    void theCleanupIsWritten();
    void theLocalStorageIsWritten();
    void otherClientsWriteNoLocalStorage();
    void writingTwiceGivesTheSameRule();
    void aFaultWhileLoadingGoesToTheCaller();
    void aFaultLeavesTheRuleWithoutOptions();

private:
    void give(int set, RetentionRuleState rule) {
        change(set, [&](simulator::BackupSetState& state, simulator::World& world) {
            state.info.retention_rule_id = world.retentionRules.add(std::move(rule))->id;
        });
    }
    RetentionRuleState ruleOf(int set) {
        RetentionRuleState rule;
        change(set, [&](simulator::BackupSetState& state, simulator::World& world) {
            if (const auto found = world.retentionRules.find(state.info.retention_rule_id))
                rule = *found;
        });
        return rule;
    }
    std::size_t ruleCount() {
        std::size_t count = 0;
        agent().withWorld(
            [&](simulator::World& world) { count = world.retentionRules.all().size(); });
        return count;
    }
    void load(Page& page, int id) {
        const Set set = openSet(id);
        page->load(set);
    }
    Calls callsOfWriting(Page& page, int id) {
        const Set set = openSet(id);
        page->apply(set);
        return takeCalls();
    }
};

void RetentionPageTest::theFocusBeginsOnTheFirstField() {
    Page page;
    QTRY_COMPARE(page->window()->focusWidget(), &page.widget("spinMaxGens"));
}

void RetentionPageTest::theDefaultsNeedNoAgent() {
    Page page;
    QCOMPARE(takeCalls(), Calls{});
    QVERIFY(page.box("checkLatestGen").isChecked());
    QVERIFY(!page.box("checkLatestGen").isEnabled());
    QCOMPARE(page.spin("spinMaxGens").value(), 3);
    QCOMPARE(page.intervals(), QString());
    QVERIFY(!page.box("checkCleanupFiles").isChecked());
    QCOMPARE(page.spin("spinCleanupAfterPeriod").value(), 30);
    QVERIFY(!page.spin("spinCleanupAfterPeriod").isEnabled());
    QVERIFY(!page.unit().isEnabled());
    QVERIFY(!page.spin("spinCleanupKeepGens").isEnabled());
    QVERIFY(!page.spin("spinLocalKeepAllGens").isEnabled());
    QVERIFY(page.widget("groupLocalStorage").isVisible());
    QVERIFY(page->isComplete());
}

void RetentionPageTest::aSetWithoutARuleLeavesTheDefaults() {
    Page page;
    page.box("checkOnePerDay").click();
    load(page, taxReturns);
    QCOMPARE(takeCalls(), Calls{"BackupSet.getRetentionRule()"});
    QCOMPARE(page.intervals(), QStringLiteral("D"));
    QCOMPARE(page.spin("spinMaxGens").value(), 3);
}

void RetentionPageTest::theRuleOfTheSetIsShown() {
    Page page;
    page.box("checkOnePerMonth").click();
    load(page, documents);
    QCOMPARE(
        takeCalls(),
        (Calls{"BackupSet.getRetentionRule()", "RetentionRule.getKeepLastGenerations()",
               "RetentionRule.getTimeRetentions()", "TimeRetentionOption.getValidFor()",
               "TimeRetentionOption.getValidFor()", "RetentionRule.getCleanupRemovedFiles()",
               "RetentionRule.getCleanupRemovedAfter()", "RetentionRule.getCleanupRemovedKeep()",
               "BackupSet.isUsingLocalStorage()", "RetentionRule.getLocalStorageRetention()"}));
    QCOMPARE(page.spin("spinMaxGens").value(), 30);
    QCOMPARE(page.intervals(), QStringLiteral("DW"));
    QVERIFY(page.box("checkCleanupFiles").isChecked());
    QVERIFY(page.spin("spinCleanupAfterPeriod").isEnabled());
    QCOMPARE(page.spin("spinCleanupAfterPeriod").value(), 30);
    QCOMPARE(page.unit().currentText(), QStringLiteral("day(s)"));
    QVERIFY(!page.widget("groupLocalStorage").isEnabled());
    QVERIFY(!page.box("checkLocalKeepAllGens").isChecked());
}

void RetentionPageTest::aRuleWithoutOptionsChecksNoInterval() {
    give(music, {.name = "Plain", .keepLast = 7});
    Page page;
    for (const char* box : {"checkOnePerDay", "checkOnePerWeek", "checkOnePerMonth"})
        page.box(box).click();
    load(page, music);
    QCOMPARE(
        takeCalls(),
        (Calls{"BackupSet.getRetentionRule()", "RetentionRule.getKeepLastGenerations()",
               "RetentionRule.getTimeRetentions()", "RetentionRule.getCleanupRemovedFiles()",
               "BackupSet.isUsingLocalStorage()", "RetentionRule.getLocalStorageRetention()"}));
    QCOMPARE(page.intervals(), QString());
    QCOMPARE(page.spin("spinMaxGens").value(), 7);
}

void RetentionPageTest::aBoxIsChosenByHowLongItsOptionHolds() {
    give(music,
         {.name = "Odd",
          .options = {validFor(RetentionTimeUnit::Years), validFor(RetentionTimeUnit::Weeks)}});
    Page page;
    load(page, music);
    QCOMPARE(page.intervals(), QStringLiteral("DM"));
    give(music, {.name = "Odder", .options = {validFor(RetentionTimeUnit::Months)}});
    load(page, music);
    QCOMPARE(page.intervals(), QStringLiteral("W"));
}

void RetentionPageTest::otherUnitsLeaveTheBoxesAlone() {
    give(music, {.name = "retention_for_set_8",
                 .options = {validFor(hours), validFor(RetentionTimeUnit::Days),
                             validFor(RetentionTimeUnit{7})}});
    Page page;
    load(page, music);
    QCOMPARE(page.intervals(), QString());
    const Calls calls = callsOfWriting(page, music);
    QCOMPARE(std::count(calls.begin(), calls.end(),
                        "RetentionRule.removeTimeRetentionOption(TimeRetentionOption)"),
             3);
    QCOMPARE(ruleOf(music).options.size(), std::size_t{0});
}

void RetentionPageTest::aCleanupPeriodOfZeroIsShown() {
    give(music, {.name = "retention_for_set_8",
                 .cleanupRemoved = true,
                 .cleanupAfter = {0, RetentionTimeUnit::Months},
                 .cleanupKeep = 999});
    Page page;
    load(page, music);
    QCOMPARE(page.spin("spinCleanupAfterPeriod").value(), 0);
    QCOMPARE(page.unit().currentText(), QStringLiteral("month(s)"));
    QCOMPARE(page.spin("spinCleanupKeepGens").value(), 999);
    callsOfWriting(page, music);
    QCOMPARE(ruleOf(music).cleanupAfter.period, 0);
    QVERIFY(ruleOf(music).cleanupAfter.unit == RetentionTimeUnit::Months);
    QCOMPARE(ruleOf(music).cleanupKeep, 999);
}

void RetentionPageTest::aUnitThatIsNotOfferedLeavesTheListEmpty() {
    give(music, {.name = "Hours", .cleanupRemoved = true, .cleanupAfter = {36, hours}});
    Page page;
    load(page, music);
    QCOMPARE(page.spin("spinCleanupAfterPeriod").value(), 36);
    QCOMPARE(page.unit().currentText(), QString());
    callsOfWriting(page, music);
    QVERIFY(ruleOf(music).cleanupAfter.unit == RetentionTimeUnit::Days);
}

void RetentionPageTest::whatCannotBeShownIsShownAsTheNearest() {
    give(music, {.name = "Much",
                 .keepLast = 100000,
                 .cleanupRemoved = true,
                 .cleanupAfter = {-7, RetentionTimeUnit::Years},
                 .cleanupKeep = 1000,
                 .localStorage = {365, RetentionTimeUnit::Days}});
    Page page;
    load(page, music);
    QCOMPARE(page.spin("spinMaxGens").value(), 9999);
    QCOMPARE(page.spin("spinCleanupAfterPeriod").value(), 0);
    QCOMPARE(page.spin("spinCleanupKeepGens").value(), 999);
    QCOMPARE(page.spin("spinLocalKeepAllGens").value(), 30);
    give(music, {.name = "Little", .keepLast = -1, .localStorage = {-1, RetentionTimeUnit::Days}});
    load(page, music);
    QCOMPARE(page.spin("spinMaxGens").value(), 1);
    QVERIFY(!page.box("checkLocalKeepAllGens").isChecked());
}

void RetentionPageTest::theLocalStorageFollowsTheSet() {
    give(mail, {.name = "Local", .localStorage = {14, RetentionTimeUnit::Days}});
    Page page;
    load(page, mail);
    QVERIFY(page.widget("groupLocalStorage").isEnabled());
    QVERIFY(page.box("checkLocalKeepAllGens").isChecked());
    QVERIFY(page.spin("spinLocalKeepAllGens").isEnabled());
    QCOMPARE(page.spin("spinLocalKeepAllGens").value(), 14);
}

void RetentionPageTest::otherClientsSeeNoLocalStorage() {
    session::g_isMobileClient = false;
    Page page;
    QVERIFY(!page.widget("groupLocalStorage").isVisible());
    QVERIFY(page.widget("groupDeletionRules").isVisible());
}

void RetentionPageTest::theBoxesEnableTheirFields() {
    Page page;
    page.box("checkCleanupFiles").click();
    for (const char* field :
         {"spinCleanupAfterPeriod", "comboCleanupAfterUnit", "spinCleanupKeepGens"})
        QVERIFY2(page.widget(field).isEnabled(), field);
    page.box("checkCleanupFiles").click();
    for (const char* field :
         {"spinCleanupAfterPeriod", "comboCleanupAfterUnit", "spinCleanupKeepGens"})
        QVERIFY2(!page.widget(field).isEnabled(), field);
    page.box("checkLocalKeepAllGens").click();
    QVERIFY(page.spin("spinLocalKeepAllGens").isEnabled());
    page.box("checkLocalKeepAllGens").click();
    QVERIFY(!page.spin("spinLocalKeepAllGens").isEnabled());
}

void RetentionPageTest::aSharedRuleIsLeftAlone() {
    const RetentionRuleState before = ruleOf(mail);
    Page page;
    QCOMPARE(
        callsOfWriting(page, documents),
        (Calls{"BackupSet.getID()", "BackupSet.getRetentionRule()",
               "ClientConnection.getRetentionRuleManager()", "RetentionRule.getName()",
               "RetentionRuleManager.definedRules()", "RetentionRule.getName()",
               "RetentionRule.getName()", "RetentionRuleManager.createRule()",
               "RetentionRule.setName(\"retention_for_set_1\")",
               "BackupSet.setRetentionRule(RetentionRule(retention_for_set_1))",
               "RetentionRule.setKeepLastGenerations(3)", "RetentionRule.getTimeRetentions()"}) +
            defaultEnd);
    QCOMPARE(ruleOf(mail).name, before.name);
    QCOMPARE(ruleOf(mail).options.size(), before.options.size());
    QCOMPARE(ruleOf(mail).keepLast, before.keepLast);
}

void RetentionPageTest::theOwnRuleIsRewritten() {
    give(music, {.name = "retention_for_set_8", .options = {validFor(RetentionTimeUnit::Weeks)}});
    Page page;
    QCOMPARE(callsOfWriting(page, music),
             (Calls{"BackupSet.getID()", "BackupSet.getRetentionRule()",
                    "ClientConnection.getRetentionRuleManager()", "RetentionRule.getName()",
                    "RetentionRule.setKeepLastGenerations(3)", "RetentionRule.getTimeRetentions()",
                    "RetentionRule.removeTimeRetentionOption(TimeRetentionOption)"}) +
                 defaultEnd);
}

void RetentionPageTest::anOwnRuleThatTheSetLostIsTakenAgain() {
    give(music, {.name = "retention_for_set_8"});
    change(music, [](simulator::BackupSetState& set, simulator::World&) {
        set.info.retention_rule_id = simulator::noRule;
    });
    const std::size_t rules = ruleCount();
    Page page;
    QCOMPARE(
        callsOfWriting(page, music),
        (Calls{"BackupSet.getID()", "BackupSet.getRetentionRule()",
               "ClientConnection.getRetentionRuleManager()", "RetentionRuleManager.definedRules()",
               "RetentionRule.getName()", "RetentionRule.getName()", "RetentionRule.getName()",
               "BackupSet.setRetentionRule(RetentionRule(retention_for_set_8))",
               "RetentionRule.setKeepLastGenerations(3)", "RetentionRule.getTimeRetentions()"}) +
            defaultEnd);
    QCOMPARE(ruleCount(), rules);
}

void RetentionPageTest::aSetWithoutARuleGetsOne() {
    Page page;
    callsOfWriting(page, taxReturns);
    QCOMPARE(ruleOf(taxReturns).name, std::string("retention_for_set_6"));
    QCOMPARE(ruleOf(taxReturns).keepLast, 3);
}

void RetentionPageTest::intervalsAreWrittenInTheirOrder() {
    give(music, {.name = "retention_for_set_8"});
    Page page;
    for (const char* box : {"checkOnePerMonth", "checkOnePerWeek", "checkOnePerDay"})
        page.box(box).click();
    const auto option = [](const std::string& repeat, const std::string& valid) {
        return Calls{"RetentionRuleManager.createIntervalTimeRetention()",
                     "IntervalTimeRetentionOption.setRepeatTime({period=1, unit=" + repeat + "})",
                     "TimeRetentionOption.setValidFor({period=1, unit=" + valid + "})",
                     "RetentionRule.addTimeRetentionOption(TimeRetentionOption)"};
    };
    QCOMPARE(
        callsOfWriting(page, music),
        (Calls{"BackupSet.getID()", "BackupSet.getRetentionRule()",
               "ClientConnection.getRetentionRuleManager()", "RetentionRule.getName()",
               "RetentionRule.setKeepLastGenerations(3)", "RetentionRule.getTimeRetentions()"}) +
            option("3", "4") + option("4", "5") + option("5", "6") + defaultEnd);
}

void RetentionPageTest::theCleanupIsWritten() {
    give(music, {.name = "retention_for_set_8"});
    Page page;
    page.box("checkCleanupFiles").click();
    page.spin("spinCleanupAfterPeriod").setValue(2);
    page.unit().setCurrentIndex(3);
    page.spin("spinCleanupKeepGens").setValue(1);
    const Calls calls = callsOfWriting(page, music);
    QCOMPARE(Calls(calls.end() - 4, calls.end()),
             (Calls{"RetentionRule.setCleanupRemovedFiles(true)",
                    "RetentionRule.setCleanupRemovedAfter({period=2, unit=6})",
                    "RetentionRule.setCleanupRemovedKeep(1)",
                    "RetentionRule.setLocalStorageRetention({period=0, unit=3})"}));
}

void RetentionPageTest::theLocalStorageIsWritten() {
    Page page;
    page.box("checkLocalKeepAllGens").click();
    page.spin("spinLocalKeepAllGens").setValue(30);
    QCOMPARE(callsOfWriting(page, mail).back(),
             std::string("RetentionRule.setLocalStorageRetention({period=30, unit=3})"));
}

void RetentionPageTest::otherClientsWriteNoLocalStorage() {
    session::g_isMobileClient = false;
    Page page;
    QCOMPARE(callsOfWriting(page, documents).back(),
             std::string("RetentionRule.setLocalStorageRetention({period=0, unit=3})"));
}

void RetentionPageTest::writingTwiceGivesTheSameRule() {
    Page page;
    page.box("checkOnePerWeek").click();
    callsOfWriting(page, music);
    const std::size_t rules = ruleCount();
    const std::int32_t id = ruleOf(music).id;
    callsOfWriting(page, music);
    QCOMPARE(ruleCount(), rules);
    QCOMPARE(ruleOf(music).id, id);
    QCOMPARE(ruleOf(music).options.size(), std::size_t{1});
    QVERIFY(ruleOf(music).options.at(0)->validFor.unit == RetentionTimeUnit::Months);
}

void RetentionPageTest::aFaultWhileLoadingGoesToTheCaller() {
    Page page;
    const Set set = openSet(documents);
    agent().inject("getCleanupRemovedAfter", simulator::Fault{"Out of time."});
    QCOMPARE(errorOf([&] { page->load(set); }), QStringLiteral("Out of time."));
}

void RetentionPageTest::aFaultLeavesTheRuleWithoutOptions() {
    give(music, {.name = "retention_for_set_8", .options = {validFor(RetentionTimeUnit::Weeks)}});
    Page page;
    page.box("checkOnePerDay").click();
    const Set set = openSet(music);
    agent().inject("createIntervalTimeRetention", simulator::Fault{"No more options."});
    QCOMPARE(errorOf([&] { page->apply(set); }), QStringLiteral("No more options."));
    QCOMPARE(ruleOf(music).options.size(), std::size_t{0});
}

QTEST_MAIN(RetentionPageTest)
#include "retention_page_test.moc"
