// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "properties.h"
#include "tests/support/sample_values.h"

namespace {

using support::Colour;
using support::Handle;
using support::label;
using support::point;

/// Reads a reply as a caller does: header, fault or result, end.
template <class T>
void readReply(std::string_view message) {
    using namespace hessianser;
    T value{};
    try {
        Cursor in(message);
        if (!isFault(in))
            readReplyStart(in);
        if (isFault(in)) {
            readFault(in);
            return;
        }
        readValue(in, value);
        readEnd(in);
    } catch (const serialize_exception&) {
        return;
    }
    fuzz::requireRoundTrip(value);
}

using ReadReply = void (*)(std::string_view);

/// Append only: the corpus refers to the indices.
constexpr ReadReply kinds[] = {
    readReply<bool>,
    readReply<std::int32_t>,
    readReply<std::int64_t>,
    readReply<std::string>,
    readReply<hessianser::Binary>,
    readReply<Colour>,
    readReply<point>,
    readReply<Handle>,
    readReply<std::vector<bool>>,
    readReply<std::vector<std::int32_t>>,
    readReply<std::vector<std::string>>,
    readReply<std::vector<hessianser::Binary>>,
    readReply<std::vector<label>>,
    readReply<std::vector<Handle>>,
    readReply<std::vector<std::vector<std::string>>>,
};

} // namespace

/// The first byte selects the kind of result that the following reply is read as.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size != 0 && data[0] < std::size(kinds))
        kinds[data[0]](fuzz::asText(data + 1, size - 1));
    return 0;
}
