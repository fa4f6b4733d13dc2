// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QSignalSpy>
#include <QTextDocument>
#include <QToolTip>

#include "models/select_display_delegate.h"
#include "tests/wizards/items_page_fixture.h"
#include "ui/wizard_frame.h"

namespace {

using Calls = PageFixture::Calls;

const QString musicFilter = QStringLiteral(
    ".*\\.(a3c|aac|aif|aifc|aiff|ape|flac|itl|m3u|m4a|m4p|mid|midi|mp1|mp2|mp3|mp4|pls|ra|ram|rm|"
    "rmi|s3m|wav|wma|wpl|xm)");
const std::string preset = R"(C:\Users\anna\Pictures)";

QString text(const char* utf8) {
    return QString::fromUtf8(utf8);
}

QStringList path(const char* joined) {
    return text(joined).split(QLatin1Char('\\'));
}

} // namespace

/// The items of a set: how the page shows them, and what it lets the user choose.
class ItemsPageTest : public QObject, private ItemsPageFixture {
    Q_OBJECT
private slots:
    void init() { start(); }
    void cleanup() { end(); }

    void aNewSetShowsThePresets();
    void aPathThatLooksLikeHtmlIsShownAsItIs();
    void aComputerWithoutPresetsShowsTheTree();
    void aSetOfAnotherKindIsRefused();
    void withoutASetAndASourceNothingIsAsked();

    void theItemsOfASetAreShown();
    void onePresetComesBackAsThePreset();
    void aPresetWithABackslashAtItsEndIsThePreset();
    void twoItemsOfOnePresetAreThePreset();
    void aPresetAndAnotherPathAreCustom();
    void aPresetInOtherCaseIsCustom();
    void aSetWithoutItemsIsCustom();
    void aSetWithoutFiltersHoldsAllFiles();
    void extensionsOfTheUserAreNoKind();
    void rejectedExtensionsAreShown();
    void anExtensionOfAKindTurnsItOnOnlyInItsFilter();
    void filtersOfForeignOriginDoNoHarm();
    void itemsOfUnknownTypesAreSkipped();
    void aLongListOfExtensionsIsShownWhole();

    void backAndNextKeepsTheTree();
    void anotherComputerLosesTheTree();
    void anotherUserLosesTheTree();

    void itSaysWhatAPresetCantShow();
    void allFilesHaveTheirOwnBoxes();
    void extensionsHaveAFieldWhenTheyAreChecked();
    void anEmptyFieldBlocks();
    void theTreeNeedsASelection();
    void aCheckInTheTreeIsReported();
    void exclusionsAreDrawnByOneDelegate();
    void theLocationTakesThePlaceItNeeds();
    void wrongExtensionsAreExplained();
    void wrongExtensionsAreNotLeftOut();

    void aFaultLeavesThePageAsItWas();
    void aFaultOfASetGoesToTheOneWhoRunsTheWizard();
};

void ItemsPageTest::aNewSetShowsThePresets() {
    PageOfSource page;
    const Calls calls = takeCalls();
    QCOMPARE(Calls(calls.end() - 2, calls.end()),
             (Calls{"DataSourceBrowser.getPredefinedItems(\"My Computer\")",
                    "DataSourceBrowser.getSubItems(\"My Computer\", \"\")"}));
    QCOMPARE(page.presets().count(), 4);
    QCOMPARE(page.presets().currentText(), text("Documents of anna"));
    QCOMPARE(page.presets().toolTip(), text(R"(C:\Users\anna\Documents)"));
    page.presets().setCurrentIndex(3);
    QCOMPARE(page.presets().toolTip(), text(R"(D:\Mail)"));
    QVERIFY(page.radio("radioSpecificLocation").isChecked());
    QVERIFY(page.presets().isEnabled());
    QVERIFY(page.widget("frameLocationType").isVisible());
    QVERIFY(!page.tree().isVisible());
    QCOMPARE(page.kinds(), text("D"));
    QVERIFY(page->isComplete());
    QVERIFY(page.tree().uniformRowHeights());
}

void ItemsPageTest::aPathThatLooksLikeHtmlIsShownAsItIs() {
    agent().withWorld([](simulator::World& world) {
        auto& presets = world.network.local()->presets;
        presets.resize(1);
        presets.front().path = "/home/<b>anna</b>";
    });
    PageOfSource page;
    QTextDocument shown;
    shown.setHtml(page.presets().toolTip());
    QVERIFY(Qt::mightBeRichText(page.presets().toolTip()));
    QCOMPARE(shown.toPlainText(), text("/home/<b>anna</b>"));
}

void ItemsPageTest::aComputerWithoutPresetsShowsTheTree() {
    agent().withWorld([](simulator::World& world) { world.network.local()->presets.clear(); });
    PageOfSource page;
    QVERIFY(!page.widget("frameLocationType").isVisible());
    QVERIFY(page.radio("radioCustom").isChecked());
    QVERIFY(page.tree().isVisible());
    QCOMPARE(page.tree().model()->rowCount(), 3);
    QVERIFY(!page->isComplete());
}

void ItemsPageTest::aSetOfAnotherKindIsRefused() {
    const Set set = openSet(inventory);
    ItemsSelectPage page;
    QVERIFY(!page.load(set));
    QCOMPARE(takeCalls(), Calls{"BackupSet.getDataType()"});
}

void ItemsPageTest::withoutASetAndASourceNothingIsAsked() {
    ShownPage<ItemsSelectPage> page;
    QCOMPARE(takeCalls(), Calls{});
    QVERIFY(!page->isComplete());
}

void ItemsPageTest::theItemsOfASetAreShown() {
    const Set set = openSet(projects);
    PageOfSet page(set);
    QVERIFY(page.loaded);
    QCOMPARE(
        takeCalls(),
        (Calls{"BackupSet.getDataType()", "BackupSet.dataBrowser()", "BackupSet.getComputerName()",
               "DataSourceBrowser.getPredefinedItems(\"My Computer\")",
               "DataSourceBrowser.getSubItems(\"My Computer\", \"\")", "BackupSet.items()",
               "BackupSetItem.getFolder()", "BackupSetItem.getType()",
               "DataSourceBrowser.getSubItems(\"My Computer\", \"D:\")",
               "BackupSetItem.getFolder()", "BackupSetItem.getType()",
               "DataSourceBrowser.getSubItems(\"My Computer\", \"D:\\\\Projects\")",
               "BackupSetItem.getFolder()", "BackupSetItem.getType()", "BackupSetItem.types()",
               "BackupSetRegexExclusion.getExpression()"}));
    QCOMPARE(page.kinds(), text("All tb"));
    QVERIFY(page.radio("radioCustom").isChecked());
    QVERIFY(page.tree().isVisible());
    QCOMPARE(page.state(path("D:")), 1);
    QCOMPARE(page.state(path(R"(D:\Projects)")), 2);
    QCOMPARE(page.state(path(R"(D:\Projects\Archive)")), 3);
    QCOMPARE(page.state(path(R"(D:\Projects\Tower)")), 2);
    QCOMPARE(page.state(path("C:")), 0);
    QVERIFY(page->isComplete());
}

void ItemsPageTest::onePresetComesBackAsThePreset() {
    PageOfSet page(openSetWith({included(preset)}));
    QVERIFY(page.radio("radioSpecificLocation").isChecked());
    QCOMPARE(page.presets().currentText(), text("Pictures of anna"));
    QVERIFY(!page.tree().isVisible());
}

void ItemsPageTest::aPresetWithABackslashAtItsEndIsThePreset() {
    PageOfSet page(openSetWith({included(R"(D:\Mail\\)")}));
    QVERIFY(page.radio("radioSpecificLocation").isChecked());
    QCOMPARE(page.presets().currentText(), text("Mail"));
}

void ItemsPageTest::twoItemsOfOnePresetAreThePreset() {
    PageOfSet page(openSetWith({included(preset), included(preset + "\\")}));
    QVERIFY(page.radio("radioSpecificLocation").isChecked());
    QCOMPARE(page.presets().currentText(), text("Pictures of anna"));
}

void ItemsPageTest::aPresetAndAnotherPathAreCustom() {
    PageOfSet page(openSetWith({included(preset), included(R"(D:\Tax)")}));
    QVERIFY(page.radio("radioCustom").isChecked());
    QVERIFY(!page.presets().isEnabled());
    QVERIFY(page.tree().isVisible());
    QCOMPARE(page.state(path(R"(C:\Users\anna\Pictures)")), 2);
    QCOMPARE(page.state(path(R"(D:\Tax)")), 2);
}

void ItemsPageTest::aPresetInOtherCaseIsCustom() {
    PageOfSet page(openSetWith({included(R"(c:\users\ANNA\pictures)")}));
    QVERIFY(page.radio("radioCustom").isChecked());
    QCOMPARE(page.state(path(R"(C:\Users\anna\Pictures)")), 2);
}

void ItemsPageTest::aSetWithoutItemsIsCustom() {
    PageOfSet page(openSetWith({}));
    QVERIFY(page.radio("radioCustom").isChecked());
    QCOMPARE(page.kinds(), text("All "));
    QVERIFY(!page->isComplete());
}

void ItemsPageTest::aSetWithoutFiltersHoldsAllFiles() {
    PageOfSet page(openSetWith({included(R"(D:\Music)")}));
    QCOMPARE(page.kinds(), text("All "));
    QCOMPARE(support::child<QStackedWidget>(page.page(), "stackedWidget").currentWidget(),
             &page.widget("frameExclusion"));
    QVERIFY(page->isComplete());
}

void ItemsPageTest::extensionsOfTheUserAreNoKind() {
    PageOfSet page(openSetWith(
        {included(R"(D:\Music)"), filter("D:", R"(.*\.(CustomFileExtensions|abc|def))", true)}));
    const Calls calls = takeCalls();
    QCOMPARE(calls.back(), std::string("BackupSetRegexExclusion.getInclusion()"));
    QCOMPARE(page.kinds(), text("c"));
    QCOMPARE(page.edit("editCustomInc").text(), text("abc|def"));
    QVERIFY(page.edit("editCustomInc").isEnabled());
    QCOMPARE(page.edit("editCustomExc").text(), QString());
    QVERIFY(!page.edit("editCustomExc").isEnabled());
}

void ItemsPageTest::rejectedExtensionsAreShown() {
    PageOfSet page(openSetWith(
        {included(R"(D:\Music)"), filter("D:", R"(.*\.(|bak|CustomFileExtensions|abc))", false)}));
    QCOMPARE(page.kinds(), text("All bx"));
    QCOMPARE(page.edit("editCustomExc").text(), text("abc"));
    QVERIFY(page.edit("editCustomExc").isEnabled());
    QCOMPARE(page.edit("editCustomInc").text(), QString());
}

void ItemsPageTest::anExtensionOfAKindTurnsItOnOnlyInItsFilter() {
    PageOfSet page(
        openSetWith({included(R"(D:\Music)"), filter("D:", musicFilter.toStdString(), true),
                     filter("D:", R"(.*\.(CustomFileExtensions|doc|bak|jpg))", true)}));
    QCOMPARE(page.kinds(), text("Mc"));
    QCOMPARE(page.edit("editCustomInc").text(), text("doc|bak|jpg"));
}

void ItemsPageTest::filtersOfForeignOriginDoNoHarm() {
    PageOfSet page(openSetWith({included(R"(D:\Music)"), filter("D:", "CustomFileExtensions", true),
                                filter("D:", "((((", false), filter("", "[docs", false)}));
    QCOMPARE(page.kinds(), text("D"));
    QCOMPARE(page.edit("editCustomInc").text(), QString());
}

void ItemsPageTest::itemsOfUnknownTypesAreSkipped() {
    agent().inject("getType", simulator::UnknownEnumValue{});
    PageOfSet page(openSetWith({included(R"(D:\Tax)"), included(R"(D:\Music)")}));
    QCOMPARE(page.state(path(R"(D:\Tax)")), 0);
    QCOMPARE(page.state(path(R"(D:\Music)")), 2);
}

void ItemsPageTest::aLongListOfExtensionsIsShownWhole() {
    std::string extensions = "first";
    for (int number = 0; number < 10000; ++number)
        extensions += "|x" + std::to_string(number);
    PageOfSet page(
        openSetWith({included(R"(D:\Music)"),
                     filter("D:", ".*\\.(CustomFileExtensions|" + extensions + ")", true)}));
    QCOMPARE(page.edit("editCustomInc").text().toStdString(), extensions);
}

void ItemsPageTest::backAndNextKeepsTheTree() {
    PageOfSource page;
    page.radio("radioCustom").click();
    page.check(path(R"(D:\Tax)"));
    page.box("checkMusic").click();
    page.wizard.back();
    takeCalls();
    page.wizard.next();
    QCOMPARE(takeCalls(), (Calls{"DataSourceBrowser.getCurrentCredentials()",
                                 "BackupSetCredentials.check(\"My Computer\")"}));
    QCOMPARE(page.state(path(R"(D:\Tax)")), 2);
    QVERIFY(page.radio("radioCustom").isChecked());
    QCOMPARE(page.kinds(), text("DM"));
}

void ItemsPageTest::anotherComputerLosesTheTree() {
    PageOfSource page;
    page.radio("radioCustom").click();
    page.check(path(R"(D:\Tax)"));
    page.box("checkMusic").click();
    auto& computer = support::child<QLineEdit>(page.source, "editComputerName");
    computer.setText(text("FILESRV"));
    page->initializePage();
    QVERIFY(!page.widget("frameLocationType").isVisible());
    QVERIFY(!page->isComplete());
    computer.setText(text("My Computer"));
    page->initializePage();
    QVERIFY(page.widget("frameLocationType").isVisible());
    QVERIFY(page.radio("radioSpecificLocation").isChecked());
    QCOMPARE(page.state(path(R"(D:\Tax)")), 0);
    QCOMPARE(page.kinds(), text("DM"));
}

void ItemsPageTest::anotherUserLosesTheTree() {
    PageOfSource page;
    page.radio("radioCustom").click();
    page.check(path(R"(D:\Tax)"));
    support::child<QLineEdit>(page.source, "editConnectAs").setText(text("somebody else"));
    page->initializePage();
    QCOMPARE(page.state(path(R"(D:\Tax)")), 0);
}

void ItemsPageTest::itSaysWhatAPresetCantShow() {
    PageOfSet page(openSetWith({included(preset), excluded(preset + R"(\Private)")}));
    const auto& note = support::child<QLabel>(page.page(), "labelExclusions");
    QVERIFY(page.radio("radioSpecificLocation").isChecked());
    QVERIFY(note.isVisible());
    QCOMPARE(note.text(),
             text("This set leaves out 1 path(s), which can't be shown with a specific location. "
                  "Finishing the wizard removes these exclusions."));
    page.radio("radioCustom").click();
    QVERIFY(!note.isVisible());
    page.radio("radioSpecificLocation").click();
    QVERIFY(note.isVisible());
    PageOfSet plain(openSetWith({included(preset)}));
    QVERIFY(plain.radio("radioSpecificLocation").isChecked());
    QVERIFY(!support::child<QLabel>(plain.page(), "labelExclusions").isVisible());
}

void ItemsPageTest::allFilesHaveTheirOwnBoxes() {
    PageOfSource page;
    const auto& stack = support::child<QStackedWidget>(page.page(), "stackedWidget");
    QCOMPARE(stack.currentWidget(), &page.widget("frameInclusion"));
    const QSignalSpy changes(&page.page(), &QWizardPage::completeChanged);
    page.box("checkEverything").click();
    QCOMPARE(stack.currentWidget(), &page.widget("frameExclusion"));
    QCOMPARE(changes.count(), 1);
    page.box("checkEverything").click();
    QCOMPARE(stack.currentWidget(), &page.widget("frameInclusion"));
}

void ItemsPageTest::extensionsHaveAFieldWhenTheyAreChecked() {
    PageOfSource page;
    QSignalSpy changes(&page.page(), &QWizardPage::completeChanged);
    QVERIFY(!page.edit("editCustomInc").isEnabled());
    page.box("checkCustomInc").click();
    QVERIFY(page.edit("editCustomInc").isEnabled());
    QCOMPARE(page.wizard.focusWidget(), &page.edit("editCustomInc"));
    page.box("checkCustomInc").click();
    QVERIFY(!page.edit("editCustomInc").isEnabled());
    QCOMPARE(changes.count(), 2);
    page.box("checkEverything").click();
    QVERIFY(!page.edit("editCustomExc").isEnabled());
    changes.clear();
    page.box("checkCustomExc").click();
    QCOMPARE(changes.count(), 1);
    QVERIFY(page.edit("editCustomExc").isEnabled());
    QCOMPARE(page.wizard.focusWidget(), &page.edit("editCustomExc"));
}

void ItemsPageTest::anEmptyFieldBlocks() {
    PageOfSource page;
    const QSignalSpy changes(&page.page(), &QWizardPage::completeChanged);
    page.box("checkDocuments").click();
    QVERIFY(!page->isComplete());
    QCOMPARE(changes.count(), 1);
    page.box("checkCustomInc").click();
    QVERIFY(!page->isComplete());
    QVERIFY(!page.wizard.button(QWizard::FinishButton)->isEnabled());
    QTest::keyClicks(&page.edit("editCustomInc"), text("abc"));
    QVERIFY(page->isComplete());
    QVERIFY(page.wizard.button(QWizard::FinishButton)->isEnabled());
    for (const char* box : {"checkVideo", "checkPictures", "checkMusic", "checkEmail"}) {
        page.edit("editCustomInc").clear();
        QVERIFY(!page->isComplete());
        page.box(box).click();
        QVERIFY2(page->isComplete(), box);
        page.box(box).click();
    }
}

void ItemsPageTest::theTreeNeedsASelection() {
    PageOfSource page;
    page.radio("radioCustom").click();
    QVERIFY(!page->isComplete());
    page.check(path("D:"));
    QVERIFY(page->isComplete());
    page.check(path("D:"), false);
    QVERIFY(!page->isComplete());
    page.radio("radioSpecificLocation").click();
    QVERIFY(page->isComplete());
}

void ItemsPageTest::aCheckInTheTreeIsReported() {
    PageOfSource page;
    page.radio("radioCustom").click();
    page.folder(path(R"(C:\Users\anna\Documents)"));
    const QSignalSpy changes(&page.page(), &QWizardPage::completeChanged);
    page.check(path("C:"));
    QCOMPARE(changes.count(), 1);
    page.check(path("D:"));
    QCOMPARE(changes.count(), 1);
    page.check(path("C:"), false);
    page.check(path("D:"), false);
    QCOMPARE(changes.count(), 2);
}

void ItemsPageTest::exclusionsAreDrawnByOneDelegate() {
    PageOfSource page;
    const auto delegate = [&] {
        return qobject_cast<CSelectDisplayDelegate*>(page.tree().itemDelegate());
    };
    const CSelectDisplayDelegate* first = delegate();
    QVERIFY(first);
    support::child<QLineEdit>(page.source, "editConnectAs").setText(text("somebody else"));
    page->initializePage();
    QCOMPARE(delegate(), first);
}

void ItemsPageTest::theLocationTakesThePlaceItNeeds() {
    PageOfSource page;
    const auto stretch = [&] {
        return page.widget("groupLocations").sizePolicy().verticalStretch();
    };
    QCOMPARE(stretch(), 0);
    page.radio("radioCustom").click();
    QCOMPARE(stretch(), 1);
    QVERIFY(page.tree().isVisible());
    QVERIFY(!page.presets().isEnabled());
    QTRY_VERIFY(page.tree().height() >= 140);
    const auto squeezed = [&page] {
        QStringList names;
        for (QWidget* widget : page.page().findChildren<QWidget*>())
            if (widget->isVisible() && !widget->objectName().isEmpty() &&
                widget->height() < widget->minimumSizeHint().height())
                names << widget->objectName();
        return names;
    };
    QTRY_COMPARE(squeezed(), QStringList());
    page.radio("radioSpecificLocation").click();
    QCOMPARE(stretch(), 0);
    QVERIFY(!page.tree().isVisible());
    QVERIFY(page.presets().isEnabled());
}

void ItemsPageTest::wrongExtensionsAreExplained() {
    PageOfSource page;
    page.box("checkCustomInc").click();
    QLineEdit& field = page.edit("editCustomInc");
    QTest::keyClicks(&field, text("abc|d e|"));
    QCOMPARE(field.text(), text("abc|d e|"));
    QCOMPARE(QToolTip::text(), QString());
    for (const char wrong : {'\\', '/', ':', '*', '?', '"', '<', '>', '.', '|'}) {
        QTest::keyClick(&field, wrong);
        QCOMPARE(field.text(), text("abc|d e|"));
    }
    QCOMPARE(QToolTip::text(), text("A file extension cannot contain any of the following "
                                    "characters: \\/:*?\"<>|."));
    field.setText(QString(256, QLatin1Char('x')));
    QVERIFY(field.hasAcceptableInput());
    QTest::keyClick(&field, 'x');
    QCOMPARE(field.text().size(), 256);
    QTest::keyClicks(&field, text("|x"));
    QCOMPARE(field.text().size(), 258);
    QVERIFY(field.hasAcceptableInput());
    QToolTip::hideText();
}

void ItemsPageTest::wrongExtensionsAreNotLeftOut() {
    PageOfSource page;
    page.box("checkEverything").click();
    page.box("checkCustomExc").click();
    QLineEdit& field = page.edit("editCustomExc");
    QTest::keyClicks(&field, text("abc|"));
    QCOMPARE(QToolTip::text(), QString());
    QTest::keyClicks(&field, text("*.d"));
    QCOMPARE(field.text(), text("abc|d"));
    QCOMPARE(QToolTip::text(), text("A file extension cannot contain any of the following "
                                    "characters: \\/:*?\"<>|."));
    QToolTip::hideText();
}

void ItemsPageTest::aFaultLeavesThePageAsItWas() {
    PageOfSource page;
    page.radio("radioCustom").click();
    page.check(path(R"(D:\Tax)"));
    auto& user = support::child<QLineEdit>(page.source, "editConnectAs");
    user.setText(text("somebody else"));
    agent().inject("getPredefinedItems", simulator::Fault{"No presets today."});
    page->initializePage();
    QTRY_VERIFY(!page.wizard.isVisible());
    QCOMPARE(page.state(path(R"(D:\Tax)")), 2);
    QCOMPARE(page.presets().count(), 4);
    QVERIFY(page.radio("radioCustom").isChecked());
    // Entering the page again retries it.
    page->initializePage();
    QCOMPARE(page.state(path(R"(D:\Tax)")), 0);
}

void ItemsPageTest::aFaultOfASetGoesToTheOneWhoRunsTheWizard() {
    const Set set = openSet(projects);
    QWizard wizard;
    auto* page = new ItemsSelectPage;
    wizard.addPage(page);
    QVERIFY(page->load(set));
    agent().inject("getExpression", simulator::Fault{"What was it?"});
    QCOMPARE(errorOf([&] { ui::runWizard(wizard); }), text("What was it?"));
    ItemsPageWidgets widgets(*page);
    QCOMPARE(widgets.presets().count(), 0);
    QVERIFY(!widgets.tree().model());
    QCOMPARE(widgets.kinds(), text("D"));
    QVERIFY(!page->isComplete());
}

QTEST_MAIN(ItemsPageTest)
#include "items_page_test.moc"
