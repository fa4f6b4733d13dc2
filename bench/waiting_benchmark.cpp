// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0

// The window while the agent is silent for 20 seconds in the middle of a heartbeat: the longest
// time for which it doesn't paint, though it is asked to all the time.

#include <algorithm>
#include <atomic>
#include <chrono>
#include <stdexcept>
#include <thread>

#include <QApplication>

#include <benchmark/benchmark.h>

#include "app/call_gate.h"
#include "refreshed_window.h"
#include "resources/pictures.h"
#include "simulator/simulator.h"

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr auto silence = 20s;

/// Asks a widget to paint itself every 10 milliseconds, and takes the times at which it does.
class PaintWatch : public QObject {
public:
    explicit PaintWatch(QWidget& widget)
        : widget_(widget)
        , last_(Clock::now())
        , asking_([this] { ask(); }) {
        widget.installEventFilter(this);
    }
    ~PaintWatch() override {
        ends_ = true;
        asking_.join();
    }

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint)
            mark();
        return false;
    }

    /// Milliseconds, up to now.
    double longestGap() {
        mark();
        return longest_ * 1e3;
    }

private:
    void ask() {
        while (!ends_) {
            QMetaObject::invokeMethod(&widget_, qOverload<>(&QWidget::update),
                                      Qt::QueuedConnection);
            std::this_thread::sleep_for(10ms);
        }
    }
    void mark() {
        const auto now = Clock::now();
        longest_ = std::max(longest_, std::chrono::duration<double>(now - last_).count());
        last_ = now;
    }

    QWidget& widget_;
    Clock::time_point last_;
    double longest_ = 0;
    std::atomic<bool> ends_ = false;
    std::thread asking_;
};

QWidget& mainWindow() {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (qobject_cast<SimpleGUIMainWindow*>(window))
            return *window;
    throw std::runtime_error("There is no main window");
}

void silentAgent(benchmark::State& state) {
    simulator::Simulator agent;
    bench::RefreshedWindow window(agent.port());
    const app::CallGate gate;
    double longest = 0;
    for (auto round : state) {
        agent.inject("getTarnClientInfo", simulator::Delay{std::chrono::milliseconds(silence)});
        PaintWatch watch(mainWindow());
        const double whole = window.refresh().whole;
        longest = watch.longestGap();
        if (whole < std::chrono::duration<double>(silence).count())
            throw std::runtime_error("The agent wasn't silent");
        state.SetIterationTime(whole);
    }
    state.counters["longest_gap"] = longest;
}

BENCHMARK(silentAgent)->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    resources::initPictures();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
