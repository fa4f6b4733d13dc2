// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>

#include <QCoreApplication>

#include "api/activity_records.h"
#include "api/backup_set_records.h"

class QLabel;
class QWidget;

namespace app {

/// The panel beside the list that shows the backup settings of the selected set.
class SetDetailsPanel {
    Q_DECLARE_TR_FUNCTIONS(SimpleGUIMainWindow)
public:
    /// The widgets of the panel. `SetDetails` has their texts.
    struct Labels {
        QLabel& valLastBackup;
        QLabel& valFileGens;
        QLabel& valSize;
        QLabel& valItems;
        QLabel& valSchedule;
        QLabel& valRetention;
    };
    struct Facts {
        hessiancln::activity_log_info lastBackup;
        hessiancln::backup_set_overview_info overview;
    };
    /// Queries the agent about a set; may throw exceptions derived from `std::exception`.
    using Source = std::function<Facts(std::int32_t setId)>;
    static Facts factsOfAgent(std::int32_t setId);

    /// `page` and the labels must outlive the panel; error boxes belong to the page's window.
    SetDetailsPanel(QWidget& page, const Labels& labels, Source source = factsOfAgent);

    /// Shows a set. A failure is shown in a box and leaves the texts unchanged. Does nothing while
    /// such a box is open.
    void show(std::int32_t setId);
    /// Clears the texts.
    void clear();

    /// Whether the last shown set has files on-line.
    bool hasBackedUpData() const { return hasBackedUpData_; }

private:
    QWidget& page_;
    Labels labels_;
    Source source_;
    bool hasBackedUpData_ = false;
    bool reading_ = false;
};

} // namespace app
