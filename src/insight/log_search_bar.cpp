// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "insight/log_search_bar.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include <QDir>
#include <QEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QKeyEvent>
#include <QSaveFile>
#include <QStandardPaths>
#include <QTableView>

#include "insight/copy_rows.h"
#include "ui/empty_note.h"
#include "ui/error_box.h"
#include "ui/file_dialog.h"
#include "ui/locale_text.h"
#include "ui/wrapping_row.h"
#include "ui_log_search_bar.h"

namespace {

constexpr std::array severities{insight::Severity::info, insight::Severity::warning,
                                insight::Severity::error};

/// The selected records, whose rows change with the filter.
std::vector<std::size_t> selectedRecords(const QTableView& table, const insight::SearchedLog& log) {
    std::vector<std::size_t> records;
    for (const QModelIndex& index : table.selectionModel()->selectedRows())
        records.push_back(log.recordOf(index.row()));
    return records;
}

void selectRecords(QTableView& table, const insight::SearchedLog& log,
                   const std::vector<std::size_t>& records) {
    QItemSelection rows;
    for (const std::size_t record : records)
        if (const int row = log.rowOf(record); row >= 0)
            rows.select(table.model()->index(row, 0), table.model()->index(row, 0));
    if (rows.isEmpty())
        return;
    table.selectionModel()->setCurrentIndex(rows.indexes().first(), QItemSelectionModel::NoUpdate);
    table.selectionModel()->select(rows,
                                   QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    table.scrollTo(rows.indexes().first());
}

/// The user's folder for documents, or the home directory without one.
QString documents() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileInfo(folder).isDir() ? folder : QDir::homePath();
}

} // namespace

LogSearchBar::LogSearchBar(QWidget* parent)
    : QWidget(parent)
    , ui_(std::make_unique<Ui::LogSearchBar>()) {
    ui_->setupUi(this);
    ui::letRowWrap(*ui_->layoutSearch);
    connect(ui_->editSearch, &QLineEdit::textChanged, this, &LogSearchBar::applyFilter);
    connect(ui_->comboSeverity, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &LogSearchBar::applyFilter);
    ui_->editSearch->installEventFilter(this);
    connect(ui_->buttonExport, &QPushButton::clicked, this, &LogSearchBar::exportRows);
}

LogSearchBar::~LogSearchBar() = default;

void LogSearchBar::attach(QTableView& table, std::unique_ptr<insight::SearchedLog> log,
                          std::function<QString()> emptyLog) {
    table_ = &table;
    log_ = std::move(log);
    insight::copyRows(table);
    new ui::EmptyNote(table, [this, emptyLog = std::move(emptyLog)] {
        if (log_->allRows() > 0)
            return tr("No rows match the search.");
        return emptyLog ? emptyLog() : QString();
    });
    const QAbstractItemModel* model = &log_->model();
    connect(model, &QAbstractItemModel::modelReset, this, &LogSearchBar::showCount);
    connect(model, &QAbstractItemModel::rowsInserted, this, &LogSearchBar::showCount);
    connect(model, &QAbstractItemModel::rowsRemoved, this, &LogSearchBar::showCount);
    connect(model, &QAbstractItemModel::dataChanged, this, &LogSearchBar::showCount);
    // Once the views have painted the new rows.
    connect(model, &QAbstractItemModel::dataChanged, this, &LogSearchBar::prepareSearch,
            Qt::QueuedConnection);
    showCount();
}

void LogSearchBar::setSetNames(insight::SetNames names) {
    if (names == names_)
        return;
    names_ = std::move(names);
    if (ui_->editSearch->text().contains(QLatin1Char(':')))
        applyFilter();
}

void LogSearchBar::applyFilter() {
    if (!log_)
        return;
    const insight::LogFilter filter{
        insight::parseLogQuery(ui_->editSearch->text(), insight::LogKeywords::translated()),
        severities.at(static_cast<std::size_t>(std::max(ui_->comboSeverity->currentIndex(), 0)))};
    const auto selected = selectedRecords(*table_, *log_);
    log_->setFilter(filter, names_);
    selectRecords(*table_, *log_, selected);
}

void LogSearchBar::showCount() {
    const int shown = log_->shownRows();
    const int all = log_->allRows();
    ui_->labelCount->setText(
        shown == all
            ? (all == 1 ? tr("1 row") : tr("%1 rows").arg(ui::numberText(all)))
            : tr("%1 shown, %2 hidden").arg(ui::numberText(shown), ui::numberText(all - shown)));
}

void LogSearchBar::prepareSearch() {
    if (log_ && ui_->editSearch->hasFocus())
        log_->prepare();
}

void LogSearchBar::exportRows() {
    if (!log_)
        return;
    // The log may be cleared while the dialog is open.
    const QByteArray rows = log_->csv();
    QFileDialog dialog(window(), tr("Export Log"), documents(), tr("CSV Files (*.csv)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setLabelText(QFileDialog::Accept, tr("&Save"));
    dialog.setDefaultSuffix(QStringLiteral("csv"));
    dialog.selectFile(QStringLiteral("log.csv"));
    ui::adaptFileDialog(dialog);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return;
    const QString name = dialog.selectedFiles().first();
    QSaveFile file(name);
    if (!file.open(QIODevice::WriteOnly) || file.write(rows) != rows.size() || !file.commit())
        ui::showError(window(), tr("Error"),
                      tr("The file '%1' cannot be written: %2").arg(name, file.errorString()));
}

/// A splitter or a tab ignores height-for-width, and the width of a hidden tab is arbitrary.
void LogSearchBar::reserveHeight() {
    if (isVisible())
        setMinimumHeight(heightForWidth(width()));
}

void LogSearchBar::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    reserveHeight();
}

void LogSearchBar::keyPressEvent(QKeyEvent* event) {
    // In a dialog the key would trigger the default button.
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        event->accept();
    else
        QWidget::keyPressEvent(event);
}

void LogSearchBar::showEvent(QShowEvent* event) {
    // Not in the form: the search for its picture in the themes of the desktop would delay the
    // program's start.
    ui_->editSearch->setClearButtonEnabled(true);
    QWidget::showEvent(event);
    reserveHeight();
}

bool LogSearchBar::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn && log_)
        log_->prepare();
    return QWidget::eventFilter(watched, event);
}

void LogSearchBar::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) {
        const int severity = ui_->comboSeverity->currentIndex();
        ui_->retranslateUi(this);
        ui_->comboSeverity->setCurrentIndex(severity);
        if (log_)
            showCount();
    }
    QWidget::changeEvent(event);
}
