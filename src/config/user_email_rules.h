// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include "api/user_email.h"

namespace config {

/// The reason why a row is invalid in the list of addresses, for display; empty if it is valid. The
/// domain may be empty.
QString problemOf(const hessiancln::user_email& row);

/// The identity of a user in a list: rows of the same user have the same key, regardless of the
/// case of user name and domain.
QString userKey(const hessiancln::user_email& row);

} // namespace config
