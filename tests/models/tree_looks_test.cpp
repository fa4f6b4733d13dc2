// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <memory>

#include <QPainter>
#include <QPixmapCache>
#include <QStandardItemModel>
#include <QtTest>

#include <boost/make_shared.hpp>

#include "models/data_source_model.h"
#include "models/item_pixmap.h"
#include "models/select_display_delegate.h"
#include "models/small_list_view.h"
#include "models/small_tree_view.h"
#include "resources/pictures.h"
#include "tests/models/browsing_agent.h"
#include "tests/models/shown_tree.h"

using hessiancln::SelectableItemType;

namespace {

/// Gives a test access to the delegate's check boxes.
class OpenDelegate : public CSelectDisplayDelegate {
public:
    QImage box(int checkState) const {
        QImage image(30, 30, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::white);
        QPainter painter(&image);
        drawCheck(&painter, QStyleOptionViewItem(), {8, 8, 16, 16},
                  static_cast<Qt::CheckState>(checkState));
        return image;
    }
};

/// A tree with pictures for a screen of double pixel density.
class TwiceModel : public CDataSourceModel {
public:
    using CDataSourceModel::CDataSourceModel;
    QVariant data(const QModelIndex& index, int role) const override {
        if (role != Qt::DecorationRole)
            return CDataSourceModel::data(index, role);
        QPixmap twice(32, 32);
        twice.setDevicePixelRatio(2);
        twice.fill(Qt::magenta);
        return twice;
    }
};

QImage argb(const QImage& image) {
    return image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

} // namespace

/// Pictures, boxes and the view.
class TreeLooksTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { resources::initPictures(); }
    void init() {
        QPixmapCache::clear();
        agent_ = boost::make_shared<BrowsingAgent>();
        agent_->folders[""] = {driveNamed("C:")};
        agent_->folders["C:"] = {folderNamed("denied")};
        model_ = std::make_unique<CDataSourceModel>("pc", BrowsingAgent::browser(agent_));
    }

    void eachKindHasItsPicture_data();
    void eachKindHasItsPicture();
    void aPictureInTheCacheIsTaken();
    void aDatabaseHasNoPicture();
    void theBoxOfSomethingExcludedIsCrossed();
    void aDensePictureTakesNoMoreRoom();
    void theViewHasNoWishForASizeAndRowsOfOneHeight();
    void theAsteriskKeyExpandsOneLevel();
    void thePictureOfASelectedRowStandsOut_data();
    void thePictureOfASelectedRowStandsOut();
    void thePictureOfARowOnALightSelectionIsDark();

private:
    boost::shared_ptr<BrowsingAgent> agent_;
    std::unique_ptr<CDataSourceModel> model_;
};

void TreeLooksTest::eachKindHasItsPicture_data() {
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("resource");
    const auto row = [](int kind, const char* resource) {
        QTest::addRow("%d", kind) << kind << QString::fromLatin1(resource);
    };
    row(0, ":/tree/hdd");
    row(1, ":/tree/folder");
    row(2, ":/tree/folder");
    row(3, ":/tree/file");
    for (const int kind : {4, 5, 6, 8, 13, 14})
        row(kind, ":/tree/unknown");
}

void TreeLooksTest::eachKindHasItsPicture() {
    QFETCH(int, kind);
    QFETCH(QString, resource);
    const QImage expected = argb(QImage(resource));
    QVERIFY(!expected.isNull());
    QCOMPARE(argb(models::itemPixmap(SelectableItemType{kind}).toImage()), expected);
    agent_->folders[""] = {{SelectableItemType{kind}, "x", false, 0}};
    const QVariant shown = model_->index(0, 0).data(Qt::DecorationRole);
    QCOMPARE(argb(shown.value<QPixmap>().toImage()), expected);
}

void TreeLooksTest::aPictureInTheCacheIsTaken() {
    const QModelIndex denied = indexAt(*model_, "C:/denied");
    model_->rowCount(denied);
    QPixmap mine(5, 5);
    mine.fill(Qt::magenta);
    QPixmapCache::insert(QStringLiteral("NO_ACCESS:/tree/folder"), mine);
    QCOMPARE(denied.data(Qt::DecorationRole).value<QPixmap>().cacheKey(), mine.cacheKey());
    QPixmapCache::clear();
    const auto composed = denied.data(Qt::DecorationRole).value<QPixmap>();
    QPixmap cached;
    QVERIFY(QPixmapCache::find(QStringLiteral("NO_ACCESS:/tree/folder"), &cached));
    QCOMPARE(cached.cacheKey(), composed.cacheKey());
}

void TreeLooksTest::aDatabaseHasNoPicture() {
    QVERIFY(models::itemPixmap(SelectableItemType::Database).isNull());
    QVERIFY(models::itemPixmap(SelectableItemType::Database, true).isNull());
}

void TreeLooksTest::theBoxOfSomethingExcludedIsCrossed() {
    const OpenDelegate delegate;
    QImage expected = delegate.box(Qt::Unchecked);
    const QImage sign(QStringLiteral(":/tree/exclusion"));
    // The box ends at pixel 23 in both directions.
    QPainter(&expected).drawImage(23 - sign.width(), 23 - sign.height(), sign);
    QCOMPARE(delegate.box(3), expected);
    QVERIFY(delegate.box(3) != delegate.box(Qt::Unchecked));
    QVERIFY(delegate.box(Qt::Checked) != delegate.box(Qt::Unchecked));
    QVERIFY(delegate.box(Qt::PartiallyChecked) != delegate.box(Qt::Checked));
}

void TreeLooksTest::aDensePictureTakesNoMoreRoom() {
    TwiceModel twice("pc", BrowsingAgent::browser(agent_));
    const CSelectDisplayDelegate delegate;
    QStyleOptionViewItem option;
    option.rect = QRect(0, 0, 200, 18);
    option.decorationSize = QSize(16, 16);
    QCOMPARE(delegate.sizeHint(option, twice.index(0, 0)),
             delegate.sizeHint(option, model_->index(0, 0)));
    QImage image(200, 18, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    delegate.paint(&painter, option, twice.index(0, 0));
    painter.end();
    int coloured = 0;
    for (int x = 0; x < image.width(); ++x)
        coloured += image.pixelColor(x, 9) == QColor(Qt::magenta);
    QCOMPARE(coloured, 16);
}

void TreeLooksTest::theViewHasNoWishForASizeAndRowsOfOneHeight() {
    const CSmallTreeView view;
    QVERIFY(!view.sizeHint().isValid());
    QVERIFY(view.uniformRowHeights());
}

void TreeLooksTest::theAsteriskKeyExpandsOneLevel() {
    agent_->folders["C:\\denied"] = {folderNamed("below")};
    CSmallTreeView view;
    view.setModel(model_.get());
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    view.setCurrentIndex(indexAt(*model_, "C:"));
    QTest::keyClick(&view, Qt::Key_Asterisk);
    QVERIFY(view.isExpanded(indexAt(*model_, "C:")));
    QVERIFY(!view.isExpanded(indexAt(*model_, "C:/denied")));
    QCOMPARE(QString::fromStdString(agent_->takeCalls()),
             QStringLiteral("getSubItems(pc, )\ngetSubItems(pc, C:)"));
}

void TreeLooksTest::thePictureOfASelectedRowStandsOut_data() {
    QTest::addColumn<bool>("asTree");
    QTest::addColumn<bool>("asItems");
    QTest::newRow("tree") << true << false;
    QTest::newRow("tree of items to back up") << true << true;
    QTest::newRow("list") << false << false;
}

void TreeLooksTest::thePictureOfASelectedRowStandsOut() {
    QFETCH(bool, asTree);
    QFETCH(bool, asItems);
    CSmallTreeView tree;
    CSmallListView list;
    QAbstractItemView& view =
        asTree ? static_cast<QAbstractItemView&>(tree) : static_cast<QAbstractItemView&>(list);
    CSelectDisplayDelegate delegate;
    if (asItems)
        view.setItemDelegate(&delegate);
    const QColor row = view.palette().color(QPalette::Highlight);
    // Only the picture is visible, in the colour of the row.
    QPixmap picture(16, 16);
    picture.fill(row);
    QStandardItemModel model;
    model.appendRow(new QStandardItem);
    model.item(0)->setData(picture, Qt::DecorationRole);
    view.setModel(&model);
    view.resize(200, 100);
    view.setCurrentIndex(model.index(0, 0));
    view.show();
    const QRect place = view.visualRect(model.index(0, 0));
    const QImage look = view.viewport()->grab(place).toImage();
    int light = 0;
    for (int x = 0; x < look.width(); ++x)
        if (QColor(look.pixel(x, look.height() / 2)).lightness() > row.lightness() + 50)
            ++light;
    QCOMPARE(light, picture.width());
}

namespace {

/// Paints the selection in a light colour of its own, as Windows does.
class LightSelectionStyle : public QProxyStyle {
public:
    using QProxyStyle::QProxyStyle;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        if (element == PE_PanelItemViewItem)
            painter->fillRect(option->rect, QColor(0xbb, 0xdd, 0xff));
        else
            QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
};

} // namespace

void TreeLooksTest::thePictureOfARowOnALightSelectionIsDark() {
    LightSelectionStyle style(QStringLiteral("fusion"));
    QPalette palette(Qt::black, Qt::white);
    palette.setColor(QPalette::Highlight, Qt::darkBlue);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    // Only the picture is visible.
    QPixmap picture(16, 16);
    picture.fill(Qt::gray);
    QStandardItemModel model;
    model.appendRow(new QStandardItem);
    model.item(0)->setData(picture, Qt::DecorationRole);
    CSmallTreeView view;
    view.setStyle(&style);
    view.setPalette(palette);
    view.setModel(&model);
    view.resize(200, 100);
    view.setCurrentIndex(model.index(0, 0));
    view.show();
    const QImage look = view.viewport()->grab(view.visualRect(model.index(0, 0))).toImage();
    int dark = 0;
    for (int x = 0; x < look.width(); ++x)
        if (qGray(look.pixel(x, look.height() / 2)) < 64)
            ++dark;
    QCOMPARE(dark, picture.width());
}

QTEST_MAIN(TreeLooksTest)
#include "tree_looks_test.moc"
