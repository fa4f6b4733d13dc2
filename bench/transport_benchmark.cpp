// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0

// Calls over TLS on loopback: through the raw stream, beside the same frames on a bare stream of
// blocking Asio and beside gRPC; and through HTTPS, beside the same posts of blocking Beast. Each
// server is a process of its own, and the same one answers ours and its reference. To be run on one
// core, servers included.

#include <algorithm>
#include <chrono>
#include <fstream>
#include <stdexcept>
#include <string_view>
#include <vector>

#include <benchmark/benchmark.h>

#include "frame_echo.h"
#include "grpc_echo.h"
#include "http_echo.h"
#include "memory.h"
#include "server_process.h"
#include "transport/call_passage.h"
#include "transport/http_call_dispatcher.h"
#include "transport/raw_stream_dispatcher.h"

namespace {

using Clock = std::chrono::steady_clock;
using Seconds = std::chrono::duration<double>;

const std::string message(100, 'm');

std::uint16_t framePort = 0;
std::uint16_t grpcPort = 0;
std::uint16_t httpPort = 0;
bench::Identity identity;

std::string frameUrl(const std::string& path) {
    return "https://127.0.0.1:" + std::to_string(framePort) + path;
}

/// `call` sends the message and returns whether it came back.
template <class Call>
void measureCalls(benchmark::State& state, Call call) {
    if (!call())
        throw std::runtime_error("The reply isn't the message");
    std::vector<double> latencies;
    for (auto round : state) {
        const auto begin = Clock::now();
        if (!call())
            throw std::runtime_error("The reply isn't the message");
        latencies.push_back(Seconds(Clock::now() - begin).count());
    }
    const auto middle = latencies.begin() + static_cast<std::ptrdiff_t>(latencies.size() / 2);
    std::nth_element(latencies.begin(), middle, latencies.end());
    state.counters["latency_us"] = *middle * 1e6;
    state.SetItemsProcessed(state.iterations());
}

void callRawStream(benchmark::State& state) {
    hessiancln::CRawStreamDispacher dispatcher(0, "", true);
    const std::string url = frameUrl("/api");
    measureCalls(state, [&] { return dispatcher.sendRequest(url, message) == message; });
}
/// For calls that never take long enough to need it.
class UnusedHook final : public hessiancln::WaitHook {
    std::chrono::milliseconds begin(hessiancln::AwaitedCall&) override {
        return std::chrono::minutes(1);
    }
    void wait(hessiancln::AwaitedCall&) noexcept override {}
};

/// On a thread with a wait hook, which would be called if the reply were late.
void callRawStreamWithHook(benchmark::State& state) {
    UnusedHook hook;
    const hessiancln::WaitHookInstallation installed(hook);
    callRawStream(state);
}
void callBareStream(benchmark::State& state) {
    bench::BareStream stream(framePort);
    const std::string url = frameUrl("/api");
    measureCalls(state, [&] {
        const auto reply = stream.call(url, message);
        return std::string_view(reply.bytes.get(), reply.size) == message;
    });
}
void callGrpc(benchmark::State& state) {
    bench::GrpcClient client(identity, grpcPort);
    measureCalls(state, [&] { return client.call(message) == message; });
}

void httpCall(benchmark::State& state) {
    hessiancln::CHttpCallDispatcher dispatcher(0, "");
    const std::string url = "https://127.0.0.1:" + std::to_string(httpPort) + "/api";
    measureCalls(state, [&] { return dispatcher.sendRequest(url, message) == message; });
}
void httpCallWithHook(benchmark::State& state) {
    UnusedHook hook;
    const hessiancln::WaitHookInstallation installed(hook);
    httpCall(state);
}
void httpCallBare(benchmark::State& state) {
    bench::BareHttp http(httpPort);
    measureCalls(state, [&] { return http.call("/api", message) == message; });
}

/// The peak of the memory in use since this was made.
class MemoryPeak {
public:
    MemoryPeak() {
        std::ofstream("/proc/self/clear_refs") << "5" << std::flush;
        start_ = bench::memory("VmRSS:");
    }
    double growth() const { return bench::memory("VmHWM:") - start_; }

private:
    double start_;
};

/// `receive` returns a large reply, which lives until the measurement is complete.
template <class Receive>
void measureLargeReply(benchmark::State& state, Receive receive) {
    receive();
    double growth = 0;
    for (auto round : state) {
        const MemoryPeak peak;
        const auto begin = Clock::now();
        const auto reply = receive();
        state.SetIterationTime(Seconds(Clock::now() - begin).count());
        growth = std::max(growth, peak.growth());
    }
    state.counters["memory_per_reply"] = growth / bench::largeReplySize;
}

void largeReplyRawStream(benchmark::State& state) {
    hessiancln::CRawStreamDispacher dispatcher(0, "", true);
    const std::string url = frameUrl(bench::largeReplyPath);
    measureLargeReply(state, [&] {
        std::string reply = dispatcher.sendRequest(url, message);
        if (reply.size() != bench::largeReplySize)
            throw std::runtime_error("The large reply isn't whole");
        return reply;
    });
}
void largeReplyBareStream(benchmark::State& state) {
    bench::BareStream stream(framePort);
    const std::string url = frameUrl(bench::largeReplyPath);
    measureLargeReply(state, [&] {
        auto reply = stream.call(url, message);
        if (reply.size != bench::largeReplySize)
            throw std::runtime_error("The large reply isn't whole");
        return reply;
    });
}

BENCHMARK(callBareStream)->UseRealTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(callRawStream)->UseRealTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(callRawStreamWithHook)->UseRealTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(callGrpc)->UseRealTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(httpCallBare)->UseRealTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(httpCall)->UseRealTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(httpCallWithHook)->UseRealTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(largeReplyBareStream)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(largeReplyRawStream)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    identity = bench::makeIdentity();
    const bench::ServerProcess frames(bench::serveFrames);
    const bench::ServerProcess grpc(
        [](const auto& listening) { bench::serveGrpc(identity, listening); });
    const bench::ServerProcess http(bench::serveHttp);
    framePort = frames.port();
    httpPort = http.port();
    grpcPort = grpc.port();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
