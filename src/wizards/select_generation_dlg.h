// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include <QDialog>

#include "models/generation_choice.h"

class CGenerationSelectModel;

namespace Ui {
class SelectGenerationDlg;
}

/// Lets the user select one of the stored versions of a file. Times are seconds since 1970 UTC.
class SelectGenerationDlg : public QDialog {
    Q_OBJECT
public:
    explicit SelectGenerationDlg(const models::Generations& generations, QWidget* parent = nullptr);
    ~SelectGenerationDlg() override;

    CGenerationSelectModel& generations() { return *model_; }
    /// The backup time of the selected version; no value without a selection.
    std::optional<std::int32_t> chosenTime() const;

protected:
    void changeEvent(QEvent* event) override;

private:
    void setUpTable();
    void updateEnabling();

    std::unique_ptr<Ui::SelectGenerationDlg> ui_;
    std::unique_ptr<CGenerationSelectModel> model_;
};
