// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include <boost/shared_ptr.hpp>

#include "api/data_source_browser.h"

namespace bench {

/// Realistic names of a folder's entries, in no order; some aren't plain ASCII.
std::vector<std::string> folderNames(std::size_t count);

/// An in-process agent with a drive "C:" that contains only the given names. The replies are
/// encoded once, so that the agent itself takes only the time of a copy.
class PreparedBrowser {
public:
    PreparedBrowser(const std::vector<std::string>& names, bool areFolders);

    boost::shared_ptr<hessiancln::DataSourceBrowser> browser() const;

    /// The number of calls so far.
    std::size_t calls() const;

private:
    class Agent;

    boost::shared_ptr<Agent> agent_;
};

} // namespace bench
