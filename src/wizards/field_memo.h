// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <map>

#include <QVariant>

class QWidget;

namespace wizards {

/// What some fields say: boxes, dates and numbers. So that they can be put back to it without a
/// word to anybody.
class FieldMemo {
public:
    /// Remembers what the field says from now on to be put back. It outlives this.
    void remember(QWidget& field);
    /// The same for all fields that are known already.
    void rememberAll();
    void putBack() const;
    /// Whether a field says something else than what is remembered.
    bool differs() const;

private:
    std::map<QWidget*, QVariant> values_;
};

} // namespace wizards
