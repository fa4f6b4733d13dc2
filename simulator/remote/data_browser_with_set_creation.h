// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "simulator/remote/data_source_browser.h"

namespace simulator {

/// A browser that can also create backup sets.
class DataBrowserWithSetCreation final : public DataSourceBrowser {
public:
    DataBrowserWithSetCreation(const std::shared_ptr<Session>& opened, World& world);

private:
    World::Set newSet(const std::string& computer) const;
};

} // namespace simulator
