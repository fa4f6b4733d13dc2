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

/// The panel beside the list, which shows how the selected set is backed up.
class SetDetailsPanel {
    Q_DECLARE_TR_FUNCTIONS(SimpleGUIMainWindow)
public:
    /// What the panel is made of. Its texts are in `SetDetails`.
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
    /// Asks the agent about a set; may raise what is derived from `std::exception`.
    using Source = std::function<Facts(std::int32_t setId)>;
    static Facts factsOfAgent(std::int32_t setId);

    /// `page` and the labels have to outlive the panel; error boxes belong to the page's window.
    SetDetailsPanel(QWidget& page, const Labels& labels, Source source = factsOfAgent);

    /// Shows a set. A failure is shown in a box, and leaves the texts as they were. Does nothing
    /// while such a box is open.
    void show(std::int32_t setId);
    /// Empties the texts.
    void clear();

    /// Whether the set that was shown last has files on-line.
    bool hasBackedUpData() const { return hasBackedUpData_; }

private:
    QWidget& page_;
    Labels labels_;
    Source source_;
    bool hasBackedUpData_ = false;
    bool reading_ = false;
};

} // namespace app
