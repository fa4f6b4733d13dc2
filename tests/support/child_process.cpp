// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/support/child_process.h"

#include <stdexcept>

namespace support {

std::string runProgram(const std::string& program, const std::vector<std::string>& arguments,
                       const std::string& input) {
    ChildProcess process(program, arguments);
    process.write(input);
    std::string said = process.rest();
    const int status = process.status();
    if (status != 0)
        throw std::runtime_error(program + " ends with status " + std::to_string(status) + ": " +
                                 said);
    return said;
}

} // namespace support
