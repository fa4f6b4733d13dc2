// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <boost/shared_ptr.hpp>

class SetOptionsPage;

namespace hessiancln {
class BackupSet;
}

namespace wizards {

/// What users can configure for a file set on an agent, apart from its content.
struct SetFeatures {
    bool localStorage = false; ///< the agent has the tool for it
    bool notebook = false;     ///< an agent of the notebook kind, which decides everything itself

    bool optionsPage() const { return localStorage && !notebook; }
};

/// Queries the agent of the session. Throws what the calls throw.
SetFeatures readSetFeatures();

/// Writes the options of a set; `page` is null if the features have none. Except on notebook
/// agents, a set reads its files through volume shadow copies and so must be a set of Windows
/// files. Throws what the calls throw.
void applyOptions(const SetFeatures& features, SetOptionsPage* page,
                  const boost::shared_ptr<hessiancln::BackupSet>& set);

} // namespace wizards
