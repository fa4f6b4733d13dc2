// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "api/tarn_client_info.h"
#include "models/record_table_model.h"

/// What the agent tells about itself, as names and values in its order.
class TarnClientInfoModel : public models::RecordTableModel<hessiancln::tarn_client_info> {
    Q_OBJECT
public:
    enum Column { item, value, columns };

    explicit TarnClientInfoModel(QObject* parent = nullptr);

    /// Asks the agent, if there is a session. Raises what the call raises.
    void refresh();

    /// Takes the list without what is meant for programs only.
    void setInformation(std::vector<hessiancln::tarn_client_info> list);
};
