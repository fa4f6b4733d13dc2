// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <memory>

#include <QWidget>

#include "insight/searched_log.h"

class QTableView;

namespace Ui {
class LogSearchBar;
}

/// A line to search a log in, with a filter for its severity, the count of what is shown and
/// hidden, and a way into a file.
class LogSearchBar : public QWidget {
    Q_OBJECT
public:
    explicit LogSearchBar(QWidget* parent = nullptr);
    ~LogSearchBar() override;

    /// From now on filters the log that `table` shows; both have to outlive this. Also lets
    /// selected rows be copied.
    void attach(QTableView& table, std::unique_ptr<insight::SearchedLog> log);

    /// What "set:" looks in, by the keys that the rows have; the search is done again if they have
    /// changed.
    void setSetNames(insight::SetNames names);

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void applyFilter();
    void showCount();
    void exportRows();

    std::unique_ptr<Ui::LogSearchBar> ui_;
    std::unique_ptr<insight::SearchedLog> log_;
    QTableView* table_ = nullptr;
    insight::SetNames names_;
};
