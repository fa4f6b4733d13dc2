// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "references.h"

#include <stdexcept>

#include "activity_rows.pb.h"

namespace bench {

struct ProtobufRows::Messages {
    ActivityRows rows;
};

ProtobufRows::ProtobufRows(const Rows& rows)
    : messages_(std::make_unique<Messages>()) {
    for (const auto& row : rows) {
        ActivityRow& message = *messages_->rows.add_rows();
        message.set_id(row.id);
        message.set_type(static_cast<std::int32_t>(row.type));
        message.set_start_time(row.start_time);
        message.set_end_time(row.end_time);
        message.set_completion(static_cast<std::int32_t>(row.completion));
        message.set_description(row.description);
        message.set_user(row.user);
        message.set_errors(row.errors);
        message.set_warnings(row.warnings);
        message.set_set_id(row.set_id);
        message.set_schedule_id(row.schedule_id);
        message.set_file_count(row.file_count);
        message.set_data_size(row.data_size);
        message.set_node_id(row.node_id);
        message.set_transmit_amt(row.transmit_amt);
        message.set_net_transmit_amt(row.net_transmit_amt);
    }
}

ProtobufRows::~ProtobufRows() = default;

void ProtobufRows::write(std::string& out) const {
    if (!messages_->rows.AppendToString(&out))
        throw std::runtime_error("The rows can't be written");
}

Rows readProtobuf(std::string_view bytes) {
    ActivityRows messages;
    if (!messages.ParseFromArray(bytes.data(), static_cast<int>(bytes.size())))
        throw std::runtime_error("Not a list of rows");
    Rows rows(static_cast<std::size_t>(messages.rows_size()));
    for (std::size_t i = 0; i < rows.size(); ++i) {
        auto& row = rows[i];
        ActivityRow& message = *messages.mutable_rows(static_cast<int>(i));
        row.id = message.id();
        row.type = hessianser::enumerationFrom<decltype(row.type)>(message.type());
        row.start_time = message.start_time();
        row.end_time = message.end_time();
        row.completion =
            hessianser::enumerationFrom<decltype(row.completion)>(message.completion());
        row.description = std::move(*message.mutable_description());
        row.user = std::move(*message.mutable_user());
        row.errors = message.errors();
        row.warnings = message.warnings();
        row.set_id = message.set_id();
        row.schedule_id = message.schedule_id();
        row.file_count = message.file_count();
        row.data_size = message.data_size();
        row.node_id = message.node_id();
        row.transmit_amt = message.transmit_amt();
        row.net_transmit_amt = message.net_transmit_amt();
    }
    return rows;
}

} // namespace bench
