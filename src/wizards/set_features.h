// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <boost/shared_ptr.hpp>

class SetOptionsPage;

namespace hessiancln {
class BackupSet;
}

namespace wizards {

/// What an agent lets users decide about a set of files, beside what it holds.
struct SetFeatures {
    bool localStorage = false; ///< the agent has the tool for it
    bool notebook = false;     ///< an agent of the notebook kind, which decides all by itself

    bool optionsPage() const { return localStorage && !notebook; }
};

/// Asks the agent of the session. Raises what the calls raise.
SetFeatures readSetFeatures();

/// Writes the options of a set; `page` is null if the features allow none. Any but a notebook's set
/// reads its files through volume shadow copies, so that it has to be a set of Windows files.
/// Raises what the calls raise.
void applyOptions(const SetFeatures& features, SetOptionsPage* page,
                  const boost::shared_ptr<hessiancln::BackupSet>& set);

} // namespace wizards
