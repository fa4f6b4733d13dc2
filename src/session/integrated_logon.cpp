// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "session/integrated_logon.h"

#include <memory>
#include <utility>

#include "api/client_connection.h"
#include "session/sspi_client_context.h"
#include "session/token_frame.h"
#include "transport/call_passage.h"
#include "transport/pending_reply.h"

namespace session {

using hessiancln::CallPassage;
using hessiancln::ClientConnection;
using hessiancln::PendingReply;
using platform::SecurityOperations;

namespace {

// The service runs on the user's machine, whatever its address.
const char* const targetName = "OstrandBakSvc/localhost";

/// One round. Where the thread has a hook, it waits with it, since the system may have to wait for
/// its logon service. A user who gives up leaves the context to the thread that runs the round.
bool runRound(const std::shared_ptr<SspiClientContext>& context) {
    const CallPassage passage;
    if (!CallPassage::hook())
        return context->runRound(targetName);
    const auto reply = std::make_shared<PendingReply>([](const std::string&) {},
                                                      hessiancln::Awaited::logonService);
    const auto succeeded = std::make_shared<bool>(false);
    waitForThread(reply, [context, succeeded] {
        *succeeded = context->runRound(targetName);
        return std::string();
    });
    return *succeeded;
}

} // namespace

bool integratedLogonAvailable() {
    SecurityOperations* const operations = platform::securityOperations();
    return operations && operations->available();
}

bool performIntegratedLogon(boost::shared_ptr<ClientConnection>& connectionOut,
                            ClientConnection& bootstrap, const std::string& url,
                            const std::string& version, SecurityOperations& operations) {
    const auto context = std::make_shared<SspiClientContext>(operations);
    boost::shared_ptr<ClientConnection> root;
    while (!context->done() && runRound(context) && !context->outToken().empty()) {
        auto answer = bootstrap.sspi_login(url, version, frameToken(context->outToken()));
        root = std::move(answer.conn);
        const auto token = framedToken(answer.context);
        // A round without a token would begin the exchange again, perhaps forever.
        if (!context->done() && token.empty())
            return false;
        context->setInToken(token);
    }
    if (!context->done())
        return false;
    connectionOut = std::move(root);
    return true;
}

} // namespace session
