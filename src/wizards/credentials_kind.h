// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

namespace wizards {

/// What credentials consist of.
enum class CredentialsKind { Other, Windows, Unix, SSH };

/// Determined from the classes of the agent's object.
CredentialsKind credentialsKind(const std::vector<std::string>& types);

} // namespace wizards
