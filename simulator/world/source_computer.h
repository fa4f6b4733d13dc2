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
    std::string name; ///< full name: "Microsoft Windows Network\OFFICE\FILESRV"
    LoginKind kind = LoginKind::Windows;
    bool local = false;                       ///< the agent's own computer
    std::map<std::string, std::string> users; ///< with their passwords
    std::string keyFile;                      ///< accepted from each of them by an SSH server
    std::string passphrase;
    std::vector<hessiancln::PreDefinedBrowseItem> presets;
    FolderTree folders;
};

} // namespace simulator
