// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <string>

#include <boost/shared_ptr.hpp>

#include "transport/connection_key.h"
#include "transport/i_call_dispatcher.h"

namespace hessiancln {

class CSingleStreamDispatcherConnection;

/// Carries a session: calls are sent as frames over one long-lived stream per endpoint, and replies
/// may arrive out of order.
///
/// A connection that came up stays, even when its stream has died: every later call immediately
/// throws the text of its failure, so that logging out from a dead agent never waits. A connection
/// that didn't come up is replaced by the next call.
class CRawStreamDispacher final : public ICallDispatcher {
public:
    /// Without `reuseConnections`, each `sendRequest` uses its own connection.
    CRawStreamDispacher(std::uint32_t traceLevel, std::string traceFile, bool reuseConnections);
    ~CRawStreamDispacher() override;

    std::string sendRequest(const std::string& url, const std::string& request) override;

    /// The handlers run on the connection's own thread. They may call this function again, but must
    /// not end that connection; a blocking call over it throws. Blocks while 16 frames are
    /// unwritten. Always reuses connections.
    void asyncSendRequest(const std::string& url, const std::string& request, Handler onSuccess,
                          Handler onFailure) override;

    /// Ends every connection; calls in progress throw. The next call connects again.
    void stopConnections() override;

private:
    using ConnectionPtr = boost::shared_ptr<CSingleStreamDispatcherConnection>;
    class Teardowns;

    std::string send(const std::string& url, const std::string& request);
    void asyncSend(const std::string& url, const std::string& request, Handler onSuccess,
                   Handler onFailure);
    ConnectionPtr connectionFor(const ConnectionKey& key);
    std::string sendOnFreshConnection(const ConnectionKey& key, const std::string& url,
                                      const std::string& request);

    bool reuseConnections_;
    std::mutex connectionMutex_;
    std::map<ConnectionKey, ConnectionPtr> connections_; ///< null if it couldn't be started
    std::shared_ptr<Teardowns> teardowns_;
};

} // namespace hessiancln
