// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <vector>

#include <QString>

#include "api/user_email.h"
#include "config/chosen_file.h"

namespace config {

/// The row in a line of a list of addresses: user name, domain and address, each terminated by a
/// comma, a vertical bar or a tab. The rest is ignored. No value if the line is shorter.
std::optional<hessiancln::user_email> userEmailOf(const QString& line);

struct UserEmailList {
    std::vector<hessiancln::user_email> rows;
    LinesRead lines;
};

/// The valid rows of a file, in its order. Invalid lines and rows are skipped. The file is UTF-16
/// or UTF-32 if it begins with the byte order mark of that encoding, else UTF-8, or Latin-1 if it
/// isn't valid UTF-8. `file` is open for reading, as text.
UserEmailList readUserEmails(QIODevice& file);

} // namespace config
