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

/// A search line for a log, with a severity filter, the numbers of shown and hidden rows, and an
/// export to a file.
class LogSearchBar : public QWidget {
    Q_OBJECT
public:
    explicit LogSearchBar(QWidget* parent = nullptr);
    ~LogSearchBar() override;

    /// Filters the log in `table` from now on; both must outlive this. Also enables copying
    /// selected rows, and shows a note in the table if it has no rows: that none matches the
    /// search, or, for a log without rows, the text of `emptyLog`.
    void attach(QTableView& table, std::unique_ptr<insight::SearchedLog> log,
                std::function<QString()> emptyLog = {});

    /// The names that "set:" searches, by the keys of the rows; searches again if they have
    /// changed.
    void setSetNames(insight::SetNames names);

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void applyFilter();
    void showCount();
    void reserveHeight();
    void prepareSearch();
    void exportRows();

    std::unique_ptr<Ui::LogSearchBar> ui_;
    std::unique_ptr<insight::SearchedLog> log_;
    QTableView* table_ = nullptr;
    insight::SetNames names_;
};
