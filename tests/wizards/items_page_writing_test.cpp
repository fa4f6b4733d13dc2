// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "api/backup_set.h"
#include "tests/wizards/items_page_fixture.h"
#include "transport/i_call_dispatcher.h"

namespace {

using Calls = PageFixture::Calls;

const std::string documentsExpression =
    R"(.*\.(accdb|accde|accdr|accdt|csv|doc|docm|docx|dot|dotm|dotx|htm|html|mht|mpp|mppx|one|)"
    R"(pdf|potm|potx|ppam|pps|ppsm|ppsx|ppt|pptm|pptx|ps|rtf|txt|vsd|wpd|wpg|wps|xlam|xlc|xls|)"
    R"(xlsb|xlsm|xlsx|xlt|xltm|xltx))";
const std::string musicExpression =
    R"(.*\.(a3c|aac|aif|aifc|aiff|ape|flac|itl|m3u|m4a|m4p|mid|midi|mp1|mp2|mp3|mp4|pls|ra|ram|)"
    R"(rm|rmi|s3m|wav|wma|wpl|xm))";

QStringList path(const char* joined) {
    return QString::fromUtf8(joined).split(QLatin1Char('\\'));
}

/// The calls that create a filter. The log escapes the expression's only backslash, its third
/// character.
Calls filterCalls(const std::string& root, const std::string& expression, bool inclusion) {
    std::string quoted = expression;
    quoted.insert(2, "\\");
    return {"DataSourceBrowser.createRegexExclusion(\"My Computer\", \"" + root + "\", \"" +
                quoted + "\")",
            std::string("BackupSetRegexExclusion.setInclusion(") + (inclusion ? "true)" : "false)"),
            "BackupSetRegexExclusion.setNegate(false)",
            "BackupSetRegexExclusion.setCaseSensitive(false)",
            "BackupSetRegexExclusion.setMatchDirectories(false)"};
}

Calls operator+(Calls first, const Calls& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

/// An agent with one set of files, which records for each call whether the user sees the wait
/// cursor.
class WatchingAgent final : public hessiancln::ICallDispatcher {
public:
    WatchingAgent()
        : ICallDispatcher(0, "") {}

    std::string sendRequest(const std::string&, const std::string& request) override {
        const QCursor* cursor = QGuiApplication::overrideCursor();
        waited << (cursor && cursor->shape() == Qt::WaitCursor);
        const bool asksForType = request.find("getDataType") != std::string::npos;
        return asksForType ? std::string("r\x01\0I\0\0\0\0z", 9) : std::string("r\x01\0z", 4);
    }

    QVector<bool> waited;
};

} // namespace

/// How the items page writes the choice, and that reading it back from a set restores it.
class ItemsPageWritingTest : public QObject, private ItemsPageFixture {
    Q_OBJECT
private slots:
    void init() { start(); }
    void cleanup() { end(); }

    void aPresetIsOneInclusion();
    void aSelectionIsItsInclusionsAndExclusions();
    void eachRootHasItsFilters();
    void allFilesNeedNoFilter();
    void whatIsLeftOutOfAllFilesIsOneFilter();
    void eachBoxWritesItsOwnKind_data();
    void eachBoxWritesItsOwnKind();
    void musicWithExtensionsOfTheUser();
    void trailingBarsAreDroppedFromSelectedExtensionsOnly();
    void allThatAUnixAgentHasIsOneRoot();

    void aSetThatWasReadIsWrittenAsItWas();
    void rejectedExtensionsSurvive();
    void aSecondWriteReplacesTheFirst();
    void aFaultLeavesTheItemsOfTheSet();
    void theUserSeesThatItTakesItsTime();

private:
    Calls callsOfWriting(ItemsPageWidgets& page, const Set& set) {
        takeCalls();
        page->apply(set);
        return takeCalls();
    }
    /// A set's items after reading and writing them.
    Calls writtenAgain(const std::vector<Item>& items) {
        const Set set = openSetWith(items);
        PageOfSet page(set);
        page->apply(set);
        return itemsOf(music);
    }
};

void ItemsPageWritingTest::aPresetIsOneInclusion() {
    PageOfSource page;
    page.presets().setCurrentIndex(3);
    const Set set = openSet(music);
    QCOMPARE(callsOfWriting(page, set),
             Calls{R"(DataSourceBrowser.createInclusionItem("My Computer", "D:\\Mail", 9999))"} +
                 filterCalls("D:", documentsExpression, true) +
                 Calls{R"(BackupSet.setItems([BackupSetItem(D:\Mail), BackupSetItem(D:, only )" +
                       documentsExpression + ")])"});
    QCOMPARE(itemsOf(music), (Calls{R"(+D:\Mail)", ">D: " + documentsExpression}));
}

void ItemsPageWritingTest::aSelectionIsItsInclusionsAndExclusions() {
    PageOfSource page;
    page.box("checkEverything").click();
    page.radio("radioCustom").click();
    page.check(path(R"(D:\Projects)"));
    page.check(path(R"(D:\Projects\Archive)"), false);
    page.check(path(R"(D:\Tax)"));
    const Set set = openSet(music);
    QCOMPARE(
        callsOfWriting(page, set),
        (Calls{R"(DataSourceBrowser.createInclusionItem("My Computer", "D:\\Projects", 9999))",
               R"(DataSourceBrowser.createExclusionItem("My Computer", "D:\\Projects\\Archive"))",
               R"(DataSourceBrowser.createInclusionItem("My Computer", "D:\\Tax", 9999))",
               R"(BackupSet.setItems([BackupSetItem(D:\Projects), )"
               R"(BackupSetItem(D:\Projects\Archive, excluded), BackupSetItem(D:\Tax)]))"}));
}

void ItemsPageWritingTest::eachRootHasItsFilters() {
    PageOfSource page;
    page.box("checkMusic").click();
    page.radio("radioCustom").click();
    page.check(path(R"(C:\Users)"));
    page.check(path(R"(D:\Mail)"));
    page.check(path(R"(D:\Tax)"));
    page.check(path("E:"));
    page->apply(openSet(music));
    QCOMPARE(itemsOf(music), (Calls{R"(+C:\Users)", R"(+D:\Mail)", R"(+D:\Tax)",
                                    "+E:", ">C: " + documentsExpression, ">C: " + musicExpression,
                                    ">D: " + documentsExpression, ">D: " + musicExpression,
                                    ">E: " + documentsExpression, ">E: " + musicExpression}));
}

void ItemsPageWritingTest::allFilesNeedNoFilter() {
    PageOfSource page;
    page.box("checkEverything").click();
    page->apply(openSet(music));
    QCOMPARE(itemsOf(music), Calls{R"(+C:\Users\anna\Documents)"});
}

void ItemsPageWritingTest::whatIsLeftOutOfAllFilesIsOneFilter() {
    PageOfSource page;
    page.box("checkEverything").click();
    page.box("checkTempFiles").click();
    page.box("checkBakFiles").click();
    const Set set = openSet(music);
    const Calls calls = callsOfWriting(page, set);
    QCOMPARE(Calls(calls.begin() + 1, calls.end() - 1),
             filterCalls("C:", R"(.*\.(|tmp|swp|bak))", false));
    QCOMPARE(itemsOf(music), (Calls{R"(+C:\Users\anna\Documents)", R"(<C: .*\.(|tmp|swp|bak))"}));
}

void ItemsPageWritingTest::eachBoxWritesItsOwnKind_data() {
    QTest::addColumn<QString>("box");
    QTest::addColumn<QString>("begin");
    const auto row = [](const char* box, const char* begin) {
        QTest::newRow(box) << QString::fromLatin1(box) << QString::fromLatin1(begin);
    };
    row("checkVideo", R"(>C: .*\.(asf|avi|)");
    row("checkPictures", R"(>C: .*\.(ai|bmp|)");
    row("checkMusic", R"(>C: .*\.(a3c|aac|)");
    row("checkEmail", R"(>C: .*\.(MsMessageStore|dbx|)");
    row("checkTempFiles", R"(<C: .*\.(|tmp|swp))");
    row("checkBakFiles", R"(<C: .*\.(|bak))");
}

void ItemsPageWritingTest::eachBoxWritesItsOwnKind() {
    QFETCH(QString, box);
    QFETCH(QString, begin);
    PageOfSource page;
    page.box("checkDocuments").click();
    if (begin.startsWith(QLatin1Char('<')))
        page.box("checkEverything").click();
    page.box(qPrintable(box)).click();
    page->apply(openSet(music));
    const Calls items = itemsOf(music);
    QCOMPARE(items.size(), std::size_t{2});
    QVERIFY2(QString::fromStdString(items.at(1)).startsWith(begin), items.at(1).c_str());
}

void ItemsPageWritingTest::musicWithExtensionsOfTheUser() {
    PageOfSource page;
    page.box("checkDocuments").click();
    page.box("checkMusic").click();
    page.box("checkCustomInc").click();
    QTest::keyClicks(&page.edit("editCustomInc"), QStringLiteral("abc|def"));
    page->apply(openSet(music));
    QCOMPARE(itemsOf(music), (Calls{R"(+C:\Users\anna\Documents)", ">C: " + musicExpression,
                                    R"(>C: .*\.(CustomFileExtensions|abc|def))"}));
}

void ItemsPageWritingTest::trailingBarsAreDroppedFromSelectedExtensionsOnly() {
    PageOfSource page;
    page.box("checkDocuments").click();
    page.box("checkCustomInc").click();
    QTest::keyClicks(&page.edit("editCustomInc"), QStringLiteral(" abc|"));
    page->apply(openSet(music));
    QCOMPARE(itemsOf(music),
             (Calls{R"(+C:\Users\anna\Documents)", R"(>C: .*\.(CustomFileExtensions|abc))"}));
    page.box("checkEverything").click();
    page.box("checkCustomExc").click();
    QTest::keyClicks(&page.edit("editCustomExc"), QStringLiteral(" abc|"));
    page->apply(openSet(music));
    QCOMPARE(itemsOf(music),
             (Calls{R"(+C:\Users\anna\Documents)", R"(<C: .*\.(|CustomFileExtensions|abc|))"}));
}

void ItemsPageWritingTest::allThatAUnixAgentHasIsOneRoot() {
    end();
    start(simulator::Scenario::Unix);
    PageOfSource page;
    page.radio("radioCustom").click();
    page.check({QStringLiteral("/"), QStringLiteral("home")});
    page.check({QStringLiteral("/"), QStringLiteral("etc")});
    page->apply(openSet(1));
    QCOMPARE(itemsOf(1), (Calls{R"(+/\etc)", R"(+/\home)", ">/ " + documentsExpression}));
}

void ItemsPageWritingTest::aSetThatWasReadIsWrittenAsItWas() {
    const Calls before = itemsOf(projects);
    QCOMPARE(before,
             (Calls{R"(+D:\Projects)", R"(-D:\Projects\Archive)", R"(<D: .*\.(|tmp|swp|bak))"}));
    const Set set = openSet(projects);
    PageOfSet page(set);
    page->apply(set);
    QCOMPARE(itemsOf(projects), before);
}

void ItemsPageWritingTest::rejectedExtensionsSurvive() {
    const std::string umlauts = "\xC3\xA4|\xC3\xB6 \xC3\xBC";
    const Calls expected{R"(+D:\Music)", R"(<D: .*\.(|CustomFileExtensions|doc|)" + umlauts + ")"};
    QCOMPARE(
        writtenAgain({included(R"(D:\Music)"),
                      filter("D:", R"(.*\.(|CustomFileExtensions|doc|)" + umlauts + ")", false)}),
        expected);
}

void ItemsPageWritingTest::aSecondWriteReplacesTheFirst() {
    PageOfSource page;
    page.box("checkEverything").click();
    const Set set = openSet(music);
    page->apply(set);
    page.presets().setCurrentIndex(1);
    page->apply(set);
    QCOMPARE(itemsOf(music), Calls{R"(+C:\Users\anna\Pictures)"});
}

void ItemsPageWritingTest::aFaultLeavesTheItemsOfTheSet() {
    PageOfSource page;
    const Set set = openSet(projects);
    const Calls before = itemsOf(projects);
    agent().inject("setCaseSensitive", simulator::Fault{"Not today."});
    QCOMPARE(errorOf([&] { page->apply(set); }), QStringLiteral("Not today."));
    QCOMPARE(itemsOf(projects), before);
}

void ItemsPageWritingTest::theUserSeesThatItTakesItsTime() {
    const auto watching = boost::make_shared<WatchingAgent>();
    const auto set =
        boost::make_shared<hessiancln::BackupSet>(watching, "set", false, 0u, std::string());
    PageOfSource page;
    QVERIFY(page->load(set));
    QCOMPARE(watching->waited, QVector<bool>{true});
    page->apply(set);
    QCOMPARE(watching->waited, (QVector<bool>{true, true}));
    QVERIFY(!QGuiApplication::overrideCursor());
}

QTEST_MAIN(ItemsPageWritingTest)
#include "items_page_writing_test.moc"
