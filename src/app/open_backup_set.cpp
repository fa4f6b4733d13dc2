// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/open_backup_set.h"

#include <stdexcept>

#include <QCoreApplication>

#include "api/client_connection.h"
#include "session/connection.h"
#include "session/text.h"

namespace app {

boost::shared_ptr<hessiancln::BackupSet> openBackupSet(std::int32_t id) {
    auto set = session::getConnection()->backup_set(id);
    if (!set)
        throw std::runtime_error(session::toWire(QCoreApplication::translate(
            "openBackupSet", "The agent doesn't know this backup set.")));
    return set;
}

} // namespace app
