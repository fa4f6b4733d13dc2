// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "insight/found_files_model.h"

#include <algorithm>
#include <array>
#include <utility>

#include "session/text.h"
#include "ui/locale_text.h"
#include "ui/shared_icon.h"
#include "ui/size_text.h"
#include "ui/table_columns.h"

using insight::FoundFile;

namespace {

using M = FoundFilesModel;

constexpr std::array<ui::TableColumn, M::columns> columnTable{{
    {M::name, QT_TRANSLATE_NOOP("FoundFilesModel", "Name"), 190},
    {M::folder, QT_TRANSLATE_NOOP("FoundFilesModel", "Folder"), 220},
    {M::set, QT_TRANSLATE_NOOP("FoundFilesModel", "Backup set"), 130},
    {M::size, QT_TRANSLATE_NOOP("FoundFilesModel", "Size"), 80, ui::rightInCell},
    {M::modified, QT_TRANSLATE_NOOP("FoundFilesModel", "Modified"), 120},
    {M::backedUp, QT_TRANSLATE_NOOP("FoundFilesModel", "Backed up"), 120},
    {M::generations, QT_TRANSLATE_NOOP("FoundFilesModel", "Generations"), 90, ui::rightInCell},
}};
static_assert(ui::areInOrder(columnTable));

QString shortTime(std::int32_t seconds) {
    return ui::timeText(seconds, QLocale::ShortFormat);
}

} // namespace

void FoundFilesModel::showSearch(insight::FileSearch* search, insight::SetNames names) {
    beginResetModel();
    search_ = search;
    names_ = std::move(names);
    rows_ = 0;
    endResetModel();
}

void FoundFilesModel::update() {
    if (!search_)
        return;
    const auto found = static_cast<int>(search_->found().size());
    if (found > rows_) {
        beginInsertRows({}, rows_, found - 1);
        rows_ = found;
        endInsertRows();
    }
    const auto detailed = search_->takeDetailed();
    if (detailed.empty())
        return;
    const auto [first, last] = std::ranges::minmax(detailed);
    emit dataChanged(index(static_cast<int>(first), size),
                     index(static_cast<int>(last), generations));
}

int FoundFilesModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

int FoundFilesModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : columns;
}

const FoundFile& FoundFilesModel::at(int row) const {
    return search_->found().at(static_cast<std::size_t>(row));
}

QString FoundFilesModel::text(const FoundFile& file, int column) const {
    switch (column) {
    case name:
        return session::fromWire(file.name);
    case folder:
        return search_->folderOf(file).join(QLatin1Char('\\'));
    case set: {
        const auto found = names_.find(file.setId);
        return found == names_.end() ? QString() : session::fromWire(found->second);
    }
    default:
        break;
    }
    if (file.generations < 1)
        return column == generations && file.generations == 0 ? ui::numberText(0) : QString();
    switch (column) {
    case size:
        return ui::sizeToString(static_cast<double>(file.newest.data_size));
    case modified:
        return shortTime(file.newest.modification_time);
    case backedUp:
        return shortTime(file.newest.backup_time);
    default:
        return ui::numberText(file.generations);
    }
}

QVariant FoundFilesModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    if (role == Qt::DisplayRole)
        return text(at(index.row()), index.column());
    if (role == Qt::DecorationRole && index.column() == name)
        return ui::sharedIcon(QStringLiteral(":/tree/file.png"));
    if (role == Qt::TextAlignmentRole)
        return ui::alignmentOf(columnTable[static_cast<std::size_t>(index.column())]);
    return {};
}

QVariant FoundFilesModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Horizontal && section >= 0 && section < columns)
        if (QVariant header =
                ui::headerOf(*this, columnTable[static_cast<std::size_t>(section)], role);
            header.isValid())
            return header;
    return QAbstractTableModel::headerData(section, orientation, role);
}
