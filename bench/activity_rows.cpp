// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "activity_rows.h"

#include <algorithm>
#include <cstdio>

#include "hessian/value.h"

namespace bench {

Rows sampleRows(std::size_t count) {
    Rows rows(count);
    std::int32_t i = 0;
    for (auto& row : rows) {
        char text[64];
        std::snprintf(text, sizeof text, "Scheduled backup of set %05d, run %06d ok", i % 2000, i);
        row.description = text;
        std::snprintf(text, sizeof text, "operator%04d", i % 500);
        row.user = text;
        row.id = 100'000 + i;
        row.type = static_cast<decltype(row.type)>(i % 21);
        row.start_time = 1'700'000'000 + 60 * i;
        row.end_time = row.start_time + 45;
        row.completion = static_cast<decltype(row.completion)>(i % 36);
        row.errors = i % 3;
        row.warnings = i % 7;
        row.set_id = i % 2000;
        row.schedule_id = i % 50;
        row.file_count = 31 * i;
        row.data_size = 1'048'583LL * i;
        row.node_id = 1;
        row.transmit_amt = 524'287LL * i;
        row.net_transmit_amt = 262'147LL * i;
        ++i;
    }
    return rows;
}

std::string writeInReverse(const Rows& rows) {
    using namespace hessianser;
    std::string out = "V";
    constexpr auto fields = Rows::value_type::fields();
    for (const auto& row : rows) {
        out.push_back('M');
        writeType(Rows::value_type::wireType, out);
        [&]<std::size_t... I>(std::index_sequence<I...>) {
            const auto write = [&](const auto& field) {
                writeString(field.key, out);
                writeValue(row.*field.member, out);
            };
            (write(std::get<sizeof...(I) - 1 - I>(fields)), ...);
        }
        (std::make_index_sequence<std::tuple_size_v<decltype(fields)>>{});
        writeEnd(out);
    }
    writeEnd(out);
    return out;
}

bool same(const Rows& a, const Rows& b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const auto& x, const auto& y) {
        return std::apply(
            [&](const auto&... field) { return ((x.*field.member == y.*field.member) && ...); },
            Rows::value_type::fields());
    });
}

} // namespace bench
