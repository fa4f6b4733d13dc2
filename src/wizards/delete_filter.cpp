// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/delete_filter.h"

#include "wizards/backup_time_span.h"

namespace wizards {

DeleteFilter deleteFilter(const DeleteFilterFields& fields) {
    if (!fields.on)
        return {};
    return {fields.useFrom ? secondsOf(fields.from) : 0, fields.useTo ? limitOf(fields.to) : 0,
            fields.useRemoved ? limitOf(fields.removed) : 0, fields.useKeep ? fields.keep : 0};
}

bool isInForce(const DeleteFilterFields& fields) {
    if (!fields.on)
        return false;
    return (fields.useFrom && fields.earliest < fields.from) ||
           (fields.useTo && fields.to < fields.latest) || fields.useRemoved ||
           (fields.useKeep && fields.keep >= 1);
}

} // namespace wizards
