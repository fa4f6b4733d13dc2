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

namespace support {

/// An agent with one view of a set's content, which a test defines. It records its calls and
/// refuses those it doesn't know.
class ViewingAgent final : public hessiancln::ICallDispatcher {
public:
    using Items = std::vector<hessiancln::SelectableItem>;

    ViewingAgent();

    /// A view of the agent. Its destruction makes no call.
    static boost::shared_ptr<hessiancln::BackupSetDataView>
    view(const boost::shared_ptr<ViewingAgent>& agent);

    std::map<std::int64_t, Items> items; ///< by the id of their parent
    /// Of files, by id.
    std::map<std::int64_t, std::vector<hessiancln::file_generations>> generations;

    /// The ids requested since the last call of this function, as in "-1 1 2"; those of files whose
    /// generations were requested start with a "g".
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

} // namespace support
