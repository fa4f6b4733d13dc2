// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <memory>

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QtTest>

#include <boost/make_shared.hpp>

#include "models/data_source_dir_only_model.h"
#include "models/data_source_item.h"
#include "models/data_source_model.h"
#include "models/select_display_delegate.h"
#include "models/small_tree_view.h"
#include "resources/pictures.h"
#include "tests/models/browsing_agent.h"
#include "tests/models/shown_tree.h"

using hessiancln::SelectableItemType;

namespace {

constexpr auto strict = QAbstractItemModelTester::FailureReportingMode::QtTest;

QVariant state(const QModelIndex& index) {
    return index.data(Qt::CheckStateRole);
}

bool check(CDataSourceModel& model, const char* path, bool value) {
    return model.setData(indexAt(model, path), value ? Qt::Checked : Qt::Unchecked,
                         Qt::CheckStateRole);
}

QString selection(const CDataSourceModel& model) {
    QStringList lines;
    for (const models::PathItem& item : model.getSelection())
        lines << QLatin1String(item.isExclusion ? "-" : "+") + QString::fromStdString(item.path);
    return lines.join(QLatin1Char(' '));
}

QImage argb(const QImage& image) {
    return image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

} // namespace

class DataSourceModelTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() {
        resources::initPictures();
        arrows_ = new ArrowStyle;
        QApplication::setStyle(arrows_); // takes ownership
    }
    void init();

    void aModelIsOneOfQt();
    void makingAModelFetchesNothing();
    void onlyLookingAtRowsFetches();
    void aFolderIsFetchedOnce();
    void aFileHasNoRows();
    void aShownTreeFetchesWhatIsExpanded();
    void theWaitCursorIsShownForTheLengthOfACall();
    void childrenAreSortedWithTheDotFirst();
    void rolesOfAnItem();
    void anItemCanBeChecked();
    void onlyTheCheckStateCanBeSet();
    void whatIsLoadedLaterTakesOverTheState();
    void uncheckingBelowACheckedFolderExcludesAndHidesTheBoxesBelow();
    void checkingAndCollectingFetchNothing();
    void eachChangeIsReportedOnce();
    void aFolderWithoutAccessHasASignAndNoArrow();
    void aFolderThatTurnsOutEmptyHasNoArrow();
    void anItemIsMarkedByItsPath();
    void aPathThatNamesNothingLeavesTheTree();
    void aSelectionIsPlayedBack();
    void oddNamesAreShown();
    void theTreeWithoutFiles();
    void clicksCheckAndExclude();

private:
    QString calls() { return QString::fromStdString(agent_->takeCalls()); }
    /// Shows the model in a tree, as the pages do.
    std::unique_ptr<CSmallTreeView> shown(QAbstractItemModel& model) {
        auto view = std::make_unique<CSmallTreeView>();
        view->setItemDelegate(new CSelectDisplayDelegate(view.get()));
        view->setModel(&model);
        view->resize(300, 400);
        view->show();
        view->viewport()->grab();
        return view;
    }

    boost::shared_ptr<BrowsingAgent> agent_;
    std::unique_ptr<CDataSourceModel> model_;
    ArrowStyle* arrows_ = nullptr;
};

void DataSourceModelTest::init() {
    agent_ = boost::make_shared<BrowsingAgent>();
    agent_->folders[""] = {driveNamed("D:"), driveNamed("C:")};
    agent_->folders["C:"] = {folderNamed("users"), fileNamed("Notes"), folderNamed("denied"),
                             folderNamed("Empty")};
    agent_->folders["C:\\users"] = {folderNamed("bob"), folderNamed("Ann")};
    agent_->folders["C:\\users\\Ann"] = {fileNamed("a"), fileNamed("b")};
    agent_->folders["C:\\users\\bob"] = {fileNamed("c")};
    agent_->folders["C:\\Empty"] = {};
    agent_->folders["D:"] = {fileNamed("x"), fileNamed("y")};
    model_ = std::make_unique<CDataSourceModel>("pc", BrowsingAgent::browser(agent_));
}

void DataSourceModelTest::aModelIsOneOfQt() {
    const QAbstractItemModelTester tester(model_.get(), strict);
    CDataSourceDirOnlyModel directories(*model_);
    const QAbstractItemModelTester directoriesTester(&directories, strict);
    check(*model_, "C:", true);
    check(*model_, "C:/users/Ann", false);
    model_->markItem({"D:\\x", false});
    QCOMPARE(selection(*model_), QStringLiteral("+C: -C:\\users\\Ann +D:\\x"));
}

void DataSourceModelTest::makingAModelFetchesNothing() {
    const CDataSourceDirOnlyModel directories(*model_);
    QCOMPARE(calls(), QString());
    QVERIFY(!model_->hasSelection());
    QCOMPARE(calls(), QString());
}

void DataSourceModelTest::onlyLookingAtRowsFetches() {
    QVERIFY(model_->hasChildren());
    QVERIFY(model_->canFetchMore({}));
    QCOMPARE(calls(), QString());
    const QModelIndex drive = model_->index(0, 0);
    QCOMPARE(calls(), QStringLiteral("getSubItems(pc, )"));
    QVERIFY(!model_->canFetchMore({}));
    for (int role = 0; role < Qt::UserRole; ++role)
        drive.data(role);
    model_->flags(drive);
    model_->parent(drive);
    QVERIFY(model_->hasChildren(drive));
    QVERIFY(model_->canFetchMore(drive));
    QCOMPARE(calls(), QString());
    QCOMPARE(model_->rowCount(drive), 4);
    QCOMPARE(calls(), QStringLiteral("getSubItems(pc, C:)"));
    QVERIFY(!model_->index(5, 0, model_->index(1, 0)).isValid());
    QCOMPARE(calls(), QStringLiteral("getSubItems(pc, D:)"));
}

void DataSourceModelTest::aFolderIsFetchedOnce() {
    model_->fetchMore({});
    model_->fetchMore({});
    QCOMPARE(model_->rowCount(), 2);
    QCOMPARE(model_->rowCount(), 2);
    QCOMPARE(calls(), QStringLiteral("getSubItems(pc, )"));
}

void DataSourceModelTest::aFileHasNoRows() {
    const QModelIndex file = indexAt(*model_, "C:/Notes");
    calls();
    QCOMPARE(model_->rowCount(file), 0);
    QVERIFY(!model_->hasChildren(file));
    QVERIFY(!model_->canFetchMore(file));
    QVERIFY(!model_->index(0, 0, file).isValid());
    QVERIFY(!model_->isDirectory(file));
    QVERIFY(model_->isDirectory(file.parent()));
    QVERIFY(model_->isDirectory({}));
    QCOMPARE(calls(), QString());
}

void DataSourceModelTest::aShownTreeFetchesWhatIsExpanded() {
    const auto view = shown(*model_);
    QCOMPARE(calls(), QStringLiteral("getSubItems(pc, )"));
    view->expand(model_->index(0, 0));
    view->viewport()->grab();
    QCOMPARE(calls(), QStringLiteral("getSubItems(pc, C:)"));
    view->expand(indexAt(*model_, "C:/users"));
    view->viewport()->grab();
    QCOMPARE(calls(), QStringLiteral("getSubItems(pc, C:\\users)"));
    check(*model_, "C:", true);
    view->viewport()->grab();
    QCOMPARE(calls(), QString());
}

void DataSourceModelTest::theWaitCursorIsShownForTheLengthOfACall() {
    Qt::CursorShape during = Qt::ArrowCursor;
    agent_->onCall = [&] {
        if (const QCursor* cursor = QGuiApplication::overrideCursor())
            during = cursor->shape();
    };
    model_->rowCount();
    QCOMPARE(during, Qt::WaitCursor);
    QVERIFY(!QGuiApplication::overrideCursor());
    during = Qt::ArrowCursor;
    model_->rowCount(indexAt(*model_, "C:/denied"));
    QCOMPARE(during, Qt::WaitCursor);
    QVERIFY(!QGuiApplication::overrideCursor());
}

void DataSourceModelTest::childrenAreSortedWithTheDotFirst() {
    agent_->folders[""] = {folderNamed("b"),  folderNamed("!"), folderNamed("ä"), fileNamed("A"),
                           folderNamed(".."), fileNamed("."),   fileNamed("a")};
    QCOMPARE(namesIn(*model_), QString::fromUtf8(".|!|..|A|a|b|ä"));
}

void DataSourceModelTest::rolesOfAnItem() {
    const QModelIndex drive = indexAt(*model_, "C:");
    QCOMPARE(drive.data().toString(), QStringLiteral("C:"));
    QCOMPARE(drive.data(Qt::DecorationRole).type(), QVariant::Pixmap);
    QCOMPARE(state(drive), QVariant(0));
    for (const int role : {Qt::EditRole, Qt::ToolTipRole, Qt::FontRole, Qt::UserRole})
        QVERIFY(!drive.data(role).isValid());
    QVERIFY(!model_->data({}, Qt::DisplayRole).isValid());
    QCOMPARE(model_->columnCount(), 1);
    QCOMPARE(model_->fullPath(indexAt(*model_, "C:/users/Ann")), std::string("C:\\users\\Ann"));
    QCOMPARE(model_->fullPath({}), std::string());
}

void DataSourceModelTest::anItemCanBeChecked() {
    QCOMPARE(int(model_->flags(model_->index(0, 0))), 113);
    QCOMPARE(int(model_->flags(indexAt(*model_, "C:/Notes"))), 113);
    QVERIFY(check(*model_, "D:/x", true));
    QVERIFY(model_->hasSelection());
    QCOMPARE(state(indexAt(*model_, "D:")), QVariant(1));
    QVERIFY(check(*model_, "D:/y", true));
    QCOMPARE(state(indexAt(*model_, "D:")), QVariant(2));
    QVERIFY(check(*model_, "D:", false));
    QCOMPARE(state(indexAt(*model_, "D:/x")), QVariant(0));
    QVERIFY(!model_->hasSelection());
}

void DataSourceModelTest::onlyTheCheckStateCanBeSet() {
    const QModelIndex drive = indexAt(*model_, "D:");
    QVERIFY(!model_->setData(drive, QStringLiteral("E:"), Qt::EditRole));
    QVERIFY(!model_->setData(drive, true, Qt::DisplayRole));
    QVERIFY(!model_->setData({}, true, Qt::CheckStateRole));
    QCOMPARE(drive.data().toString(), QStringLiteral("D:"));
    QVERIFY(!model_->hasSelection());
    QVERIFY(model_->setData(drive, 1, Qt::CheckStateRole));
    QCOMPARE(state(drive), QVariant(2));
}

void DataSourceModelTest::whatIsLoadedLaterTakesOverTheState() {
    QVERIFY(check(*model_, "D:", true));
    QCOMPARE(state(indexAt(*model_, "D:/x")), QVariant(2));
    QCOMPARE(state(indexAt(*model_, "D:/y")), QVariant(2));
    QVERIFY(check(*model_, "C:", true));
    QVERIFY(check(*model_, "C:/users", false));
    const CDataSourceItem& excluded =
        *static_cast<CDataSourceItem*>(indexAt(*model_, "C:/users/Ann").internalPointer());
    QVERIFY(excluded.checkState() == models::CheckState::Excluded);
    CDataSourceItem partly(std::make_shared<const models::BrowsedComputer>());
    partly.setCheckState(models::CheckState::Partly);
    QVERIFY(CDataSourceItem(partly, folderNamed("x")).checkState() == models::CheckState::Partly);
}

void DataSourceModelTest::uncheckingBelowACheckedFolderExcludesAndHidesTheBoxesBelow() {
    check(*model_, "C:", true);
    check(*model_, "C:/users", false);
    QCOMPARE(state(indexAt(*model_, "C:/users")), QVariant(3));
    QCOMPARE(state(indexAt(*model_, "C:")), QVariant(2));
    QVERIFY(!state(indexAt(*model_, "C:/users/Ann")).isValid());
    QVERIFY(!state(indexAt(*model_, "C:/users/Ann/a")).isValid());
    check(*model_, "C:/users", true);
    QCOMPARE(state(indexAt(*model_, "C:/users")), QVariant(2));
    QCOMPARE(state(indexAt(*model_, "C:/users/Ann")), QVariant(2));
}

void DataSourceModelTest::checkingAndCollectingFetchNothing() {
    model_->rowCount(indexAt(*model_, "C:"));
    calls();
    for (const char* path : {"C:", "C:/users"}) {
        check(*model_, path, true);
        check(*model_, path, false);
        QCOMPARE(selection(*model_), QString());
    }
    check(*model_, "C:", true);
    check(*model_, "C:/users", false);
    QCOMPARE(selection(*model_), QStringLiteral("+C: -C:\\users"));
    QCOMPARE(calls(), QString());
}

void DataSourceModelTest::eachChangeIsReportedOnce() {
    model_->rowCount(indexAt(*model_, "D:"));
    QStringList reported;
    connect(model_.get(), &QAbstractItemModel::dataChanged, this,
            [&](const QModelIndex& first, const QModelIndex& last) {
                QCOMPARE(first, last);
                reported << first.data().toString();
            });
    connect(model_.get(), &CDataSourceModel::itemSelectionChanged, this,
            [&] { reported << QStringLiteral("!"); });
    check(*model_, "D:", true);
    // The invisible root comes last.
    QCOMPARE(reported.join(QLatin1Char(' ')), QStringLiteral("D: ! x ! y ! !"));
    reported.clear();
    check(*model_, "D:/x", false);
    QCOMPARE(reported.join(QLatin1Char(' ')), QStringLiteral("x !"));
}

void DataSourceModelTest::aFolderWithoutAccessHasASignAndNoArrow() {
    const auto view = shown(*model_);
    view->expand(indexAt(*model_, "C:"));
    const QModelIndex denied = indexAt(*model_, "C:/denied");
    const QModelIndex other = indexAt(*model_, "C:/users");
    QVERIFY(arrows_->hasArrow(*view, denied));
    view->expand(denied);
    QTRY_VERIFY(!arrows_->hasArrow(*view, denied));
    QVERIFY(arrows_->hasArrow(*view, other));
    QVERIFY(!model_->hasChildren(denied));
    QVERIFY(!model_->canFetchMore(denied));
    QCOMPARE(model_->rowCount(denied), 0);
    QVERIFY(!QApplication::activeModalWidget());
    calls();
    view->collapse(denied);
    view->expand(denied);
    QCOMPARE(calls(), QString());

    const QImage sign(QStringLiteral(":/tree/no_access"));
    const QImage plain = other.data(Qt::DecorationRole).value<QPixmap>().toImage();
    const QImage marked = denied.data(Qt::DecorationRole).value<QPixmap>().toImage();
    QCOMPARE(marked.size(), plain.size());
    QRect corner(QPoint(), sign.size());
    corner.moveBottomRight(plain.rect().bottomRight());
    QVERIFY(argb(marked).copy(corner) != argb(plain).copy(corner));
    const QRect above(0, 0, plain.width(), corner.top());
    QCOMPARE(argb(marked).copy(above), argb(plain).copy(above));
    const QPoint centre = corner.center();
    QCOMPARE(marked.pixelColor(centre), sign.pixelColor(sign.rect().center()));
}

void DataSourceModelTest::aFolderThatTurnsOutEmptyHasNoArrow() {
    CDataSourceDirOnlyModel directories(*model_);
    agent_->folders["C:\\users\\bob"] = {fileNamed("c")};
    const auto view = shown(directories);
    for (const char* path : {"C:", "C:/users"})
        view->expand(indexAt(directories, path));
    for (const char* path : {"C:/Empty", "C:/users/bob"}) {
        const QModelIndex folder = indexAt(directories, path);
        QVERIFY(arrows_->hasArrow(*view, folder));
        view->expand(folder);
        QTRY_VERIFY2(!arrows_->hasArrow(*view, folder), path);
    }
}

void DataSourceModelTest::anItemIsMarkedByItsPath() {
    QVERIFY(model_->markItem({"c:\\USERS\\ann", false}));
    QCOMPARE(calls(),
             QStringLiteral("getSubItems(pc, )\ngetSubItems(pc, C:)\ngetSubItems(pc, C:\\users)"));
    QCOMPARE(selection(*model_), QStringLiteral("+C:\\users\\Ann"));
    QVERIFY(model_->hasSelection());
    QVERIFY(model_->markItem({"C:\\users\\Ann\\b", true}));
    QCOMPARE(calls(), QStringLiteral("getSubItems(pc, C:\\users\\Ann)"));
    QCOMPARE(selection(*model_), QStringLiteral("+C:\\users\\Ann -C:\\users\\Ann\\b"));
}

void DataSourceModelTest::aPathThatNamesNothingLeavesTheTree() {
    const std::string separators(100000, '\\');
    for (const std::string& path :
         {std::string("C:\\nobody"), std::string("E:"), std::string("C:\\Notes\\x"),
          std::string("C:\\denied\\x"), separators, "C:" + separators})
        QVERIFY(!model_->markItem({path, false}));
    QVERIFY(!model_->hasSelection());
    QCOMPARE(selection(*model_), QString());
}

void DataSourceModelTest::aSelectionIsPlayedBack() {
    check(*model_, "C:/users/Ann", true);
    check(*model_, "C:/users/Ann/b", false);
    check(*model_, "D:", true);
    const auto items = model_->getSelection();
    QCOMPARE(selection(*model_), QStringLiteral("+C:\\users\\Ann -C:\\users\\Ann\\b +D:"));
    CDataSourceModel fresh("pc", BrowsingAgent::browser(agent_));
    for (const models::PathItem& item : items)
        QVERIFY(fresh.markItem(item));
    QVERIFY(fresh.getSelection() == items);
}

void DataSourceModelTest::oddNamesAreShown() {
    using namespace std::string_literals;
    agent_->folders[""] = {folderNamed(""),
                           folderNamed("\0"s),
                           folderNamed("a\nb\tc"),
                           folderNamed("\\"),
                           folderNamed("\u202eabc"),
                           folderNamed("\U0010FFFF\uFFFF"),
                           folderNamed("<b>x</b>&y"),
                           folderNamed(std::string(100000, 'w')),
                           {SelectableItemType{14}, "kind", false, -1}};
    agent_->folders["\\"] = {fileNamed("x")};
    const auto view = shown(*model_);
    QCOMPARE(model_->rowCount(), 9);
    for (int row = 0; row < 9; ++row) {
        view->expand(model_->index(row, 0));
        QVERIFY(model_->setData(model_->index(row, 0), true, Qt::CheckStateRole));
    }
    view->viewport()->grab();
    QCOMPARE(model_->getSelection().size(), std::size_t{9});
}

void DataSourceModelTest::theTreeWithoutFiles() {
    CDataSourceDirOnlyModel directories(*model_);
    QCOMPARE(namesIn(directories), QStringLiteral("C:|D:"));
    QCOMPARE(namesIn(directories, indexAt(directories, "C:")),
             QStringLiteral("denied|Empty|users"));
    QCOMPARE(namesIn(*model_, indexAt(*model_, "C:")), QStringLiteral("denied|Empty|Notes|users"));
    const QModelIndex shownDrive = indexAt(directories, "C:");
    QVERIFY(directories.setData(shownDrive, true, Qt::CheckStateRole));
    QCOMPARE(state(indexAt(*model_, "C:/Notes")), QVariant(2));
    QCOMPARE(int(directories.flags(shownDrive)), 113);
}

void DataSourceModelTest::clicksCheckAndExclude() {
    const auto view = shown(*model_);
    view->expand(model_->index(0, 0));
    const auto click = [&](const char* path) {
        const QModelIndex index = indexAt(*model_, path);
        const QRect row = view->visualRect(index);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, row.topLeft() + QPoint(9, 9));
        return state(index).toInt();
    };
    QCOMPARE(click("C:"), 2);
    QCOMPARE(click("C:/users"), 3);
    QCOMPARE(click("C:/users"), 2);
    QCOMPARE(click("C:"), 0);
    QCOMPARE(click("C:/users"), 2);
    QCOMPARE(state(indexAt(*model_, "C:")), QVariant(1));
    QCOMPARE(click("C:"), 2);
}

QTEST_MAIN(DataSourceModelTest)
#include "data_source_model_test.moc"
