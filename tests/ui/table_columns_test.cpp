// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <array>

#include <QAbstractTableModel>
#include <QHeaderView>
#include <QTableView>
#include <QtTest>

#include "ui/fitting_text_delegate.h"
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

} // namespace

class TableColumnsTest : public QObject {
    Q_OBJECT
private slots:
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
