// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <utility>
#include <vector>

#include <QByteArray>
#include <QStringList>

#include "api/activity_records.h"
#include "api/event_records.h"
#include "insight/row_index.h"
#include "insight/table_export.h"
#include "models/record_table_model.h"
#include "session/text.h"

namespace insight {

RowTraits traitsOf(const hessiancln::activity_log_info& row);
RowTraits traitsOf(const hessiancln::event_log_info& row);

/// A log that can be searched and exported, independent of the type of its rows.
class SearchedLog {
public:
    virtual ~SearchedLog() = default;

    /// Builds the texts of the rows before the first search, which otherwise waits for them.
    virtual void prepare() = 0;
    /// Shows the rows that pass the filter, now and after each refresh.
    virtual void setFilter(const LogFilter& filter, const SetNames& names) = 0;
    virtual const QAbstractItemModel& model() const = 0;
    virtual int shownRows() const = 0;
    virtual int allRows() const = 0;
    /// Converts a shown row to its index among all rows, and back; -1 for a hidden row.
    virtual std::size_t recordOf(int row) const = 0;
    virtual int rowOf(std::size_t record) const = 0;
    /// The shown rows with their header, for a spreadsheet.
    virtual QByteArray csv() const = 0;
};

/// A searched log over a model of records.
template <class R>
class SearchedRecords final : public SearchedLog {
public:
    explicit SearchedRecords(models::RecordTableModel<R>& model)
        : model_(model) {}

    void prepare() override {
        texts_->build(model_.records(), model_.recordColumns(), model_.version());
    }
    void setFilter(const LogFilter& filter, const SetNames& names) override {
        if (filter.isEmpty()) {
            model_.setFilter({});
            return;
        }
        // The texts of the rows are built once after each refresh, not on each key press. Either of
        // the model and this object may outlive the other.
        model_.setFilter([texts = texts_, columns = model_.recordColumns(), filter,
                          names](const std::vector<R>& records, std::uint64_t version) {
            texts->build(records, columns, version);
            return texts->index.matches(filter, names);
        });
    }
    const QAbstractItemModel& model() const override { return model_; }
    int shownRows() const override { return model_.rowCount(); }
    int allRows() const override { return static_cast<int>(model_.records().size()); }
    std::size_t recordOf(int row) const override { return model_.recordOf(row); }
    int rowOf(std::size_t record) const override { return model_.rowOf(record); }
    QByteArray csv() const override;

private:
    struct Texts {
        RowIndex index;
        std::uint64_t version = 0; ///< version of the list they were built from

        void build(const std::vector<R>& records, std::span<const models::RecordColumn<R>> columns,
                   std::uint64_t current) {
            if (version != current)
                index.template build<R>(records, columns, traitsOf);
            version = current;
        }
    };

    models::RecordTableModel<R>& model_;
    std::shared_ptr<Texts> texts_ = std::make_shared<Texts>();
};

/// The value of a cell for a spreadsheet.
template <class R>
QString exportedCell(const models::RecordColumn<R>& column, const R& record) {
    const models::Cell cell = column.cell ? column.cell(record) : models::Cell();
    if (const auto* number = std::get_if<models::CellNumber>(&cell))
        return QString::number(number->value);
    if (const auto* time = std::get_if<models::CellTime>(&cell))
        return isoTime(time->seconds);
    return column.text(record);
}

template <class R>
QByteArray SearchedRecords<R>::csv() const {
    QStringList header;
    for (int column = 0; column < model_.columnCount(); ++column)
        header.append(model_.headerData(column, Qt::Horizontal).toString());
    const QChar separator = csvSeparator(QLocale::system());
    QByteArray file = csvMark() + csvLine(header, separator);
    for (int row = 0; row < model_.rowCount(); ++row) {
        const R& record = model_.records()[model_.recordOf(row)];
        QStringList cells;
        for (const models::RecordColumn<R>& column : model_.recordColumns())
            cells.append(exportedCell(column, record));
        file += csvLine(cells, separator);
    }
    return file;
}

} // namespace insight
