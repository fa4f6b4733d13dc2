// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <optional>

#include "api/activity_records.h"
#include "api/backup_set_records.h"
#include "api/event_records.h"
#include "properties.h"
#include "tests/support/sample_values.h"

namespace {

using namespace hessianser;

/// Reads a record in the plainest way: member by member, each name compared with each key.
template <class R>
R readPlainly(Cursor& in) {
    R record{};
    readMapStart(in, R::wireType);
    std::string_view name;
    std::string scratch;
    while (readMemberName(in, name, scratch)) {
        const bool known = std::apply(
            [&](const auto&... field) {
                return ((name == field.key && (readValue(in, record.*field.member), true)) || ...);
            },
            R::fields());
        if (!known)
            fail("Unknown map field type");
    }
    return record;
}

/// The result of reading: a record and the number of bytes left, or an error text.
template <class R>
struct Outcome {
    std::optional<R> record;
    std::uint32_t remaining = 0;
    std::string failure;
};

template <class R, class Read>
Outcome<R> outcomeOf(std::string_view message, Read read) {
    Outcome<R> outcome;
    try {
        Cursor in(message);
        outcome.record = read(in);
        outcome.remaining = in.remaining;
    } catch (const serialize_exception& failure) {
        outcome.failure = failure.what();
    }
    return outcome;
}

template <class R>
void requireAnyOrder(const R& record) {
    constexpr auto fields = R::fields();
    std::string out = "M";
    writeType(R::wireType, out);
    [&]<std::size_t... I>(std::index_sequence<I...>) {
        const auto write = [&](const auto& field) {
            writeString(field.key, out);
            writeValue(record.*field.member, out);
        };
        (write(std::get<sizeof...(I) - 1 - I>(fields)), ...);
    }
    (std::make_index_sequence<std::tuple_size_v<decltype(fields)>>{});
    writeEnd(out);
    Cursor in(out);
    fuzz::require(fuzz::same(readValue<R>(in), record), "the order of keys doesn't matter");
}

template <class R>
void readRecord(std::string_view message) {
    const auto quick = outcomeOf<R>(message, [](Cursor& in) { return readValue<R>(in); });
    const auto plain = outcomeOf<R>(message, readPlainly<R>);
    fuzz::require(quick.failure == plain.failure, "both ways of reading fail alike");
    fuzz::require(quick.remaining == plain.remaining, "both ways of reading end alike");
    if (!quick.record)
        return;
    fuzz::require(fuzz::same(*quick.record, *plain.record), "both ways of reading read the same");
    fuzz::requireRoundTrip(*quick.record);
    requireAnyOrder(*quick.record);
}

using ReadRecord = void (*)(std::string_view);

/// Append only: the corpus refers to the indices.
constexpr ReadRecord records[] = {
    readRecord<support::everything>,
    readRecord<support::label>,
    readRecord<support::nothing>,
    readRecord<hessiancln::activity_log_info>,
    readRecord<hessiancln::running_activity_info>,
    readRecord<hessiancln::backup_set_info>,
    readRecord<hessiancln::backup_set_overview_info>,
    readRecord<hessiancln::event_log_info>,
};

} // namespace

/// The first byte selects the record that is read from the remaining bytes.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size != 0 && data[0] < std::size(records))
        records[data[0]](fuzz::asText(data + 1, size - 1));
    return 0;
}
