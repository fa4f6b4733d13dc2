// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "transport/frame.h"

#include <algorithm>
#include <cstdio>
#include <limits>
#include <string_view>

#include <boost/endian/conversion.hpp>

#include "transport/checksum.h"

namespace hessiancln {

namespace {

constexpr std::size_t magicSize = 4;
constexpr std::string_view requestMagic = "@REQ";
constexpr std::string_view responseMagic = "@RSP";

template <class Number>
void append(std::string& frame, Number number) {
    boost::endian::native_to_big_inplace(number);
    frame.append(reinterpret_cast<const char*>(&number), sizeof number);
}

} // namespace

std::string requestFrame(std::uint32_t id, const std::string& url, const std::string& message) {
    std::string frame;
    frame.reserve(24 + url.size() + message.size());
    frame += requestMagic;
    append(frame, id);
    append(frame, static_cast<std::uint32_t>(url.size()));
    frame += url;
    append(frame, static_cast<std::uint64_t>(message.size()));
    frame += message;
    append(frame, continueChecksum(0, frame.data() + magicSize, frame.size() - magicSize));
    return frame;
}

bool hasResponseMagic(const ResponseHeader& header) {
    return std::equal(responseMagic.begin(), responseMagic.end(), header.begin());
}

std::uint32_t responseId(const ResponseHeader& header) {
    return boost::endian::load_big_u32(header.data() + 4);
}

std::uint64_t responseLength(const ResponseHeader& header) {
    return boost::endian::load_big_u64(header.data() + 8);
}

bool isMessageLength(std::uint64_t length) {
    return length <= std::numeric_limits<std::uint32_t>::max();
}

std::uint32_t checksumOf(const ResponseHeader& header) {
    return continueChecksum(0, header.data() + magicSize, header.size() - magicSize);
}

std::uint32_t storedChecksum(const char* bytes) {
    return boost::endian::load_big_u32(reinterpret_cast<const unsigned char*>(bytes));
}

std::string dump(const ResponseHeader& header) {
    // Each byte is printed as a signed number over the tail of the previous one.
    std::array<char, 2 * responseHeaderSize + 8> digits{};
    for (std::size_t i = 0; i < header.size(); ++i) {
        const int number =
            static_cast<signed char>(header[i]); // NOLINT(bugprone-signed-char-misuse)
        std::snprintf(digits.data() + 2 * i, digits.size() - 2 * i, "%02X",
                      static_cast<unsigned>(number));
    }
    return digits.data();
}

} // namespace hessiancln
