// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/set_features.h"

#include "api/checked_cast.h"
#include "api/client_connection.h"
#include "session/agent_kind.h"
#include "session/connection.h"
#include "session/required.h"
#include "wizards/set_options_page.h"

namespace wizards {

namespace {

constexpr std::int32_t localStorageTool = 8;

} // namespace

SetFeatures readSetFeatures() {
    const auto manager = session::required(session::getConnection()->getConfigurationManager());
    return {manager->isTarnToolEnabled(localStorageTool),
            session::isNotebookAgent(session::clientType())};
}

void applyOptions(const SetFeatures& features, SetOptionsPage* page,
                  const boost::shared_ptr<hessiancln::BackupSet>& set) {
    if (features.notebook)
        return;
    if (page)
        page->apply(set);
    hessiancln::checkedCast<hessiancln::Win32FS_BackupSet>(set)->setUseVSS(true);
}

} // namespace wizards
