// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>

#include "simulator/objects/servant.h"

namespace simulator {

/// Options of an on-demand backup.
class BackupStartParameters final : public Servant {
public:
    static constexpr std::string_view family = "BackupStartParameters";

    explicit BackupStartParameters(std::shared_ptr<Session> opened)
        : Servant(std::move(opened)) {
        implements("BackupStartParameters");
        on("setDoRetentionAfter", [this](bool value) { doRetentionAfter_ = value; });
        on("setPreScanSource", [this](bool value) { preScanSource_ = value; });
    }

    bool doRetentionAfter() const { return doRetentionAfter_; }
    bool preScanSource() const { return preScanSource_; }

private:
    bool doRetentionAfter_ = false;
    bool preScanSource_ = false;
};

} // namespace simulator
