// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/tarn_client_info_model.h"

#include <array>

#include "api/client_connection.h"
#include "session/connection.h"
#include "session/text.h"

namespace {

using M = TarnClientInfoModel;
using R = hessiancln::tarn_client_info;

constexpr std::array<models::RecordColumn<R>, M::columns> columnTable{{
    {{M::item, QT_TRANSLATE_NOOP("TarnClientInfoModel", "Item"), 140, ui::leftInCell},
     [](const R& record) { return session::fromWire(record.name); }},
    {{M::value, QT_TRANSLATE_NOOP("TarnClientInfoModel", "Value"), 270, ui::leftInCell},
     [](const R& record) { return session::fromWire(record.value); }},
}};
static_assert(ui::areInOrder(columnTable));

} // namespace

TarnClientInfoModel::TarnClientInfoModel(QObject* parent)
    : RecordTableModel(columnTable, parent) {}

void TarnClientInfoModel::refresh() {
    if (session::connectedToAgent())
        setInformation(session::getConnection()->getTarnClientInfo());
}

void TarnClientInfoModel::setInformation(std::vector<R> list) {
    std::erase_if(list, [](const R& record) { return record.name == "InitialClient"; });
    setRecords(std::move(list));
}
