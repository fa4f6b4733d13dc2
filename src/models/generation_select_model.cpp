// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "models/generation_select_model.h"

#include <array>
#include <cstddef>

#include <QPixmap>

#include "ui/locale_text.h"
#include "ui/shared_icon.h"
#include "ui/size_text.h"
#include "ui/table_columns.h"

namespace {

enum Column { BackupTime, FileSize, ModificationTime, ColumnCount };

constexpr std::array<ui::TableColumn, ColumnCount> columnTable{{
    {BackupTime, QT_TRANSLATE_NOOP("CGenerationSelectModel", "Backup time"), 180},
    {FileSize, QT_TRANSLATE_NOOP("CGenerationSelectModel", "File size"), 150, ui::rightInCell},
    {ModificationTime, QT_TRANSLATE_NOOP("CGenerationSelectModel", "Modification time"), 180},
}};
static_assert(ui::areInOrder(columnTable));

const ui::TableColumn& columnAt(int number) {
    return columnTable[static_cast<std::size_t>(number)];
}

} // namespace

CGenerationSelectModel::CGenerationSelectModel(const models::Generations& generations,
                                               QObject* parent)
    : QAbstractItemModel(parent)
    , generations_(models::newestFirst(generations)) {}

QModelIndex CGenerationSelectModel::index(int row, int column, const QModelIndex& parent) const {
    return hasIndex(row, column, parent) ? createIndex(row, column) : QModelIndex();
}

QModelIndex CGenerationSelectModel::parent(const QModelIndex&) const {
    return {};
}

int CGenerationSelectModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(generations_.size());
}

int CGenerationSelectModel::columnCount(const QModelIndex&) const {
    return ColumnCount;
}

QVariant CGenerationSelectModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return text(generationAt(index), index.column());
    case Qt::DecorationRole:
        if (index.column() != BackupTime)
            return {};
        return ui::sharedPixmap(index.row() == selected_ ? QStringLiteral(":/tree/selected_file")
                                                         : QStringLiteral(":/tree/file"));
    case Qt::TextAlignmentRole:
        return ui::alignmentOf(columnAt(index.column()));
    default:
        return {};
    }
}

QVariant CGenerationSelectModel::headerData(int section, Qt::Orientation orientation,
                                            int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= ColumnCount)
        return {};
    return ui::headerOf(*this, columnAt(section), role);
}

const hessiancln::file_generations&
CGenerationSelectModel::generationAt(const QModelIndex& index) const {
    return generations_.at(static_cast<std::size_t>(index.row()));
}

void CGenerationSelectModel::selectNewestInRange(std::int32_t from, std::int32_t to) {
    announce(selected_);
    selected_ = models::newestInRange(generations_, from, to);
    announce(selected_);
}

bool CGenerationSelectModel::isNewestWithin(std::int32_t to, std::int32_t chosen) const {
    return models::isNewestWithin(generations_, to, chosen);
}

QVariant CGenerationSelectModel::text(const hessiancln::file_generations& generation,
                                      int column) const {
    switch (column) {
    case BackupTime:
        return ui::timeText(generation.backup_time, QLocale::ShortFormat);
    case FileSize:
        return generation.data_size == 0
                   ? tr("Empty")
                   : ui::sizeToString(static_cast<double>(generation.data_size));
    default:
        return ui::timeText(generation.modification_time, QLocale::ShortFormat);
    }
}

void CGenerationSelectModel::announce(int row) {
    if (row >= 0)
        emit dataChanged(index(row, BackupTime), index(row, BackupTime));
}
