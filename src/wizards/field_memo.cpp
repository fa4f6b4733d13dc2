// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/field_memo.h"

#include <algorithm>

#include <QMetaProperty>
#include <QSignalBlocker>
#include <QWidget>

namespace wizards {

namespace {

/// The property that a user edits.
QMetaProperty valueOf(const QWidget& field) {
    return field.metaObject()->userProperty();
}

} // namespace

void FieldMemo::remember(QWidget& field) {
    values_[&field] = valueOf(field).read(&field);
}

void FieldMemo::rememberAll() {
    for (auto& [field, value] : values_)
        value = valueOf(*field).read(field);
}

bool FieldMemo::differs() const {
    return std::any_of(values_.begin(), values_.end(), [](const auto& entry) {
        return valueOf(*entry.first).read(entry.first) != entry.second;
    });
}

void FieldMemo::putBack() const {
    for (const auto& [field, value] : values_) {
        const QSignalBlocker quiet(field);
        valueOf(*field).write(field, value);
    }
}

} // namespace wizards
