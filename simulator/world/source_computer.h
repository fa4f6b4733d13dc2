// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <map>
#include <string>
#include <vector>

#include "api/browser_records.h"
#include "simulator/world/credentials_state.h"
#include "simulator/world/folder_tree.h"

namespace simulator {

/// A computer whose data can be backed up.
struct SourceComputer {
    std::string name; ///< the full one: "Microsoft Windows Network\OFFICE\FILESRV"
    LoginKind kind = LoginKind::Windows;
    bool local = false;                       ///< the agent's own
    std::map<std::string, std::string> users; ///< and their passwords
    std::string keyFile;                      ///< that an SSH server takes from each of them
    std::string passphrase;
    std::vector<hessiancln::PreDefinedBrowseItem> presets;
    FolderTree folders;
};

} // namespace simulator
