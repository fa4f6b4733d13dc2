// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include "api/user_email.h"

namespace config {

/// What forbids a row in the list of addresses, for the screen; empty if nothing does. The domain
/// may be empty.
QString problemOf(const hessiancln::user_email& row);

/// What tells the users of a list apart: rows of the same user give the same key, in whatever case
/// user name and domain are written.
QString userKey(const hessiancln::user_email& row);

} // namespace config
