// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/tarn_client_info_model.h"

#include <array>

#include "api/client_connection.h"
#include "session/connection.h"
#include "session/text.h"

namespace {

using R = hessiancln::tarn_client_info;

constexpr Qt::Alignment left = Qt::AlignLeft | Qt::AlignVCenter;

const std::array<app::TableColumn<R>, 2> columns{{
    {QT_TRANSLATE_NOOP("TarnClientInfoModel", "Item"),
     [](const R& record) { return session::fromWire(record.name); },
     {},
     left},
    {QT_TRANSLATE_NOOP("TarnClientInfoModel", "Value"),
     [](const R& record) { return session::fromWire(record.value); },
     {},
     left},
}};

} // namespace

TarnClientInfoModel::TarnClientInfoModel(QObject* parent)
    : RecordTableModel(columns, parent) {}

void TarnClientInfoModel::refresh() {
    if (session::connectedToAgent())
        setInformation(session::getConnection()->getTarnClientInfo());
}

void TarnClientInfoModel::setInformation(std::vector<R> list) {
    std::erase_if(list, [](const R& record) { return record.name == "InitialClient"; });
    setRecords(std::move(list));
}
