// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include <boost/shared_ptr.hpp>

#include "api/backup_set_data_view.h"
#include "transport/i_call_dispatcher.h"

/// An agent that has one view of what a set holds, made up by a test, and writes down what it is
/// asked. What it doesn't know it refuses.
class ViewingAgent final : public hessiancln::ICallDispatcher {
public:
    using Items = std::vector<hessiancln::SelectableItem>;

    ViewingAgent();

    /// A view of the agent. The agent isn't told when it goes.
    static boost::shared_ptr<hessiancln::BackupSetDataView>
    view(const boost::shared_ptr<ViewingAgent>& agent);

    std::map<std::int64_t, Items> items; ///< by the id of what holds them
    /// Of files, by their ids.
    std::map<std::int64_t, std::vector<hessiancln::file_generations>> generations;

    /// The ids that were asked for since the last time that they were taken, as "-1 1 2"; those of
    /// files whose generations were asked for with a "g" in front.
    std::string takeCalls();

    std::string sendRequest(const std::string& url, const std::string& request) override;

private:
    template <class Value>
    std::string reply(const std::map<std::int64_t, Value>& values, std::int64_t id,
                      const char* mark);

    std::string calls_;
};

inline hessiancln::SelectableItem storedFolder(std::int64_t id, std::string name) {
    return {id, std::move(name), hessiancln::SelectableItemType::Folder, false, true};
}
inline hessiancln::SelectableItem storedFile(std::int64_t id, std::string name) {
    return {id, std::move(name), hessiancln::SelectableItemType::File, true, true};
}
inline hessiancln::SelectableItem storedDrive(std::int64_t id, std::string name) {
    return {id, std::move(name), hessiancln::SelectableItemType::Drive, false, true};
}
