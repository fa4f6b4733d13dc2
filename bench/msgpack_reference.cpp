// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "references.h"

#include <array>
#include <stdexcept>

#include <msgpack.hpp>

namespace bench {
namespace {

constexpr std::array<std::string_view, 16> keys{
    "id",        "type",    "start_time",   "end_time",        "completion",  "description",
    "user",      "errors",  "warnings",     "set_id",          "schedule_id", "file_count",
    "data_size", "node_id", "transmit_amt", "net_transmit_amt"};

class RowVisitor : public msgpack::null_visitor {
public:
    explicit RowVisitor(Rows& rows)
        : rows_(rows) {}

    bool start_array(std::uint32_t count) {
        rows_.reserve(count);
        return true;
    }
    bool start_array_item() {
        row_ = &rows_.emplace_back();
        member_ = keys.size() - 1;
        return true;
    }
    bool start_map_key() {
        inKey_ = true;
        return true;
    }
    bool end_map_key() {
        inKey_ = false;
        return true;
    }

    bool visit_str(const char* text, std::uint32_t size) {
        if (inKey_)
            return find({text, size});
        switch (member_) {
        case 5:
            row_->description.assign(text, size);
            return true;
        case 6:
            row_->user.assign(text, size);
            return true;
        default:
            return false;
        }
    }
    bool visit_positive_integer(std::uint64_t value) {
        return number(static_cast<std::int64_t>(value));
    }
    bool visit_negative_integer(std::int64_t value) { return number(value); }

private:
    /// Tries the member after the last one first, as the benchmarked codec does.
    bool find(std::string_view key) {
        const std::size_t expected = (member_ + 1) % keys.size();
        member_ = expected;
        for (std::size_t tried = 0; keys[member_] != key; ++tried) {
            if (tried == keys.size())
                return false;
            member_ = tried;
        }
        return true;
    }

    bool number(std::int64_t value) {
        const auto small = static_cast<std::int32_t>(value);
        switch (member_) {
        case 0:
            row_->id = small;
            return true;
        case 1:
            row_->type = hessianser::enumerationFrom<decltype(row_->type)>(small);
            return true;
        case 2:
            row_->start_time = small;
            return true;
        case 3:
            row_->end_time = small;
            return true;
        case 4:
            row_->completion = hessianser::enumerationFrom<decltype(row_->completion)>(small);
            return true;
        case 7:
            row_->errors = small;
            return true;
        case 8:
            row_->warnings = small;
            return true;
        case 9:
            row_->set_id = small;
            return true;
        case 10:
            row_->schedule_id = small;
            return true;
        case 11:
            row_->file_count = small;
            return true;
        case 12:
            row_->data_size = value;
            return true;
        case 13:
            row_->node_id = small;
            return true;
        case 14:
            row_->transmit_amt = value;
            return true;
        case 15:
            row_->net_transmit_amt = value;
            return true;
        default:
            return false;
        }
    }

    Rows& rows_;
    Rows::value_type* row_ = nullptr;
    std::size_t member_ = 0;
    bool inKey_ = false;
};

} // namespace

std::string writeMsgpack(const Rows& rows) {
    msgpack::sbuffer out;
    msgpack::packer packer(out);
    packer.pack_array(static_cast<std::uint32_t>(rows.size()));
    for (const auto& row : rows) {
        std::size_t next = 0;
        const auto pack = [&](const auto& value) {
            packer.pack(std::string(keys[next++]));
            packer.pack(value);
        };
        packer.pack_map(static_cast<std::uint32_t>(keys.size()));
        pack(row.id);
        pack(static_cast<std::int32_t>(row.type));
        pack(row.start_time);
        pack(row.end_time);
        pack(static_cast<std::int32_t>(row.completion));
        pack(row.description);
        pack(row.user);
        pack(row.errors);
        pack(row.warnings);
        pack(row.set_id);
        pack(row.schedule_id);
        pack(row.file_count);
        pack(row.data_size);
        pack(row.node_id);
        pack(row.transmit_amt);
        pack(row.net_transmit_amt);
    }
    return {out.data(), out.size()};
}

Rows readMsgpack(std::string_view bytes) {
    Rows rows;
    RowVisitor visitor(rows);
    std::size_t offset = 0;
    if (!msgpack::parse(bytes.data(), bytes.size(), offset, visitor))
        throw std::runtime_error("Not a list of rows");
    return rows;
}

} // namespace bench
