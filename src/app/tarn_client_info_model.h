// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "api/tarn_client_info.h"
#include "models/record_table_model.h"

/// The agent's information about itself, as names and values in its order.
class TarnClientInfoModel : public models::RecordTableModel<hessiancln::tarn_client_info> {
    Q_OBJECT
public:
    enum Column { item, value, columns };

    explicit TarnClientInfoModel(QObject* parent = nullptr);

    /// Queries the agent if there is a session. Throws what the call throws.
    void refresh();

    /// Shows the list without the entries meant only for programs.
    void setInformation(std::vector<hessiancln::tarn_client_info> list);
};
