// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>

#include <QAbstractItemModel>

#include "models/generation_choice.h"

/// The stored versions of a file, newest first, one of which may have a sign. Times are seconds
/// since 1970 UTC; 0 means no limit.
class CGenerationSelectModel : public QAbstractItemModel {
    Q_OBJECT
public:
    explicit CGenerationSelectModel(const models::Generations& generations,
                                    QObject* parent = nullptr);

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    using QObject::parent;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

    /// `index` must be valid.
    const hessiancln::file_generations& generationAt(const QModelIndex& index) const;
    /// Gives the sign to the newest version backed up in the span, if any.
    void selectNewestInRange(std::int32_t from, std::int32_t to);
    /// See `models::isNewestWithin`.
    bool isNewestWithin(std::int32_t to, std::int32_t chosen) const;

private:
    QVariant text(const hessiancln::file_generations& generation, int column) const;
    void announce(int row);

    models::Generations generations_;
    int selected_ = -1;
};
