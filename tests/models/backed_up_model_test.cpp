// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <memory>

#include <QAbstractItemModelTester>
#include <QIcon>
#include <QListView>
#include <QPointer>
#include <QSignalSpy>
#include <QtTest>

#include <boost/make_shared.hpp>

#include "models/backed_up_data_model.h"
#include "models/backed_up_node.h"
#include "models/backedup_data_dir_only_model.h"
#include "models/backedup_data_file_filter_model.h"
#include "models/display_path.h"
#include "models/generation_select_model.h"
#include "models/small_tree_view.h"
#include "models/tree_state_memo.h"
#include "resources/pictures.h"
#include "tests/models/shown_tree.h"
#include "tests/support/viewing_agent.h"
#include "transport/invoke_exception.h"
#include "ui/locale_text.h"
#include "ui/shared_icon.h"

namespace {

using support::storedDrive;
using support::storedFile;
using support::storedFolder;
using support::ViewingAgent;

constexpr auto strict = QAbstractItemModelTester::FailureReportingMode::QtTest;

QString q(const char* text) {
    return QString::fromUtf8(text);
}

bool check(QAbstractItemModel& model, const char* path, bool value = true) {
    return model.setData(indexAt(model, path), value, Qt::CheckStateRole);
}

int state(const QAbstractItemModel& model, const char* path) {
    return indexAt(model, path).data(Qt::CheckStateRole).toInt();
}

QImage imageOf(const QString& resource) {
    return ui::sharedPixmap(resource).toImage();
}

/// The selected rows of a tree, by their paths.
QStringList selectedPaths(const QTreeView& tree) {
    QStringList paths;
    for (const QModelIndex& index : tree.selectionModel()->selectedRows())
        paths << models::displayPath(index).join(QLatin1Char('/'));
    return paths;
}

} // namespace

/// The content of a backup set as a tree, its two proxies, the memory of expanded folders, and the
/// table of generations.
class BackedUpModelTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { resources::initPictures(); }
    void init();

    void modelsAreThoseOfQt();
    void makingAModelFetchesNothing();
    void aFolderIsFetchedOnceWhenItsRowsAreLookedAt();
    void aFileIsNeverAskedForChildren();
    void theDotStandsAboveAllOthers();
    void rolesOfAnItem();
    void onlyTheCheckStateCanBeSet();
    void checkingFetchesNothingAndIsInherited();
    void eachChangeIsReportedOnce();
    void aSingleTopLevelEntrySelectsAll();
    void aPartialCheckSelectsButNotAll();
    void aFailedFolderIsReportedLaterAndStaysEmpty();
    void aFailedTopLevelIsReportedAtOnce();
    void directoriesOnly();
    void filesOfTheChosenFolder();
    void anEmptyFilterShowsAllFilesOfTheFolder();
    void theFolderStaysTheRootOfTheListThroughFilters();
    void proxiesGoWithTheirModel();
    void aMemoKeepsExpansionAndSelection();
    void aMemoPassesOverWhatIsGone();
    void aMemoFetchesOnlyWhatIsShown();
    void anEmptyMemoLeavesTheSelection();
    void pathsGoBothWays();
    void generationsAreATable();
    void theNewestInTheSpanHasTheSign();
    void noGenerationInTheSpanHasTheSign();

private:
    QString calls() { return QString::fromStdString(agent_->takeCalls()); }
    std::unique_ptr<CBackedUpDataModel> newModel() {
        return std::make_unique<CBackedUpDataModel>(ViewingAgent::view(agent_));
    }

    boost::shared_ptr<ViewingAgent> agent_;
    std::unique_ptr<CBackedUpDataModel> model_;
};

void BackedUpModelTest::init() {
    agent_ = boost::make_shared<ViewingAgent>();
    agent_->items[-1] = {storedDrive(2, "D:"), storedDrive(1, "C:")};
    agent_->items[1] = {storedFolder(10, "users"), storedFile(11, "Notes"),
                        storedFolder(12, "etc")};
    agent_->items[10] = {storedFolder(100, "bob"), storedFolder(101, "Ann")};
    agent_->items[100] = {storedFile(1000, "c.txt")};
    agent_->items[101] = {storedFile(1011, "b.txt"), storedFolder(1012, "sub"),
                          storedFile(1010, "a.doc")};
    agent_->items[1012] = {};
    agent_->items[12] = {};
    agent_->items[2] = {storedFile(20, "x"), storedFile(21, "y")};
    model_ = newModel();
}

void BackedUpModelTest::modelsAreThoseOfQt() {
    const QAbstractItemModelTester tester(model_.get(), strict);
    CBackedupDataDirOnlyModel directories(*model_);
    const QAbstractItemModelTester directoriesTester(&directories, strict);
    CBackedupDataFileFilterModel files(*model_);
    const QAbstractItemModelTester filesTester(&files, strict);
    files.setSourceRoot(indexAt(*model_, "C:/users/Ann"));
    files.setFilterWildcard(q("*.txt"));
    check(*model_, "C:");
    check(*model_, "C:/users/Ann/a.doc", false);
    QCOMPARE(model_->selectedIds(), (std::vector<std::int64_t>{12, 11, 1011, 1012, 100}));
}

void BackedUpModelTest::makingAModelFetchesNothing() {
    QCOMPARE(calls(), QString());
    QVERIFY(model_->hasChildren());
    QVERIFY(model_->canFetchMore({}));
    QCOMPARE(model_->columnCount(), 1);
    QVERIFY(!model_->hasSelection());
    QVERIFY(!model_->allSelected());
    QCOMPARE(calls(), QString());
}

void BackedUpModelTest::aFolderIsFetchedOnceWhenItsRowsAreLookedAt() {
    QCOMPARE(namesIn(*model_), q("C:|D:"));
    QCOMPARE(calls(), q("-1"));
    const QModelIndex c = model_->index(0, 0);
    QVERIFY(model_->hasChildren(c));
    QVERIFY(model_->canFetchMore(c));
    QCOMPARE(calls(), QString());
    QVERIFY(!model_->index(9, 0, c).isValid());
    QCOMPARE(calls(), q("1"));
    QCOMPARE(model_->rowCount(c), 3);
    model_->fetchMore(c);
    QVERIFY(!model_->canFetchMore(c));
    QCOMPARE(model_->parent(model_->index(1, 0, c)), c);
    QVERIFY(!model_->parent(c).isValid());
    QCOMPARE(calls(), QString());
    const QModelIndex etc = indexAt(*model_, "C:/etc");
    QVERIFY(model_->hasChildren(etc));
    QCOMPARE(model_->rowCount(etc), 0);
    QVERIFY(!model_->hasChildren(etc));
}

void BackedUpModelTest::aFileIsNeverAskedForChildren() {
    const QModelIndex notes = indexAt(*model_, "C:/Notes");
    calls();
    QCOMPARE(model_->rowCount(notes), 0);
    QVERIFY(!model_->hasChildren(notes));
    QVERIFY(!model_->canFetchMore(notes));
    QVERIFY(!model_->canHaveChildren(notes));
    QVERIFY(model_->canHaveChildren(indexAt(*model_, "C:")));
    QVERIFY(model_->canHaveChildren({}));
    QCOMPARE(calls(), QString());
}

void BackedUpModelTest::theDotStandsAboveAllOthers() {
    agent_->items[1] = {storedFile(13, "b"), storedFile(14, "A"), storedFile(15, "."),
                        storedFile(16, "!"), storedFile(17, "a")};
    QCOMPARE(namesIn(*model_, model_->index(0, 0)), q(".|!|A|a|b"));
}

void BackedUpModelTest::rolesOfAnItem() {
    using Type = hessiancln::SelectableItemType;
    agent_->items[1] = {
        {1, "a", Type::Drive, false, true},       {2, "b", Type::Folder, false, true},
        {3, "c", Type::OtherFolder, false, true}, {4, "d", Type::File, true, true},
        {5, "e", Type::Database, true, true},     {6, "Größe", Type(9), true, false}};
    const QModelIndex c = model_->index(0, 0);
    const QStringList pictures{q(":/tree/hdd"),  q(":/tree/folder"), q(":/tree/folder"),
                               q(":/tree/file"), q(":/tree/db"),     q(":/tree/unknown")};
    for (int row = 0; row < pictures.size(); ++row) {
        const QModelIndex index = model_->index(row, 0, c);
        QCOMPARE(index.data(Qt::DecorationRole).value<QPixmap>().toImage(),
                 imageOf(pictures.at(row)));
        QCOMPARE(static_cast<int>(index.flags()), 113);
        QCOMPARE(index.data(Qt::CheckStateRole).toInt(), 0);
        QVERIFY(!index.data(Qt::ToolTipRole).isValid());
    }
    QCOMPARE(model_->index(5, 0, c).data().toString(), q("Größe"));
}

void BackedUpModelTest::onlyTheCheckStateCanBeSet() {
    const QModelIndex c = model_->index(0, 0);
    QVERIFY(!model_->setData(c, q("E:"), Qt::EditRole));
    QVERIFY(!model_->setData({}, true, Qt::CheckStateRole));
    QCOMPARE(c.data().toString(), q("C:"));
    QVERIFY(model_->setData(c, Qt::Checked, Qt::CheckStateRole));
    QCOMPARE(c.data(Qt::CheckStateRole).toInt(), 2);
    QVERIFY(model_->setData(c, Qt::PartiallyChecked, Qt::CheckStateRole));
    QCOMPARE(c.data(Qt::CheckStateRole).toInt(), 2);
    QVERIFY(model_->setData(c, Qt::Unchecked, Qt::CheckStateRole));
    QCOMPARE(c.data(Qt::CheckStateRole).toInt(), 0);
}

void BackedUpModelTest::checkingFetchesNothingAndIsInherited() {
    check(*model_, "C:");
    QCOMPARE(calls(), q("-1"));
    QCOMPARE(state(*model_, "C:/users/Ann/a.doc"), 2);
    check(*model_, "C:/users/Ann/a.doc", false);
    QCOMPARE(state(*model_, "C:/users/Ann"), 1);
    QCOMPARE(state(*model_, "C:/users"), 1);
    QCOMPARE(state(*model_, "C:"), 1);
    QCOMPARE(state(*model_, "C:/users/bob/c.txt"), 2);
}

void BackedUpModelTest::eachChangeIsReportedOnce() {
    indexAt(*model_, "C:/users/Ann/a.doc");
    const QSignalSpy changed(model_.get(), &CBackedUpDataModel::dataChanged);
    const QSignalSpy selected(model_.get(), &CBackedUpDataModel::itemSelectionChanged);
    check(*model_, "C:/users/Ann/a.doc");
    // The file and its four ancestors, of which the root has no index.
    QCOMPARE(selected.size(), 5);
    QCOMPARE(changed.size(), 4);
    QCOMPARE(changed.first().first().toModelIndex(), indexAt(*model_, "C:/users/Ann/a.doc"));
    QVERIFY(changed.first().at(2).value<QVector<int>>().isEmpty());
    check(*model_, "C:/users/Ann/b.txt");
    // The ancestors stay partly checked.
    QCOMPARE(selected.size(), 6);
}

void BackedUpModelTest::aSingleTopLevelEntrySelectsAll() {
    agent_->items[-1] = {storedDrive(1, "C:")};
    check(*model_, "C:");
    QVERIFY(model_->hasSelection());
    QVERIFY(model_->allSelected());
    QCOMPARE(model_->selectedIds(), std::vector<std::int64_t>{1});
}

void BackedUpModelTest::aPartialCheckSelectsButNotAll() {
    check(*model_, "D:/x");
    QVERIFY(model_->hasSelection());
    QVERIFY(!model_->allSelected());
    check(*model_, "D:/x", false);
    QVERIFY(!model_->hasSelection());
}

void BackedUpModelTest::aFailedFolderIsReportedLaterAndStaysEmpty() {
    agent_->items.erase(10);
    const QModelIndex users = indexAt(*model_, "C:/users");
    calls();
    QSignalSpy failed(model_.get(), &CBackedUpDataModel::fetchFailed);
    QCOMPARE(model_->rowCount(users), 0);
    QCOMPARE(failed.size(), 0);
    QTRY_COMPARE(failed.size(), 1);
    QCOMPARE(failed.first().first().toString(), q("There is no item 10"));
    QVERIFY(!model_->hasChildren(users));
    QCOMPARE(model_->rowCount(users), 0);
    QCOMPARE(calls(), q("10"));
}

void BackedUpModelTest::aFailedTopLevelIsReportedAtOnce() {
    agent_->items.erase(-1);
    QVERIFY_EXCEPTION_THROWN(model_->fetchTopLevel(), hessiancln::invoke_exception);
    model_->fetchTopLevel();
    QCOMPARE(model_->rowCount(), 0);
    QCOMPARE(calls(), q("-1"));
}

void BackedUpModelTest::directoriesOnly() {
    CBackedupDataDirOnlyModel directories(*model_);
    QCOMPARE(directories.QObject::parent(), model_.get());
    QCOMPARE(namesIn(directories), q("C:|D:"));
    QCOMPARE(namesIn(directories, indexAt(directories, "C:")), q("etc|users"));
    // Before it is fetched, it isn't known to contain only files.
    QVERIFY(directories.hasChildren(indexAt(directories, "D:")));
    QCOMPARE(directories.rowCount(indexAt(directories, "D:")), 0);
    QVERIFY(!directories.hasChildren(indexAt(directories, "D:")));
}

void BackedUpModelTest::filesOfTheChosenFolder() {
    CBackedupDataFileFilterModel files(*model_);
    QCOMPARE(namesIn(files), q("C:|D:"));
    QCOMPARE(namesIn(files, indexAt(files, "C:")), q("etc|Notes|users"));
    files.setSourceRoot(indexAt(*model_, "C:/users/Ann"));
    // The ancestors stay, so that the view has a path down to its root.
    QCOMPARE(namesIn(files, indexAt(files, "C:")), q("etc|Notes|users"));
    QCOMPARE(namesIn(files, indexAt(files, "C:/users/Ann")), q("a.doc|b.txt"));
    files.setFilterWildcard(q("*.txt"));
    QCOMPARE(namesIn(files, indexAt(files, "C:/users/Ann")), q("b.txt"));
    QCOMPARE(namesIn(files, indexAt(files, "C:/users")), q("Ann|bob"));
    files.setSourceRoot(indexAt(*model_, "C:"));
    QCOMPARE(namesIn(files, indexAt(files, "C:")), QString());
    files.setFilterWildcard(q("No*s"));
    QCOMPARE(namesIn(files, indexAt(files, "C:")), q("Notes"));
}

void BackedUpModelTest::anEmptyFilterShowsAllFilesOfTheFolder() {
    CBackedupDataFileFilterModel files(*model_);
    files.setSourceRoot(indexAt(*model_, "D:"));
    files.setFilterWildcard(q("x"));
    QCOMPARE(namesIn(files, indexAt(files, "D:")), q("x"));
    files.setFilterWildcard(QString());
    QCOMPARE(namesIn(files, indexAt(files, "D:")), q("x|y"));
}

void BackedUpModelTest::theFolderStaysTheRootOfTheListThroughFilters() {
    auto* files = new CBackedupDataFileFilterModel(*model_);
    QListView list;
    list.setModel(files);
    const QModelIndex ann = indexAt(*model_, "C:/users/Ann");
    files->setSourceRoot(ann);
    list.setRootIndex(files->mapFromSource(ann));
    for (const char* pattern : {"a", "nothing", "", "*"})
        files->setFilterWildcard(q(pattern));
    QCOMPARE(files->mapToSource(list.rootIndex()), ann);
    QCOMPARE(files->rowCount(list.rootIndex()), 2);
}

void BackedUpModelTest::proxiesGoWithTheirModel() {
    const QPointer<QObject> directories = new CBackedupDataDirOnlyModel(*model_);
    const QPointer<QObject> files = new CBackedupDataFileFilterModel(*model_);
    model_.reset();
    QVERIFY(!directories);
    QVERIFY(!files);
}

void BackedUpModelTest::aMemoKeepsExpansionAndSelection() {
    CSmallTreeView tree;
    tree.setSelectionMode(QAbstractItemView::ExtendedSelection);
    tree.setModel(new CBackedupDataDirOnlyModel(*model_));
    for (const char* path : {"C:", "C:/users", "C:/users/Ann"})
        tree.expand(indexAt(*tree.model(), path));
    tree.selectionModel()->select(indexAt(*tree.model(), "C:/users/bob"),
                                  QItemSelectionModel::Select);
    tree.selectionModel()->select(indexAt(*tree.model(), "D:"), QItemSelectionModel::Select);
    const TreeStateMemo memo(tree, 0);
    const auto other = newModel();
    tree.setModel(new CBackedupDataDirOnlyModel(*other));
    tree.setCurrentIndex(tree.model()->index(0, 0));
    memo.restore();
    for (const char* path : {"C:", "C:/users", "C:/users/Ann"})
        QVERIFY2(tree.isExpanded(indexAt(*tree.model(), path)), path);
    for (const char* path : {"D:", "C:/etc", "C:/users/bob"})
        QVERIFY2(!tree.isExpanded(indexAt(*tree.model(), path)), path);
    QCOMPARE(selectedPaths(tree), (QStringList{q("C:/users/bob"), q("D:")}));
    tree.setModel(nullptr);
}

void BackedUpModelTest::aMemoPassesOverWhatIsGone() {
    CSmallTreeView tree;
    tree.setModel(new CBackedupDataDirOnlyModel(*model_));
    for (const char* path : {"C:", "C:/users", "C:/users/Ann", "D:"})
        tree.expand(indexAt(*tree.model(), path));
    tree.setCurrentIndex(indexAt(*tree.model(), "C:/users/Ann/sub"));
    const TreeStateMemo memo(tree, 0);
    agent_->items[1] = {storedFolder(10, "other"), storedFolder(12, "etc")};
    const auto other = newModel();
    tree.setModel(new CBackedupDataDirOnlyModel(*other));
    memo.restore();
    QVERIFY(tree.isExpanded(indexAt(*tree.model(), "C:")));
    QVERIFY(tree.isExpanded(indexAt(*tree.model(), "D:")));
    QVERIFY(!tree.isExpanded(indexAt(*tree.model(), "C:/other")));
    QCOMPARE(selectedPaths(tree), QStringList());
    tree.setModel(nullptr);
}

void BackedUpModelTest::aMemoFetchesOnlyWhatIsShown() {
    CSmallTreeView tree;
    tree.setModel(new CBackedupDataDirOnlyModel(*model_));
    tree.expand(indexAt(*tree.model(), "C:"));
    tree.expand(indexAt(*tree.model(), "C:/users"));
    indexAt(*tree.model(), "C:/users/Ann/sub");
    const TreeStateMemo memo(tree, 0);
    const auto other = newModel();
    tree.setModel(new CBackedupDataDirOnlyModel(*other));
    calls();
    memo.restore();
    tree.resize(300, 400);
    tree.grab();
    QCOMPARE(calls(), q("1 10"));
    tree.setModel(nullptr);
}

void BackedUpModelTest::anEmptyMemoLeavesTheSelection() {
    CSmallTreeView tree;
    TreeStateMemo(tree, 0).restore();
    const TreeStateMemo memo(tree, 0);
    tree.setModel(new CBackedupDataDirOnlyModel(*model_));
    tree.setCurrentIndex(tree.model()->index(0, 0));
    memo.restore();
    QCOMPARE(selectedPaths(tree), QStringList{q("C:")});
    tree.setModel(nullptr);
}

void BackedUpModelTest::pathsGoBothWays() {
    using models::displayPath;
    using models::indexAtPath;
    const QModelIndex file = indexAt(*model_, "C:/users/Ann/a.doc");
    const QStringList path{q("C:"), q("users"), q("Ann"), q("a.doc")};
    QCOMPARE(displayPath(file), path);
    QCOMPARE(displayPath({}), QStringList());
    QCOMPARE(indexAtPath(*model_, path, Qt::CaseSensitive), file);
    const QStringList otherCase{q("c:"), q("USERS"), q("ann"), q("A.DOC")};
    QCOMPARE(indexAtPath(*model_, otherCase, Qt::CaseInsensitive), file);
    QVERIFY(!indexAtPath(*model_, otherCase, Qt::CaseSensitive).isValid());
    QVERIFY(!indexAtPath(*model_, {q("C:"), q("gone"), q("Ann")}, Qt::CaseSensitive).isValid());
    QVERIFY(!indexAtPath(*model_, {}, Qt::CaseSensitive).isValid());
}

void BackedUpModelTest::generationsAreATable() {
    CGenerationSelectModel table({{100, 2000, 1536, 900}, {300, 4000, 0, 10}, {200, 3000, 7, 5}});
    const QAbstractItemModelTester tester(&table, strict);
    QCOMPARE(table.columnCount(), 3);
    QCOMPARE(table.rowCount(), 3);
    QCOMPARE(table.rowCount(table.index(0, 0)), 0);
    const auto text = [&table](int row, int column) {
        return table.index(row, column).data().toString();
    };
    QCOMPARE(text(0, 0), ui::timeText(4000, QLocale::ShortFormat));
    QCOMPARE(text(0, 1), q("Empty"));
    QCOMPARE(text(0, 2), ui::timeText(300, QLocale::ShortFormat));
    QCOMPARE(text(1, 1), q("7 Byte(s)"));
    QCOMPARE(text(2, 1), q("1.50 KB"));
    QCOMPARE(table.generationAt(table.index(2, 1)).backup_time, 2000);
    QCOMPARE(table.index(0, 1).data(Qt::TextAlignmentRole).toInt(), 130);
    QVERIFY(!table.index(0, 0).data(Qt::TextAlignmentRole).isValid());
    for (const auto& [column, header] : {std::pair(0, "Backup time"), std::pair(1, "File size"),
                                         std::pair(2, "Modification time")})
        QCOMPARE(table.headerData(column, Qt::Horizontal).toString(), q(header));
    QVERIFY(!table.headerData(0, Qt::Vertical).isValid());
    QVERIFY(!table.headerData(0, Qt::Horizontal, Qt::DecorationRole).isValid());
}

void BackedUpModelTest::theNewestInTheSpanHasTheSign() {
    CGenerationSelectModel table({{100, 2000, 1, 1}, {300, 4000, 1, 1}, {200, 3000, 1, 1}});
    const QImage plain = imageOf(q(":/tree/file"));
    const QImage sign = imageOf(q(":/tree/selected_file"));
    QVERIFY(plain != sign);
    const auto picture = [&table](int row) {
        return table.index(row, 0).data(Qt::DecorationRole).value<QPixmap>().toImage();
    };
    const QSignalSpy changed(&table, &QAbstractItemModel::dataChanged);
    table.selectNewestInRange(0, 3500);
    QCOMPARE(picture(0), plain);
    QCOMPARE(picture(1), sign);
    QCOMPARE(changed.size(), 1);
    table.selectNewestInRange(0, 0);
    QCOMPARE(picture(0), sign);
    QCOMPARE(picture(1), plain);
    // One row lost the sign, the other got it.
    QCOMPARE(changed.size(), 3);
    QVERIFY(!table.index(0, 1).data(Qt::DecorationRole).isValid());
    QVERIFY(table.isNewestWithin(3500, 3000));
    QVERIFY(!table.isNewestWithin(0, 4000));
}

void BackedUpModelTest::noGenerationInTheSpanHasTheSign() {
    CGenerationSelectModel table({{100, 2000, 1, 1}, {300, 4000, 1, 1}});
    table.selectNewestInRange(5000, 0);
    QCOMPARE(table.rowCount(), 2);
    for (int row = 0; row < 2; ++row)
        QCOMPARE(table.index(row, 0).data(Qt::DecorationRole).value<QPixmap>().toImage(),
                 imageOf(q(":/tree/file")));
}

QTEST_MAIN(BackedUpModelTest)
#include "backed_up_model_test.moc"
