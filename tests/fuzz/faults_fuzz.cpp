// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "properties.h"

/// A fault, with or without the header of a reply.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace hessianser;
    Fault fault;
    try {
        Cursor in(fuzz::asText(data, size));
        if (!isFault(in))
            readReplyStart(in);
        fault = readFault(in);
    } catch (const serialize_exception&) {
        return 0;
    }

    std::string out = "f";
    writeString("message", out);
    writeString(fault.message, out);
    writeString("code", out);
    writeString(fault.code, out);
    writeEnd(out);
    Cursor in(out);
    const Fault again = readFault(in);
    fuzz::require(again.code == fault.code && again.message == fault.message,
                  "a fault that is written reads the same");
    fuzz::require(in.remaining == 1, "the end of a fault is left");
    return 0;
}
