// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
// What a thread with a hook does during a slow call, over both transports.
#include <functional>
#include <limits>
#include <memory>
#include <stdexcept>
#include <thread>

#include "tests/support/held_names.h"
#include "tests/support/scripted_hook.h"
#include "tests/support/signal.h"
#include "tests/support/system/sockets.h"
#include "tests/transport/raw_stream_fixture.h"
#include "transport/call_passage.h"
#include "transport/http_call_dispatcher.h"
#include "transport/invoke_exception.h"
#include "transport/pending_reply.h"
#include "transport/raw_stream_dispatcher.h"

namespace {

using namespace hessiancln;
namespace sockets = support::sockets;
using namespace std::chrono_literals;
using support::HeldNames;
using support::LoopbackServer;
using support::Peer;
using support::responseFrame;
using support::ScriptedHook;
using support::Signal;
using Mode = LoopbackServer::Mode;

const std::string goodbye = "Enough of this";

void leave(AwaitedCall& call) {
    call.giveUp(goodbye);
}

/// On a busy machine a call may take long to reach the server.
ScriptedHook::Work leaveAfter(Signal& asked) {
    return [&asked](AwaitedCall& call) {
        EXPECT_TRUE(asked.wait());
        leave(call);
    };
}

/// Gives up the n-th call, before it is sent.
class RefusingHook final : public WaitHook {
public:
    explicit RefusingHook(int nth)
        : left_(nth) {}

    std::chrono::milliseconds begin(AwaitedCall& call) override {
        EXPECT_TRUE(--left_ != 0 || call.giveUp(goodbye));
        return 20s;
    }
    void wait(AwaitedCall&) noexcept override { ADD_FAILURE() << "a quick call"; }

private:
    int left_;
};

struct Endpoint {
    bool stream = false;
    Mode mode = Mode::plain;

    std::unique_ptr<ICallDispatcher> dispatcher() const {
        if (stream)
            return std::make_unique<CRawStreamDispacher>(0, "", true);
        return std::make_unique<CHttpCallDispatcher>(0, "");
    }
    void receiveCall(Peer& peer) const {
        peer.open();
        if (stream)
            peer.receiveFrame();
        else
            peer.receiveUntil("\r\n\r\nping");
    }
    std::string reply() const {
        return stream ? responseFrame(1, "pong")
                      : "HTTP/1.1 200 OK\r\nContent-Length: 4\r\n\r\npong";
    }
    /// The head of a reply that announces 4 GB less one byte, or 1 GB over HTTP.
    std::string hugeHead() const {
        if (stream)
            return std::string("@RSP\0\0\0\1\0\0\0\0\xff\xff\xff\xff", 16);
        return "HTTP/1.1 200 OK\r\nContent-Length: 1073741824\r\n\r\n";
    }
};

void PrintTo(const Endpoint& endpoint, std::ostream* out) {
    *out << (endpoint.stream ? "stream, " : "HTTP, ");
    PrintTo(endpoint.mode, out);
}

class CallWait : public testing::TestWithParam<Endpoint> {
protected:
    std::string failure(const std::string& url) {
        const auto dispatcher = GetParam().dispatcher();
        return failureOf(*dispatcher, url);
    }
};

INSTANTIATE_TEST_SUITE_P(Each, CallWait,
                         testing::Values(Endpoint{false, Mode::plain}, Endpoint{false, Mode::tls},
                                         Endpoint{true, Mode::plain}, Endpoint{true, Mode::tls}),
                         [](const auto& test) {
                             return std::string(test.param.stream ? "Stream" : "Http") +
                                    (test.param.mode == Mode::tls ? "Tls" : "Plain");
                         });

TEST_P(CallWait, AQuickCallNeverRunsTheHook) {
    LoopbackServer server(GetParam().mode, [](Peer& peer) {
        GetParam().receiveCall(peer);
        peer.send(GetParam().reply()).receiveUntilClose();
    });
    ScriptedHook hook(leave, 20s);
    const WaitHookInstallation installed(hook);
    EXPECT_EQ(GetParam().dispatcher()->sendRequest(server.url(), "ping"), "pong");
    EXPECT_EQ(hook.waits, 0);
}

TEST_P(CallWait, AReplyThatComesLateEndsTheWait) {
    Signal waiting;
    LoopbackServer server(GetParam().mode, [&](Peer& peer) {
        GetParam().receiveCall(peer);
        waiting.wait();
        peer.send(GetParam().reply()).receiveUntilClose();
    });
    ScriptedHook hook([&](AwaitedCall& call) {
        EXPECT_FALSE(call.finished());
        waiting.raise();
    });
    const WaitHookInstallation installed(hook);
    EXPECT_EQ(GetParam().dispatcher()->sendRequest(server.url(), "ping"), "pong");
    EXPECT_EQ(hook.waits, 1);
}

TEST_P(CallWait, AReplyThatDripsIsOneWait) {
    LoopbackServer server(GetParam().mode, [](Peer& peer) {
        GetParam().receiveCall(peer);
        for (const char byte : GetParam().reply()) {
            peer.send(std::string(1, byte));
            std::this_thread::sleep_for(2ms);
        }
        peer.receiveUntilClose();
    });
    ScriptedHook hook([](AwaitedCall&) {}, 1ms);
    const WaitHookInstallation installed(hook);
    EXPECT_EQ(GetParam().dispatcher()->sendRequest(server.url(), "ping"), "pong");
    EXPECT_EQ(hook.waits, 1);
}

TEST_P(CallWait, GivingUpASilentServerFailsTheCallAndClosesTheConnection) {
    Signal asked;
    LoopbackServer server(GetParam().mode, [&](Peer& peer) {
        GetParam().receiveCall(peer);
        asked.raise();
        peer.expectClose();
    });
    ScriptedHook hook(leaveAfter(asked));
    const WaitHookInstallation installed(hook);
    const auto dispatcher = GetParam().dispatcher();
    EXPECT_EQ(failureOf(*dispatcher, server.url()), goodbye);
    EXPECT_TRUE(server.waitForEnded(1));
}

TEST_P(CallWait, GivingUpWithinAReplyFailsTheCall) {
    Signal asked;
    LoopbackServer server(GetParam().mode, [&](Peer& peer) {
        GetParam().receiveCall(peer);
        peer.send(GetParam().reply().substr(0, 10));
        asked.raise();
        peer.expectClose();
    });
    ScriptedHook hook(leaveAfter(asked));
    const WaitHookInstallation installed(hook);
    EXPECT_EQ(failure(server.url()), goodbye);
    EXPECT_TRUE(server.waitForEnded(1));
}

TEST_P(CallWait, GivingUpAnAnnouncedReplyThatNeverComesFailsTheCall) {
    Signal asked;
    LoopbackServer server(GetParam().mode, [&](Peer& peer) {
        GetParam().receiveCall(peer);
        peer.send(GetParam().hugeHead() + "so far");
        asked.raise();
        peer.expectClose();
    });
    ScriptedHook hook(leaveAfter(asked));
    const WaitHookInstallation installed(hook);
    EXPECT_EQ(failure(server.url()), goodbye);
    EXPECT_TRUE(server.waitForEnded(1));
}

TEST_P(CallWait, GivingUpTheResolutionOfANameConnectsNowhere) {
    LoopbackServer server(GetParam().mode, [](Peer& peer) { peer.receiveUntilClose(); });
    HeldNames names;
    ScriptedHook hook([&](AwaitedCall& call) {
        EXPECT_TRUE(names.waitForHeld(1));
        call.giveUp(goodbye);
    });
    const WaitHookInstallation installed(hook);
    {
        const auto dispatcher = GetParam().dispatcher();
        EXPECT_EQ(failureOf(*dispatcher, server.url("/api", "agent.held")), goodbye);
    }
    EXPECT_EQ(server.connections(), 0u);
}

TEST(PendingReply, EndsWithoutMemoryToWakeItsHook) {
    PendingReply reply([](const std::string&) {});
    reply.onFinish([] { throw std::bad_alloc(); });
    EXPECT_TRUE(reply.fail("No more"));
    EXPECT_TRUE(reply.finished());
    EXPECT_THROW(reply.wait(), invoke_exception);
}

TEST_P(CallWait, AFinishedCallCantBeGivenUp) {
    Signal waiting;
    LoopbackServer server(GetParam().mode, [&](Peer& peer) {
        GetParam().receiveCall(peer);
        waiting.wait();
        peer.send(GetParam().reply()).receiveUntilClose();
    });
    ScriptedHook hook(
        [&](AwaitedCall& call) {
            waiting.raise();
            while (!call.finished())
                std::this_thread::yield();
            EXPECT_FALSE(call.giveUp(goodbye));
        },
        1ms);
    const WaitHookInstallation installed(hook);
    EXPECT_EQ(GetParam().dispatcher()->sendRequest(server.url(), "ping"), "pong");
    EXPECT_EQ(hook.waits, 1);
}

TEST_P(CallWait, OtherThreadsSleepWithoutTheHook) {
    Signal asked;
    Signal answer;
    LoopbackServer server(GetParam().mode, [&](Peer& peer) {
        GetParam().receiveCall(peer);
        asked.raise();
        answer.wait();
        peer.send(GetParam().reply()).receiveUntilClose();
    });
    ScriptedHook hook(leave, 0ms);
    const WaitHookInstallation installed(hook);
    const auto dispatcher = GetParam().dispatcher();
    std::string reply;
    std::thread caller([&] { reply = dispatcher->sendRequest(server.url(), "ping"); });
    EXPECT_TRUE(asked.wait());
    answer.raise();
    caller.join();
    EXPECT_EQ(reply, "pong");
    EXPECT_EQ(hook.waits, 0);
}

/// A port to which no connection can be established, as the listener's queue is full.
class FullPort {
public:
    FullPort() {
        if (filler_ < 0)
            throw std::runtime_error("The first connection must come up");
    }
    FullPort(const FullPort&) = delete;
    FullPort& operator=(const FullPort&) = delete;
    ~FullPort() {
        sockets::close(filler_);
        sockets::close(listener_);
    }
    std::string url() const { return "https://127.0.0.1:" + std::to_string(port_) + "/api"; }

private:
    std::uint16_t port_ = 0;
    sockets::Socket listener_ = sockets::listenOnLoopback(port_, 0);
    sockets::Socket filler_ = sockets::connectToLoopback(port_);
};

TEST_P(CallWait, AConnectionThatDoesntComeUpCanBeGivenUp) {
    const FullPort port;
    ScriptedHook hook(leave);
    const WaitHookInstallation installed(hook);
    EXPECT_EQ(failure(port.url()), goodbye);
    EXPECT_EQ(hook.waits, 1);
}

class HandshakeWait : public CallWait {};

INSTANTIATE_TEST_SUITE_P(Each, HandshakeWait,
                         testing::Values(Endpoint{false, Mode::tls}, Endpoint{true, Mode::tls}),
                         [](const auto& test) { return test.param.stream ? "Stream" : "Http"; });

TEST_P(HandshakeWait, ThatStopsCanBeGivenUp) {
    Signal asked;
    LoopbackServer server(Mode::tls, [&](Peer& peer) {
        peer.receive(5);
        asked.raise();
        peer.receiveUntilClose();
    });
    ScriptedHook hook(leaveAfter(asked));
    const WaitHookInstallation installed(hook);
    EXPECT_EQ(failure(server.url()), goodbye);
    EXPECT_TRUE(server.waitForEnded(1));
}

class StreamWait : public RawStream {};

TARN_ON_PLAIN_AND_TLS(StreamWait);

TEST_P(StreamWait, AfterAGivenUpCallTheOthersFailAtOnceAndSendNothing) {
    Signal asked;
    LoopbackServer server(GetParam(), [&](Peer& peer) {
        peer.open().receiveFrame();
        asked.raise();
        peer.expectClose();
    });
    ScriptedHook hook(leaveAfter(asked));
    const WaitHookInstallation installed(hook);
    CRawStreamDispacher dispatcher(0, "", true);
    EXPECT_EQ(failureOf(dispatcher, server.url()), goodbye);
    EXPECT_EQ(failureOf(dispatcher, server.url()), goodbye);
    EXPECT_EQ(hook.waits, 1);
    EXPECT_EQ(server.connections(), 1u);
    EXPECT_TRUE(server.waitForEnded(1));
}

TEST_P(StreamWait, ACallGivenUpAtItsBeginningIsNotSentAndEndsTheConnection) {
    LoopbackServer server(GetParam(), [](Peer& peer) {
        peer.open().receiveFrame();
        peer.send(responseFrame(1, "pong")).expectClose();
    });
    RefusingHook hook(2);
    const WaitHookInstallation installed(hook);
    CRawStreamDispacher dispatcher(0, "", true);
    EXPECT_EQ(dispatcher.sendRequest(server.url(), "ping"), "pong");
    EXPECT_EQ(failureOf(dispatcher, server.url()), goodbye);
    EXPECT_FALSE(CallPassage::underWay());
    EXPECT_TRUE(server.waitForEnded(1));
    EXPECT_EQ(failureOf(dispatcher, server.url()), goodbye);
    EXPECT_EQ(server.connections(), 1u);
}

TEST(HttpWait, ACallGivenUpAtItsBeginningConnectsNowhere) {
    LoopbackServer server(Mode::tls, [](Peer& peer) { peer.receiveUntilClose(); });
    RefusingHook hook(1);
    const WaitHookInstallation installed(hook);
    {
        CHttpCallDispatcher dispatcher(0, "");
        EXPECT_EQ(failureOf(dispatcher, server.url()), goodbye);
    }
    EXPECT_EQ(server.connections(), 0u);
}

TEST(StreamWaitForConnection, AfterAGivenUpConnectionTheOtherCallsFailAtOnce) {
    LoopbackServer server(Mode::tls, [](Peer& peer) { peer.receiveUntilClose(); });
    ScriptedHook hook(leave);
    const WaitHookInstallation installed(hook);
    CRawStreamDispacher dispatcher(0, "", true);
    EXPECT_EQ(failureOf(dispatcher, server.url()), goodbye);
    EXPECT_EQ(failureOf(dispatcher, server.url()), goodbye);
    EXPECT_EQ(hook.waits, 1);
    EXPECT_EQ(server.connections(), 1u);
}

TEST(CallInsideACall, IsAnErrorOfThisProgram) {
    EXPECT_FALSE(CallPassage::underWay());
    {
        const CallPassage outer;
        EXPECT_TRUE(CallPassage::underWay());
#ifdef NDEBUG
        EXPECT_THROW(CallPassage(), invoke_exception);
#else
        EXPECT_DEATH(CallPassage(), "a call inside a call");
#endif
        EXPECT_TRUE(CallPassage::underWay());
    }
    EXPECT_FALSE(CallPassage::underWay());
}

TEST(CallInsideACall, IsNoCallOfAnotherThread) {
    const CallPassage outer;
    std::thread([] { const CallPassage other; }).join();
}

TEST(StreamWaitForConnection, TheEndOfADispatcherDoesntWaitForAName) {
    const HeldNames names;
    ScriptedHook hook(leave);
    const WaitHookInstallation installed(hook);
    for (int i = 0; i < 3; ++i) {
        CRawStreamDispacher dispatcher(0, "", true);
        EXPECT_EQ(failureOf(dispatcher, "https://agent.held:4411/api"), goodbye);
    }
}

} // namespace
