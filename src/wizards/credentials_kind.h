// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

namespace wizards {

/// What credentials ask for.
enum class CredentialsKind { Other, Windows, Unix, SSH };

/// Told by the classes that the agent's object is of.
CredentialsKind credentialsKind(const std::vector<std::string>& types);

} // namespace wizards
