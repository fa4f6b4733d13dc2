// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <memory>

#include <QAbstractItemModelTester>
#include <QDialog>
#include <QSignalSpy>
#include <QtTest>

#include <boost/make_shared.hpp>

#include "models/computer_tree_model.h"
#include "models/restore_destination_directory_only_model.h"
#include "models/restore_destination_model.h"
#include "models/small_tree_view.h"
#include "resources/pictures.h"
#include "tests/models/browsing_agent.h"
#include "tests/models/shown_tree.h"
#include "tests/support/gui_modal_driver.h"

using hessiancln::net_item_info;
using hessiancln::NetItemType;

namespace {

constexpr auto strict = QAbstractItemModelTester::FailureReportingMode::QtTest;

net_item_info computer(const char* name) {
    return {name, NetItemType::Computer};
}
net_item_info container(const char* name) {
    return {name, NetItemType::Container};
}

QImage argb(const QImage& image) {
    return image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

QImage picture(const QModelIndex& index) {
    return argb(index.data(Qt::DecorationRole).value<QPixmap>().toImage());
}

template <class Model>
std::unique_ptr<CSmallTreeView> shown(Model& model) {
    auto view = std::make_unique<CSmallTreeView>();
    view->setModel(&model);
    view->resize(300, 400);
    view->show();
    view->viewport()->grab();
    return view;
}

} // namespace

/// The trees without check boxes.
class PlainTreesTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() {
        resources::initPictures();
        arrows_ = new ArrowStyle;
        QApplication::setStyle(arrows_); // takes ownership
    }
    void init();

    void theNetworkIsAModelOfQt();
    void makingTheNetworkFetchesNothing();
    void countingTheRowsOfTheNetworkFetchesNothing();
    void anIndexOfTheNetworkFetchesAndAnnouncesTheRows();
    void theNetworkIsFetchedWhereItIsExpanded();
    void pseudoEntriesNeverAppear();
    void computersComeBeforeContainers();
    void rolesOfTheNetwork();
    void aComputerHasNothingBelowIt();
    void anUnknownKindIsAContainer();
    void aContainerThatFailsIsReported();
    void theBoxIsShownWithoutTheWaitCursor();

    void theDestinationIsAModelOfQt();
    void theDestinationFetchesWhatIsLookedAt();
    void theDestinationIsSortedWithTheDotFirst();
    void rolesOfTheDestination();
    void aTopLevelItemsPathIsItsName();
    void aDestinationWithoutAccessHasASignAndNoArrow();
    void filesNeverReachTheView();

private:
    QString calls() { return QString::fromStdString(agent_->takeCalls()); }

    boost::shared_ptr<BrowsingAgent> agent_;
    std::unique_ptr<CComputerTreeModel> network_;
    std::unique_ptr<CRestoreDestinationModel> destination_;
    ArrowStyle* arrows_ = nullptr;
};

void PlainTreesTest::init() {
    agent_ = boost::make_shared<BrowsingAgent>();
    agent_->networks[""] = {container("zeta"), computer("My Computer"), container("Alpha")};
    agent_->networks["zeta"] = {computer("PC-1"), container("inner")};
    agent_->networks["zeta\\inner"] = {};
    agent_->folders[""] = {driveNamed("C:"), driveNamed("D:")};
    agent_->folders["C:"] = {folderNamed("Users"), fileNamed("notes"), folderNamed("denied"),
                             folderNamed("files")};
    agent_->folders["C:\\Users"] = {};
    agent_->folders["C:\\files"] = {fileNamed("a")};
    agent_->folders["D:"] = {};
    network_ = std::make_unique<CComputerTreeModel>(BrowsingAgent::browser(agent_));
    destination_ = std::make_unique<CRestoreDestinationModel>("pc", BrowsingAgent::browser(agent_));
}

void PlainTreesTest::theNetworkIsAModelOfQt() {
    agent_->networks["Alpha"] = {computer("x")};
    const QAbstractItemModelTester tester(network_.get(), strict);
    network_->fetchMore(network_->index(2, 0));
    QCOMPARE(network_->rowCount(network_->index(2, 0)), 2);
}

void PlainTreesTest::makingTheNetworkFetchesNothing() {
    QCOMPARE(calls(), QString());
}

void PlainTreesTest::countingTheRowsOfTheNetworkFetchesNothing() {
    QCOMPARE(network_->rowCount(), 0);
    QVERIFY(network_->hasChildren());
    QVERIFY(network_->canFetchMore({}));
    QCOMPARE(calls(), QString());
    network_->fetchMore({});
    QCOMPARE(calls(), QStringLiteral("networkDiscovery()"));
    QCOMPARE(network_->rowCount(), 3);
    QVERIFY(!network_->canFetchMore({}));
    network_->fetchMore({});
    QCOMPARE(calls(), QString());
}

void PlainTreesTest::anIndexOfTheNetworkFetchesAndAnnouncesTheRows() {
    const QSignalSpy inserted(network_.get(), &QAbstractItemModel::rowsInserted);
    QVERIFY(network_->index(2, 0).isValid());
    QCOMPARE(calls(), QStringLiteral("networkDiscovery()"));
    QCOMPARE(inserted.size(), 1);
    QCOMPARE(inserted[0][1].toInt(), 0);
    QCOMPARE(inserted[0][2].toInt(), 2);
    QVERIFY(!network_->index(3, 0).isValid());
    QVERIFY(!network_->index(-1, 0).isValid());
    QVERIFY(!network_->index(0, 1).isValid());
    QCOMPARE(calls(), QString());
}

void PlainTreesTest::theNetworkIsFetchedWhereItIsExpanded() {
    const auto view = shown(*network_);
    QCOMPARE(calls(), QStringLiteral("networkDiscovery()"));
    const QModelIndex zeta = indexAt(*network_, "zeta");
    view->expand(zeta);
    view->viewport()->grab();
    QCOMPARE(calls(), QStringLiteral("networkDiscovery(zeta)"));
    QCOMPARE(namesIn(*network_, zeta), QStringLiteral("PC-1|inner"));
    const QModelIndex inner = indexAt(*network_, "zeta/inner");
    QVERIFY(arrows_->hasArrow(*view, inner));
    view->expand(inner);
    QCOMPARE(calls(), QStringLiteral("networkDiscovery(zeta\\inner)"));
    QTRY_VERIFY(!arrows_->hasArrow(*view, inner));
}

void PlainTreesTest::pseudoEntriesNeverAppear() {
    agent_->networks[""] = {container("UNIX-SSH"), computer("NFS"),   container("nfs"),
                            computer("UNIX-SSH"),  container("NFS "), container("NFS")};
    network_->fetchMore({});
    QCOMPARE(namesIn(*network_), QStringLiteral("nfs|NFS "));
}

void PlainTreesTest::computersComeBeforeContainers() {
    agent_->networks[""] = {container("A"), computer("z"), container("a1"), computer("B"),
                            computer("b"),  computer("."), container(".")};
    network_->fetchMore({});
    QCOMPARE(namesIn(*network_), QStringLiteral(".|B|b|z|.|A|a1"));
}

void PlainTreesTest::rolesOfTheNetwork() {
    const QModelIndex machine = network_->index(0, 0);
    const QModelIndex group = network_->index(1, 0);
    QCOMPARE(machine.data().toString(), QStringLiteral("My Computer"));
    QCOMPARE(group.data().toString(), QStringLiteral("Alpha"));
    QCOMPARE(picture(machine), argb(QImage(QStringLiteral(":/icons/browse_computer.png"))));
    QCOMPARE(picture(group), argb(QImage(QStringLiteral(":/icons/browse_network.png"))));
    for (const int role : {Qt::EditRole, Qt::ToolTipRole, Qt::CheckStateRole, Qt::UserRole})
        QVERIFY(!machine.data(role).isValid());
    QVERIFY(!network_->data({}, Qt::DisplayRole).isValid());
    QVERIFY(!machine.parent().isValid());
    QCOMPARE(network_->columnCount(), 1);
    QCOMPARE(network_->fullPath({}), std::string());
    QCOMPARE(network_->fullPath(machine), std::string("My Computer"));
    const QModelIndex inner = network_->index(1, 0, network_->index(2, 0));
    QCOMPARE(inner.parent(), network_->index(2, 0));
    QCOMPARE(network_->fullPath(inner), std::string("zeta\\inner"));
}

void PlainTreesTest::aComputerHasNothingBelowIt() {
    const QModelIndex machine = network_->index(0, 0);
    calls();
    QVERIFY(network_->isComputer(machine));
    QVERIFY(!network_->hasChildren(machine));
    QVERIFY(network_->canFetchMore(machine));
    network_->fetchMore(machine);
    QVERIFY(!network_->canFetchMore(machine));
    QVERIFY(!network_->index(0, 0, machine).isValid());
    QCOMPARE(network_->rowCount(machine), 0);
    QCOMPARE(calls(), QString());
    QVERIFY(!network_->isComputer(network_->index(1, 0)));
    QVERIFY(!network_->isComputer({}));
}

void PlainTreesTest::anUnknownKindIsAContainer() {
    agent_->networks[""] = {{"odd", NetItemType{2}}};
    const QModelIndex odd = network_->index(0, 0);
    QVERIFY(!network_->isComputer(odd));
    QVERIFY(network_->hasChildren(odd));
}

void PlainTreesTest::aContainerThatFailsIsReported() {
    const auto view = shown(*network_);
    const QModelIndex alpha = indexAt(*network_, "Alpha");
    QVERIFY(arrows_->hasArrow(*view, alpha));
    support::ModalDriver modals;
    modals.expectErrorBox(QStringLiteral("Failed to expand 'Alpha'"),
                          QStringLiteral("Access to 'Alpha' is denied"));
    view->expand(alpha);
    QVERIFY(modals.done());
    QTRY_VERIFY(!arrows_->hasArrow(*view, alpha));
    calls();
    network_->fetchMore(alpha);
    QVERIFY(!network_->index(0, 0, alpha).isValid());
    QVERIFY(!network_->hasChildren(alpha));
    QCOMPARE(calls(), QString());
}

void PlainTreesTest::theBoxIsShownWithoutTheWaitCursor() {
    agent_->networks.clear();
    bool waited = false;
    agent_->onCall = [&] { waited = QGuiApplication::overrideCursor() != nullptr; };
    bool waits = true;
    support::ModalDriver modals;
    modals.expect(QStringLiteral("box"), support::isDialog<QDialog>, [&](QWidget& box) {
        waits = QGuiApplication::overrideCursor() != nullptr;
        static_cast<QDialog&>(box).accept();
    });
    network_->fetchMore({});
    QVERIFY(modals.done());
    QVERIFY(waited);
    QVERIFY(!waits);
}

void PlainTreesTest::theDestinationIsAModelOfQt() {
    const QAbstractItemModelTester tester(destination_.get(), strict);
    CRestoreDestinationDirectoryOnlyModel directories(*destination_);
    const QAbstractItemModelTester directoriesTester(&directories, strict);
    QCOMPARE(namesIn(directories), QStringLiteral("C:|D:"));
}

void PlainTreesTest::theDestinationFetchesWhatIsLookedAt() {
    QCOMPARE(calls(), QString());
    QVERIFY(destination_->hasChildren());
    QVERIFY(destination_->canFetchMore({}));
    QCOMPARE(calls(), QString());
    const QModelIndex drive = destination_->index(0, 0);
    QCOMPARE(calls(), QStringLiteral("getSubItems(pc, )"));
    drive.data(Qt::DecorationRole);
    QVERIFY(destination_->hasChildren(drive));
    QCOMPARE(calls(), QString());
    QCOMPARE(destination_->rowCount(drive), 4);
    QCOMPARE(calls(), QStringLiteral("getSubItems(pc, C:)"));
    QVERIFY(!destination_->canFetchMore(drive));
    QVERIFY(!destination_->index(4, 0, drive).isValid());
    const QModelIndex file = indexAt(*destination_, "C:/notes");
    QCOMPARE(destination_->rowCount(file), 0);
    QVERIFY(!destination_->hasChildren(file));
    QVERIFY(!destination_->canFetchMore(file));
    QCOMPARE(calls(), QString());
}

void PlainTreesTest::theDestinationIsSortedWithTheDotFirst() {
    agent_->folders[""] = {folderNamed("b"), fileNamed("!"), folderNamed("."), folderNamed("A")};
    QCOMPARE(namesIn(*destination_), QStringLiteral(".|!|A|b"));
}

void PlainTreesTest::rolesOfTheDestination() {
    const QModelIndex drive = destination_->index(0, 0);
    QCOMPARE(drive.data().toString(), QStringLiteral("C:"));
    QCOMPARE(picture(drive), argb(QImage(QStringLiteral(":/tree/hdd"))));
    QCOMPARE(picture(indexAt(*destination_, "C:/Users")),
             argb(QImage(QStringLiteral(":/tree/folder"))));
    QVERIFY(!drive.data(Qt::CheckStateRole).isValid());
    QVERIFY(!drive.data(Qt::ToolTipRole).isValid());
    QVERIFY(!destination_->flags(drive).testFlag(Qt::ItemIsUserCheckable));
    QVERIFY(!destination_->setData(drive, true, Qt::CheckStateRole));
    QCOMPARE(destination_->columnCount(), 1);
}

void PlainTreesTest::aTopLevelItemsPathIsItsName() {
    QCOMPARE(destination_->fullPath(destination_->index(0, 0)), std::string("C:"));
    QCOMPARE(destination_->fullPath(indexAt(*destination_, "C:/Users")), std::string("C:\\Users"));
    QCOMPARE(destination_->fullPath({}), std::string());
    QVERIFY(!destination_->index(0, 0).parent().isValid());
    QCOMPARE(indexAt(*destination_, "C:/Users").parent(), destination_->index(0, 0));
}

void PlainTreesTest::aDestinationWithoutAccessHasASignAndNoArrow() {
    CRestoreDestinationDirectoryOnlyModel directories(*destination_);
    const auto view = shown(directories);
    view->expand(directories.index(0, 0));
    const QModelIndex denied = indexAt(directories, "C:/denied");
    const QImage before = picture(denied);
    QVERIFY(arrows_->hasArrow(*view, denied));
    view->expand(denied);
    QTRY_VERIFY(!arrows_->hasArrow(*view, denied));
    QVERIFY(picture(denied) != before);
    QVERIFY(!QGuiApplication::overrideCursor());
    QVERIFY(!QApplication::activeModalWidget());
    calls();
    QVERIFY(!directories.hasChildren(denied));
    QCOMPARE(directories.rowCount(denied), 0);
    QCOMPARE(calls(), QString());
}

void PlainTreesTest::filesNeverReachTheView() {
    CRestoreDestinationDirectoryOnlyModel directories(*destination_);
    QCOMPARE(namesIn(directories, directories.index(0, 0)), QStringLiteral("denied|files|Users"));
    QCOMPARE(namesIn(*destination_, destination_->index(0, 0)),
             QStringLiteral("denied|files|notes|Users"));
    QVERIFY(destination_->isDirectory({}));
    QVERIFY(destination_->isDirectory(indexAt(*destination_, "C:/files")));
    QVERIFY(!destination_->isDirectory(indexAt(*destination_, "C:/notes")));
    const auto view = shown(directories);
    view->expand(directories.index(0, 0));
    const QModelIndex files = indexAt(directories, "C:/files");
    view->expand(files);
    QTRY_VERIFY(!arrows_->hasArrow(*view, files));
}

QTEST_MAIN(PlainTreesTest)
#include "plain_trees_test.moc"
