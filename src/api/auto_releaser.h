// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include <boost/shared_ptr.hpp>

namespace hessiancln {

class ICallDispatcher;

/// Releases an object on the agent. There is one for each reference the agent handed out, shared by
/// all proxies of it; `Release` is sent with the destruction of the last proxy, on that thread, and
/// blocks it for one round trip.
class CAutoReleaser {
public:
    explicit CAutoReleaser(std::string url);
    CAutoReleaser(const CAutoReleaser&) = delete;
    CAutoReleaser& operator=(const CAutoReleaser&) = delete;

    /// Sends `Release`. Doesn't throw: an agent that is gone or refuses has dropped the object
    /// anyway.
    ~CAutoReleaser();

    /// The dispatcher for `Release`; each destroyed proxy leaves its own here. Without one, a
    /// dispatcher is created for the call.
    void setDispatcher(const boost::shared_ptr<ICallDispatcher>& dispatcher);

private:
    std::string url_;
    boost::shared_ptr<ICallDispatcher> dispatcher_;
};

} // namespace hessiancln
