// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include <boost/shared_ptr.hpp>

namespace hessiancln {

class ICallDispatcher;

/// Tells the agent that an object isn't needed any more. One stands for each reference that the
/// agent handed out, shared by all proxies of it; `Release` goes out with the last of them, on the
/// thread that drops it, and blocks that thread for one round trip.
class CAutoReleaser {
public:
    explicit CAutoReleaser(std::string url);
    CAutoReleaser(const CAutoReleaser&) = delete;
    CAutoReleaser& operator=(const CAutoReleaser&) = delete;

    /// Sends `Release`. Nothing is raised: an agent that is gone, or refuses, has let the object
    /// go in its own way.
    ~CAutoReleaser();

    /// Where `Release` is to go; each proxy that dies leaves its own dispatcher here. Without one,
    /// a dispatcher is created for the call.
    void setDispatcher(const boost::shared_ptr<ICallDispatcher>& dispatcher);

private:
    std::string url_;
    boost::shared_ptr<ICallDispatcher> dispatcher_;
};

} // namespace hessiancln
