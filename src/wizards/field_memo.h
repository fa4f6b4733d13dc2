// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <map>

#include <QVariant>

class QWidget;

namespace wizards {

/// Remembers the values of some fields (boxes, dates and numbers), so that they can be restored
/// without emitting signals.
class FieldMemo {
public:
    /// Remembers the field's current value to restore. The field must outlive this.
    void remember(QWidget& field);
    /// Likewise for all fields added so far.
    void rememberAll();
    void putBack() const;
    /// Whether any field differs from its remembered value.
    bool differs() const;

private:
    std::map<QWidget*, QVariant> values_;
};

} // namespace wizards
