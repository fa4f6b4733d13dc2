// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <array>

#include <QAbstractTableModel>
#include <QHeaderView>
#include <QStandardItemModel>
#include <QTableView>
#include <QtTest>

#include "resources/pictures.h"
#include "tests/support/gui_selected_row_look.h"
#include "ui/fitting_text_delegate.h"
#include "ui/shared_icon.h"
#include "ui/table_columns.h"

namespace {

enum Column { name, size, note, columns };

using Columns = std::array<ui::TableColumn, columns>;

constexpr Columns columnTable{{
    {name, "Name", 160},
    {size, "Size", 70, ui::rightInCell},
    {note, "Note"},
}};
static_assert(ui::areInOrder(columnTable));
static_assert(!ui::areInOrder(Columns{{{name, "Name"}, {note, "Note"}, {size, "Size"}}}));
static_assert(!ui::areInOrder(Columns{{{name, "Name"}, {size, "Size"}}}));
static_assert(!ui::areInOrder(Columns{{{name, "Name"}, {name, "Name"}, {note, "Note"}}}));

class Model : public QAbstractTableModel {
public:
    int rowCount(const QModelIndex& = {}) const override { return 1; }
    int columnCount(const QModelIndex& = {}) const override { return columns; }
    QVariant data(const QModelIndex&, int) const override { return {}; }
    QVariant headerData(int section, Qt::Orientation, int role) const override {
        return ui::headerOf(*this, columnTable.at(static_cast<std::size_t>(section)), role);
    }
};

/// Translates the texts of the class that Qt knows `Model` by.
class Shouting : public QTranslator {
public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* text, const char*, int) const override {
        if (qstrcmp(context, Model::staticMetaObject.className()) != 0)
            return {};
        return QString::fromLatin1(text).toUpper();
    }
};

/// Returns many words for one.
class LongWinded : public QTranslator {
public:
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* source, const char*, int) const override {
        return QString::fromUtf8(source).repeated(20);
    }
};

/// A table with two rows that have this picture, the first one selected.
struct RowsWithPicture {
    explicit RowsWithPicture(const QIcon& icon)
        : model(2, 1) {
        ui::setUpTable(table, model);
        table.setAlternatingRowColors(false);
        table.setShowGrid(false);
        for (const int row : {0, 1})
            model.setData(model.index(row, 0), icon, Qt::DecorationRole);
        table.show();
        table.clearFocus();
        table.selectionModel()->select(model.index(0, 0), QItemSelectionModel::ClearAndSelect);
    }

    /// The number of orange pixels in a row.
    int orange(int row) {
        const QImage look = table.viewport()->grab(table.visualRect(model.index(row, 0))).toImage();
        int count = 0;
        for (int x = 0; x < look.width(); ++x)
            for (int y = 0; y < look.height(); ++y) {
                const QColor color = look.pixelColor(x, y);
                count += color.hue() > 10 && color.hue() < 50 && color.saturation() > 150;
            }
        return count;
    }

    QStandardItemModel model;
    QTableView table;
};

} // namespace

class TableColumnsTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { resources::initPictures(); }

    void theHeaderHasTitlesAndWidths() {
        const Model model;
        QCOMPARE(ui::headerOf(model, columnTable[size], Qt::DisplayRole).toString(),
                 QStringLiteral("Size"));
        QCOMPARE(ui::headerOf(model, columnTable[size], ui::columnWidthRole), QVariant(70));
        QVERIFY(!ui::headerOf(model, columnTable[note], ui::columnWidthRole).isValid());
        QVERIFY(!ui::headerOf(model, columnTable[size], Qt::DecorationRole).isValid());
    }

    void titlesAreTranslatedInTheContextOfTheModel() {
        const Model model;
        Shouting translator;
        QVERIFY(QCoreApplication::installTranslator(&translator));
        QCOMPARE(ui::headerOf(model, columnTable[name], Qt::DisplayRole).toString(),
                 QStringLiteral("NAME"));
    }

    void onlyAColumnThatSaysSoIsAligned() {
        QCOMPARE(ui::alignmentOf(columnTable[size]),
                 QVariant(int(Qt::AlignRight | Qt::AlignVCenter)));
        QVERIFY(!ui::alignmentOf(columnTable[name]).isValid());
    }

    void aTableTakesTheWidthsThatTheHeaderGives() {
        Model model;
        QTableView table;
        const int usual = table.horizontalHeader()->defaultSectionSize();
        QVERIFY(usual != 160 && usual != 70);
        ui::setUpTable(table, model);
        QCOMPARE(table.columnWidth(name), 160);
        QCOMPARE(table.columnWidth(size), 70);
        QCOMPARE(table.columnWidth(note), usual);
        QVERIFY(qobject_cast<ui::FittingTextDelegate*>(table.itemDelegate()));
        QCOMPARE(table.horizontalHeader()->defaultAlignment(), Qt::AlignLeft | Qt::AlignVCenter);
    }

    void anEnglishTitleKeepsTheWidthThatItWasGiven() {
        Model model;
        QTableView table;
        QFont large = table.horizontalHeader()->font();
        large.setPointSize(60);
        table.horizontalHeader()->setMinimumSectionSize(10);
        table.horizontalHeader()->setFont(large);
        ui::setUpTable(table, model);
        QCOMPARE(table.columnWidth(size), 70);
    }

    void thePictureOfASelectedRowIsAsLightAsItsText() {
        RowsWithPicture rows(ui::sharedIcon(QStringLiteral(":/tree/file")));
        // The lines of a text file, which styles would draw in the colour of the row.
        QVERIFY(lightPointsOfPicture(rows.table, rows.model.index(0, 0)) > 20);
    }

    void aSignKeepsItsColoursInASelectedRow() {
        RowsWithPicture rows(ui::sharedIcon(QStringLiteral(":/icons/event_warning.png")));
        QVERIFY(rows.orange(1) > 50);
        // The pixels at its edge mix with the colour of the row.
        QVERIFY(rows.orange(0) > rows.orange(1) * 3 / 4);
    }

    void aColumnIsWidenedForItsTextsOnly() {
        RowsWithPicture rows(ui::sharedIcon(QStringLiteral(":/tree/file")));
        rows.table.setColumnWidth(0, 70);
        const QString text = QStringLiteral("wider than 70 pixels");
        ui::makeRoom(rows.table, 0, {QStringLiteral("x"), text, QStringLiteral("y")}, true);
        const int width = rows.table.columnWidth(0);
        QVERIFY(width > 70);
        rows.model.setData(rows.model.index(0, 0), text);
        rows.table.resizeColumnToContents(0);
        // Without lines between the columns, a cell needs a pixel less.
        QCOMPARE(width, rows.table.columnWidth(0) + 1);
        rows.table.setColumnWidth(0, width);
        ui::makeRoom(rows.table, 0, {QStringLiteral("x")}, true);
        QCOMPARE(rows.table.columnWidth(0), width);
    }

    void aTitleThatNeedsMoreWidthGetsIt() {
        LongWinded translator;
        QVERIFY(QCoreApplication::installTranslator(&translator));
        Model model;
        QTableView table;
        ui::setUpTable(table, model);
        const QString title = QStringLiteral("Size").repeated(20);
        QVERIFY(table.columnWidth(size) >
                table.horizontalHeader()->fontMetrics().horizontalAdvance(title));
    }
};

QTEST_MAIN(TableColumnsTest)
#include "table_columns_test.moc"
